#include "solvers/series/mie_efficiencies.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "solvers/functions/logarithmic_derivative.h"
#include "solvers/functions/reciprocal_pair.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/efficiency_lanes.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {
namespace {

/// From 2/x^2 times sums over the terms; g is 0 where nothing is scattered.
Efficiencies FromSums(double x, double extinction, double scattering, double backSquare, double asymmetry,
                      bool divideBySize) {
  const double scale = 2.0 / (x * x);
  Efficiencies result;
  result.Qext = scale * extinction;
  result.Qsca = scale * scattering;
  result.Qback = backSquare / (std::numbers::pi * x * x);
  result.g = scattering > 0.0 ? 2.0 * asymmetry / scattering : 0.0;
  if (divideBySize) {
    result.Qext /= x;
    result.Qback /= x * x;
  }
  return result;
}

void Store(const EfficiencyLists& results, std::size_t i, const Efficiencies& value) {
  results.Qext[i] = value.Qext;
  results.Qsca[i] = value.Qsca;
  results.Qback[i] = value.Qback;
  results.g[i] = value.g;
}

/// Whether a sphere can share vector lanes.
bool FitsLanes(double x, double mRe, double mIm) {
  return x >= SmallestLaneArgument && x * std::hypot(mRe, mIm) >= SmallestLaneArgument;
}

class EfficiencySolver {
 public:
  EfficiencySolver(const SphereList& spheres, const EfficiencyLists& results, const EfficiencyOptions& options,
                   InstructionSet set)
      : spheres_(spheres), results_(results), options_(options), set_(set) {
    int terms = 1;
    for (std::size_t i = 0; i < spheres.x.size(); ++i) {
      if (Allowed(i)) terms = std::max(terms, NStopEstimate(spheres.x[i]));
    }
    workspace_.Reserve(terms, options.angle);
  }

  /// Spheres from `first` on that can be one group.
  std::size_t GroupAt(std::size_t first) const {
    const std::size_t most = std::min(GroupSize(set_), spheres_.x.size() - first);
    std::size_t size = 0;
    while (!options_.classicStart && size < most && Allowed(first + size) &&
           FitsLanes(spheres_.x[first + size], spheres_.mRe[first + size], spheres_.mIm[first + size])) {
      ++size;
    }
    return size;
  }

  /// Both return the lane terms that the work cost.
  std::size_t SolveGroup(std::size_t first, std::size_t size) {
    EfficiencyGroup group;
    double rows = 0.0;
    for (std::size_t lane = 0; lane < MaxGroup; ++lane) {
      const std::size_t i = first + std::min(lane, size - 1);
      group.x[lane] = spheres_.x[i];
      group.mRe[lane] = spheres_.mRe[i];
      group.mIm[lane] = spheres_.mIm[i];
      const int terms = NStopEstimate(spheres_.x[i]);
      group.NSTOP[lane] = terms;
      group.startX[lane] = LogarithmicDerivativeStart(terms, spheres_.x[i]);
      group.startY[lane] =
          LogarithmicDerivativeStart(terms, spheres_.x[i] * std::hypot(spheres_.mRe[i], spheres_.mIm[i]));
      const auto spread = [lane](const ReciprocalPair& pair, double(&to)[4][MaxGroup]) {
        to[0][lane] = pair.re;
        to[1][lane] = pair.im;
        to[2][lane] = pair.reLow;
        to[3][lane] = pair.imLow;
      };
      spread(ReciprocalOfProduct(spheres_.x[i], 1.0, 0.0), group.inverseX);
      spread(ReciprocalOfProduct(spheres_.x[i], spheres_.mRe[i], spheres_.mIm[i]), group.inverseY);
      rows = std::max(rows, group.startY[lane]);
    }
    EfficiencySums sums;
    SolveEfficiencyGroup(group, set_, workspace_, sums);
    for (std::size_t lane = 0; lane < size; ++lane) {
      // The amplitude at 180 degrees is half the sum.
      const double backSquare = (sums.backRe[lane] * sums.backRe[lane] + sums.backIm[lane] * sums.backIm[lane]) / 4.0;
      Store(results_, first + lane,
            FromSums(group.x[lane], sums.extinction[lane], sums.scattering[lane], backSquare, sums.asymmetry[lane],
                     options_.divideBySize));
      if (options_.angle)
        StoreAmplitudes(first + lane, {sums.S1Re[lane], sums.S1Im[lane]}, {sums.S2Re[lane], sums.S2Im[lane]});
    }
    return static_cast<std::size_t>(rows) * GroupSize(set_);
  }

  std::size_t SolveSingle(std::size_t i) {
    if (!Allowed(i)) {
      constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
      Store(results_, i, {unknown, unknown, unknown, unknown});
      StoreAmplitudes(i, {unknown, unknown}, {unknown, unknown});
      return 1;
    }
    const double x = spheres_.x[i];
    const MieTruncation truncation =
        ComputeMieTruncation(x, spheres_.mRe[i], spheres_.mIm[i], false, options_.classicStart);
    const PartialWaves waves = MieCoefficients(x, spheres_.mRe[i], spheres_.mIm[i], truncation);
    Store(results_, i, EfficienciesOf(waves, x, options_.divideBySize));
    if (options_.angle) {
      AmplitudeTable S1(1), S2(1);
      SilentMonitor silent;
      SumAngularSeries(waves, std::span(&*options_.angle, 1), S1, S2, silent, set_);
      StoreAmplitudes(i, S1.Value(1), S2.Value(1));
    }
    return static_cast<std::size_t>(truncation.start);
  }

 private:
  void StoreAmplitudes(std::size_t i, const ComplexD& S1, const ComplexD& S2) const {
    if (!options_.angle) return;
    const double scale = options_.divideBySize ? 1.0 / spheres_.x[i] : 1.0;
    results_.S1Re[i] = scale * S1.re;
    results_.S1Im[i] = scale * S1.im;
    results_.S2Re[i] = scale * S2.re;
    results_.S2Im[i] = scale * S2.im;
  }

  bool Allowed(std::size_t i) const {
    return CheckMieLimits(spheres_.x[i], spheres_.mRe[i], spheres_.mIm[i]) == MieRefusal::None;
  }

  SphereList spheres_;
  EfficiencyLists results_;
  EfficiencyOptions options_;
  InstructionSet set_;
  EfficiencyWorkspace workspace_;
};

}  // namespace

Efficiencies EfficienciesOf(const PartialWaves& waves, double x, bool divideBySize) {
  double extinction = 0.0;
  double scattering = 0.0;
  double asymmetry = 0.0;
  for (std::size_t i = 1; i < waves.aRe.size(); ++i) {
    const auto n = static_cast<double>(i);
    const double aRe = waves.aRe[i];
    const double aIm = waves.aIm[i];
    const double bRe = waves.bRe[i];
    const double bIm = waves.bIm[i];
    extinction += (2.0 * n + 1.0) * (aRe + bRe);
    scattering += (2.0 * n + 1.0) * (aRe * aRe + aIm * aIm + bRe * bRe + bIm * bIm);
    asymmetry += (2.0 * n + 1.0) / (n * (n + 1.0)) * (aRe * bRe + aIm * bIm);
    // n = 1 has no neighbour below: its weight is 0.
    asymmetry += (n - 1.0) * (n + 1.0) / n *
                 (waves.aRe[i - 1] * aRe + waves.aIm[i - 1] * aIm + waves.bRe[i - 1] * bRe + waves.bIm[i - 1] * bIm);
  }
  const ComplexD back = BackwardAmplitude(waves);
  return FromSums(x, extinction, scattering, back.re * back.re + back.im * back.im, asymmetry, divideBySize);
}

std::size_t SolveEfficiencies(const SphereList& spheres, const EfficiencyLists& results,
                              const EfficiencyOptions& options, RunMonitor& monitor, InstructionSet set) {
  const std::size_t count = spheres.x.size();
  if (count == 0) return 0;
  EfficiencySolver solver(spheres, results, options, set);
  // One more group never exceeds the bound: a group is at most 8 lanes of about MaxSeriesTerms terms.
  constexpr std::size_t largestGroup = MaxGroup * (MaxSeriesTerms + 1000);
  std::size_t work = 0;
  std::size_t done = 0;
  while (done < count) {
    const std::size_t group = solver.GroupAt(done);
    if (group > 0) {
      work += solver.SolveGroup(done, group);
      done += group;
    } else {
      work += solver.SolveSingle(done);
      ++done;
    }
    if (done == count || work > MaxLaneTermsPerLook - largestGroup) {
      if (!monitor.Report(done, count)) return done;
      work = 0;
    }
  }
  return count;
}

}  // namespace lumivex
