#pragma once

#include <vector>

#include "record/form.h"

namespace lumivex {

/// A falling drop that air flattens, in sunlight, and which of its rays are counted.
struct DlogNonSpherical final : Form {
  DlogNonSpherical();

  static constexpr auto list = SelectionList::Style::Editable;

  Frame frmShape{*this, "frmShape", "Shape of the drop"};
  OptionButton optSpheroid{*this,   "optSpheroid",
                           "shape", "Spheroid",
                           true,    "An ellipse turned about the vertical, round above and below alike"};
  OptionButton optBurgeroid{*this,   "optBurgeroid",
                            "shape", "Burgeroid",
                            false,   "Round above and flat below, as drops fall; its size says how flat"};
  OptionButton optRatioSize{*this,   "optRatioSize",
                            "ratio", "Axis ratio from the size",
                            false,   "Height over width of a falling drop of the radius in use"};
  OptionButton optRatioTyped{
      *this, "optRatioTyped", "ratio", "Axis ratio", true, "Height over width as it is typed, whatever the size"};
  TextInput txtAxisRatio{*this, "txtAxisRatio", "0.95", "Height over width of the spheroid, 0.3 to 3"};

  Frame frmLight{*this, "frmLight", "Sun and view"};
  Label lblElevation{*this, "lblElevation", "Sun elevation (deg)"};
  TextInput txtElevation{*this, "txtElevation", "20", "Elevation of the sun over the horizon in degrees, -90 to 90"};
  Label lblClock{*this, "lblClock", "Clock angle (deg)"};
  TextInput txtClock{*this, "txtClock", "0",
                     "Place along the bow: 0 at its top, 90 at its side, 180 below the antisolar point"};
  Label lblClockWidth{*this, "lblClockWidth", "Half-width (deg)"};
  TextInput txtClockWidth{*this, "txtClockWidth", "5", "Clock angles up to so many degrees to both sides are counted"};
  CheckBox chkAllRound{*this, "chkAllRound", "All round", false, "Count light whatever its clock angle"};

  Frame frmOrders{*this, "frmOrders", "Rays p"};
  CheckBox chkP0{*this, "chkP0", "0", false, "Light that is reflected outside"};
  CheckBox chkP1{*this, "chkP1", "1", false, "Light that passes straight through"};
  CheckBox chkP2{*this, "chkP2", "2", true, "One inner reflection: the primary bow"};
  CheckBox chkP3{*this, "chkP3", "3", true, "Two inner reflections: the secondary bow"};
  CheckBox chkP4{*this, "chkP4", "4", false, "Three inner reflections"};
  Label lblRayCount{*this, "lblRayCount", "Number of rays"};
  SelectionList cboRayCount{*this, "cboRayCount", list, "4000000",
                            "Rays that are traced, 1E3 to 1E9: four times as many halve the noise"};
  CheckBox chkSky{*this, "chkSky", "Table for the simulation", false,
                  "Count the light of every clock angle too, so that the simulation window can paint the whole bow"};

  Label lblDrop{*this, "lblDrop"};
  Picture picDrop{*this, "picDrop", "Section of the drop with the rays of its bows, and the bows along the clock"};
};

/// A drop of dew before a leaf.
struct DlogHeiligenschein final : Form {
  DlogHeiligenschein() : Form("dlogHeiligenschein", "Heiligenschein") {}
  Label lblDistance{*this, "lblDistance", "Distance L (radii)"};
  TextInput txtDistance{*this, "txtDistance", "2",
                        "Distance of the surface from the centre of the sphere in radii, from 1"};
  Label lblSlope{*this, "lblSlope", "Slope gamma (deg)"};
  TextInput txtSlope{*this, "txtSlope", "0",
                     "Angle in degrees between the normal of the surface and the direction to the sun, 0 to 89"};
};

struct DropDialogs {
  DlogNonSpherical dlogNonSpherical;
  DlogHeiligenschein dlogHeiligenschein;

  std::vector<Form*> DropForms() { return {&dlogNonSpherical, &dlogHeiligenschein}; }
};

}  // namespace lumivex
