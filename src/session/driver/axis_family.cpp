#include "session/driver/axis_family.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include "pages/spectrum_sums.h"
#include "record/number_text.h"
#include "session/driver/angle_family.h"
#include "session/driver/angle_quantities.h"
#include "session/driver/debye_analysis.h"
#include "session/driver/point_solver.h"
#include "session/driver/progress.h"
#include "session/driver/solver_chain.h"
#include "session/inputs/materials/refractive_index.h"
#include "session/inputs/sizes/size_distribution.h"
#include "session/routines/arithmetic_guard.h"
#include "session/routines/mie.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/series/mie_coefficients.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979324;
constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();
constexpr int mieMethod = 1;
constexpr int stopRequested = 4;

/// The points of the axis, what was found at each, first index 1.
struct AxisRun {
  const Graph* graph = nullptr;
  int points = 0;
  std::vector<double> x;                       ///< in the axis' unit
  std::vector<double> size, mRe, mIm, radius;  ///< size parameter, relative index, radius (um)
  std::vector<double> waveNumber;              ///< 1/m
  std::vector<double> lambda, medium;          ///< wavelength in vacuo (um), index of the medium
  std::vector<double> Qext, Qsca, Qback, g;
  std::vector<double> Cext, Csca;           ///< um2
  std::vector<double> powerPerp, powerPar;  ///< scattered into the range of angles chosen (W)
  int done = 0;                             ///< points done, from the first

  void Resize(int count) {
    points = count;
    const auto elements = static_cast<std::size_t>(count) + 1;
    for (auto* list : {&x, &size, &mRe, &mIm, &radius, &waveNumber, &lambda, &medium, &Qext, &Qsca, &Qback, &g, &Cext,
                       &Csca, &powerPerp, &powerPar})
      list->assign(elements, 0.0);
  }
};

void ReadAxis(Session& session, AxisRun& run) {
  auto& s = session.state;
  const auto& form = session.form1;
  s.Xmin = Val(form.txtXmin.Text);
  s.Xmax = Val(form.txtXmax.Text);
  s.Xstep = Val(form.cboStep.Text);
  s.FirstPoint = 1;
  int last = 1;
  if (form.mnuXStepLog.Checked) {
    s.LogStepRatio = std::pow(s.Xmax / s.Xmin, 1 / s.Xstep);
    last = ToWhole(s.Xstep) + 1;
  } else {
    last = ToWhole(Int((s.Xmax - s.Xmin) / s.Xstep + 1.0001));
  }
  run.Resize(std::clamp(last, 1, mostPoints));
  s.LastPoint = run.points;
}

double AxisPosition(const Session& session, int point) {
  const auto& s = session.state;
  const double position =
      session.form1.mnuXStepLog.Checked ? s.Xmin * std::pow(s.LogStepRatio, point - 1) : s.Xmin + (point - 1) * s.Xstep;
  return std::min(position, s.Xmax);
}

/// Size, wavelength and index at a point; false where there is no index.
bool PlacePoint(Session& session, AxisRun& run, int point) {
  using enum AxisVariable;
  auto& s = session.state;
  const auto i = static_cast<std::size_t>(point);
  const double x = run.x[i] = AxisPosition(session, point);
  double radius = s.Radius, mRe = s.RefRelReal;
  double mIm = s.RefRelImag;
  switch (run.graph->axis) {
    case Wavelength: {
      s.Lambda = x / 1000;
      const auto relative = RefRel(session, s.Lambda);
      if (!relative) return false;
      mRe = *relative;
      mIm = s.RefRelImag;
      s.MediumRIReal = s.RefractMedium == 0 ? 1 : s.RefractMedium;
      break;
    }
    case Radius:
      radius = x;
      break;
    case Diameter:
      radius = x / 2;
      break;
    case AxisVariable::SizeParameter:
      radius = x * s.Lambda / (2 * pi * s.MediumRIReal);
      break;
    case RefractiveIndex:
      mRe = x / s.MediumRIReal;
      break;
    default:
      break;
  }
  run.radius[i] = radius;
  run.mRe[i] = mRe;
  run.mIm[i] = mIm;
  run.size[i] = run.graph->axis == AxisVariable::SizeParameter ? x : 2 * pi * radius * s.MediumRIReal / s.Lambda;
  run.lambda[i] = s.Lambda;
  run.medium[i] = s.MediumRIReal;
  run.waveNumber[i] = 2 * pi * s.MediumRIReal / (s.Lambda * 1e-6);
  return true;
}

bool Stopped(const Session& session) {
  return session.state.PlotMode == stopRequested;
}

/// All points at once: efficiencies, and where the graph has one the amplitudes at the angle typed.
void SolveAllAtOnce(Session& session, AxisRun& run) {
  auto& s = session.state;
  const auto from1 = [&](std::vector<double>& list) { return std::span(list).subspan(1); };
  for (int point = 1; point <= run.points; ++point) {
    const auto i = static_cast<std::size_t>(point);
    if (RefuseBeyondMie(session, run.size[i], run.mRe[i], run.mIm[i])) return;
  }
  SessionMonitor monitor(session, SessionMonitor::Share::Points);
  const ArithmeticGuard guard;
  EfficiencyOptions options{session.form1.mnuSize.Checked, session.form1.mnuClassicStart.Checked};
  EfficiencyLists lists{from1(run.Qext), from1(run.Qsca), from1(run.Qback), from1(run.g)};
  std::vector<double> S1Re, S1Im, S2Re, S2Im;
  if (!run.graph->OfEfficiencies()) {
    options.angle = Val(session.form1.txtAngle.Text) * pi / 180;
    for (auto* column : {&S1Re, &S1Im, &S2Re, &S2Im}) column->resize(static_cast<std::size_t>(run.points));
    lists.S1Re = S1Re;
    lists.S1Im = S1Im;
    lists.S2Re = S2Re;
    lists.S2Im = S2Im;
  }
  run.done =
      static_cast<int>(SolveEfficiencies({from1(run.size), from1(run.mRe), from1(run.mIm)}, lists, options, monitor));
  if (options.angle) {
    s.S1ofPoint.Resize(run.points);
    s.S2ofPoint.Resize(run.points);
    for (int point = 1; point <= run.done; ++point) {
      const auto i = static_cast<std::size_t>(point) - 1;
      s.S1ofPoint.Set(point, S1Re[i], S1Im[i]);
      s.S2ofPoint.Set(point, S2Re[i], S2Im[i]);
    }
    s.CloudCrossRe.clear();
    s.CloudCrossIm.clear();
  }
  for (std::size_t i = 1; i < run.radius.size(); ++i) {
    const double area = pi * run.radius[i] * run.radius[i];
    run.Cext[i] = area * run.Qext[i];
    run.Csca[i] = area * run.Qsca[i];
  }
  guard.Passed(session);
}

/// Power scattered into the angles from txtF9_min to txtF9_max, by rows txtF9_step apart: the incident density times
/// 2 pi/k^2 times the integral of |S|^2 sin(theta).
void SolvePower(Session& session, AxisRun& run, std::size_t i) {
  auto& s = session.state;
  const auto& form = session.form1;
  const double step = Val(form.txtF9_step.Text);
  s.NANG = ToWhole(90 / step) + 1;
  s.NN = 2 * s.NANG - 1;
  const AngleGrid grid(s.NANG);
  const double rowsPerDegree = (s.NANG - 1) / 90.0;
  const int low = std::clamp(ToWhole(Val(form.txtF9_min.Text) * rowsPerDegree) + 1, 1, s.NN);
  const int high = std::clamp(ToWhole(Val(form.txtF9_max.Text) * rowsPerDegree) + 1, low, s.NN);
  if (form.optDisp.Checked)
    DispCalc(session, low, high, {CallSolver, Progress});
  else
    CallSolver(session, low, high);
  if (Stopped(session)) return;
  const double k = run.waveNumber[i];
  const double scale = s.IncidentDensity * 2 * pi / (k * k) * grid.DANG;
  double perpendicular = 0, parallel = 0;
  for (int row = low; row <= high; ++row) {
    const double weight = std::sin(grid.Angle(row)) * (row == low || row == high ? 0.5 : 1);
    perpendicular += weight * s.S1.Intensity(row);
    parallel += weight * s.S2.Intensity(row);
  }
  run.powerPerp[i] = scale * perpendicular;
  run.powerPar[i] = scale * parallel;
  run.Qext[i] = s.Qext;
  run.Qsca[i] = s.Qsca;
  run.Qback[i] = s.Qback;
  run.g[i] = s.Gsca;
}

/// The cloud of the size distribution about the radius of the point, seen at one angle: its roots of mean intensities
/// stand for moduli without phase.
std::optional<PointResult> SolveCloud(Session& session, double angle) {
  const auto solve = [&]() -> std::optional<SpherePoint> {
    const auto found = SolvePoint(session, angle);
    if (!found) return std::nullopt;
    const Efficiencies& e = found->efficiencies;
    return SpherePoint{found->S1, found->S2, e.Qext, e.Qsca, e.Qback, e.g};
  };
  const auto cloud = DispCalcPoint(session, solve, Progress);
  if (!cloud) {
    session.state.PlotMode = stopRequested;
    return std::nullopt;
  }
  return PointResult{{std::sqrt(cloud->perpendicular), 0},
                     {std::sqrt(cloud->parallel), 0},
                     {cloud->Qext, cloud->Qsca, cloud->Qback, cloud->g},
                     cloud->cross,
                     cloud->Cext,
                     cloud->Csca};
}

void SolvePointByPoint(Session& session, AxisRun& run) {
  auto& s = session.state;
  const double angle = run.graph->OfEfficiencies() ? 0 : Val(session.form1.txtAngle.Text) * pi / 180;
  const bool disperse = session.form1.optDisp.Checked;
  s.S1ofPoint.Resize(run.points);
  s.S2ofPoint.Resize(run.points);
  for (auto* cross : {&s.CloudCrossRe, &s.CloudCrossIm})
    cross->assign(disperse ? static_cast<std::size_t>(run.points) + 1 : 0, 0.0);
  for (int point = 1; point <= run.points && !Stopped(session); ++point) {
    const auto i = static_cast<std::size_t>(point);
    s.PointIndex = point;
    s.ProgressFraction = static_cast<float>((point - s.FirstPoint) / (s.LastPoint - s.FirstPoint + 1));
    s.Radius = run.radius[i];
    s.SizeParameter = run.size[i];
    s.RefRelReal = run.mRe[i];
    s.RefRelImag = run.mIm[i];
    // The sizes of a cloud are made from these.
    s.Lambda = run.lambda[i];
    s.MediumRIReal = run.medium[i];
    if (run.graph->quantity == Quantity::Power) {
      SolvePower(session, run, i);
      if (Stopped(session)) return;
      run.done = point;
      Progress(session);
      continue;
    }
    const auto found = disperse ? SolveCloud(session, angle) : SolvePoint(session, angle);
    if (!found) return;
    s.S1ofPoint.Set(point, found->S1.re, found->S1.im);
    s.S2ofPoint.Set(point, found->S2.re, found->S2.im);
    if (disperse) {
      s.CloudCrossRe[i] = found->cross.re;
      s.CloudCrossIm[i] = found->cross.im;
    }
    run.Qext[i] = found->efficiencies.Qext;
    run.Qsca[i] = found->efficiencies.Qsca;
    run.Qback[i] = found->efficiencies.Qback;
    run.g[i] = found->efficiencies.g;
    run.Cext[i] = found->Cext;
    run.Csca[i] = found->Csca;
    run.done = point;
    Progress(session);
  }
}

struct PointCurves {
  double perpendicular = 0, parallel = 0, unpolarised = 0;
};

/// The three curves of a quantity at a point.
PointCurves QuantityAt(const Session& session, const AxisRun& run, std::size_t i) {
  using enum Quantity;
  const auto all = [](double value) { return PointCurves{value, value, value}; };
  const double volume = 4.0 / 3 * pi * std::pow(run.radius[i], 3);  // um3
  const bool constantVolume = session.form1.mnuConstantVolume.Checked;
  double factor = 1;
  switch (run.graph->quantity) {
    case Efficiencies:
      // Per volume: many small spheres in place of one large.
      factor = constantVolume ? pi * run.radius[i] * run.radius[i] / volume : 1;
      break;
    case CrossSections:
      factor = constantVolume ? 1e-12 / volume : 1e-12;  // m2
      return {factor * run.Cext[i], factor * run.Csca[i], factor * (run.Cext[i] - run.Csca[i])};
    case Quantity::Qback:
      return all(run.Qback[i]);
    case Qradar:
      return all(4 * pi * run.Qback[i]);
    case Asymmetry:
      return all(run.g[i]);
    case Albedo:
      return all(run.Cext[i] == 0 ? 0 : run.Csca[i] / run.Cext[i]);
    case Power:
      return {run.powerPerp[i], run.powerPar[i], (run.powerPerp[i] + run.powerPar[i]) / 2};
    default:
      return {};
  }
  return {factor * run.Qext[i], factor * run.Qsca[i], factor * (run.Qext[i] - run.Qsca[i])};
}

void StoreQuantities(Session& session, const AxisRun& run) {
  auto& s = session.state;
  for (int point = 1; point <= run.done; ++point) {
    const auto i = static_cast<std::size_t>(point);
    const PointCurves curves = QuantityAt(session, run, i);
    s.Iperp[i] = curves.perpendicular;
    s.Ipar[i] = curves.parallel;
    s.Iunpol[i] = curves.unpolarised;
    s.Extra1[i] = s.Extra2[i] = s.Extra3[i] = 0;
  }
}

void StoreCurves(Session& session, AxisRun& run) {
  auto& s = session.state;
  ForgetSpectrum(s);
  for (auto* curve : {&s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3})
    curve->assign(static_cast<std::size_t>(run.points) + 1, notComputed);
  s.XValues = run.x;
  s.PointsDone = run.done;
  if (run.graph->OfEfficiencies() || run.graph->quantity == Quantity::Power) {
    StoreQuantities(session, run);
  } else {
    s.WaveNumbers = run.waveNumber;
    FillAxisCurves(session);
  }
  if (run.done < 1) return;
  const auto last = static_cast<std::size_t>(run.done);
  s.Qext = run.Qext[last];
  s.Qsca = run.Qsca[last];
  s.Qback = run.Qback[last];
  s.Gsca = run.g[last];
  s.SizeParameter = run.size[last];
  if (s.CalcMethod == mieMethod) s.NSTOP = NStopEstimate(run.size[last]);
}

/// The running sums of one sphere at the angle typed, term by term.
void CalculateConvergence(Session& session) {
  auto& s = session.state;
  constexpr int rowsTo90 = 901;
  s.NANG = rowsTo90;
  s.NN = 2 * s.NANG - 1;
  s.SelectedAngleIndex = std::clamp(ToWhole(Val(session.form1.txtAngle.Text) * 10) + 1, 1, s.NN);
  CallSolver(session, s.SelectedAngleIndex, s.SelectedAngleIndex);
  if (Stopped(session) && s.StopAnswer == 0) return;
  ForgetSpectrum(s);
  s.Xmin = 1;
  s.Xmax = s.NSTOP;
  s.Xstep = 1;
  s.FirstPoint = 1;
  s.LastPoint = s.NSTOP;
  session.form1.txtXmin.Text = "1";
  session.form1.cboStep.Text = "1";
  s.XValues.assign(static_cast<std::size_t>(s.NSTOP) + 1, 0.0);
  for (int n = 1; n <= s.NSTOP; ++n) s.XValues[static_cast<std::size_t>(n)] = n;
  for (auto* curve : {&s.Extra1, &s.Extra2, &s.Extra3}) curve->assign(s.XValues.size(), 0.0);
  s.PlotXmin = s.Xmin;
  s.PlotXmax = s.Xmax;
}

}  // namespace

void FillAxisCurves(Session& session) {
  auto& s = session.state;
  const auto& form = session.form1;
  const bool matrix = s.GraphType == 10 && s.GraphSubType == 2;
  const bool amplitude = form.mnuAmplitude.Checked;
  for (int point = 1; point <= s.PointsDone; ++point) {
    const auto i = static_cast<std::size_t>(point);
    double norm = 1;
    if (form.mnuInvWavelength.Checked) norm = amplitude ? s.WaveNumbers[i] : s.WaveNumbers[i] * s.WaveNumbers[i];
    s.IntensityNorm = norm;
    FillCurvePoint(s, i, {s.S1ofPoint.Value(point), s.S2ofPoint.Value(point)}, amplitude);
    if (matrix) FillMatrixPoint(s, i, {s.S1ofPoint.Value(point), s.S2ofPoint.Value(point)});
  }
}

void CalculateAxis(Session& session) {
  auto& s = session.state;
  if (s.GraphType == 13) return CalculateConvergence(session);
  if (s.GraphType == 10 && s.GraphSubType == 10) return CalculateDebyeAnalysis(session);
  AxisRun run;
  run.graph = ChosenAxisGraph(s);
  if (run.graph == nullptr) return;
  ReadAxis(session, run);
  for (int point = 1; point <= run.points; ++point) {
    if (PlacePoint(session, run, point)) continue;
    s.PlotMode = stopRequested;
    return;
  }
  if (s.CalcMethod == mieMethod) WriteMieTitle(session);
  const bool power = run.graph->quantity == Quantity::Power;
  if (s.CalcMethod == mieMethod && !power && !session.form1.optDisp.Checked) {
    session.form1.lblDebyeRays.Caption = "Mie (plane wave)";
    SolveAllAtOnce(session, run);
  } else {
    SolvePointByPoint(session, run);
  }
  const bool refused = Stopped(session) && s.StopAnswer == 0;
  if (!refused) StoreCurves(session, run);
}

}  // namespace lumivex
