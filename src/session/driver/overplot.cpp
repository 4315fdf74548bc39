#include "session/driver/overplot.h"

#include <utility>

#include "pages/huygens_drawing.h"
#include "pages/visible_data.h"
#include "record/number_text.h"
#include "session/driver/angle_family.h"
#include "session/driver/array_size.h"
#include "session/driver/axis_family.h"
#include "session/driver/display_run.h"
#include "session/driver/progress.h"
#include "session/driver/spectrum_family.h"
#include "session/driver/two_angle_family.h"
#include "session/info.h"
#include "session/inputs/materials/refractive_index.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/size_distribution_display.h"

namespace lumivex {

namespace {

constexpr int stopRequested = 4;
constexpr int coatedSphere = 13, inhomogeneousSphere = 17;
constexpr double twoPi = 6.28318530717958648;

void ReadAxes(Session& session) {
  auto& s = session.state;
  const auto& form = session.form1;
  if (s.PlotMode != 2) {
    s.Xmin = Val(form.txtXmin.Text);
    s.Xmax = Val(form.txtXmax.Text);
    s.Xstep = Val(form.cboStep.Text);
    if (form.cboYmin.Text != "Automatic") s.Ymin = Val(form.cboYmin.Text);
    if (form.cboYmax.Text != "Automatic") s.Ymax = Val(form.cboYmax.Text);
  }
  s.PlotXmin = s.Xmin;
  s.PlotXmax = s.Xmax;
}

void ShowRunning(Session& session) {
  auto& form = session.form1;
  if (form.Frame6.Visible) cmdInfo_Click(session);
  BeginProgress(session);
  form.cmdStop.Visible = form.cmdStop.Enabled = true;
  for (TextInput* input :
       {&form.txtLambda, &form.txtRadius, &form.txtRefractReal, &form.txtRefractImag, &form.txtRefractMedium})
    input->BackColour = colours::White;
  form.cboStep.BackColour = colours::White;
}

void ShowEnded(Session& session) {
  session.form1.cmdStop.Visible = session.form1.cmdStop.Enabled = false;
}

/// Wavelength, indices and size of the run. The indices are the full values that the models gave, not the seven
/// decimals that the fields show of them.
bool ReadSphere(Session& session) {
  auto& s = session.state;
  const auto& form = session.form1;
  if (!IsSpectrumRun(s)) s.Lambda = Val(form.txtLambda.Text);
  if (s.CalcMethod != coatedSphere && s.CalcMethod != inhomogeneousSphere) {
    const auto relative = RefRel(session, s.Lambda);
    if (!relative) return false;
    s.RefRelReal = *relative;
    s.SphereRIReal = s.RefractReal;
    s.SphereRIImag = s.RefractImag;
    s.MediumRIReal = s.RefractMedium == 0 ? 1 : s.RefractMedium;
    s.MediumRIImag = 0;
  }
  if (s.GraphType < 20) {
    const double size = Val(form.txtRadius.Text);
    s.Radius = form.mnuRadiusX.Checked    ? size * s.Lambda / (twoPi * s.MediumRIReal)
               : form.mnuDiameter.Checked ? size / 2
                                          : size;
  }
  s.SizeParameter = form.mnuRadiusX.Checked ? Val(form.txtRadius.Text) : twoPi * s.Radius * s.MediumRIReal / s.Lambda;
  return true;
}

/// What the old results are read by. A run that is refused puts it back with them.
class ResultsBefore {
 public:
  explicit ResultsBefore(const MainFormState& s)
      : axis_(s), series_(s), optical_(s), light_(s), curveSize_(s.XValues.size()) {}
  void Restore(MainFormState& s) const {
    static_cast<AxisState&>(s) = axis_;
    static_cast<SeriesState&>(s) = series_;
    static_cast<OpticalState&>(s) = optical_;
    RestoreLight(s, light_);
    for (auto* curve : {&s.XValues, &s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3})
      curve->resize(curveSize_);
  }

 private:
  AxisState axis_;
  SeriesState series_;
  OpticalState optical_;
  LightState light_;
  std::size_t curveSize_;
};

void Calculate(Session& session) {
  const int type = session.state.GraphType;
  if (IsSpectrumRun(session.state)) return CalculateSpectrum(session);
  if (IsTwoAngleContour(session.state)) return CalculateTwoAngle(session);
  if (type < 10) CalculateAngles(session);
  if (type >= 10 && type < 19) CalculateAxis(session);
}

}  // namespace

void Overplot(Session& session) {
  auto& s = session.state;
  s.YAxisMode = 0;
  const ResultsBefore before(s);
  ReadAxes(session);
  s.WavelengthPos = s.SamplePos = 1;
  auto waves = std::exchange(s.HuygensWaves, {});
  const double secondsBefore = s.LastRunSeconds;
  ShowRunning(session);
  const bool spectrum = IsSpectrumRun(s);
  if (spectrum) PrepareSpectrum(session);
  if (!ReadSphere(session)) s.PlotMode = stopRequested;
  if (s.GraphType < 19 && s.PlotMode != stopRequested) {
    Array_Size(session);
    s.StartTime = session.platform.Timer();
    Calculate(session);
    s.LastRunSeconds = session.platform.Timer() - s.StartTime;
  }
  const bool stored = s.PlotMode != stopRequested || s.StopAnswer != 0;
  if (stored) {
    s.PrevGraphType = s.GraphType;
    s.PrevGraphSubType = s.GraphSubType;
    s.ResultMethod = s.CalcMethod;
    KeepRunParameters(session);
  } else {
    before.Restore(s);
    s.HuygensWaves = std::move(waves);
    s.LastRunSeconds = secondsBefore;
  }
  EndProgress(session);
  if (s.PlotMode != stopRequested) {
    DisplayRun(session);
    DistDisplay(session);
  } else if (s.PrevGraphType != 0) {
    // The bar ran over the readings: those of the results that a Replot draws.
    VisibleData(session);
    DistDisplay(session, false);
    DrawHuygens(session);
  }
  ShowEnded(session);
  s.PlotMode = 1;
}

}  // namespace lumivex
