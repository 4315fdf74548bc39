#include "timedomain/response_samples.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

namespace lumivex {

namespace {

/// The least power of two that holds the band.
std::int32_t PaddedLength(std::int32_t bands) {
  std::int32_t length = 2;
  while (length < bands) length *= 2;
  return length;
}

}  // namespace

ResponseSamples::ResponseSamples(const Pulse& pulse, std::span<const std::int32_t> samples)
    : bands_(static_cast<std::size_t>(pulse.Bands())), low_(pulse.low), plan_(PaddedLength(pulse.Bands())) {
  const std::int32_t all = pulse.asked.length, length = plan_.Length(), apart = all / length;
  std::map<std::int32_t, std::size_t> groupOf;
  for (std::size_t place = 0; place < samples.size(); ++place) {
    const std::int32_t j = samples[place];
    const auto [found, isNew] = groupOf.try_emplace(j % apart, groups_.size());
    if (isNew) groups_.emplace_back();
    groups_[found->second].wanted.push_back({static_cast<std::size_t>(j / apart), place});
  }
  // The inverse transform divides by its length; the sum has 2/N before it.
  const double scale = 2.0 * length / all;
  for (const auto& [r, number] : groupOf) {
    Group& group = groups_[number];
    for (std::int32_t k = pulse.low; k <= pulse.high && pulse.valid; ++k) {
      const auto turns = static_cast<double>(std::int64_t{r} * k % all) / all;
      const double phase = -2 * std::numbers::pi * turns, c = scale * std::cos(phase), s = scale * std::sin(phase);
      const double re = pulse.outReal[static_cast<std::size_t>(k)], im = pulse.outImag[static_cast<std::size_t>(k)];
      group.weightReal.push_back(re * c - im * s);
      group.weightImag.push_back(re * s + im * c);
    }
  }
}

void ResponseSamples::Intensities(std::span<const float> real, std::span<const float> imag,
                                  std::span<double> intensities, Scratch& scratch) const {
  const auto length = static_cast<std::size_t>(plan_.Length());
  for (auto* list : {&scratch.realIn, &scratch.imagIn}) list->assign(length, 0.0);
  scratch.realOut.resize(length);
  scratch.imagOut.resize(length);
  for (const Group& group : groups_) {
    for (std::size_t i = 0; i < bands_; ++i) {
      const double re = double{real[i]}, im = double{imag[i]};
      const std::size_t at = (static_cast<std::size_t>(low_) + i) & (length - 1);
      scratch.realIn[at] = group.weightReal[i] * re - group.weightImag[i] * im;
      scratch.imagIn[at] = group.weightReal[i] * im + group.weightImag[i] * re;
    }
    plan_.Transform(scratch.realIn, scratch.imagIn, scratch.realOut, scratch.imagOut, true);
    for (const Group::Wanted& one : group.wanted) {
      const double re = scratch.realOut[one.index], im = scratch.imagOut[one.index];
      intensities[one.place] = re * re + im * im;
    }
  }
}

}  // namespace lumivex
