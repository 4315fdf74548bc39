#include "session/inputs/light/wavelength_list.h"

#include <algorithm>
#include <array>

#include "colour/wavelength_colour.h"
#include "materials/light/spectrum_weight.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr std::array<float, 3> redGreenBlue = {0.65F, 0.51F, 0.44F};

void Resize(MainFormState& s, std::size_t rows) {
  for (auto* list : {&s.WavelengthList, &s.SpectrumWeight}) list->assign(rows + 1, 0.0F);
  for (auto* list : {&s.WavelengthRed, &s.WavelengthGreen, &s.WavelengthBlue}) list->assign(rows + 1, 0.0);
  if (s.WavelengthColours.size() <= rows) s.WavelengthColours.resize(rows + 1);
  s.WavelengthColours[0] = colours::Black;
}

void StoreColour(MainFormState& s, std::size_t i, double lambda) {
  const ColourTriple colour = colRGB2(lambda);
  s.WavelengthColours[i] = RGB(colour.r, colour.g, colour.b);
  s.WavelengthRed[i] = colour.r / 255;
  s.WavelengthGreen[i] = colour.g / 255;
  s.WavelengthBlue[i] = colour.b / 255;
}

}  // namespace

double SourceWeight(const Session& session, double lambda) {
  const auto& s = session.state;
  const auto& form = session.form1;
  if (form.mnuSpectrumLee.Checked) return LeeWeight(lambda);
  if (form.mnuSpectrumWernand.Checked) return WernandWeight(lambda);
  if (form.mnuSpectrumWernand2.Checked)
    return ElevationWeight(lambda, Val(session.forms.dlogWernand.txtElevation.Text));
  if (form.mnuSpectrumFile.Checked)
    return MeasuredWeight(
        {s.SpectrumFileWavelength, s.SpectrumFileValue, s.SpectrumFilePoints, s.SpectrumFileNonUniform != 0}, lambda);
  if (form.mnuBlackBody.Checked) return BlackBodyWeight(lambda, s.BlackBodyTemp);
  return 1;
}

void lambdaN(Session& session) {
  auto& s = session.state;
  s.NumberWavelengths = std::clamp(s.NumberWavelengths, 1, mostWavelengths);
  const auto count = static_cast<std::size_t>(s.NumberWavelengths);
  Resize(s, count);
  if (count == 1) {
    s.WavelengthList[1] = static_cast<float>(s.Lambda);
    s.SpectrumWeight[1] = 1;
    StoreColour(s, 1, s.Lambda);
    s.SpectrumWeightInUse = s.SpectrumWeight;
    return;
  }
  const auto& band = session.forms.dlogSpectrumBand;
  s.SpectrumMin = static_cast<float>(Val(band.txtSpectrumMin.Text) / 1000);
  s.SpectrumMax = static_cast<float>(Val(band.txtSpectrumMax.Text) / 1000);
  const bool rgb = session.form1.cboWave.Text == "RGB";
  const double step = (double{s.SpectrumMax} - double{s.SpectrumMin}) / static_cast<double>(count);
  for (std::size_t i = 1; i <= count; ++i) {
    const double centre = static_cast<double>(i - 1) * step + step / 2 + double{s.SpectrumMin};
    s.WavelengthList[i] = rgb && i <= 3 ? redGreenBlue[i - 1] : static_cast<float>(centre);
    StoreColour(s, i, s.WavelengthList[i]);
    s.SpectrumWeight[i] = static_cast<float>(SourceWeight(session, s.WavelengthList[i]));
  }
  s.SpectrumWeightInUse = s.SpectrumWeight;
}

}  // namespace lumivex
