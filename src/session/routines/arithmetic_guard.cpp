#include "session/routines/arithmetic_guard.h"

#include <cfenv>

namespace lumivex {

namespace {
constexpr int watched = FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID;
}

ArithmeticGuard::ArithmeticGuard() {
  std::feclearexcept(FE_ALL_EXCEPT);
}

bool ArithmeticGuard::Passed(Session& session) const {
  if (std::fetestexcept(watched) == 0) return true;
  std::feclearexcept(FE_ALL_EXCEPT);
  session.platform.Message("Error", "Overflow, division by zero or invalid operation in the calculation");
  session.state.PlotMode = 4;
  return false;
}

}  // namespace lumivex
