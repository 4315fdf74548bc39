#include "solvers/series/folded_series.h"

namespace lumivex {
namespace {

/// Sums of odd and of even terms, for `tiles` vectors of angles at once: all of it stays in registers.
template <class V, std::size_t tiles>
struct Accumulators {
  V odd[4][tiles] = {};
  V even[4][tiles] = {};

  LUMIVEX_INLINE void Store(std::size_t first, PairSums& sums) const {
    for (std::size_t c = 0; c < 4; ++c) {
      for (std::size_t k = 0; k < tiles; ++k) {
        const std::size_t at = first + k * LaneCount<V>;
        StoreLanes<V>(&sums.direct[c][at], odd[c][k] + even[c][k]);
        StoreLanes<V>(&sums.mirrored[c][at], odd[c][k] - even[c][k]);
      }
    }
  }
};

template <class V, std::size_t tiles>
LUMIVEX_INLINE void AddTerm(V (&sum)[4][tiles], const FoldedTerm& term, const V (&value)[tiles]) {
  for (std::size_t c = 0; c < 4; ++c) {
    for (std::size_t k = 0; k < tiles; ++k) sum[c][k] += term.weight[c] * value[k];
  }
}

template <class V, std::size_t tiles>
LUMIVEX_INLINE void SumScaled(const FoldedSeries& series, const double* cosines, std::size_t first, PairSums& sums) {
  V cosine[tiles];
  V odd[tiles];
  V even[tiles];
  for (std::size_t k = 0; k < tiles; ++k) {
    LoadLanes<V>(cosine[k], cosines + first + k * LaneCount<V>);
    odd[k] = V{} + FoldedSeries::FirstScaled();
    even[k] = V{};
  }
  Accumulators<V, tiles> total;
  const FoldedTerm* term = series.Scaled().data();
  const FoldedTerm* const end = term + series.Terms();
  for (; term != end; term += 2) {
    AddTerm(total.odd, term[0], odd);
    for (std::size_t k = 0; k < tiles; ++k) even[k] = (term[0].factor * cosine[k]) * odd[k] - even[k];
    AddTerm(total.even, term[1], even);
    for (std::size_t k = 0; k < tiles; ++k) odd[k] = (term[1].factor * cosine[k]) * even[k] - odd[k];
  }
  total.Store(first, sums);
}

/// pi_(n+1) = pi_n + (n + 1) d_(n+1), d_(n+1) = d_n - (2n+1)/(n(n+1)) (1 - cos) pi_n.
template <class V, std::size_t tiles>
LUMIVEX_INLINE void AdvanceDifferences(const FoldedTerm& term, const V (&versine)[tiles], V (&value)[tiles],
                                       V (&difference)[tiles]) {
  for (std::size_t k = 0; k < tiles; ++k) {
    difference[k] -= (term.factor * versine[k]) * value[k];
    value[k] += term.step * difference[k];
  }
}

template <class V, std::size_t tiles>
LUMIVEX_INLINE void SumDifferences(const FoldedSeries& series, const double* versines, std::size_t first,
                                   PairSums& sums) {
  V versine[tiles];
  V value[tiles];
  V difference[tiles];
  for (std::size_t k = 0; k < tiles; ++k) {
    LoadLanes<V>(versine[k], versines + first + k * LaneCount<V>);
    value[k] = V{} + 1.0;
    difference[k] = V{} + 1.0;
  }
  Accumulators<V, tiles> total;
  const FoldedTerm* term = series.Differences().data();
  const FoldedTerm* const end = term + series.Terms();
  for (; term != end; term += 2) {
    AddTerm(total.odd, term[0], value);
    AdvanceDifferences(term[0], versine, value, difference);
    AddTerm(total.even, term[1], value);
    AdvanceDifferences(term[1], versine, value, difference);
  }
  total.Store(first, sums);
}

template <class V, std::size_t tiles>
LUMIVEX_INLINE void SumTile(const FoldedSeries& series, const double* cosines, bool differences, std::size_t first,
                            PairSums& sums) {
  if (differences) {
    SumDifferences<V, tiles>(series, cosines, first, sums);
  } else {
    SumScaled<V, tiles>(series, cosines, first, sums);
  }
}

void SumPlain(const FoldedSeries& series, const double* cosines, bool differences, std::size_t count, PairSums& sums) {
  for (std::size_t first = 0; first < count; first += LaneCount<Lanes2>) {
    SumTile<Lanes2, 1>(series, cosines, differences, first, sums);
  }
}

#if LUMIVEX_X86_VECTORS
LUMIVEX_TARGET_AVX2 void SumAvx2(const FoldedSeries& series, const double* cosines, bool differences, std::size_t count,
                                 PairSums& sums) {
  for (std::size_t first = 0; first < count; first += LaneCount<Lanes4>) {
    SumTile<Lanes4, 1>(series, cosines, differences, first, sums);
  }
}

// Two tiles of 8 angles take 16 sums and 6 more of the 32 registers, and hide the recurrence's latency.
LUMIVEX_TARGET_AVX512 void SumAvx512(const FoldedSeries& series, const double* cosines, bool differences,
                                     std::size_t count, PairSums& sums) {
  if (count > LaneCount<Lanes8>) {
    SumTile<Lanes8, 2>(series, cosines, differences, 0, sums);
  } else {
    SumTile<Lanes8, 1>(series, cosines, differences, 0, sums);
  }
}
#endif

/// sqrt(pi)/2: with this start kappa_n = Gamma(n/2 + 1) / Gamma(n/2 + 1/2), smooth from odd to even n.
constexpr double firstKappa = 0.88622692545275801365;

}  // namespace

double FoldedSeries::FirstScaled() {
  return 1.0 / firstKappa;
}

FoldedSeries::FoldedSeries(const PartialWaves& waves) {
  const auto terms = static_cast<std::size_t>(waves.Terms());
  const std::size_t size = (terms + 2) / 2 * 2;  // Folding adds term N + 1.
  scaled_.resize(size);
  differences_.resize(size);
  double kappa = firstKappa;
  double kappaNext = 1.0 / firstKappa;
  for (std::size_t i = 1; i <= size; ++i) {
    const auto n = static_cast<double>(i);
    const double below = (n - 1.0) / n;
    const double above = (n + 2.0) / (n + 1.0);
    const double own = (2.0 * n + 1.0) / (n * (n + 1.0));
    const auto fold = [&](const std::vector<double>& pi, const std::vector<double>& tau) {
      const double before = i <= terms + 1 ? below * tau[i - 1] : 0.0;
      const double after = i + 1 <= terms ? above * tau[i + 1] : 0.0;
      return (i <= terms ? own * pi[i] : 0.0) + (before - after);
    };
    FoldedTerm& plain = differences_[i - 1];
    plain.factor = own;
    plain.step = n + 1.0;
    plain.weight = {fold(waves.aRe, waves.bRe), fold(waves.aIm, waves.bIm), fold(waves.bRe, waves.aRe),
                    fold(waves.bIm, waves.aIm)};
    FoldedTerm& term = scaled_[i - 1];
    term.factor = (2.0 * n + 1.0) * kappa / (n * kappaNext);
    term.step = plain.step;
    for (std::size_t c = 0; c < 4; ++c) term.weight[c] = kappa * plain.weight[c];
    const double kappaAfter = kappa * ((n + 2.0) / (n + 1.0));
    kappa = kappaNext;
    kappaNext = kappaAfter;
  }
}

void SumPairBlock(const FoldedSeries& series, const double* cosines, bool differences, std::size_t count,
                  InstructionSet set, PairSums& sums) {
  switch (set) {
#if LUMIVEX_X86_VECTORS
    case InstructionSet::Avx512:
      return SumAvx512(series, cosines, differences, count, sums);
    case InstructionSet::Avx2:
      return SumAvx2(series, cosines, differences, count, sums);
#endif
    default:
      return SumPlain(series, cosines, differences, count, sums);
  }
}

}  // namespace lumivex
