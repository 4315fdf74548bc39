#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "timedomain/fourier_transform.h"
#include "timedomain/pulse.h"

namespace lumivex {

/// What arrives in one direction after a pulse has met a sphere, from the amplitudes of the pulse's band:
///
/// out_j = (2/N) sum_(k = low..high) P_k S_k exp(-2 pi i j k/N), P the pulse's spectrum: the field without its negative
/// frequencies, so that |out|^2 does not beat with the carrier. An amplitude of 1 gives back the pulse with its peak of
/// 1; of a long pulse |out|^2 tends to |S|^2 at its wavelength. Any number of threads may use one object, each with
/// a `Scratch` of its own.
class ImpulseResponse {
 public:
  struct Scratch {
    std::vector<double> real, imag;
  };

  /// @param pulse  with a band.
  explicit ImpulseResponse(const Pulse& pulse);

  std::int32_t Bands() const { return static_cast<std::int32_t>(weightReal_.size()); }
  std::int32_t Length() const { return plan_.Length(); }

  /// @param real, imag        amplitudes of k = low..high, in this order.
  /// @param outReal, outImag  N samples, of the times `Pulse::Time` after the passage of the centre.
  void Respond(std::span<const double> real, std::span<const double> imag, std::span<double> outReal,
               std::span<double> outImag, Scratch& scratch) const;

 private:
  FourierPlan plan_;
  std::int32_t low_;
  std::vector<double> weightReal_, weightImag_;  // 2 P_k of the band
};

/// Where times are counted from, and the window that they repeat in.
///
/// Zero is the arrival of light that is reflected straight back by the sphere's front, so that no ray is earlier; or,
/// with `fromCentre`, what would have passed the sphere's centre. What arrives after the window appears at its
/// beginning.
struct ResponseClock {
  double step = 0.0;          ///< dt, fs
  std::int32_t length = 0;    ///< N
  double diameterTime = 0.0;  ///< 2 a n/c in fs, n the index of the medium
  bool fromCentre = false;

  double Window() const { return step * length; }
  /// fs, in 0..window; or from -window/2 to window/2 with `fromCentre`.
  double TimeOf(std::int32_t j) const;
  /// The sample that is nearest to a time, modulo the window: 0..N-1.
  std::int32_t SampleAt(double time) const;
};

}  // namespace lumivex
