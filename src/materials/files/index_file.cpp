#include "materials/files/index_file.h"

#include <array>
#include <optional>
#include <string_view>

#include "materials/files/input_items.h"
#include "materials/files/readable_text.h"

namespace lumivex {

namespace {

struct WavelengthUnit {
  std::string_view name;
  double factor;
};
constexpr std::array wavelengthUnits = {WavelengthUnit{"m", 1000000}, WavelengthUnit{"mm", 1000},
                                        WavelengthUnit{"um", 1}, WavelengthUnit{"nm", 0.001}};

std::optional<double> FactorOf(std::string_view unit) {
  for (const auto& known : wavelengthUnits)
    if (known.name == unit) return known.factor;
  return std::nullopt;
}

IndexFileResult Fault(IndexFileFault fault, std::string detail = {}) {
  return {fault, std::move(detail), {}};
}

}  // namespace

void IndexTable::Add(float wavelength, float n, float k) {
  if (lambda.empty()) {
    lambda.push_back(0);
    rows.push_back({});
  }
  lambda.push_back(wavelength);
  rows.push_back({n, k, 0});
  ++count;
}

IndexFileResult ReadIndexFile(std::istream& stream) {
  constexpr int freeLines = 11;
  InputItems items(stream);
  const std::string marker = items.TextIfAny().value_or("");
  if (marker != "Lumivex 300") return Fault(IndexFileFault::FirstLine, Readable(marker));
  items.Skip(freeLines);
  IndexFileResult result;
  result.table.name = items.Text();
  const auto factor = FactorOf(items.Text());
  if (!factor && !items.Failed()) return Fault(IndexFileFault::Unit);
  const std::string type = items.Text();
  const bool complex = type == "Complex";
  if (!complex && type != "Real" && !items.Failed()) return Fault(IndexFileFault::Type);
  const int count = items.Whole(1, mostTableRows);
  for (int i = 0; i < count && !items.Failed(); ++i) {
    const double wavelength = items.Number() * factor.value_or(1);
    const float n = items.Single();
    const float k = complex ? items.Single() : 0;
    items.EndRow(complex ? 3 : 2);
    if (!(wavelength > 0 && wavelength < 1e30)) items.Fail("a wavelength must be positive");
    result.table.Add(static_cast<float>(wavelength), n, k);
  }
  items.EndData();
  if (items.Failed()) return Fault(IndexFileFault::Data, items.Failure());
  return result;
}

}  // namespace lumivex
