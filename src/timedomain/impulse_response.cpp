#include "timedomain/impulse_response.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace lumivex {

ImpulseResponse::ImpulseResponse(const Pulse& pulse) : plan_(pulse.asked.length), low_(pulse.low) {
  for (std::int32_t k = pulse.low; k <= pulse.high && pulse.valid; ++k) {
    weightReal_.push_back(2 * pulse.outReal[static_cast<std::size_t>(k)]);
    weightImag_.push_back(2 * pulse.outImag[static_cast<std::size_t>(k)]);
  }
}

void ImpulseResponse::Respond(std::span<const double> real, std::span<const double> imag, std::span<double> outReal,
                              std::span<double> outImag, Scratch& scratch) const {
  const auto n = static_cast<std::size_t>(Length());
  scratch.real.assign(n, 0.0);
  scratch.imag.assign(n, 0.0);
  const auto low = static_cast<std::size_t>(low_);
  for (std::size_t i = 0; i < weightReal_.size(); ++i) {
    scratch.real[low + i] = weightReal_[i] * real[i] - weightImag_[i] * imag[i];
    scratch.imag[low + i] = weightReal_[i] * imag[i] + weightImag_[i] * real[i];
  }
  plan_.Transform(scratch.real, scratch.imag, outReal, outImag, true);
}

double ResponseClock::TimeOf(std::int32_t j) const {
  const double fromCentreTime = (j - length / 2) * step;
  if (fromCentre) return fromCentreTime;
  const double time = std::fmod(fromCentreTime + diameterTime, Window());
  return time < 0 ? time + Window() : time;
}

std::int32_t ResponseClock::SampleAt(double time) const {
  const double samples = std::round((fromCentre ? time : time - diameterTime) / step);
  const auto wrapped = static_cast<std::int32_t>(std::fmod(samples, length));
  const std::int32_t j = (wrapped + length / 2) % length;
  return j < 0 ? j + length : j;
}

}  // namespace lumivex
