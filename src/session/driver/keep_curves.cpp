#include "session/driver/keep_curves.h"

#include <algorithm>
#include <utility>

#include "axes/curve_smoothing.h"

namespace lumivex {

namespace {

constexpr std::size_t spareRows = 100;  // beyond 180 degrees, which averages may look at

/// A curve with its first and last row, the others 0.
std::vector<double> Kept(const std::vector<double>& curve, const Curves& curves, std::size_t size) {
  std::vector<double> kept(size, 0.0);
  for (int row = curves.firstRow; row <= curves.lastRow; ++row) {
    const auto i = static_cast<std::size_t>(row);
    if (i < curve.size() && i < size) kept[i] = curve[i];
  }
  return kept;
}

void KeepSunDisc(LightState& light, DiscWeights disc) {
  light.SunDiscWeight = std::move(disc.weight);
  light.SunDiscRows = disc.rows;
  light.SunDiscTotal = disc.total;
}

void FillTable(Table2D& table, const Table2D& sums) {
  for (std::size_t row = 0; row < std::min(sums.rows, table.rows); ++row)
    for (std::size_t column = 0; column < std::min(sums.columns, table.columns); ++column)
      table.At(row, column) = sums.At(row, column);
}

}  // namespace

void FillCurveArrays(MainFormState& s, const Results& results, const Curves& curves, bool rectangular) {
  if (curves.x.empty()) return;
  const AngleRows* rows = RowsOf(results.asked.run);
  const std::size_t size = curves.x.size() + (rows != nullptr ? spareRows : 0);
  if (rows != nullptr) KeepSunDisc(s, SunDiscWeights(rows->step, rectangular));
  s.XValues = Kept(curves.x, curves, size);
  s.Iperp = Kept(curves.perpendicular, curves, size);
  s.Ipar = Kept(curves.parallel, curves, size);
  s.Iunpol = Kept(curves.unpolarised, curves, size);
  s.Extra1 = Kept(curves.extra1, curves, size);
  s.Extra2 = Kept(curves.extra2, curves, size);
  s.Extra3 = Kept(curves.extra3, curves, size);
  s.IntensityNorm = curves.intensityNorm;
  if (results.asked.graph.quantity == Quantity::Irradiance) {
    s.ScatteredPower = curves.scatteredPower;
    s.BackscatteredPower = curves.backscatteredPower;
  }
  if (results.Find<SpectrumFound>() == nullptr) return;
  // The square of a wave number is never 1, which tells what the curves were freed of.
  const SpectrumSums sums = SumsOf(results, {.invWavelength = curves.intensityNorm != 1});
  SizeColourTables(s);
  FillTable(s.ColourPerp, sums.perpendicular);
  FillTable(s.ColourPar, sums.parallel);
  FillTable(s.ColourMain, sums.mean);
}

}  // namespace lumivex
