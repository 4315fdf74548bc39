#pragma once

#include <vector>

namespace lumivex {

/// Points of the standard normal distribution in the middles of equally probable slices, symmetric about 0, so that
/// each stands for the same share.
/// @param count  5, 10, 20 or 50.
/// @return rows 1 to count (element 0 is 0): the values from 0 up, then their negatives in the same order. Empty for
/// any
///         other count.
std::vector<float> NormalSamples(int count);

}  // namespace lumivex
