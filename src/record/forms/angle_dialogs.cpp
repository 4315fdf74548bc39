#include "record/forms/angle_dialogs.h"

#include <string>

namespace lumivex {

DlogFFT::DlogFFT() : Form("dlogFFT", "Fast Fourier Transform") {
  constexpr int fewest = 64, most = 1 << 20;
  for (int points = fewest; points <= most; points *= 2) cboFFT.Items.push_back(std::to_string(points));
  txtThetaMax.Enabled = false;
}

}  // namespace lumivex
