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
    file.wavelength.push_back(wavelength);
    file.value.push_back(value);
  }
  items.EndData();
  if (items.Failed()) return Fault(SpectrumFileFault::Data, items.Failure());
  return file;
}

}  // namespace lumivex
