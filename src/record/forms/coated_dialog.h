#pragma once

#include "record/form.h"

namespace lumivex {

/// The two radii of a sphere with a coating, which the checks of inputs hold against each other.
struct DlogCoatedSphere final : Form {
  DlogCoatedSphere() : Form("dlogCoatedSphere", "Coated sphere") {}
  Label lblCoreRadius{*this, "lblCoreRadius", "Radius of core"};
  TextInput txtCoreRadius{*this, "txtCoreRadius", "7.5", "Radius of the core in micrometres"};
  Label lblMantleRadius{*this, "lblMantleRadius", "Overall radius of sphere"};
  TextInput txtMantleRadius{*this, "txtMantleRadius", "10", "Radius of the whole sphere in micrometres"};
};

}  // namespace lumivex
