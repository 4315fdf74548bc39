#pragma once

#include <string_view>

namespace lumivex {

/// Raises events by name, so that a routine far below the commands can set one off: "cmdNewPlot_Click" of the main
/// window, "dlogTemp.txtTemp_Change" of a dialog. Case does not matter; an event that nothing listens to is nothing.
class Events {
 public:
  virtual ~Events() = default;
  /// @return whether anything listens to that event.
  virtual bool Raise(std::string_view name) = 0;
};

}  // namespace lumivex
