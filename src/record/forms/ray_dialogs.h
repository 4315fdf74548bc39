#pragma once

#include <array>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "record/form.h"

namespace lumivex {

/// Highest p that has a box of its own in the choice of rays.
inline constexpr int LastRayBox = 50;

/// Names of the boxes p = 0..LastRayBox, for the layout of the dialog.
inline constexpr std::array<std::string_view, LastRayBox + 1> rayBoxNames = {
    "chkRay0",  "chkRay1",  "chkRay2",  "chkRay3",  "chkRay4",  "chkRay5",  "chkRay6",  "chkRay7",  "chkRay8",
    "chkRay9",  "chkRay10", "chkRay11", "chkRay12", "chkRay13", "chkRay14", "chkRay15", "chkRay16", "chkRay17",
    "chkRay18", "chkRay19", "chkRay20", "chkRay21", "chkRay22", "chkRay23", "chkRay24", "chkRay25", "chkRay26",
    "chkRay27", "chkRay28", "chkRay29", "chkRay30", "chkRay31", "chkRay32", "chkRay33", "chkRay34", "chkRay35",
    "chkRay36", "chkRay37", "chkRay38", "chkRay39", "chkRay40", "chkRay41", "chkRay42", "chkRay43", "chkRay44",
    "chkRay45", "chkRay46", "chkRay47", "chkRay48", "chkRay49", "chkRay50"};

/// The numbers p of internal reflections where cboRays reads "Multiple": one by one, or from a lowest to a highest by a
/// step.
struct DlogP final : Form {
  DlogP() : Form("dlogP", "Multiple values of p") {
    for (std::size_t p = 0; p < rayBoxNames.size(); ++p)
      chkRays.emplace_back(*this, rayBoxNames[p], std::to_string(p), false, "Add the rays of this number p");
    txtPmin.Enabled = txtPmax.Enabled = txtPstep.Enabled = false;
  }
  CheckBox chkMultStep{*this, "chkMultStep", "Range of p", false, "Take a range of p instead of the boxes"};
  Label lblPmin{*this, "lblPmin", "Minimum p"};
  TextInput txtPmin{*this, "txtPmin", "0", "Lowest p of the range"};
  Label lblPmax{*this, "lblPmax", "Maximum p"};
  TextInput txtPmax{*this, "txtPmax", "3", "Highest p of the range"};
  Label lblPstep{*this, "lblPstep", "Step"};
  TextInput txtPstep{*this, "txtPstep", "1", "Step from p to p of the range"};
  CheckBox chkDiffraction{*this, "chkDiffraction", "+ Diffraction", false, "Add the diffraction of the sphere's disc"};
  CommandButton cmdSelectAll{*this, "cmdSelectAll", "Select all", "Select every p from 0 to 50"};
  CommandButton cmdSelectNone{*this, "cmdSelectNone", "Select none", "Select no p"};
  std::deque<CheckBox> chkRays;  ///< by p, 0..LastRayBox
};

/// Which Debye terms of one point are told apart in the phasor diagram.
struct DlogDebyeSeq final : Form {
  DlogDebyeSeq() : Form("dlogDebyeSeq", "Sequence of Debye terms") {}
  Label lblLimit{*this, "lblLimit", "Highest p"};
  TextInput txtLimit{*this, "txtLimit", "20", "Highest p of the sequence of Debye terms"};
  CheckBox chkLabels{*this, "chkLabels", "Number some of the points only", true,
                     "Without it every point has its number"};
  Label lblTerms{*this, "lblTerms", "n"};
  TextInput txtTerms{*this, "txtTerms", "5", "Number n of the option below"};
  OptionButton optTerms{*this, "optTerms", "labels", "The first n", true, "Number the points after up to n terms"};
  OptionButton optDecades{*this,    "optDecades",
                          "labels", "Those above 10^-n of the scale",
                          false,    "Number the points whose modulus is large enough"};
};

/// Which partial waves of a Debye term are summed.
struct DlogPartial final : Form {
  DlogPartial() : Form("dlogPartial", "Partial waves") {}
  OptionButton optFull{*this, "optFull", "waves", "Full", true, "Sum all partial waves"};
  OptionButton optPartial{*this, "optPartial", "waves", "Partial", false, "Sum the partial waves of a range only"};
  Label lblMin{*this, "lblMin", "Minimum n/x"};
  TextInput txtMin{*this, "txtMin", "0.2", "First partial wave over the size parameter x"};
  Label lblMax{*this, "lblMax", "Maximum n/x"};
  TextInput txtMax{*this, "txtMax", "0.4", "Last partial wave over the size parameter x"};
};

struct RayDialogs {
  DlogP dlogP;
  DlogDebyeSeq dlogDebyeSeq;
  DlogPartial dlogPartial;

  std::vector<Form*> RayForms() { return {&dlogP, &dlogDebyeSeq, &dlogPartial}; }
};

}  // namespace lumivex
