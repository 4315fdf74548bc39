#include "record/forms/impulse_dialogs.h"

#include <string>

namespace lumivex {

DlogImpulse::DlogImpulse() : Form("dlogImpulse", "Impulse response") {
  constexpr int fewest = 128, most = 131072, mostSamplesOfQuarter = 64;
  cboPulseShape.Items = {"Rectangular", "Raised cosine", "Hamming", "Gaussian"};
  cboPulseDuration.Items = {"2", "5", "10", "20", "50", "100"};
  for (int n = fewest; n <= most; n *= 2) cboFFT.Items.push_back(std::to_string(n));
  cbodB.Items = {"-3",  "-6",  "-10", "-12", "-15", "-18", "-20", "-25", "-30", "-35",
                 "-40", "-45", "-50", "-55", "-60", "-65", "-70", "-75", "-80"};
  for (int n = 1; n <= mostSamplesOfQuarter; n *= 2) cboN.Items.push_back(std::to_string(n));
  // Both boxes with their numbers.
  Picture1.Width = 9300;
  Picture1.Height = 4800;
  for (Control* control : {static_cast<Control*>(&lblFC), static_cast<Control*>(&lblFM), static_cast<Control*>(&lblFD),
                           static_cast<Control*>(&lblFS), static_cast<Control*>(&txtFC), static_cast<Control*>(&txtFM),
                           static_cast<Control*>(&txtFD), static_cast<Control*>(&txtFS)})
    control->Visible = false;
}

ImpulsePlotForm::ImpulsePlotForm() : Form("ImpulsePlot", "Impulse response") {
  cboTheta.Items = {"0",   "10",  "20",  "30",  "40",  "50",  "60",  "70",  "80", "90",
                    "100", "110", "120", "130", "140", "150", "160", "170", "180"};
  cboPol.Items = {"Perpendicular", "Parallel", "Both", "Unpolarised", "All 3"};
  constexpr int highestDecade = 12, lowestDecade = -12;
  std::vector<std::string> limits = {"Automatic"};
  for (int power = highestDecade; power >= lowestDecade; --power) {
    const std::string digits = std::to_string(power < 0 ? -power : power);
    limits.push_back(std::string(power < 0 ? "1E-" : "1E+") + (digits.size() < 2 ? "0" : "") + digits);
  }
  cboYmax.Items = cboYmin.Items = limits;
  cmdReplot.Enabled = false;
  cmdReplot.Default = true;
}

DlogTimePlot::DlogTimePlot() : Form("dlogTimePlot", "Time plot") {
  cboStep.Items = {"0.1", "0.01"};
}

}  // namespace lumivex
