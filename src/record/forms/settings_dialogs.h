#pragma once

#include "record/form.h"

namespace lumivex {

/// The speed of this machine, by which the time of a run is told before it begins.
struct DlogCalibration final : Form {
  DlogCalibration() : Form("dlogCalibration", "Speed of this machine") {}
  Label lblMeasured{*this, "lblMeasured", ""};
  Label lblCalibration{*this, "lblCalibration", "Speed (million terms a second)"};
  TextInput txtCalibration{*this, "txtCalibration", "",
                           "Terms of a series, each at one pair of angles, that one thread of this machine sums in a "
                           "second, in millions"};
  CommandButton cmdMeasure{*this, "cmdMeasure", "Measure again", "Time a short series of known length"};
  Label lblExample{*this, "lblExample", ""};
  CheckBox chkFast{*this, "chkFast", "Fast machine: never ask before a long calculation", false,
                   "Every calculation starts at once, however long it will take"};
};

}  // namespace lumivex
