#pragma once

#include <cstdlib>

namespace lumivex {

/// What must hold whatever the bytes are; the fuzzer keeps the input that breaks it.
inline void Require(bool condition) {
  if (!condition) std::abort();
}

}  // namespace lumivex
