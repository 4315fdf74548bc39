#include "particles/normal_samples.h"

#include <array>
#include <cstddef>
#include <span>

namespace lumivex {

namespace {

constexpr std::array five = {0.0F, 0.59881F, 1.46336F};
constexpr std::array ten = {0.13397F, 0.41079F, 0.71907F, 1.10494F, 1.75357F};
constexpr std::array twenty = {0.06473F, 0.19521F, 0.3289F,  0.46838F, 0.61702F,
                               0.77975F, 0.9647F,  1.18741F, 1.4859F,  2.0231F};
constexpr std::array fifty = {0.02539F, 0.07623F, 0.12727F, 0.17863F, 0.23045F, 0.28289F, 0.3361F,  0.39025F, 0.44554F,
                              0.50219F, 0.56046F, 0.62065F, 0.68311F, 0.74829F, 0.81673F, 0.88912F, 0.96636F, 1.04968F,
                              1.14079F, 1.24221F, 1.3579F,  1.49466F, 1.66588F, 1.90484F, 2.35609F};
static_assert(twenty.size() == 10 && fifty.size() == 25);

std::span<const float> Half(int count) {
  switch (count) {
    case 5:
      return five;
    case 10:
      return ten;
    case 20:
      return twenty;
    case 50:
      return fifty;
    default:
      return {};
  }
}

}  // namespace

std::vector<float> NormalSamples(int count) {
  const auto half = Half(count);
  if (half.empty()) return {};
  std::vector<float> samples{0.0F};
  samples.insert(samples.end(), half.begin(), half.end());
  for (const float value : half)
    if (value != 0) samples.push_back(-value);
  return samples;
}

}  // namespace lumivex
