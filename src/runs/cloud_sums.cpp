#include "runs/cloud_sums.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lumivex {

void CloudSums::Begin(RowWindow window, bool cross) {
  window_ = window;
  const auto rows = static_cast<std::size_t>(std::max(window.high - window.low + 1, 0));
  for (auto* sums : {&perpendicular_, &parallel_}) sums->assign(rows, 0.0);
  for (auto* sums : {&crossRe_, &crossIm_}) sums->assign(cross ? rows : 0, 0.0);
  Qext_ = Qsca_ = Qback_ = extinguished_ = scattered_ = forward_ = number_ = 0;
  samples_ = 0;
  last_ = {};
}

void CloudSums::Add(const SphereSolution& sphere, double radius, double weight) {
  const auto low = static_cast<std::size_t>(std::max(window_.low, 0));
  const auto re1 = sphere.S1.RealParts(), im1 = sphere.S1.ImaginaryParts();
  const auto re2 = sphere.S2.RealParts(), im2 = sphere.S2.ImaginaryParts();
  const std::size_t end = std::min({low + perpendicular_.size(), re1.size(), re2.size()});
  for (std::size_t row = low; row < end; ++row) {
    const std::size_t j = row - low;
    const double a = re1[row], b = im1[row], c = re2[row], d = im2[row];
    perpendicular_[j] += weight * (a * a + b * b);
    parallel_[j] += weight * (c * c + d * d);
  }
  for (std::size_t row = low; row < std::min(end, low + crossRe_.size()); ++row) {
    const std::size_t j = row - low;
    const double a = re1[row], b = im1[row], c = re2[row], d = im2[row];
    crossRe_[j] += weight * (a * c + b * d);
    crossIm_[j] += weight * (b * c - a * d);
  }
  const Efficiencies& e = sphere.efficiencies;
  Qext_ += weight * e.Qext;
  Qsca_ += weight * e.Qsca;
  Qback_ += weight * e.Qback;
  extinguished_ += weight * e.Qext * radius * radius;
  scattered_ += weight * e.Qsca * radius * radius;
  forward_ += weight * e.Qsca * radius * radius * e.g;
  number_ += weight;
  ++samples_;
  last_.rows = sphere.rows;
  last_.NSTOP = sphere.NSTOP;
  last_.NMX = sphere.NMX;
  last_.partialWaveFirst = sphere.partialWaveFirst;
  last_.partialWaveLast = sphere.partialWaveLast;
  last_.rainbowImpact = sphere.rainbowImpact;
  last_.rainbowAngle = sphere.rainbowAngle;
  last_.rayAngle = sphere.rayAngle;
}

SettingFound CloudSums::Means(int tableRows, bool actual, double outside) const {
  SettingFound found;
  found.sphere = last_;
  found.samples = samples_;
  if (!(number_ > 0)) return found;
  const double divisor = actual ? 1 : number_ + outside;
  const int rows = std::max(tableRows, window_.low + static_cast<int>(perpendicular_.size()) - 1);
  found.sphere.S1.Resize(rows);
  found.sphere.S2.Resize(rows);
  found.crossRe.assign(static_cast<std::size_t>(rows) + 1, 0);
  found.crossIm.assign(static_cast<std::size_t>(rows) + 1, 0);
  for (std::size_t j = 0; j < perpendicular_.size(); ++j) {
    const int row = window_.low + static_cast<int>(j);
    found.sphere.S1.Set(row, std::sqrt(perpendicular_[j] / divisor), 0);
    found.sphere.S2.Set(row, std::sqrt(parallel_[j] / divisor), 0);
    if (j >= crossRe_.size()) continue;
    found.crossRe[static_cast<std::size_t>(row)] = crossRe_[j] / divisor;
    found.crossIm[static_cast<std::size_t>(row)] = crossIm_[j] / divisor;
  }
  found.sphere.efficiencies = {Qext_ / divisor, Qsca_ / divisor, Qback_ / divisor,
                               scattered_ > 0 ? forward_ / scattered_ : 0};
  found.Cext = std::numbers::pi * extinguished_ / divisor;
  found.Csca = std::numbers::pi * scattered_ / divisor;
  return found;
}

}  // namespace lumivex
