#pragma once

#include <span>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// An event of the menus, inputs and dialogs of materials, light and sizes, and what it does.
struct MaterialEvent {
  std::string_view name;
  void (*handler)(Session&);
};

std::span<const MaterialEvent> MaterialEvents();

}  // namespace lumivex
