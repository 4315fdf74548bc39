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

inline constexpr std::array<std::string_view, 20> exampleEntryNames = {
    "mnuExample1",  "mnuExample2",  "mnuExample3",  "mnuExample4",  "mnuExample5",  "mnuExample6",  "mnuExample7",
    "mnuExample8",  "mnuExample9",  "mnuExample10", "mnuExample11", "mnuExample12", "mnuExample13", "mnuExample14",
    "mnuExample15", "mnuExample16", "mnuExample17", "mnuExample18", "mnuExample19", "mnuExample20"};

/// Entries of a menu whose texts are not known before the program runs: hidden until they name something.
struct NumberedEntries {
  NumberedEntries(Form& owner, std::span<const std::string_view> names) {
    for (const std::string_view name : names) list.emplace_back(owner, name, "").Visible = false;
  }
  std::deque<MenuEntry> list;
};

}  // namespace lumivex
