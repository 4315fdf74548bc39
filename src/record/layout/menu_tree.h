#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "record/features.h"

namespace lumivex {

/// One entry of the menu bar: where it stands, and which MenuEntry of the main window it shows. Choosing it raises
/// "<entry>_Click"; its caption, tick, visibility and availability are those of the MenuEntry.
struct MenuRow {
  std::string_view path;   ///< "Advanced/Refractive index/Sphere"
  std::string_view entry;  ///< name of the MenuEntry; "-" is a separator
  Feature feature = Feature::Always;
  std::string_view shortcut = {};  ///< "Ctrl+C"
};

/// A submenu that is hidden, disabled or renamed with an entry of its own.
struct SubmenuRow {
  std::string_view path;   ///< "Light/Spectrum"
  std::string_view entry;  ///< "mnuSpectrum"
};

/// The whole menu bar in order; a row whose feature is not available is left out. A path's menus appear where the path
/// is first met; doubled separators and separators at an end are the walker's to drop.
std::vector<MenuRow> OfferedMenu();

std::span<const SubmenuRow> Submenus();

}  // namespace lumivex
