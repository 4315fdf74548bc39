#include "session/driver/spectrum_family.h"

#include <algorithm>
#include <span>
#include <string>
#include <utility>

#include "colour/wavelength_colour.h"
#include "pages/spectrum_sums.h"
#include "record/number_text.h"
#include "session/driver/angle_family.h"
#include "session/driver/array_size.h"
#include "session/driver/progress.h"
#include "session/inputs/light/wavelength_list.h"
#include "session/inputs/materials/refractive_index.h"
#include "session/inputs/methods.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/size_menus.h"

namespace lumivex {

namespace {

constexpr int stopRequested = 4;
constexpr int coatedSphere = 13, inhomogeneousSphere = 17;
constexpr double twoPi = 6.28318530717958648;
constexpr double finestStep = 0.01;  // degrees: mostSpectrumRows rows

/// Intensities by wavelength and row, as they are gathered.
struct Gathered {
  std::vector<double> perpendicular, parallel, waveNumber;
  std::size_t rows = 0;
  int done = 0;

  Gathered(int wavelengths, std::size_t rowCount) : rows(rowCount) {
    const auto count = static_cast<std::size_t>(wavelengths);
    perpendicular.reserve(count * rows);
    parallel.reserve(count * rows);
    waveNumber.assign(count + 1, 0.0);
  }

  void Add(const MainFormState& s) {
    for (int row = s.AngleLow; row <= s.AngleHigh; ++row) {
      perpendicular.push_back(s.S1.Intensity(row));
      parallel.push_back(s.S2.Intensity(row));
    }
    waveNumber[static_cast<std::size_t>(++done)] = s.WaveNumber;
  }
};

/// Index, size parameter and wave number at a wavelength; false where the materials have no index there.
bool SetWavelength(Session& session, double lambda) {
  auto& s = session.state;
  s.Lambda = lambda;
  if (s.CalcMethod != coatedSphere && s.CalcMethod != inhomogeneousSphere) {
    const auto relative = RefRel(session, lambda);
    if (!relative) return false;
    s.RefRelReal = *relative;
    s.SphereRIReal = s.RefractReal;
    s.SphereRIImag = s.RefractImag;
    s.MediumRIReal = s.RefractMedium == 0 ? 1 : s.RefractMedium;
  }
  s.SizeParameter = twoPi * s.Radius * s.MediumRIReal / lambda;
  s.WaveNumber = twoPi * s.MediumRIReal / (lambda * 1e-6);
  return true;
}

void PrintStripLine(DrawingSurface& surface, double top, const std::string& text) {
  constexpr double left = 12000, right = 15600, height = 300;
  const Colour before = surface.ForeColour;
  surface.ForeColour = surface.BackColour;
  surface.Line(left, top, right, top + height, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
  surface.CurrentX = left;
  surface.CurrentY = top;
  surface.Print(text);
  surface.ForeColour = before;
}

/// The running wavelength and radius in the side strip, over the readings of the run before.
void PrintWavelength(Session& session) {
  const auto& s = session.state;
  constexpr double wavelengthTop = 2100, radiusTop = 2400;
  PrintStripLine(*session.surface, wavelengthTop,
                 "Wavelength #" + std::to_string(s.WavelengthIndex) + " = " + Significant(s.Lambda, 5));
  PrintStripLine(*session.surface, radiusTop, "Radius = " + Format(s.Radius, "#0.##"));
}

std::size_t MiddleOf(const MainFormState& s) {
  return static_cast<std::size_t>((s.NumberWavelengths + 1) / 2);
}

void GatherWavelengths(Session& session, Gathered& gathered) {
  auto& s = session.state;
  for (int i = 1; i <= s.NumberWavelengths && s.PlotMode != stopRequested; ++i) {
    s.WavelengthIndex = i;
    s.SampleIndex = 1;
    s.DispSample = 0;
    s.AngleLoopIndex = 0;
    if (!SetWavelength(session, s.WavelengthList[static_cast<std::size_t>(i)])) {
      s.PlotMode = stopRequested;
      return;
    }
    PrintWavelength(session);
    Progress(session);
    if (s.PlotMode == stopRequested) return;
    SolveAngles(session);
    // What a Stop cut short is not the intensity of the wavelength.
    if (s.PlotMode != stopRequested) gathered.Add(s);
  }
}

void StoreSpectrum(Session& session, Gathered& gathered) {
  auto& s = session.state;
  s.ResultWavelengths = s.NumberWavelengths;
  s.WavelengthsDone = gathered.done;
  s.ResultSource = session.form1.lblSpectrum.Caption;
  s.ResultSamples = session.form1.optDisp.Checked ? s.NumberSamples : 1;
  s.SpectrumRowLow = s.AngleLow;
  s.SpectrumRowHigh = s.AngleHigh;
  s.WavelengthPerp = std::move(gathered.perpendicular);
  s.WavelengthPar = std::move(gathered.parallel);
  s.WavelengthWaveNumber = std::move(gathered.waveNumber);
  SizeAngleCurves(s);
  for (int row = s.AngleLow; row <= s.AngleHigh; ++row) s.XValues[static_cast<std::size_t>(row)] = (row - 1) * s.Xstep;
  FoldSpectrum(session);
}

}  // namespace

bool IsSpectrumRun(const RunState& s) {
  return s.NumberWavelengths > 1 && s.GraphType < 10;
}

void PrepareSpectrum(Session& session) {
  auto& s = session.state;
  auto& form = session.form1;
  if (form.cboWave.Text == "RGB") form.chkComponents.Checked = true;
  s.Radius = SphereRadius(session);
  NumberWavelengths(session);
  lambdaN(session);
  s.Lambda = s.WavelengthList[MiddleOf(s)];
}

void RestoreLight(MainFormState& s, const LightState& before) {
  static_cast<LightState&>(s) = before;
  for (std::size_t i = 1; i < s.WavelengthList.size() && i < s.WavelengthColours.size(); ++i) {
    const ColourTriple colour = colRGB2(s.WavelengthList[i]);
    s.WavelengthColours[i] = RGB(colour.r, colour.g, colour.b);
  }
}

void CalculateSpectrum(Session& session) {
  auto& s = session.state;
  RefuseDisperseLeeDiagram(session);
  if (2 * Int(90 / Val(session.form1.cboStep.Text)) + 1 > mostSpectrumRows) {
    session.form1.cboStep.Text = Shortest(finestStep);
    Array_Size(session);
  }
  const AmplitudeTable S1 = s.S1, S2 = s.S2;
  PrepareAngleRows(session);
  s.S1.Resize(s.ArrayRows);
  s.S2.Resize(s.ArrayRows);
  Gathered gathered(s.NumberWavelengths, static_cast<std::size_t>(s.AngleHigh - s.AngleLow + 1));
  GatherWavelengths(session, gathered);
  const bool refused = s.PlotMode == stopRequested && (s.StopAnswer == 0 || gathered.done == 0);
  if (refused) {
    s.StopAnswer = 0;
    s.S1 = S1;
    s.S2 = S2;
    return;
  }
  SetWavelength(session, s.WavelengthList[MiddleOf(s)]);
  StoreSpectrum(session, gathered);
}

}  // namespace lumivex
