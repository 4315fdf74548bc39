#pragma once

#include <array>
#include <deque>
#include <span>
#include <string_view>

#include "record/controls.h"

namespace lumivex {

inline constexpr std::array<std::string_view, 9> recentEntryNames = {"mnuRecent1", "mnuRecent2", "mnuRecent3",
                                                                     "mnuRecent4", "mnuRecent5", "mnuRecent6",
                                                                     "mnuRecent7", "mnuRecent8", "mnuRecent9"};

/// Entries of a menu whose texts are not known before the program runs: hidden until they name something.
struct NumberedEntries {
  NumberedEntries(Form& owner, std::span<const std::string_view> names) {
    for (const std::string_view name : names) list.emplace_back(owner, name, "").Visible = false;
  }
  std::deque<MenuEntry> list;
};

}  // namespace lumivex
