#include "timedomain/fourier_transform.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace lumivex {

bool IsPowerOfTwo(std::int32_t n) {
  return n >= 2 && (n & (n - 1)) == 0;
}

int NumberOfBitsNeeded(std::int32_t n) {
  int i = 0;
  while (i < 31 && (n & (std::int32_t{1} << i)) == 0) ++i;
  return i;
}

std::int32_t ReverseBits(std::int32_t index, int bits) {
  std::int32_t reversed = 0;
  for (int i = 0; i < bits; ++i) {
    reversed = (reversed << 1) | (index & 1);
    index >>= 1;
  }
  return reversed;
}

double FrequencyOfIndex(std::int32_t n, std::int32_t i) {
  if (i >= n) return 0;
  return 2 * std::int64_t{i} <= n ? static_cast<double>(i) / n : -static_cast<double>(n - i) / n;
}

FourierPlan::FourierPlan(std::int32_t n) : n_(n), place_(static_cast<std::size_t>(n)) {
  const int bits = NumberOfBitsNeeded(n);
  for (std::int32_t i = 1; i < n; ++i) {
    const auto u = static_cast<std::size_t>(i);
    place_[u] = (place_[u / 2] >> 1) | ((i & 1) << (bits - 1));
  }

  // The last stage's factors by doubling: each is a product of at most log2 n exact ones. The other stages take every
  // second of the next one's.
  const auto half = static_cast<std::size_t>(n) / 2;
  cosine_.resize(2 * half - 1);
  sine_.resize(2 * half - 1);
  double* c = &cosine_[half - 1];
  double* s = &sine_[half - 1];
  c[0] = 1;
  s[0] = 0;
  for (std::size_t done = 1; done < half; done *= 2) {
    const double angle = std::numbers::pi * static_cast<double>(done) / static_cast<double>(half);
    const double cosStep = std::cos(angle), sinStep = std::sin(angle);
    for (std::size_t j = 0; j < done; ++j) {
      c[done + j] = c[j] * cosStep - s[j] * sinStep;
      s[done + j] = s[j] * cosStep + c[j] * sinStep;
    }
  }
  for (std::size_t stage = half / 2; stage >= 1; stage /= 2) {
    for (std::size_t j = 0; j < stage; ++j) {
      cosine_[stage - 1 + j] = cosine_[2 * stage - 1 + 2 * j];
      sine_[stage - 1 + j] = sine_[2 * stage - 1 + 2 * j];
    }
  }
}

void FourierPlan::Transform(std::span<const double> realIn, std::span<const double> imagIn, std::span<double> realOut,
                            std::span<double> imagOut, bool inverse) const {
  // With real and imaginary parts exchanged before and after, the same factors give the other sign.
  const double* inRe = inverse ? imagIn.data() : realIn.data();
  const double* inIm = inverse ? realIn.data() : imagIn.data();
  double* re = inverse ? imagOut.data() : realOut.data();
  double* im = inverse ? realOut.data() : imagOut.data();
  const auto n = static_cast<std::size_t>(n_);
  // The first stage, of pairs without a factor, while the inputs go to their places: place[i + n/2] = place[i] + 1.
  for (std::size_t i = 0; i < n / 2; ++i) {
    const auto j = static_cast<std::size_t>(place_[i]);
    re[j] = inRe[i] + inRe[i + n / 2];
    im[j] = inIm[i] + inIm[i + n / 2];
    re[j + 1] = inRe[i] - inRe[i + n / 2];
    im[j + 1] = inIm[i] - inIm[i + n / 2];
  }
  for (std::size_t half = 2; half < n; half *= 2) {
    const double* __restrict__ c = &cosine_[half - 1];
    const double* __restrict__ s = &sine_[half - 1];
    for (std::size_t block = 0; block < n; block += 2 * half) {
      double* __restrict__ lowRe = re + block;
      double* __restrict__ lowIm = im + block;
      double* __restrict__ highRe = re + block + half;
      double* __restrict__ highIm = im + block + half;
      for (std::size_t j = 0; j < half; ++j) {
        const double tRe = c[j] * highRe[j] - s[j] * highIm[j];
        const double tIm = c[j] * highIm[j] + s[j] * highRe[j];
        highRe[j] = lowRe[j] - tRe;
        highIm[j] = lowIm[j] - tIm;
        lowRe[j] += tRe;
        lowIm[j] += tIm;
      }
    }
  }
  if (!inverse) return;
  const double share = 1.0 / static_cast<double>(n);
  for (std::size_t i = 0; i < n; ++i) {
    re[i] *= share;
    im[i] *= share;
  }
}

bool FourierTransform(std::int32_t n, std::span<const double> realIn, std::span<const double> imagIn,
                      std::span<double> realOut, std::span<double> imagOut, bool inverse) {
  if (!IsPowerOfTwo(n)) return false;
  FourierPlan(n).Transform(realIn, imagIn, realOut, imagOut, inverse);
  return true;
}

}  // namespace lumivex
