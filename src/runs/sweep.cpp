#include <cmath>

#include "runs/request.h"

namespace lumivex {

double Sweep::At(int sample) const {
  if (sample >= steps && steps > 0) return high;
  const double part = steps > 0 ? static_cast<double>(sample) / steps : 0;
  return geometric ? low * std::pow(high / low, part) : low + (high - low) * part;
}

}  // namespace lumivex
