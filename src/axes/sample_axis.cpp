#include "axes/sample_axis.h"

#include <cmath>

namespace lumivex {

double SampleAxis::At(double sample) const {
  if (count < 2) return first;
  const double part = sample / (count - 1);
  return logarithmic ? first * std::pow(last / first, part) : first + (last - first) * part;
}

double SampleAxis::PlaceOf(double value) const {
  if (count < 2 || first == last) return 0;
  const double part = logarithmic ? std::log(value / first) / std::log(last / first) : (value - first) / (last - first);
  return part * (count - 1);
}

}  // namespace lumivex
