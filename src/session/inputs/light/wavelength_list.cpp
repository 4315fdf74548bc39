#include "session/inputs/light/wavelength_list.h"

#include <algorithm>
#include <array>

#include "colour/wavelength_colour.h"
#include "materials/light/spectrum_weight.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr std::array<float, 3> redGreenBlue = {0.65F, 0.51F, 0.44F};

/// Samples of a spectrum whose colours change the faster with wavelength the larger the drop is.
struct SpectrumDensity {
  std::string_view text;
  double product;  ///< samples times radius (um)
  int ceiling, floor;
};
constexpr std::array spectrumDensities = {
    SpectrumDensity{"High", 6000, 1000, 30},
    SpectrumDensity{"Med.", 3000, 300, 10},
    SpectrumDensity{"Low", 1000, 100, 7},
};

/// Adds a wavelength with its colour.
void Add(SpectrumOfLight& light, float lambda, float weight) {
  const ColourTriple colour = colRGB2(lambda);
  light.wavelength.push_back(lambda);
  light.weight.push_back(weight);
  light.red.push_back(colour.r / 255);
  light.green.push_back(colour.g / 255);
  light.blue.push_back(colour.b / 255);
}

SpectrumOfLight EmptyRow() {
  return {{0.0F}, {0.0F}, {0}, {0}, {0}, false};
}

struct BandOfLight {
  float low, high;  ///< um
};

BandOfLight BandOf(const Session& session) {
  const auto& band = session.forms.dlogSpectrumBand;
  return {static_cast<float>(Val(band.txtSpectrumMin.Text) / 1000),
          static_cast<float>(Val(band.txtSpectrumMax.Text) / 1000)};
}

}  // namespace

void StoreSpectrum(MainFormState& s, const SpectrumOfLight& light) {
  const auto rows = light.wavelength.size();
  s.WavelengthList = light.wavelength;
  s.SpectrumWeight = s.SpectrumWeightInUse = light.weight;
  s.WavelengthRed = light.red;
  s.WavelengthGreen = light.green;
  s.WavelengthBlue = light.blue;
  if (s.WavelengthColours.size() < rows) s.WavelengthColours.resize(rows);
  s.WavelengthColours[0] = colours::Black;
  for (std::size_t i = 1; i < rows; ++i) {
    const ColourTriple colour = colRGB2(light.wavelength[i]);
    s.WavelengthColours[i] = RGB(colour.r, colour.g, colour.b);
  }
}

int WavelengthCount(std::string_view text, double radius) {
  constexpr int most = 32767;
  if (text == "RGB") return 3;
  for (const auto& density : spectrumDensities)
    if (text == density.text && radius > 0)
      return std::clamp(ToWhole(std::min(Int(density.product / radius), 1e6)), density.floor, density.ceiling);
  return std::clamp(ToWhole(Val(text)), 1, most);
}

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

SpectrumOfLight ChosenSpectrum(const Session& session, int count) {
  SpectrumOfLight light = EmptyRow();
  const BandOfLight band = BandOf(session);
  const bool rgb = session.form1.cboWave.Text == "RGB";
  light.components = rgb;
  const double step = (double{band.high} - double{band.low}) / count;
  for (int i = 0; i < count; ++i) {
    const double centre = i * step + step / 2 + double{band.low};
    const auto place = static_cast<std::size_t>(i);
    const float lambda = rgb && place < redGreenBlue.size() ? redGreenBlue[place] : static_cast<float>(centre);
    Add(light, lambda, static_cast<float>(SourceWeight(session, lambda)));
  }
  return light;
}

void lambdaN(Session& session) {
  auto& s = session.state;
  s.NumberWavelengths = std::clamp(s.NumberWavelengths, 1, mostWavelengths);
  if (s.NumberWavelengths == 1) {
    SpectrumOfLight one = EmptyRow();
    Add(one, static_cast<float>(s.Lambda), 1);
    return StoreSpectrum(s, one);
  }
  const BandOfLight band = BandOf(session);
  s.SpectrumMin = band.low;
  s.SpectrumMax = band.high;
  StoreSpectrum(s, ChosenSpectrum(session, s.NumberWavelengths));
}

}  // namespace lumivex
