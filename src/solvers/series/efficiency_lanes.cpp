#include "solvers/series/efficiency_lanes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>

// Vectors are passed between functions that are always inlined: there is no call whose convention could differ.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wpsabi"
#endif

namespace lumivex {
namespace {

constexpr std::size_t TermBlock = 8;

/// Beyond this |chi_n| the coefficients are below 1e-38 and a lane takes no more blocks.
constexpr double LargestChi = 1e20;

/// Complex numbers, one a lane.
template <class V>
struct ComplexLanes {
  V re;
  V im;

  LUMIVEX_INLINE friend ComplexLanes operator*(const ComplexLanes& a, const ComplexLanes& b) {
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  }
  LUMIVEX_INLINE friend ComplexLanes operator*(const ComplexLanes& a, const V& b) { return {a.re * b, a.im * b}; }
  LUMIVEX_INLINE friend ComplexLanes operator+(const ComplexLanes& a, const ComplexLanes& b) {
    return {a.re + b.re, a.im + b.im};
  }
  LUMIVEX_INLINE friend ComplexLanes operator-(const ComplexLanes& a, const ComplexLanes& b) {
    return {a.re - b.re, a.im - b.im};
  }
};

template <class V>
LUMIVEX_INLINE V Magnitude(const V& a) {
  return a < V{} ? -a : a;
}
template <class V>
LUMIVEX_INLINE V Magnitude(const ComplexLanes<V>& a) {
  return Magnitude(a.re) + Magnitude(a.im);
}

template <class V>
LUMIVEX_INLINE V Select(const V& index, const V& wanted, double chosen, const V& other) {
  return index == wanted ? V{} + chosen : other;
}
template <class V>
LUMIVEX_INLINE ComplexLanes<V> Select(const V& index, const V& wanted, double chosen, const ComplexLanes<V>& other) {
  return {Select(index, wanted, chosen, other.re), Select(index, wanted, 0.0, other.im)};
}

/// 1/a in the chosen lanes, 0 in the others, where a is not -1. The divisor is made safe by a sum: compilers turn a
/// choice of divisors into a choice of quotients, and the quotient not chosen raises floating-point flags.
template <class V, class Mask>
LUMIVEX_INLINE V InverseWhere(const Mask& chosen, const V& a) {
  const V zero{};
  const V one = zero + 1.0;
  return (chosen ? one : zero) / (a + (chosen ? zero : one));
}

/// The power of two that brings a magnitude to 1..2; finite for 0.
template <class V>
LUMIVEX_INLINE V InversePower(const V& magnitude) {
  constexpr std::int64_t exponentBits = std::int64_t{0x7ff} << 52;
  constexpr std::int64_t twiceBias = std::int64_t{0x7fe} << 52;
  V result;
  if constexpr (std::is_same_v<V, double>) {
    std::int64_t bits;
    std::memcpy(&bits, &magnitude, sizeof(bits));
    bits = twiceBias - (bits & exponentBits);
    std::memcpy(&result, &bits, sizeof(bits));
  } else {
    decltype(V{} < V{}) bits;
    std::memcpy(&bits, &magnitude, sizeof(bits));
    bits = twiceBias - (bits & exponentBits);
    std::memcpy(&result, &bits, sizeof(bits));
  }
  return result;
}

template <class V>
LUMIVEX_INLINE void LoadValue(V& value, const double* from) {
  LoadLanes<V>(value, from);
}
template <class V>
LUMIVEX_INLINE void LoadValue(ComplexLanes<V>& value, const double* from) {
  LoadLanes<V>(value.re, from);
  LoadLanes<V>(value.im, from + LaneCount<V>);
}
/// 1/y of a group as first part and correction.
template <class V>
LUMIVEX_INLINE void LoadInverse(V (&inverse)[2], const double (&from)[4][MaxGroup]) {
  LoadLanes<V>(inverse[0], from[0]);
  LoadLanes<V>(inverse[1], from[2]);
}
template <class V>
LUMIVEX_INLINE void LoadInverse(ComplexLanes<V> (&inverse)[2], const double (&from)[4][MaxGroup]) {
  for (std::size_t part = 0; part < 2; ++part) {
    LoadLanes<V>(inverse[part].re, from[2 * part]);
    LoadLanes<V>(inverse[part].im, from[2 * part + 1]);
  }
}

template <class V>
LUMIVEX_INLINE void StoreValue(double* to, const V& value) {
  StoreLanes<V>(to, value);
}
template <class V>
LUMIVEX_INLINE void StoreValue(double* to, const ComplexLanes<V>& value) {
  StoreLanes<V>(to, value.re);
  StoreLanes<V>(to + LaneCount<V>, value.im);
}

/// psi_n of one argument in blocks of TermBlock + 1 values: block b holds n = 8 b .. 8 b + 8 in one scale.
///
/// @param T        V for a real argument, ComplexLanes<V> for a complex one.
/// @param inverse  1/y, the first part and the correction.
/// @param start    top row of each lane.
/// @param blocks   blocks to keep; recurrence above them leaves no trace.
template <class V, class T>
LUMIVEX_INLINE void RunDownward(const T (&inverse)[2], const V& start, double lastStart, std::size_t blocks,
                                double* to) {
  constexpr std::size_t stride = sizeof(T) / sizeof(double);
  T value{};
  T above{};
  for (auto block = static_cast<std::size_t>((lastStart - 1.0) / TermBlock) + 1; block-- > 0;) {
    // A lane joins at the top of the block that holds its start. Before that it is 0 throughout.
    const double base = static_cast<double>(block * TermBlock);
    const V row = V{} + base;
    value = Select(row, start, 1.0, value);
    const V scale = InversePower(Magnitude(value) + Magnitude(above));
    value = value * scale;
    above = above * scale;
    double* const slots = to + block * (TermBlock + 1) * stride;
    const bool keep = block < blocks;
    if (keep) StoreValue(slots + TermBlock * stride, value);
    for (std::size_t i = TermBlock; i > 0; --i) {
      const double factor = 2.0 * (base + static_cast<double>(i)) + 1.0;
      const V lanes = V{} + factor;
      const T below = (inverse[0] * lanes + inverse[1] * lanes) * value - above;
      above = value;
      value = below;
      if (keep) StoreValue(slots + (i - 1) * stride, value);
    }
  }
}

/// a = num / (num - i q) and b likewise, by one division; lanes whose series does not count the term get 0.
template <class V>
struct Quotients {
  V aRe, aIm, bRe, bIm;

  template <class Mask>
  LUMIVEX_INLINE void Form(const V& numA, const V& qA, const V& numB, const V& qB, const Mask& counts) {
    const V squareA = numA * numA + qA * qA;
    const V squareB = numB * numB + qB * qB;
    const V both = squareA * squareB;
    const V inverse = InverseWhere(counts, both);
    const V scaleA = numA * (inverse * squareB);
    const V scaleB = numB * (inverse * squareA);
    aRe = scaleA * numA;
    aIm = scaleA * qA;
    bRe = scaleB * numB;
    bIm = scaleB * qB;
  }
  template <class Mask>
  LUMIVEX_INLINE void Form(const ComplexLanes<V>& numA, const ComplexLanes<V>& qA, const ComplexLanes<V>& numB,
                           const ComplexLanes<V>& qB, const Mask& counts) {
    const ComplexLanes<V> denA{numA.re + qA.im, numA.im - qA.re};
    const ComplexLanes<V> denB{numB.re + qB.im, numB.im - qB.re};
    const V squareA = denA.re * denA.re + denA.im * denA.im;
    const V squareB = denB.re * denB.re + denB.im * denB.im;
    const V both = squareA * squareB;
    const V inverse = InverseWhere(counts, both);
    const V scaleA = inverse * squareB;
    const V scaleB = inverse * squareA;
    aRe = (numA.re * denA.re + numA.im * denA.im) * scaleA;
    aIm = (numA.im * denA.re - numA.re * denA.im) * scaleA;
    bRe = (numB.re * denB.re + numB.im * denB.im) * scaleB;
    bIm = (numB.im * denB.re - numB.re * denB.im) * scaleB;
  }
};

/// The running sums of a group.
template <class V, bool AtAngle>
struct Totals {
  V S1Re{}, S1Im{}, S2Re{}, S2Im{};
  V extinction{}, scattering{}, backRe{}, backIm{}, asymmetry{};
  Quotients<V> before{V{}, V{}, V{}, V{}};

  LUMIVEX_INLINE void Add(const TermWeights& weights, double sign, const Quotients<V>& now) {
    extinction += weights.twoNPlusOne * (now.aRe + now.bRe);
    scattering += weights.twoNPlusOne * (now.aRe * now.aRe + now.aIm * now.aIm + now.bRe * now.bRe + now.bIm * now.bIm);
    const double signedWeight = sign * weights.twoNPlusOne;
    backRe += signedWeight * (now.bRe - now.aRe);
    backIm += signedWeight * (now.bIm - now.aIm);
    asymmetry += weights.same * (now.aRe * now.bRe + now.aIm * now.bIm);
    asymmetry +=
        weights.below * (before.aRe * now.aRe + before.aIm * now.aIm + before.bRe * now.bRe + before.bIm * now.bIm);
    if constexpr (AtAngle) {
      S1Re += weights.pi * now.aRe + weights.tau * now.bRe;
      S1Im += weights.pi * now.aIm + weights.tau * now.bIm;
      S2Re += weights.tau * now.aRe + weights.pi * now.bRe;
      S2Im += weights.tau * now.aIm + weights.pi * now.bIm;
    }
    before = now;
  }

  LUMIVEX_INLINE void Store(EfficiencySums& sums) const {
    if constexpr (AtAngle) {
      StoreLanes<V>(sums.S1Re, S1Re);
      StoreLanes<V>(sums.S1Im, S1Im);
      StoreLanes<V>(sums.S2Re, S2Re);
      StoreLanes<V>(sums.S2Im, S2Im);
    }
    StoreLanes<V>(sums.extinction, extinction);
    StoreLanes<V>(sums.scattering, scattering);
    StoreLanes<V>(sums.backRe, backRe);
    StoreLanes<V>(sums.backIm, backIm);
    StoreLanes<V>(sums.asymmetry, asymmetry);
  }
};

/// Goes up the terms with chi_n, and forms coefficients and sums.
template <class V, class T, bool AtAngle>
LUMIVEX_INLINE void RunUpward(const EfficiencyGroup& group, const T& m, std::size_t blocks, const TermWeights* weights,
                              const double* psiX, const double* psiY, EfficiencySums& sums) {
  constexpr std::size_t strideX = LaneCount<V>;
  constexpr std::size_t strideY = sizeof(T) / sizeof(double);
  V chi, chiBefore, last;
  LoadLanes<V>(last, group.NSTOP);
  alignas(64) double sines[MaxGroup];
  alignas(64) double cosines[MaxGroup];
  for (std::size_t lane = 0; lane < LaneCount<V>; ++lane) {
    sines[lane] = -std::sin(group.x[lane]);
    cosines[lane] = std::cos(group.x[lane]);
  }
  LoadLanes<V>(chiBefore, sines);
  LoadLanes<V>(chi, cosines);
  V inverse[2];
  T inverseY[2];
  LoadInverse(inverse, group.inverseX);
  LoadInverse(inverseY, group.inverseY);
  Totals<V, AtAngle> totals;
  double sign = -1.0;
  for (std::size_t block = 0; block < blocks; ++block) {
    const double base = static_cast<double>(block * TermBlock);
    last = Magnitude(chi) <= V{} + LargestChi ? last : V{};
    const auto alive = V{} + base < last;
    chi = alive ? chi : V{};
    chiBefore = alive ? chiBefore : V{};

    V psiBefore, psiFirst;
    LoadLanes<V>(psiBefore, psiX);
    LoadLanes<V>(psiFirst, psiX + strideX);
    const V chiFirst = ((2.0 * base + 1.0) * inverse[0] + (2.0 * base + 1.0) * inverse[1]) * chi - chiBefore;
    const V wronskian = psiBefore * chiFirst - psiFirst * chi;
    const V scale = InverseWhere(alive, wronskian);
    psiBefore *= scale;
    T before;
    LoadValue(before, psiY);
    for (std::size_t i = 1; i <= TermBlock; ++i, sign = -sign) {
      const TermWeights& term = weights[block * TermBlock + i - 1];
      const double factor = 2.0 * term.n - 1.0;
      const V chiNext = (factor * inverse[0] + factor * inverse[1]) * chi - chiBefore;
      chiBefore = chi;
      chi = chiNext;
      V psi;
      LoadLanes<V>(psi, psiX + i * strideX);
      psi *= scale;
      T value;
      LoadValue(value, psiY + i * strideY);
      const V ratio = term.n * inverse[0];
      const V psiSlope = psiBefore - ratio * psi;
      const V chiSlope = chiBefore - ratio * chi;
      const T slope = before - (inverseY[0] * (V{} + term.n)) * value;
      const T valueM = value * m;
      const T slopeM = slope * m;
      Quotients<V> now;
      now.Form(slope * psi - valueM * psiSlope, slope * chi - valueM * chiSlope, slopeM * psi - value * psiSlope,
               slopeM * chi - value * chiSlope, V{} + term.n <= last);
      totals.Add(term, sign, now);
      psiBefore = psi;
      before = value;
    }
    psiX += (TermBlock + 1) * strideX;
    psiY += (TermBlock + 1) * strideY;
  }
  totals.Store(sums);
}

template <class V, class T>
LUMIVEX_INLINE void RunGroup(const EfficiencyGroup& group, const T& m, EfficiencyWorkspace& workspace,
                             EfficiencySums& sums) {
  constexpr std::size_t lanes = LaneCount<V>;
  const double terms = *std::max_element(group.NSTOP, group.NSTOP + lanes);
  const std::size_t blocks = (static_cast<std::size_t>(terms) + TermBlock - 1) / TermBlock;
  double* const psiX = workspace.functions.data();
  double* const psiY = psiX + blocks * (TermBlock + 1) * lanes;
  // First row of the block of terms that holds each lane's start.
  alignas(64) double starts[2][MaxGroup];
  for (std::size_t lane = 0; lane < lanes; ++lane) {
    starts[0][lane] = std::floor((group.startX[lane] - 1.0) / TermBlock) * TermBlock;
    starts[1][lane] = std::floor((group.startY[lane] - 1.0) / TermBlock) * TermBlock;
  }
  V startX, startY;
  LoadLanes<V>(startX, starts[0]);
  LoadLanes<V>(startY, starts[1]);
  V inverseX[2];
  T inverseY[2];
  LoadInverse(inverseX, group.inverseX);
  LoadInverse(inverseY, group.inverseY);
  RunDownward<V, V>(inverseX, startX, *std::max_element(group.startX, group.startX + lanes), blocks, psiX);
  RunDownward<V, T>(inverseY, startY, *std::max_element(group.startY, group.startY + lanes), blocks, psiY);
  const TermWeights* weights = workspace.weights.data();
  if (workspace.atAngle) {
    RunUpward<V, T, true>(group, m, blocks, weights, psiX, psiY, sums);
  } else {
    RunUpward<V, T, false>(group, m, blocks, weights, psiX, psiY, sums);
  }
}

template <class V>
LUMIVEX_INLINE void Run(const EfficiencyGroup& group, EfficiencyWorkspace& workspace, EfficiencySums& sums) {
  V mRe, mIm;
  LoadLanes<V>(mRe, group.mRe);
  LoadLanes<V>(mIm, group.mIm);
  const bool absorbing =
      std::any_of(group.mIm, group.mIm + LaneCount<V>, [](double imaginary) { return imaginary != 0.0; });
  if (absorbing) {
    RunGroup<V, ComplexLanes<V>>(group, {mRe, mIm}, workspace, sums);
  } else {
    RunGroup<V, V>(group, mRe, workspace, sums);
  }
}

#if LUMIVEX_X86_VECTORS
LUMIVEX_TARGET_AVX2 void RunAvx2(const EfficiencyGroup& group, EfficiencyWorkspace& workspace, EfficiencySums& sums) {
  Run<Lanes4>(group, workspace, sums);
}
LUMIVEX_TARGET_AVX512 void RunAvx512(const EfficiencyGroup& group, EfficiencyWorkspace& workspace,
                                     EfficiencySums& sums) {
  Run<Lanes8>(group, workspace, sums);
}
#endif

/// pi_n and tau_n of the angle by the upward recurrence, once for all spheres and therefore in the widest arithmetic:
/// near 0 and 180 degrees it magnifies rounding by the square of the number of terms.
void SetAngle(std::vector<TermWeights>& weights, double angle) {
  const long double mu = std::cos(static_cast<long double>(angle));
  long double below = 0.0L, pi = 1.0L;
  for (TermWeights& term : weights) {
    const auto n = static_cast<long double>(term.n);
    const long double tau = n * mu * pi - (n + 1.0L) * below;
    term.pi = static_cast<double>(pi) * term.same;
    term.tau = static_cast<double>(tau) * term.same;
    const long double above = ((2.0L * n + 1.0L) * mu * pi - (n + 1.0L) * below) / n;
    below = pi;
    pi = above;
  }
}

}  // namespace

void EfficiencyWorkspace::Reserve(int terms, std::optional<double> angle) {
  const std::size_t blocks = (static_cast<std::size_t>(terms) + TermBlock - 1) / TermBlock;
  weights.resize(blocks * TermBlock);
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const double n = static_cast<double>(i) + 1.0;
    weights[i] = {n, 2.0 * n + 1.0, (2.0 * n + 1.0) / (n * (n + 1.0)), (n - 1.0) * (n + 1.0) / n, 0.0, 0.0};
  }
  atAngle = angle.has_value();
  if (atAngle) SetAngle(weights, *angle);
  functions.resize(blocks * (TermBlock + 1) * MaxGroup * 3);
}

std::size_t GroupSize(InstructionSet set) {
  switch (set) {
    case InstructionSet::Avx512:
      return 8;
    case InstructionSet::Avx2:
      return 4;
    case InstructionSet::Plain:
      break;
  }
  return LaneCount<Lanes2>;
}

void SolveEfficiencyGroup(const EfficiencyGroup& group, InstructionSet set, EfficiencyWorkspace& workspace,
                          EfficiencySums& sums) {
  switch (set) {
#if LUMIVEX_X86_VECTORS
    case InstructionSet::Avx512:
      return RunAvx512(group, workspace, sums);
    case InstructionSet::Avx2:
      return RunAvx2(group, workspace, sums);
#endif
    default:
      return Run<Lanes2>(group, workspace, sums);
  }
}

}  // namespace lumivex
