#include "files/batch/batch_keywords.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lumivex {

namespace {

using enum BatchAction;

constexpr std::array keywords = {
    BatchKeyword{"Mie", ChooseMethod},
    BatchKeyword{"Debye", ChooseMethod},
    BatchKeyword{"Airy", ChooseMethod},
    BatchKeyword{"Diffraction", ChooseMethod},
    BatchKeyword{"Young", ChooseMethod},
    BatchKeyword{"Young mod", ChooseMethod},
    BatchKeyword{"Rayleigh", ChooseMethod},
    BatchKeyword{"Descartes", ChooseMethod},
    BatchKeyword{"Surface wave", ChooseMethod},
    BatchKeyword{"Burgeroid", ChooseMethod},
    BatchKeyword{"Heiligenschein", ChooseMethod},

    BatchKeyword{"Intensity v. scattering angle", ChooseGraph},
    BatchKeyword{"Intensity v. wavelength", ChooseGraph},
    BatchKeyword{"Intensity v. radius", ChooseGraph},
    BatchKeyword{"Intensity v. diameter", ChooseGraph},
    BatchKeyword{"Intensity v. refractive index", ChooseGraph},
    BatchKeyword{"Intensity v. size parameter x", ChooseGraph},
    BatchKeyword{"Lee diagram", ChooseGraph, "", "Lee diagram: radius"},
    BatchKeyword{"Impulse response", ChooseGraph},
    BatchKeyword{"Qext/Qsca/Qabs impulse response", ChooseGraph},

    BatchKeyword{"Radius", TypeSize, "mnuRadius"},
    BatchKeyword{"radius", TypeSize, "mnuRadius"},
    BatchKeyword{"Diameter", TypeSize, "mnuDiameter"},
    BatchKeyword{"diameter", TypeSize, "mnuDiameter"},
    BatchKeyword{"P", Type, "cboRays"},
    BatchKeyword{"p", Type, "cboRays"},
    BatchKeyword{"Wavelength", Type, "txtLambda"},
    BatchKeyword{"wavelength", Type, "txtLambda"},
    BatchKeyword{"xmin", Type, "txtXmin"},
    BatchKeyword{"xmax", Type, "txtXmax"},
    BatchKeyword{"xstep", Type, "cboStep"},
    BatchKeyword{"Angle", Type, "txtAngle"},
    BatchKeyword{"angle", Type, "txtAngle"},
    BatchKeyword{"RImedium", Type, "txtRefractMedium"},
    BatchKeyword{"RIreal", Type, "txtRefractReal"},
    BatchKeyword{"RIimag", Type, "txtRefractImag"},

    BatchKeyword{"plane", Click, "mnuPlaneWave"},
    BatchKeyword{"Plane", Click, "mnuPlaneWave"},
    BatchKeyword{"gaussian", Click, "mnuGaussian"},
    BatchKeyword{"Gaussian", Click, "mnuGaussian"},
    BatchKeyword{"Disperse", Click, "optDisp"},
    BatchKeyword{"Monodisperse", Click, "optMono"},
    BatchKeyword{"Normal", Pick, "cboDistrib"},
    BatchKeyword{"Log-normal", Pick, "cboDistrib"},
    BatchKeyword{"SD", Type, "cboSD"},
    BatchKeyword{"N", TypeSamples, "cboN"},

    BatchKeyword{"gaussian x0", Type, "dlogGaussianBeam.txtBeamXF"},
    BatchKeyword{"Gaussian x0", Type, "dlogGaussianBeam.txtBeamXF"},
    BatchKeyword{"gaussian y0", Type, "dlogGaussianBeam.txtBeamYF"},
    BatchKeyword{"Gaussian y0", Type, "dlogGaussianBeam.txtBeamYF"},
    BatchKeyword{"gaussian z0", Type, "dlogGaussianBeam.txtBeamZF"},
    BatchKeyword{"Gaussian z0", Type, "dlogGaussianBeam.txtBeamZF"},
    BatchKeyword{"gaussian w0", Type, "dlogGaussianBeam.txtBeamWo"},
    BatchKeyword{"Gaussian w0", Type, "dlogGaussianBeam.txtBeamWo"},

    BatchKeyword{"Jmin", Type, "cboQmin"},
    BatchKeyword{"Jmax", Type, "cboQmax"},
    BatchKeyword{"Axis ratio", Type, "dlogNonSpherical.txtAxisRatio"},
    BatchKeyword{"Sun elevation", Type, "dlogNonSpherical.txtElevation"},
    BatchKeyword{"Clock angle", Type, "dlogNonSpherical.txtClock"},
    BatchKeyword{"Rays", Type, "dlogNonSpherical.cboRayCount"},
    BatchKeyword{"L", Type, "dlogHeiligenschein.txtDistance"},
    BatchKeyword{"gamma", Type, "dlogHeiligenschein.txtSlope"},
    BatchKeyword{"Gaussian pulse", Pick, "dlogImpulse.cboPulseShape", "Gaussian"},
    BatchKeyword{"Rectangular pulse", Pick, "dlogImpulse.cboPulseShape", "Rectangular"},
    BatchKeyword{"Raised cosine pulse", Pick, "dlogImpulse.cboPulseShape", "Raised cosine"},
    BatchKeyword{"Hamming pulse", Pick, "dlogImpulse.cboPulseShape", "Hamming"},
    BatchKeyword{"Pulse duration", Type, "dlogImpulse.cboPulseDuration"},
    BatchKeyword{"N-point FFT", Type, "dlogImpulse.cboFFT"},
    BatchKeyword{"Cut-off", Type, "dlogImpulse.cbodB"},
    BatchKeyword{"Sampling factor", Type, "dlogImpulse.cboN"},
    BatchKeyword{"tmin", Type, "txtF9_min"},
    BatchKeyword{"tmax", Type, "txtF9_max"},
    BatchKeyword{"tstep", Type, "txtF9_step"},

    BatchKeyword{"Step", Step},
    BatchKeyword{"step", Step},
    BatchKeyword{"run", Run},
    BatchKeyword{"Stop", Stop},
    BatchKeyword{"stop", Stop},
};

constexpr int decimalsOfWavelength = 6;  // micrometres: a millionth of one

constexpr std::array stepNames = {
    BatchStepName{"RImedium", "txtRefractMedium"},
    BatchStepName{"RIreal", "txtRefractReal"},
    BatchStepName{"RIimag", "txtRefractImag"},
    BatchStepName{"Wavelength", "txtLambda", "", decimalsOfWavelength},
    BatchStepName{"wavelength", "txtLambda", "", decimalsOfWavelength},
    BatchStepName{"Radius", "txtRadius", "mnuRadius"},
    BatchStepName{"radius", "txtRadius", "mnuRadius"},
    BatchStepName{"Diameter", "txtRadius", "mnuDiameter"},
    BatchStepName{"diameter", "txtRadius", "mnuDiameter"},
    BatchStepName{"Angle", "txtAngle"},
    BatchStepName{"angle", "txtAngle"},
    BatchStepName{"gaussian x0", "dlogGaussianBeam.txtBeamXF"},
    BatchStepName{"Gaussian x0", "dlogGaussianBeam.txtBeamXF"},
    BatchStepName{"gaussian y0", "dlogGaussianBeam.txtBeamYF"},
    BatchStepName{"Gaussian y0", "dlogGaussianBeam.txtBeamYF"},
    BatchStepName{"gaussian z0", "dlogGaussianBeam.txtBeamZF"},
    BatchStepName{"Gaussian z0", "dlogGaussianBeam.txtBeamZF"},
    BatchStepName{"gaussian w0", "dlogGaussianBeam.txtBeamWo"},
    BatchStepName{"Gaussian w0", "dlogGaussianBeam.txtBeamWo"},
    BatchStepName{"Jmin", "cboQmin"},
    BatchStepName{"Jmax", "cboQmax"},
    BatchStepName{"Axis ratio", "dlogNonSpherical.txtAxisRatio"},
    BatchStepName{"Sun elevation", "dlogNonSpherical.txtElevation"},
    BatchStepName{"Clock angle", "dlogNonSpherical.txtClock"},
    BatchStepName{"L", "dlogHeiligenschein.txtDistance"},
    BatchStepName{"gamma", "dlogHeiligenschein.txtSlope"},
    BatchStepName{"P", "cboRays"},
    BatchStepName{"p", "cboRays"},
};

constexpr std::array firstLines = {
    std::pair{std::string_view("Lumivex 3403 batch file"), 3403},
    std::pair{std::string_view("Lumivex 4100 batch file"), 4100},
    std::pair{std::string_view("Lumivex 4200 batch file"), 4200},
};

template <class Rows>
auto FindRow(const Rows& rows, std::string_view text) {
  const auto row = std::ranges::find(rows, text, [](const auto& r) { return r.text; });
  return row == rows.end() ? nullptr : &*row;
}

}  // namespace

std::span<const BatchKeyword> BatchKeywords() {
  return keywords;
}

const BatchKeyword* FindBatchKeyword(std::string_view text) {
  return FindRow(keywords, text);
}

const BatchStepName* FindBatchStepName(std::string_view text) {
  return FindRow(stepNames, text);
}

int BatchVersionOf(std::string_view firstLine) {
  for (const auto& [line, version] : firstLines)
    if (line == firstLine) return version;
  return 0;
}

bool EndsBatch(std::string_view line) {
  return line == "Stop" || line == "stop";
}

}  // namespace lumivex
