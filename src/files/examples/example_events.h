#pragma once

#include <span>
#include <string_view>

#include "session/event_table.h"

namespace lumivex {

struct ExampleEvent {
  std::string_view name;
  EventTable::Handler handler;
};

/// The events of the menu of examples.
std::span<const ExampleEvent> ExampleEvents();

}  // namespace lumivex
