#pragma once

#include <vector>

#include "record/form.h"

namespace lumivex {

/// What the results of a cloud stand for.
struct DlogDistOption final : Form {
  DlogDistOption() : Form("dlogDistOption", "Normalised or actual?") {}
  OptionButton optNormalise{*this,     "optNormalise",
                            "results", "Normalised results (for an equivalent single particle)",
                            true,      "Sums over the particles are divided by their number"};
  OptionButton optActual{
      *this,     "optActual",
      "results", "Results for scattering from the defined number of particles in a scattering volume",
      false,     "Sums over the particles stand as they are"};
  CheckBox chkNormalise{*this, "chkNormalise", "Divide numbers by the width of their class", false,
                        "The numbers of classes of unequal width become densities"};
};

/// How the distribution is sampled and drawn.
struct DlogDistDisplay final : Form {
  DlogDistDisplay() : Form("dlogDistDisplay", "Size distribution") {}
  OptionButton optLogX{
      *this, "optLogX", "axis", "Logarithmic x-axis", true, "Sizes are sampled and drawn in equal ratios"};
  OptionButton optLinearX{*this,           "optLinearX", "axis",
                          "Linear x-axis", false,        "Sizes are sampled and drawn in equal steps"};
};

/// Up to three log-normal modes.
struct DlogMultiModal final : Form {
  DlogMultiModal() : Form("dlogMultiModal", "Multimodal distributions") {}

  static constexpr const char* medianTip = "Median radius of the mode in micrometres";
  static constexpr const char* spreadTip = "Geometric standard deviation of the mode, above 1";
  static constexpr const char* fractionTip = "Number of particles in the mode, relative to the others";

  Label lblMedian{*this, "lblMedian", "Median radius (\u00B5m)"};
  Label lblSpread{*this, "lblSpread", "Spread"};
  Label lblFraction{*this, "lblFraction", "Fraction"};
  Label lblMode1{*this, "lblMode1", "Mode 1"};
  TextInput txtMedian1{*this, "txtMedian1", "10", medianTip};
  TextInput txtSpread1{*this, "txtSpread1", "1.2", spreadTip};
  TextInput txtFraction1{*this, "txtFraction1", "1", fractionTip};
  CheckBox chkMode2{*this, "chkMode2", "Mode 2", false, "Use a second mode"};
  TextInput txtMedian2{*this, "txtMedian2", "5", medianTip};
  TextInput txtSpread2{*this, "txtSpread2", "1.2", spreadTip};
  TextInput txtFraction2{*this, "txtFraction2", "0.5", fractionTip};
  CheckBox chkMode3{*this, "chkMode3", "Mode 3", false, "Use a third mode"};
  TextInput txtMedian3{*this, "txtMedian3", "20", medianTip};
  TextInput txtSpread3{*this, "txtSpread3", "1.2", spreadTip};
  TextInput txtFraction3{*this, "txtFraction3", "0.1", fractionTip};
  Label lblSamples{*this, "lblSamples", "Samples"};
  SelectionList cboN{*this, "cboN", SelectionList::Style::Editable, "20", "Number of samples of the distribution"};
};

struct SizeDialogs {
  DlogDistOption dlogDistOption;
  DlogDistDisplay dlogDistDisplay;
  DlogMultiModal dlogMultiModal;

  std::vector<Form*> SizeForms() { return {&dlogDistOption, &dlogDistDisplay, &dlogMultiModal}; }
};

}  // namespace lumivex
