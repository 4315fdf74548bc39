#pragma once

#include <string>
#include <vector>

#include "session/record/form.h"

namespace lumivex {

/// What the user had set on every form, and the codes and names that follow from it.
struct InputState {
  std::vector<FormSnapshot> forms;
  int graphType = 1, graphSubType = 1, calcMethod = 1;
  std::string sphereName, mediumName;
  std::vector<std::string> captions;  ///< of the main window's labels and frames, in their order
};

/// States of the inputs before each action of the user, oldest first, and those that were undone.
struct UndoHistory {
  std::vector<InputState> past, future;
  std::string typedInto;  ///< control of the last action where that was typing; typing on merges with it
  bool held = false;      ///< while states are restored nothing is recorded
};

}  // namespace lumivex
