#include "pages/spectrum_sums.h"

#include <cmath>
#include <limits>
#include <span>

namespace lumivex {

namespace {

constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();

std::size_t StoredRows(const SpectrumResults& r) {
  return static_cast<std::size_t>(r.SpectrumRowHigh - r.SpectrumRowLow + 1);
}

/// The stored rows of a wavelength, first index 0.
std::span<const double> RowsOf(const SpectrumResults& r, const std::vector<double>& all, int wavelength) {
  return std::span(all).subspan(static_cast<std::size_t>(wavelength - 1) * StoredRows(r), StoredRows(r));
}

/// What an intensity of the wavelength counts with.
double WeightOf(const Session& session, int wavelength) {
  const auto& s = session.state;
  const auto i = static_cast<std::size_t>(wavelength);
  const double k = session.form1.mnuInvWavelength.Checked ? s.WavelengthWaveNumber[i] : 1;
  return double{s.SpectrumWeightInUse[i]} / (k * k);
}

struct Triple {
  double red, green, blue;
};

void AddWavelength(Table2D& table, std::size_t firstRow, std::span<const double> intensities, double weight,
                   const Triple& colour) {
  double* cell = &table.At(firstRow, 0);
  for (const double intensity : intensities) {
    const double weighed = weight * intensity;
    cell[0] += weighed;
    cell[1] += weighed * colour.red;
    cell[2] += weighed * colour.green;
    cell[3] += weighed * colour.blue;
    cell += table.columns;
  }
}

void StoreTotals(Session& session) {
  auto& s = session.state;
  for (auto* curve : {&s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3})
    curve->assign(s.XValues.size(), 0.0);
  const bool amplitude = session.form1.mnuAmplitude.Checked;
  for (int row = s.SpectrumRowLow; row <= s.SpectrumRowHigh; ++row) {
    const auto j = static_cast<std::size_t>(row);
    const double perpendicular = s.ColourPerp.At(j, 0), parallel = s.ColourPar.At(j, 0);
    const double sum = perpendicular + parallel;
    s.Iperp[j] = amplitude ? std::sqrt(perpendicular) : perpendicular;
    s.Ipar[j] = amplitude ? std::sqrt(parallel) : parallel;
    s.Iunpol[j] = (s.Iperp[j] + s.Ipar[j]) / 2;
    s.Extra1[j] = sum == 0 ? 0 : (perpendicular - parallel) / sum;
  }
}

}  // namespace

void SizeColourTables(SpectrumResults& results) {
  for (Table2D* table : {&results.ColourMain, &results.ColourPerp, &results.ColourPar})
    table->Resize(mostSpectrumRows + 1, colourColumns);
}

void ForgetSpectrum(SpectrumResults& results) {
  results.ResultWavelengths = 1;
  results.WavelengthsDone = 0;
  for (auto* list : {&results.WavelengthPerp, &results.WavelengthPar, &results.WavelengthWaveNumber})
    *list = std::vector<double>();
}

void FoldSpectrum(Session& session) {
  auto& s = session.state;
  SizeColourTables(s);
  const auto firstRow = static_cast<std::size_t>(s.SpectrumRowLow);
  for (int wavelength = 1; wavelength <= s.WavelengthsDone; ++wavelength) {
    const auto i = static_cast<std::size_t>(wavelength);
    const Triple colour{s.WavelengthRed[i], s.WavelengthGreen[i], s.WavelengthBlue[i]};
    const double weight = WeightOf(session, wavelength);
    AddWavelength(s.ColourPerp, firstRow, RowsOf(s, s.WavelengthPerp, wavelength), weight, colour);
    AddWavelength(s.ColourPar, firstRow, RowsOf(s, s.WavelengthPar, wavelength), weight, colour);
  }
  for (std::size_t cell = 0; cell < s.ColourMain.cells.size(); ++cell)
    s.ColourMain.cells[cell] = (s.ColourPerp.cells[cell] + s.ColourPar.cells[cell]) / 2;
  StoreTotals(session);
}

SpectrumCurves CurvesOfWavelength(const Session& session, int wavelength) {
  const auto& s = session.state;
  const std::vector<double> none(s.XValues.size(), notComputed);
  SpectrumCurves curves{none, none, none};
  const bool amplitude = session.form1.mnuAmplitude.Checked;
  const double weight = WeightOf(session, wavelength);
  const auto perpendicular = RowsOf(s, s.WavelengthPerp, wavelength);
  const auto parallel = RowsOf(s, s.WavelengthPar, wavelength);
  for (std::size_t i = 0; i < perpendicular.size(); ++i) {
    const std::size_t j = static_cast<std::size_t>(s.SpectrumRowLow) + i;
    curves.perpendicular[j] = amplitude ? std::sqrt(weight * perpendicular[i]) : weight * perpendicular[i];
    curves.parallel[j] = amplitude ? std::sqrt(weight * parallel[i]) : weight * parallel[i];
    curves.unpolarised[j] = (curves.perpendicular[j] + curves.parallel[j]) / 2;
  }
  return curves;
}

}  // namespace lumivex
