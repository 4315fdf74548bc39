#pragma once

#include <span>
#include <string_view>

#include "session/event_table.h"

namespace lumivex {

struct SettingsEvent {
  std::string_view name;
  EventTable::Handler handler;
};

/// The events of recent files, of the last session, and of settings that have to be kept.
std::span<const SettingsEvent> SettingsEvents();

}  // namespace lumivex
