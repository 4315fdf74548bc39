#pragma once

#include <string_view>

#include "record/session.h"

namespace lumivex {

struct LayerEvent {
  std::string_view name;
  void (*handler)(Session&);
};

}  // namespace lumivex
