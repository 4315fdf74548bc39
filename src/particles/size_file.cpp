#include "particles/size_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "materials/files/index_file.h"
#include "materials/files/input_items.h"

namespace lumivex {

namespace {

struct SizeUnit {
  std::string_view name;
  float factor;
};
constexpr std::array sizeUnits = {SizeUnit{"m", 1000000000.0F}, SizeUnit{"mm", 1000.0F}, SizeUnit{"um", 1.0F},
                                  SizeUnit{"nm", 0.001F}};

SizeFile Fault(SizeFileFault fault, std::string detail = {}) {
  SizeFile file;
  file.fault = fault;
  file.detail = std::move(detail);
  return file;
}

float UnitOf(InputItems& items) {
  const std::string unit = items.Text();
  const auto known = std::ranges::find(sizeUnits, unit, &SizeUnit::name);
  if (known != sizeUnits.end()) return known->factor;
  items.Fail("the unit of size must be m, mm, um or nm");
  return 1;
}

/// A row of a uniform table; a diameter halves size and number.
void ReadSize(InputItems& items, SizeFile& file, bool diameter) {
  const float half = diameter ? 0.5F : 1.0F;
  const float size = items.Single(), number = items.Single();
  file.size.push_back(size * half);
  file.upper.push_back(0);
  file.middle.push_back(0);
  file.number.push_back(number * half);
}

void ReadClass(InputItems& items, SizeFile& file, float factor, bool perWidth) {
  const float lower = items.Single() * factor, upper = items.Single() * factor;
  float number = items.Single();
  if (perWidth) {
    if (!(upper > lower)) items.Fail("a class must have a width");
    number = items.Failed() ? 0 : number / (upper - lower);
  }
  file.size.push_back(lower);
  file.upper.push_back(upper);
  file.middle.push_back((lower + upper) * 0.5F);
  file.number.push_back(number);
}

void CheckRow(InputItems& items, const SizeFile& file) {
  constexpr float largest = 1e20F;
  const float end = std::max(file.size.back(), file.upper.back());
  if (!(file.size.back() >= 0 && file.upper.back() >= 0 && end > 0 && end < largest))
    items.Fail("a size must be positive");
  if (!(file.number.back() >= 0 && file.number.back() < largest)) items.Fail("a number must not be negative");
}

void Normalise(InputItems& items, SizeFile& file, bool normalise) {
  double sum = 0;
  for (const float number : file.number) sum += double{number};
  if (!(sum > 0)) return items.Fail("there are no particles in this file");
  for (float& number : file.number) {
    if (normalise) number = static_cast<float>(number / sum);
    file.peak = std::max(file.peak, double{number});
    file.total += double{number};
  }
}

void SetLimits(SizeFile& file) {
  const auto n = static_cast<std::size_t>(file.count);
  if (!file.uniform) {
    file.lowest = file.size[1];
    file.highest = file.upper[n];
    return;
  }
  const float half = n > 1 ? (file.size[2] - file.size[1]) * 0.5F : 0.0F;
  file.lowest = file.size[1] - half;
  if (file.lowest == 0) file.lowest = file.size[1] / 2;
  file.highest = file.size[n] + half;
}

}  // namespace

SizeFile ReadSizeFile(std::istream& stream, const SizeFileOptions& options) {
  constexpr int freeLines = 12;
  InputItems items(stream);
  const std::string marker = items.TextIfAny().value_or("");
  if (marker != "Lumivex 300" && marker != "Lumivex 301") return Fault(SizeFileFault::Format);
  SizeFile file;
  items.Skip(freeLines);
  const std::string word = marker == "Lumivex 301" ? items.Text() : "radius";
  file.sizeWordMissing = word != "radius" && word != "diameter" && !items.Failed();
  const bool diameter = word == "diameter";
  const float factor = UnitOf(items) * (diameter ? 0.5F : 1.0F);
  const std::string kind = items.Text();
  file.uniform = kind == "Uniform";
  if (!file.uniform && kind != "Non uniform" && !items.Failed()) return Fault(SizeFileFault::Format);
  file.count = items.Whole(1, mostTableRows);
  for (int i = 0; i < file.count && !items.Failed(); ++i) {
    if (file.uniform)
      ReadSize(items, file, diameter);
    else
      ReadClass(items, file, factor, options.perWidth);
    items.EndRow(file.uniform ? 2 : 3);
    CheckRow(items, file);
  }
  items.EndData();
  if (!items.Failed()) Normalise(items, file, options.normalise);
  if (items.Failed()) return Fault(SizeFileFault::Data, items.Failure());
  SetLimits(file);
  return file;
}

}  // namespace lumivex
