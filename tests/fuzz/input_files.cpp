/// Fuzzes the readers of input files: the first byte of the input chooses the reader. Whatever the bytes are, a reader
/// must end, keep within its rows and hand out a table of consistent length, and a run with it must end too.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <utility>
#include <variant>

#include "files/measured/measured_text.h"
#include "fuzz/require.h"
#include "materials/files/catalogue_file.h"
#include "materials/files/index_import.h"
#include "materials/files/spectrum_file.h"
#include "materials/light/spectrum_weight.h"
#include "particles/size_file.h"
#include "runs/run_fixture.h"

namespace {

using namespace lumivex;

constexpr double radius = 1;  ///< um

/// Runs a small sphere and holds what comes out to be numbers.
void CheckRun(RunRequest request) {
  const RunEnd end = RunSilently(request, 1);
  if (end.outcome != Outcome::Done) return;
  Require(end.hasResults);
  for (const double value : Numbers(end.results).all) Require(std::isfinite(value));
}

/// The table as the sphere's material in a vacuum, then as the medium around a drop of fixed index, where the table
/// has rows. Indices and wavelengths that ask for a long series are left out: it is the table that is tested.
void RunWithIndex(const IndexTable& table) {
  const auto shared = std::make_shared<const IndexTable>(table);
  const IndexFromFile material{shared, TableRule::Cubic, {table.count, false}};
  for (const double lambda : {double{table.lambda[1]}, double{table.lambda.back()}}) {
    const auto found = IndexAt(material, lambda);
    const bool small = found.value && std::abs(found.value->n) < 10 && std::abs(found.value->k) < 10;
    if (!small || lambda < 0.1 * radius) continue;
    RunRequest request = AngleRequest(radius, 10);
    request.light.lambda = lambda;
    request.particle.sphere = material;
    CheckRun(request);
    request.particle.sphere = FixedIndex{1.5, 0};
    request.particle.medium = material;
    CheckRun(request);
  }
}

void CheckIndex(const IndexFileResult& result) {
  if (result.fault != IndexFileFault::None) return;
  const auto rows = static_cast<std::size_t>(result.table.count) + 1;
  Require(rows >= 2 && result.table.lambda.size() == rows && result.table.rows.size() == rows);
  for (const double lambda : {1e-3, 0.5, static_cast<double>(result.table.lambda[1]), 1e6})
    for (const TableRule rule : {TableRule::Linear, TableRule::Cubic})
      LookUpFile(result.table.View(), lambda, rule, {result.table.count, lambda > 0.5});
  RunWithIndex(result.table);
}

void CheckSpectrum(const SpectrumFile& file) {
  if (file.fault != SpectrumFileFault::None) return;
  const auto rows = static_cast<std::size_t>(file.points) + 1;
  Require(rows >= 2 && file.wavelength.size() == rows && file.value.size() == rows);
  for (const double lambda : {0.0, 0.38, 0.55, 1e9})
    MeasuredWeight({file.wavelength, file.value, file.points, file.nonUniform}, lambda);
}

void CheckSizes(const SizeFile& file) {
  if (file.fault != SizeFileFault::None) return;
  const auto rows = static_cast<std::size_t>(file.count) + 1;
  Require(rows >= 2 && file.size.size() == rows && file.upper.size() == rows && file.number.size() == rows);
  Require(file.total > 0);
}

void CheckCatalogue(const Catalogue& catalogue) {
  if (!catalogue.failure.empty()) return;
  std::istringstream again(CatalogueText(catalogue.entries));
  Require(ReadCatalogueFile(again).entries.size() == catalogue.entries.size());
}

/// Every line is a point or has a fault, and points stand by rising x.
void CheckMeasured(const std::string& content) {
  const ColumnText text = ReadColumns(content);
  if (!text.failure.empty()) return;
  const int last = static_cast<int>(text.names.size()) - 1;
  for (const int error : {-1, last}) {
    const ReadPoints read = PointsFrom(text, 0, 1, error);
    const MeasuredPoints& points = *read.points;
    Require(points.x.size() + read.faults.size() == text.rows.size() && points.y.size() == points.x.size());
    Require(points.error.size() == (error < 0 ? 0 : points.x.size()) && std::ranges::is_sorted(points.x));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  std::istringstream stream(std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
  switch (data[0]) {
    case 'r':
      CheckIndex(ReadIndexFile(stream));
      break;
    case 'c':
      CheckIndex(ReadIndexCsv(stream));
      break;
    case 'y':
      CheckIndex(ReadIndexYaml(stream));
      break;
    case 's':
      CheckSpectrum(ReadSpectrumFile(stream));
      break;
    case 'd':
      CheckSizes(ReadSizeFile(stream, {true, true}));
      break;
    case 'D':
      CheckSizes(ReadSizeFile(stream, {false, false}));
      break;
    case 'm':
      CheckMeasured(stream.str());
      break;
    case 'x':
      CheckCatalogue(ReadCatalogueFile(stream));
      break;
    default:
      break;
  }
  return 0;
}
