#include "record/forms/inhom_dialog.h"

#include <string>

namespace lumivex {

DlogInhomSphere::DlogInhomSphere() : Form("dlogInhomSphere", "Inhomogeneous sphere") {
  constexpr int fewest = 2, most = 8192;
  for (int layers = fewest; layers <= most; layers *= 2) cboLayers.Items.push_back(std::to_string(layers));
}

}  // namespace lumivex
