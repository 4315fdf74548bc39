#include "solvers/beams/beam_series.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "solvers/functions/complex_algebra.h"

namespace lumivex {

namespace {

constexpr std::size_t TermsPerLook = 400'000;
/// Where sin^M leaves the range of a double its functions are carried this much larger, till they have grown.
constexpr double Lift = 0x1p600;

}  // namespace

/// A few angles at a time, so that what depends on L and M alone is fetched once for all of them.
struct BeamSeries::Lanes {
  using Row = std::array<double, Block>;
  Row sine{}, cosine{};
  Row first{};                      // pi(M, M)
  std::array<int, Block> lifted{};  // first holds Lift^lifted times its value
  std::array<Row, 4> sums{};        // S1 re, im, S2 re, im
  std::size_t terms = 0;            // since the last look
};

BeamSeries::BeamSeries(const PartialWaves& waves, const BeamShape& shape, double phi, bool oneBeam)
    : Lmax_(std::min(waves.Terms(), shape.Lmax())), Mmax_(std::min(shape.Mmax(), Lmax_)) {
  weights_.resize(static_cast<std::size_t>(Lmax_) * (static_cast<std::size_t>(Mmax_) + 1));
  std::vector<double> norm(static_cast<std::size_t>(Lmax_) + 1);  // c_L sqrt((L+M)!/(L-M)!) (L+1/2)^(1-M)
  for (int L = 1; L <= Lmax_; ++L) norm[static_cast<std::size_t>(L)] = (2.0 * L + 1) / (2.0 * L * (L + 1)) * (L + 0.5);
  for (int M = 0; M <= Mmax_; ++M) {
    const ComplexD turn(std::cos(M * phi), std::sin(M * phi));
    for (int L = std::max(M, 1); L <= Lmax_; ++L) {
      const auto i = static_cast<std::size_t>(L);
      if (M > 0) norm[i] *= std::sqrt(static_cast<double>(L + M) * (L - M + 1)) / (L + 0.5);
      const ComplexD a = norm[i] * ComplexD(waves.aRe[i], waves.aIm[i]);
      const ComplexD b = norm[i] * ComplexD(waves.bRe[i], waves.bIm[i]);
      const ComplexD tm = shape.TM(L, M) * turn, te = shape.TE(L, M) * turn;
      Weights& w = weights_[static_cast<std::size_t>(M) * static_cast<std::size_t>(Lmax_) + i - 1];
      if (M == 0) {
        w.tau1 = b * te;
        w.tau2 = a * (oneBeam ? tm : te);
        continue;
      }
      const ComplexD tmBack = shape.TM(L, -M) * Conjugate(turn), teBack = shape.TE(L, -M) * Conjugate(turn);
      w.pi1 = -static_cast<double>(M) * TimesI(a * (tm - tmBack));
      w.tau1 = b * (te + teBack);
      w.pi2 = static_cast<double>(M) * TimesI(b * (oneBeam ? te - teBack : tmBack - tm));
      w.tau2 = a * (oneBeam ? tm + tmBack : te + teBack);
    }
  }
}

template <class Take>
bool BeamSeries::Walk(Lanes& lanes, RunMonitor& monitor, const Take& take) const {
  using Row = Lanes::Row;
  lanes.first.fill(1.0);
  lanes.lifted.fill(0);
  for (int M = 1; M <= Mmax_; ++M) {
    const double grown = std::sqrt((2.0 * M - 1) / (2.0 * M));
    bool lifted = false;
    for (std::size_t k = 0; k < Block; ++k) {
      lanes.first[k] *= M == 1 ? grown : grown * lanes.sine[k];
      if (std::fabs(lanes.first[k]) < 1.0 / Lift && lanes.first[k] != 0.0) {
        lanes.first[k] *= Lift;
        ++lanes.lifted[k];
      }
      lifted |= lanes.lifted[k] > 0;
    }
    Row pi = lanes.first, before{};
    std::array<int, Block> lift = lanes.lifted;
    double root = 0.0;  // sqrt((L-1)^2 - M^2)
    for (int L = M; L <= Lmax_; ++L) {
      const double next = std::sqrt(static_cast<double>(L - M) * (L + M));
      if (L > M) {
        const double rise = (2.0 * L - 1) / next, fall = root / next;
        for (std::size_t k = 0; k < Block; ++k) {
          const double higher = rise * lanes.cosine[k] * pi[k] - fall * before[k];
          before[k] = pi[k];
          pi[k] = higher;
        }
      }
      root = next;
      Row counted = pi, lower = before;
      if (lifted) {
        lifted = false;
        for (std::size_t k = 0; k < Block; ++k) {
          if (lift[k] > 0 && std::fabs(pi[k]) > 1.0) {
            pi[k] /= Lift;
            before[k] /= Lift;
            --lift[k];
          }
          lifted |= lift[k] > 0;
          counted[k] = lift[k] > 0 ? 0.0 : pi[k];
          lower[k] = lift[k] > 0 ? 0.0 : before[k];
        }
      }
      Row tau;
      for (std::size_t k = 0; k < Block; ++k) tau[k] = L * lanes.cosine[k] * counted[k] - next * lower[k];
      take(L, M, counted, tau);
      if (M > 1) continue;
      // tau(L, 0) = -sin sqrt(L (L+1)) pi(L, 1), and pi does not count
      const double scale = -std::sqrt(static_cast<double>(L) * (L + 1));
      for (std::size_t k = 0; k < Block; ++k) tau[k] = scale * lanes.sine[k] * pi[k];
      take(L, 0, Row{}, tau);
    }
    lanes.terms += static_cast<std::size_t>(Lmax_ - M + 1) * Block;
    if (lanes.terms > TermsPerLook) {
      lanes.terms = 0;
      if (!monitor.Report(0, 1)) return false;
    }
  }
  return true;
}

BeamSeries::Parts BeamSeries::SumInParts(double angle, RunMonitor& monitor) const {
  Lanes lanes;
  lanes.sine.fill(std::sin(angle));
  lanes.cosine.fill(std::cos(angle));
  Parts parts{std::vector<Part>(static_cast<std::size_t>(Lmax_) + 1),
              std::vector<Part>(static_cast<std::size_t>(Mmax_) + 1)};
  const bool whole = Walk(lanes, monitor, [&](int L, int M, const Lanes::Row& pi, const Lanes::Row& tau) {
    const Weights& w = At(L, M);
    for (Part* part : {&parts.ofL[static_cast<std::size_t>(L)], &parts.ofM[static_cast<std::size_t>(M)]}) {
      part->pi1 = part->pi1 + pi[0] * w.pi1;
      part->tau1 = part->tau1 + tau[0] * w.tau1;
      part->pi2 = part->pi2 + pi[0] * w.pi2;
      part->tau2 = part->tau2 + tau[0] * w.tau2;
    }
  });
  return whole ? std::move(parts) : Parts{};
}

std::size_t BeamSeries::Sum(std::span<const double> angles, AmplitudeTable& S1, AmplitudeTable& S2,
                            RunMonitor& monitor) const {
  Lanes lanes;
  for (std::size_t begin = 0; begin < angles.size(); begin += Block) {
    const std::size_t count = std::min(Block, angles.size() - begin);
    for (std::size_t k = 0; k < Block; ++k) {
      const double angle = angles[begin + std::min(k, count - 1)];
      lanes.sine[k] = std::sin(angle);
      lanes.cosine[k] = std::cos(angle);
    }
    lanes.sums = {};
    const bool whole = Walk(lanes, monitor, [&](int L, int M, const Lanes::Row& pi, const Lanes::Row& tau) {
      const Weights& w = At(L, M);
      for (std::size_t k = 0; k < Block; ++k) {
        lanes.sums[0][k] += w.pi1.re * pi[k] + w.tau1.re * tau[k];
        lanes.sums[1][k] += w.pi1.im * pi[k] + w.tau1.im * tau[k];
        lanes.sums[2][k] += w.pi2.re * pi[k] + w.tau2.re * tau[k];
        lanes.sums[3][k] += w.pi2.im * pi[k] + w.tau2.im * tau[k];
      }
    });
    if (!whole) return begin;
    for (std::size_t k = 0; k < count; ++k) {
      const int row = static_cast<int>(begin + k) + 1;
      S1.Set(row, lanes.sums[0][k], lanes.sums[1][k]);
      S2.Set(row, lanes.sums[2][k], lanes.sums[3][k]);
    }
  }
  return angles.size();
}

}  // namespace lumivex
