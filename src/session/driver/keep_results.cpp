#include "session/driver/keep_results.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "pages/run_words.h"
#include "record/catalogue/map_inputs.h"
#include "runs/beam_methods.h"
#include "runs/run.h"
#include "runs/settings.h"
#include "session/driver/keep_curves.h"
#include "session/driver/keep_map.h"
#include "session/inputs/light/wavelength_list.h"
#include "session/inputs/look/read_look.h"
#include "session/inputs/materials/refractive_index.h"

namespace lumivex {

namespace {

constexpr int spareRows = 100;  // averaging and interpolation look past the last row

void KeepSphere(MainFormState& s, const Results& results) {
  const LastSphere& last = results.last;
  s.Lambda = last.lambda;
  s.Radius = last.radius;
  s.SizeParameter = last.sizeParameter;
  s.WaveNumber = last.waveNumber;
  s.RefRelReal = last.relativeRe;
  s.RefRelImag = last.relativeIm;
  s.SphereRIReal = last.indices.sphereN;
  s.SphereRIImag = last.indices.sphereK;
  s.MediumRIReal = last.indices.MediumInUse();
  s.MediumRIImag = 0;
  s.Qext = last.efficiencies.Qext;
  s.Qsca = last.efficiencies.Qsca;
  s.Qback = last.efficiencies.Qback;
  s.Gsca = last.efficiencies.g;
}

void KeepSeries(MainFormState& s, const Results& results) {
  const LastSphere& last = results.last;
  // A method without a series leaves those of the last one.
  if (last.NSTOP > 0) s.NSTOP = last.NSTOP;
  if (last.NMX > 0) s.NMX = last.NMX;
  const AngleRows* rows = RowsOf(results.asked.run);
  const AngleGrid grid = rows != nullptr ? rows->Grid() : AngleGrid(last.NANG);
  s.NANG = grid.NANG;
  s.NN = grid.RowCount();
  s.DANG = grid.DANG;
  s.SelectedAngleIndex = last.selectedRow;
  s.PartialWaveFirst = last.partialWaveFirst;
  s.PartialWaveLast = last.partialWaveLast;
}

void KeepRays(RayState& rays, const Results& results) {
  const LastSphere& last = results.last;
  const Illumination& light = results.asked.method.beam;
  rays.PlaneWaveFlag = light.Plane() ? 0 : 1;
  if (!light.Plane() && last.radius > 0) {
    const RayBeam beam = BeamOfRays(light, last.radius);
    rays.BeamCentreOffset = beam.BeamCentreOffset;
    rays.BeamWaist = beam.BeamWaist;
    rays.BeamTilt = light.phi;
  }
  if (!results.asked.method.rays.empty()) rays.RayIndex = static_cast<int>(results.asked.method.rays.size()) - 1;
  rays.RainbowImpact = last.rainbowImpact;
  rays.RainbowAngle = last.rainbowAngle;
  rays.RayAngleDegrees = last.rayAngle;
  rays.QminValue = results.asked.method.Qmin;
  rays.QmaxValue = results.asked.method.Qmax;
  rays.ApertureCentre = last.apertureCentre;
  rays.ApertureWeight = last.apertureWeight;
  rays.BesselOrders = last.besselOrders;
}

void KeepSizes(SizeState& sizes, RunState& run, const Results& results) {
  run.NumberSamples = 1;
  if (!results.asked.Cloud()) return;
  if (const auto* normal = std::get_if<NormalSizes>(&results.asked.sizes)) {
    sizes.DistSample = normal->z;
    sizes.RelativeSD = normal->relativeSD;
  }
  CloudSamples samples = SamplesAt(results.asked, results.last.radius);
  run.NumberSamples = samples.Count();
  sizes.DistRadius = std::move(samples.radius);
  sizes.DistWeight = std::move(samples.weight);
  sizes.DistMin = samples.lowest;
  sizes.DistMax = samples.highest;
  sizes.DistRatio = samples.ratio;
}

void KeepLight(MainFormState& s, const Results& results) {
  const int count = results.asked.Wavelengths();
  s.NumberWavelengths = s.ResultWavelengths = count;
  s.WavelengthsDone = 0;
  if (!results.asked.light.spectrum) return;
  const SpectrumOfLight& light = *results.asked.light.spectrum;
  // Columns of a map are there at all wavelengths or not at all.
  const auto* spectrum = results.Find<SpectrumFound>();
  s.WavelengthsDone = spectrum != nullptr ? spectrum->done : count;
  StoreSpectrum(s, light);
}

/// Where the loops have ended. What the run told on its way depends on the threads.
void KeepLoops(MainFormState& s, const Results& results) {
  s.WavelengthIndex = std::max(s.WavelengthsDone, 1);
  s.DispSample = results.asked.Cloud() ? results.last.samples : 0;
  s.SampleIndex = results.asked.Cloud() ? std::max(results.last.samples, 1) : 1;
  s.PointIndex = 0;
  if (const auto* axis = results.Find<AxisFound>()) s.PointIndex = axis->done;
  if (const auto* analysis = results.Find<DebyeAnalysisFound>()) s.PointIndex = analysis->done;
  if (const auto* volume = results.Find<VolumeFound>()) s.PointIndex = static_cast<double>(volume->x.size() - 1);
  s.AngleLoopIndex = static_cast<int>(double{s.ProgressFraction} * s.NN);
  s.SeriesLoopIndex = static_cast<int>(double{s.ProgressFraction} * s.NSTOP);
}

/// Rows of a graph against angle.
void KeepRows(MainFormState& s, const AngleRows& rows) {
  s.Xmin = rows.xmin;
  s.Xmax = rows.xmax;
  s.Xstep = rows.step;
  s.FirstPoint = rows.firstPoint;
  s.LastPoint = rows.lastPoint;
  s.ArrayRows = 2 * rows.NANG - 1 + spareRows;
  s.AngleRows = 180 / rows.step + 1;
  s.AngleLow = rows.window.low;
  s.AngleHigh = rows.window.high;
  s.MirrorCount = 2 * rows.NANG - 1 - s.AngleLow;
}

/// An axis of `points` points.
void KeepPoints(MainFormState& s, double xmin, double xmax, double step, int points) {
  s.Xmin = xmin;
  s.Xmax = xmax;
  s.Xstep = step;
  s.FirstPoint = 1;
  s.LastPoint = points;
}

/// What each family leaves under names of its own.
struct KeepFound {
  Session& session;
  const Results& results;

  void operator()(const AngleFound& found) const {
    auto& s = session.state;
    KeepRows(s, *RowsOf(results.asked.run));
    s.S1 = found.S1;
    s.S2 = found.S2;
    s.S1b = found.S1b;
    s.S2b = found.S2b;
    s.Waves = found.waves;
  }
  void operator()(const SpectrumFound& found) const {
    auto& s = session.state;
    KeepRows(s, *RowsOf(results.asked.run));
    s.S1 = found.S1;
    s.S2 = found.S2;
  }
  void operator()(const AxisFound& found) const {
    auto& s = session.state;
    const auto& axis = std::get<AxisRun>(results.asked.run);
    KeepPoints(s, axis.xmin, axis.xmax, axis.step, axis.points);
    if (axis.logSteps) s.LogStepRatio = StepRatio(axis);
    s.S1ofPoint = found.S1;
    s.S2ofPoint = found.S2;
  }
  void operator()(const VolumeFound& found) const {
    auto& s = session.state;
    const AxisRun& axis = std::get<VolumeRun>(results.asked.run).axis;
    KeepPoints(s, axis.xmin, axis.xmax, axis.step, static_cast<int>(found.x.size()) - 1);
    if (axis.logSteps) s.LogStepRatio = StepRatio(axis);
    s.S1ofPoint = found.S1;
    s.S2ofPoint = found.S2;
  }
  void operator()(const ConvergenceFound& found) const {
    auto& s = session.state;
    auto& form = session.form1;
    const int terms = std::max(static_cast<int>(found.perpendicular.size()) - 1, 0);
    const int last = found.first + terms - 1;
    KeepPoints(s, found.first, last, 1, terms);
    form.txtXmin.Text = std::to_string(found.first);
    form.cboStep.Text = "1";
    form.txtXmax.Text = std::to_string(last);
    s.S1 = found.S1;
    s.S2 = found.S2;
    s.Waves = found.waves;
  }
  void operator()(const DebyeAnalysisFound& found) const {
    auto& s = session.state;
    const int limit = std::get<DebyeAnalysisRun>(results.asked.run).limit;
    KeepPoints(s, 0, limit + 1, 1, limit + 2);
    s.S1b = found.S1b;
    s.S2b = found.S2b;
  }
  void operator()(const TwoAngleFound& found) const {
    session.state.MapPerp = found.first;
    session.state.MapPar = found.second;
  }
  void operator()(const MapFound& found) const {
    auto& s = session.state;
    if (const AngleRows* rows = RowsOf(results.asked.run)) {
      KeepRows(s, *rows);
    } else {
      const Sweep& rowsSwept = std::get<EfficiencyMapRun>(results.asked.run).rows;
      KeepPoints(s, rowsSwept.low, rowsSwept.high, rowsSwept.steps, rowsSwept.Count());
    }
    KeepMap(s, results, found);
    // A map has one scale unless the user asks for one a column.
    if (results.asked.graph.IsMap())
      session.form1.cboLee.Text = MapScaleAtStart(results.asked.graph, !results.asked.light.spectrum);
  }
};

}  // namespace

void KeepResults(Session& session, Results&& kept) {
  auto& s = session.state;
  // Views of the results before.
  static_cast<LeeResults&>(s) = {};
  s.FoldedResults.reset();
  if (kept.number == 0) kept.number = s.LastResults ? s.LastResults->number + 1 : 1;
  s.LastResults = std::make_shared<const Results>(std::move(kept));
  const Results& results = *s.LastResults;
  s.PrevGraphType = s.GraphType;
  s.PrevGraphSubType = s.GraphSubType;
  s.ResultMethod = s.CalcMethod;
  s.LastRunSeconds = results.seconds;
  s.YAxisMode = 0;
  // The inputs of the index show what was used: of an axis or a spectrum that of the last wavelength. Where a map
  // sweeps it they stay the user's.
  if (!results.asked.graph.InColour() || !results.asked.graph.VariesIndex())
    RefRel(session, results.last.lambda, LookupVoice::Quiet);
  KeepSphere(s, results);
  KeepSeries(s, results);
  KeepRays(s, results);
  KeepSizes(s, s, results);
  KeepLight(s, results);
  KeepLoops(s, results);
  std::visit(KeepFound{session, results}, results.found);
  s.PlotXmin = s.Xmin;
  s.PlotXmax = s.Xmax;
  const Look look = ReadLook(session);
  FillCurveArrays(s, results, CurvesOf(results, {look.amplitude, look.invWavelength}), look.sun.rectangular);
  s.RunTitle = RunTitleOf(results);
  s.RunLabel = MethodLabelOf(results);
  // Under the list of methods there is room for the lines of a beam too.
  const bool beam = !results.asked.method.beam.Plane();
  session.form1.lblDebyeRays.Caption = beam ? results.asked.words.methodLabel : s.RunLabel;
}

}  // namespace lumivex
