#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "timedomain/fourier_transform.h"
#include "timedomain/pulse.h"

namespace lumivex {

/// Intensities |out_j|^2 of some samples of what ImpulseResponse gives all of.
///
/// A band of nf frequencies repeats in the first N' = 2^k >= nf of them: of the samples j = r + (N/N') i one transform
/// of N' numbers is exact. So many are made as there are different r among the samples that are wanted, each shorter
/// than one of N. Any number of threads may use one object, each with a `Scratch` of its own.
class ResponseSamples {
 public:
  struct Scratch {
    std::vector<double> realIn, imagIn, realOut, imagOut;
  };

  /// @param pulse    with a band.
  /// @param samples  which of the N, 0..N-1, in any order.
  ResponseSamples(const Pulse& pulse, std::span<const std::int32_t> samples);

  std::size_t Bands() const { return bands_; }
  /// Numbers of one transform, and how many transforms there are.
  std::int32_t Length() const { return plan_.Length(); }
  std::size_t Transforms() const { return groups_.size(); }

  /// @param real, imag   amplitudes of k = low..high, in this order.
  /// @param intensities  by place in the list of samples.
  void Intensities(std::span<const float> real, std::span<const float> imag, std::span<double> intensities,
                   Scratch& scratch) const;

 private:
  /// The samples of one r.
  struct Group {
    std::vector<double> weightReal, weightImag;  ///< of the frequencies of the band
    struct Wanted {
      std::size_t index;  ///< in the transform
      std::size_t place;  ///< in the list
    };
    std::vector<Wanted> wanted;
  };

  std::size_t bands_;
  std::int32_t low_;
  FourierPlan plan_;
  std::vector<Group> groups_;
};

}  // namespace lumivex
