#pragma once

namespace lumivex {

/// Samples along an axis in equal steps, or in equal ratios on a logarithmic axis: sample k, from 0, stands where the
/// axis has its value, so that a cell drawn for it reaches half a step to both sides.
struct SampleAxis {
  double first = 0, last = 1;  ///< values of the first and the last sample
  int count = 2;               ///< samples
  bool logarithmic = false;

  /// The value at a sample, or between two.
  double At(double sample) const;
  /// The sample at which a value stands; between two a number between theirs. Of one sample alone it is 0.
  double PlaceOf(double value) const;
};

}  // namespace lumivex
