#include "session/inputs/sizes/size_distribution.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "particles/size_distribution.h"
#include "record/number_text.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

namespace {

constexpr int stopRequested = 4;

/// The input that is to blame for a distribution that cannot be used.
Control& ControlAtFault(Form1& form, SizeFailure failure) {
  const bool width = failure == SizeFailure::NegativeRadius || failure == SizeFailure::BadGamma;
  return width ? form.cboSD : form.cboDistrib;
}

/// Sums over one row of a cloud.
struct RowSums {
  double perpendicular = 0, parallel = 0, crossRe = 0, crossIm = 0;

  void Add(ComplexD a, ComplexD b, double weight) {
    perpendicular += weight * (a.re * a.re + a.im * a.im);
    parallel += weight * (b.re * b.re + b.im * b.im);
    crossRe += weight * (a.re * b.re + a.im * b.im);
    crossIm += weight * (a.im * b.re - a.re * b.im);
  }
};

/// The same for many rows, each sum in one piece.
struct CloudRows {
  std::vector<double> perpendicular, parallel, crossRe, crossIm;

  explicit CloudRows(std::size_t rows) : perpendicular(rows), parallel(rows), crossRe(rows), crossIm(rows) {}

  std::size_t Size() const { return perpendicular.size(); }

  /// Adds rows from rowLow on, as far as the tables go.
  void Add(const AmplitudeTable& S1, const AmplitudeTable& S2, int rowLow, double weight) {
    const auto low = static_cast<std::size_t>(rowLow);
    const auto re1 = S1.RealParts(), im1 = S1.ImaginaryParts(), re2 = S2.RealParts(), im2 = S2.ImaginaryParts();
    const std::size_t end = std::min({low + Size(), re1.size(), re2.size()});
    for (std::size_t row = low; row < end; ++row) {
      const std::size_t j = row - low;
      const double a = re1[row], b = im1[row], c = re2[row], d = im2[row];
      perpendicular[j] += weight * (a * a + b * b);
      parallel[j] += weight * (c * c + d * d);
      crossRe[j] += weight * (a * c + b * d);
      crossIm[j] += weight * (b * c - a * d);
    }
  }
};

/// Sums over the spheres of a cloud; the asymmetry counts by scattering cross-section.
struct EfficiencySums {
  double Qext = 0, Qsca = 0, Qback = 0, extinguished = 0, scattered = 0, forward = 0, number = 0;

  void Add(const SpherePoint& sphere, double radius, double weight) {
    Qext += weight * sphere.Qext;
    Qsca += weight * sphere.Qsca;
    Qback += weight * sphere.Qback;
    extinguished += weight * sphere.Qext * radius * radius;
    scattered += weight * sphere.Qsca * radius * radius;
    forward += weight * sphere.Qsca * radius * radius * sphere.g;
    number += weight;
  }
  double Asymmetry() const { return scattered > 0 ? forward / scattered : 0; }
};

/// The running radius in the side strip, over the readings of the run before.
void PrintRadius(Session& session) {
  auto& surface = *session.surface;
  constexpr double left = 12000, right = 15600, top = 2400, bottom = 2700;
  const Colour before = surface.ForeColour;
  surface.ForeColour = surface.BackColour;
  surface.Line(left, top, right, bottom, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
  surface.CurrentX = left;
  surface.CurrentY = top;
  surface.Print("Radius = " + Format(session.state.Radius, "#0.##"));
  surface.ForeColour = before;
}

/// Runs over the samples of the distribution with Radius and SizeParameter set for each; `add` solves one and adds it
/// with its weight, and says whether to go on. Radius and SizeParameter are put back.
void ForEachSample(Session& session, void (*progress)(Session&), const std::function<bool(double weight)>& add) {
  auto& s = session.state;
  constexpr double twoPi = 6.28318530717958648;
  const double radius = s.Radius, sizeParameter = s.SizeParameter;
  if (!PrepareSizes(session)) {
    s.PlotMode = stopRequested;
    return;
  }
  const double medium = s.MediumRIReal == 0 ? 1 : s.MediumRIReal;
  // Small spheres come by faster than they can be read, and printing would take longer than solving.
  constexpr double readable = 0.05;  // seconds
  double printed = session.platform.Timer() - readable;
  for (int i = 1; i <= s.NumberSamples && s.PlotMode != stopRequested; ++i) {
    s.SampleIndex = i;
    s.DispSample = i;
    const double weight = s.DistWeight[static_cast<std::size_t>(i)];
    s.Radius = s.DistRadius[static_cast<std::size_t>(i)];
    if (!(weight > 0 && s.Radius > 0)) continue;
    s.SizeParameter = twoPi * s.Radius * medium / s.Lambda;
    if (const double now = session.platform.Timer(); now - printed >= readable) {
      PrintRadius(session);
      printed = now;
    }
    if (!add(weight)) break;
    session.platform.Yield();
    progress(session);
  }
  s.Radius = radius;
  s.SizeParameter = sizeParameter;
}

/// What the sums are divided by; 0 where there is nothing to store.
double Divisor(const Session& session, double number) {
  const auto& s = session.state;
  const bool refused = s.PlotMode == stopRequested && s.StopAnswer == 0;
  if (refused || !(number > 0)) return 0;
  const bool actual = session.form1.cboDistrib.Text == "Special" && session.forms.dlogDistOption.optActual.Checked;
  return actual ? 1 : number;
}

void StoreRows(MainFormState& s, int rowLow, const CloudRows& sums, double divisor) {
  const int rows = std::max(s.S1.Rows(), rowLow + static_cast<int>(sums.Size()) - 1);
  s.S1.Resize(rows);
  s.S2.Resize(rows);
  s.CloudCrossRe.assign(static_cast<std::size_t>(rows) + 1, 0);
  s.CloudCrossIm.assign(static_cast<std::size_t>(rows) + 1, 0);
  for (std::size_t j = 0; j < sums.Size(); ++j) {
    const int row = rowLow + static_cast<int>(j);
    s.S1.Set(row, std::sqrt(sums.perpendicular[j] / divisor), 0);
    s.S2.Set(row, std::sqrt(sums.parallel[j] / divisor), 0);
    s.CloudCrossRe[static_cast<std::size_t>(row)] = sums.crossRe[j] / divisor;
    s.CloudCrossIm[static_cast<std::size_t>(row)] = sums.crossIm[j] / divisor;
  }
}

}  // namespace

bool IsAerosol(std::string_view distribution) {
  return distribution.starts_with("Aerosol m");
}

void Disperse(Session& session) {
  auto& s = session.state;
  const SizeDistribution sizes = ChosenSizes(session);
  const auto* normal = std::get_if<NormalSizes>(&sizes);
  if (normal == nullptr) return;
  s.RelativeSD = normal->relativeSD;
  s.DistSample = normal->z;
  s.NumberSamples = static_cast<int>(s.DistSample.size()) - 1;
}

bool PrepareSizes(Session& session, bool aloud) {
  auto& s = session.state;
  Disperse(session);
  const SizeDistribution sizes = ChosenSizes(session);
  CloudSamples samples = SamplesOf(sizes, s.Radius);
  const SizeFailure failure = samples.failure;
  if (samples.Count() > 0) {
    s.NumberSamples = samples.Count();
    s.DistRadius = std::move(samples.radius);
    s.DistWeight = std::move(samples.weight);
    s.DistMin = samples.lowest;
    s.DistMax = samples.highest;
    if (std::holds_alternative<ModelSizes>(sizes)) s.DistRatio = samples.ratio;
  }
  if (failure == SizeFailure::None) return true;
  if (!aloud) return false;
  ControlAtFault(session.form1, failure).BackColour = colours::BadInput;
  session.platform.Message("Input error", WordsFor(failure));
  return false;
}

void TakeSpecialRadius(Session& session) {
  if (const auto radius = RadiusOfSizeFile(ChosenSizes(session))) session.state.Radius = *radius;
}

void DispCalc(Session& session, int rowLow, int rowHigh, const CloudCalls& calls) {
  auto& s = session.state;
  CloudRows rowSums(static_cast<std::size_t>(std::max(rowHigh - rowLow + 1, 0)));
  EfficiencySums sums;
  RowsDone rows = s.SummedRows;
  ForEachSample(session, calls.progress, [&](double weight) {
    calls.solve(session, rowLow, rowHigh);
    if (s.PlotMode == stopRequested) return false;
    rowSums.Add(s.S1, s.S2, rowLow, weight);
    sums.Add({{}, {}, s.Qext, s.Qsca, s.Qback, s.Gsca}, s.Radius, weight);
    rows = s.SummedRows;
    return true;
  });
  const double divisor = Divisor(session, sums.number);
  if (divisor == 0) return;
  StoreRows(s, rowLow, rowSums, divisor);
  s.Qext = sums.Qext / divisor;
  s.Qsca = sums.Qsca / divisor;
  s.Qback = sums.Qback / divisor;
  s.Gsca = sums.Asymmetry();
  s.SummedRows = rows;
  s.Waves = {};
}

std::optional<CloudPoint> DispCalcPoint(Session& session, const std::function<std::optional<SpherePoint>()>& solve,
                                        void (*progress)(Session&)) {
  RowSums row;
  EfficiencySums sums;
  ForEachSample(session, progress, [&](double weight) {
    const auto sphere = solve();
    if (!sphere) return false;
    row.Add(sphere->S1, sphere->S2, weight);
    sums.Add(*sphere, session.state.Radius, weight);
    return true;
  });
  const double d = Divisor(session, sums.number);
  if (d == 0) return std::nullopt;
  return CloudPoint{row.perpendicular / d,
                    row.parallel / d,
                    {row.crossRe / d, row.crossIm / d},
                    sums.Qext / d,
                    sums.Qsca / d,
                    sums.Qback / d,
                    sums.Asymmetry(),
                    std::numbers::pi * sums.extinguished / d,
                    std::numbers::pi * sums.scattered / d};
}

}  // namespace lumivex
