#pragma once

#include <string>
#include <type_traits>

namespace lumivex {

/// The batch file that is running.
struct BatchState {
  std::string BatchFileName;       ///< the command file in use
  int BatchListMode = 0;           ///< 1: the file is a list of command files
  int BatchVersion = 0;            ///< of the command file: 3403, 4100 or 4200
  int BatchActive = 0;             ///< 1 while commands run: no dialog opens, and nobody is asked for time
  std::string OutputFileName;      ///< output of the command file
  std::string ListOutputFileName;  ///< the one that a list derives from the name of an entry
  std::string StepName;            ///< what the next run steps through
  float StepFrom = 0;              ///< first value of the steps
  float StepTo = 0;                ///< last value
  float StepBy = 0;                ///< from one to the next
  float StepValue = 0;             ///< of the present step
  int StepActive = 0;              ///< 1 from a step command to the end of the next run
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, BatchState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("BatchFileName", g.BatchFileName);
  visit("BatchListMode", g.BatchListMode);
  visit("BatchVersion", g.BatchVersion);
  visit("BatchActive", g.BatchActive);
  visit("OutputFileName", g.OutputFileName);
  visit("ListOutputFileName", g.ListOutputFileName);
  visit("StepName", g.StepName);
  visit("StepFrom", g.StepFrom);
  visit("StepTo", g.StepTo);
  visit("StepBy", g.StepBy);
  visit("StepValue", g.StepValue);
  visit("StepActive", g.StepActive);
}

}  // namespace lumivex
