#pragma once

#include <vector>

#include "record/form.h"

namespace lumivex {

/// Which columns of a file are measured data, with its first lines to look at.
struct DlogMeasured final : Form {
  DlogMeasured() : Form("dlogMeasured", "Measured data") {}

  static constexpr auto Fixed = SelectionList::Style::Fixed;

  Label lblPreview1{*this, "lblPreview1"};
  Label lblPreview2{*this, "lblPreview2"};
  Label lblPreview3{*this, "lblPreview3"};
  Label lblPreview4{*this, "lblPreview4"};
  Label lblPreview5{*this, "lblPreview5"};
  Label lblXColumn{*this, "lblXColumn", "Horizontal axis"};
  SelectionList cboXColumn{*this, "cboXColumn", Fixed, "", "Column of the angle, or of what else the axis shows"};
  Label lblYColumn{*this, "lblYColumn", "Measured values"};
  SelectionList cboYColumn{*this, "cboYColumn", Fixed, "", "Column of what was measured"};
  Label lblErrorColumn{*this, "lblErrorColumn", "Errors"};
  SelectionList cboErrorColumn{*this, "cboErrorColumn", Fixed, "",
                               "Column of the standard deviations of the measured values, or none"};
  Label lblDataName{*this, "lblDataName", "Name"};
  TextInput txtDataName{*this, "txtDataName", "", "Name of the data in the key and in tables"};
};

/// The window of curves, measured data and marked points. Its list follows the page.
struct CurvesForm final : Form {
  CurvesForm() : Form("Curves", "Curves") {}
};

/// The forms of comparing.
struct CompareDialogs {
  DlogMeasured dlogMeasured;
  CurvesForm curves;

  std::vector<Form*> CompareForms() { return {&dlogMeasured, &curves}; }
};

}  // namespace lumivex
