#pragma once

#include <vector>

#include "record/form.h"

namespace lumivex {

/// Place, width and polarisation of a focused beam. Its frame holds a warning of the beam that a run was about to be
/// made with.
struct DlogGaussianBeam final : Form {
  DlogGaussianBeam() : Form("dlogGaussianBeam", "Gaussian beam") {
    Frame1.Visible = lblWarning.Visible = false;
    txtPhi.Enabled = false;
  }
  Label lblBeamXF{*this, "lblBeamXF", "Beam centre  x0"};
  TextInput txtBeamXF{*this, "txtBeamXF", "0",
                      "Focus of the beam beside the centre of the sphere, along the polarisation (\u00B5m)"};
  Label lblBeamYF{*this, "lblBeamYF", "Beam centre  y0"};
  TextInput txtBeamYF{*this, "txtBeamYF", "-40",
                      "Focus of the beam beside the centre of the sphere, across the polarisation and within the "
                      "scattering plane (\u00B5m)"};
  Label lblBeamZF{*this, "lblBeamZF", "Beam centre  z0"};
  TextInput txtBeamZF{*this, "txtBeamZF", "0", "Focus of the beam behind the centre of the sphere (\u00B5m)"};
  Label lblBeamWo{*this, "lblBeamWo", "Beam half-width w0"};
  TextInput txtBeamWo{*this, "txtBeamWo", "20",
                      "Where the field of the focus has fallen to 1/e of that on its axis (\u00B5m)"};
  Label lblPhi{*this, "lblPhi", "Tilt "};
  TextInput txtPhi{*this, "txtPhi", "90", "Azimuth of the scattering plane to the polarisation (degrees)"};
  CheckBox chkLock{*this, "chkLock", "Use Lock's definition of polarisation?", false,
                   "Both amplitudes are those of one beam, its polarisation turned by the tilt; otherwise each is of a "
                   "beam that is polarised along it"};
  Frame Frame1{*this, "Frame1", "Warning: Results may be inaccurate"};
  Label lblWarning{*this, "lblWarning"};
};

/// Where the double series of a beam ends.
struct DlogMmax final : Form {
  DlogMmax() : Form("dlogMmax", "Maxium value of m") {}
  Label lblMmax{*this, "lblMmax", "Mmax"};
  TextInput txtMmax{*this, "txtMmax", "7", "Highest |M| of the sum over azimuthal orders"};
  Label lblLmax{*this, "lblLmax", "Lmax"};
  TextInput txtLmax{*this, "txtLmax", "118", "Highest L of the sum over partial waves"};
  Label lblMmax1{*this, "lblMmax1", "Mmax1"};
  TextInput txtMmax1{*this, "txtMmax1", "4",
                     "Mmax from which the terms of sums over j are formed with logarithms; below it with powers and "
                     "factorials up to 98!"};
  Label lblJmax1{*this, "lblJmax1", "Jmax1"};
  TextInput txtJmax1{*this, "txtJmax1", "1000",
                     "Last j of the sums for shape coefficients. As long as Mmax1, Jmax1 and Error are what they were, "
                     "Bessel functions take the place of these sums"};
  Label lblError{*this, "lblError", "Error"};
  TextInput txtError{*this, "txtError", "1E-20", "A sum over j ends where the parts of its terms are smaller"};
};

struct BeamDialogs {
  DlogGaussianBeam dlogGaussianBeam;
  DlogMmax dlogMmax;

  std::vector<Form*> BeamForms() { return {&dlogGaussianBeam, &dlogMmax}; }
};

}  // namespace lumivex
