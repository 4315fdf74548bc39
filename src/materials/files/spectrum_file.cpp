#include "materials/files/spectrum_file.h"

#include <cmath>

#include "materials/files/index_file.h"
#include "materials/files/input_items.h"

namespace lumivex {

namespace {

SpectrumFile Fault(SpectrumFileFault fault, std::string detail = {}) {
  SpectrumFile result;
  result.fault = fault;
  result.detail = std::move(detail);
  return result;
}

/// Rows of the file, or 0 where the header gives no number that can be.
int RowCount(const SpectrumFile& file, float third) {
  const double rows = file.nonUniform ? third : (double{file.maximum} - file.minimum) / third + 1;
  const double whole = std::nearbyint(rows);
  return whole >= 1 && whole <= mostTableRows ? static_cast<int>(whole) : 0;
}

/// What is wrong with a row between the limits; empty where nothing is. Uniform spectra are read by counting steps, so
/// that a wavelength may be rounded but not stand elsewhere; the others between neighbours, which must ascend.
std::string RowFault(const SpectrumFile& file, int row, double wavelength, double value) {
  constexpr double rounding = 0.25;  // of a step
  if (file.nonUniform) {
    if (row > 1 && wavelength < file.wavelength.back()) return "the wavelengths must ascend";
    return value < 0 ? "an intensity must not be negative" : "";
  }
  if (row == 1 || row == file.points) return {};
  const double step = (double{file.maximum} - file.minimum) / (file.points - 1);
  const double expected = file.minimum + step * (row - 1);
  return std::abs(wavelength - expected) > rounding * std::abs(step)
             ? "this wavelength is not the one of the header's start and step"
             : "";
}

}  // namespace

SpectrumFile ReadSpectrumFile(std::istream& stream) {
  InputItems items(stream);
  if (items.TextIfAny() != "Lumivex") return Fault(SpectrumFileFault::FirstLine);
  SpectrumFile file;
  items.Skip(1);
  file.nonUniform = items.Text() == "non-uniform";
  items.Skip(1);
  file.minimum = items.Single();
  file.maximum = items.Single();
  const float third = items.Single();
  file.points = RowCount(file, third);
  if (file.points == 0) items.Fail("these limits and this step give no number of rows from 1 to 32767");
  items.Skip(2);
  for (int i = 1; i <= file.points && !items.Failed(); ++i) {
    const double wavelength = items.Number(), value = items.Number();
    items.EndRow(2);
    if (items.Failed()) break;
    if (i == 1 && static_cast<float>(wavelength) != file.minimum) return Fault(SpectrumFileFault::Minimum);
    if (i == file.points && static_cast<float>(wavelength) != file.maximum) return Fault(SpectrumFileFault::Maximum);
    if (const auto fault = RowFault(file, i, wavelength, value); !fault.empty()) items.Fail(fault);
    file.wavelength.push_back(wavelength);
    file.value.push_back(value);
  }
  items.EndData();
  if (items.Failed()) return Fault(SpectrumFileFault::Data, items.Failure());
  return file;
}

}  // namespace lumivex
