#pragma once

#include <string>
#include <type_traits>
#include <vector>

namespace lumivex {

/// The light source: the wavelengths of a run with their weights and colours, a spectrum from file and the solar disc.
/// Lists have the first index 1.
struct LightState {
  float SpectrumMin = 0.38F;  ///< band of a calculation with several wavelengths (um)
  float SpectrumMax = 0.70F;
  std::vector<float> WavelengthList;       ///< wavelengths of the run (um), rows 1 to NumberWavelengths
  std::vector<float> SpectrumWeight;       ///< the source's weight at each
  std::vector<float> SpectrumWeightInUse;  ///< the copy that runs use
  std::vector<double> WavelengthRed;       ///< colour of each, 0 to 1 (red above it below 380 nm)
  std::vector<double> WavelengthGreen;
  std::vector<double> WavelengthBlue;
  double BlackBodyTemp = 6000;  ///< K

  std::vector<double> SpectrumFileWavelength;  ///< nm
  std::vector<double> SpectrumFileValue;       ///< relative
  float SpectrumFileMin = 0;                   ///< first and last wavelength (nm)
  float SpectrumFileMax = 0;
  int SpectrumFilePoints = 0;
  int SpectrumFileNonUniform = 0;  ///< 1: the steps are irregular
  int SpectrumFileLoaded = 0;      ///< 1 after a good read
  std::string SpectrumFileName;    ///< path of the spectrum held

  std::vector<double> SunDiscWeight;  ///< weights of the solar disc by offset, index 0 to SunDiscRows + 1
  int SunDiscRows = 0;
  double SunDiscTotal = 1;  ///< sum of the weights over both sides
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, LightState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("SpectrumMin", g.SpectrumMin);
  visit("SpectrumMax", g.SpectrumMax);
  visit("WavelengthList", g.WavelengthList);
  visit("SpectrumWeight", g.SpectrumWeight);
  visit("SpectrumWeightInUse", g.SpectrumWeightInUse);
  visit("WavelengthRed", g.WavelengthRed);
  visit("WavelengthGreen", g.WavelengthGreen);
  visit("WavelengthBlue", g.WavelengthBlue);
  visit("BlackBodyTemp", g.BlackBodyTemp);
  visit("SpectrumFileWavelength", g.SpectrumFileWavelength);
  visit("SpectrumFileValue", g.SpectrumFileValue);
  visit("SpectrumFileMin", g.SpectrumFileMin);
  visit("SpectrumFileMax", g.SpectrumFileMax);
  visit("SpectrumFilePoints", g.SpectrumFilePoints);
  visit("SpectrumFileNonUniform", g.SpectrumFileNonUniform);
  visit("SpectrumFileLoaded", g.SpectrumFileLoaded);
  visit("SpectrumFileName", g.SpectrumFileName);
  visit("SunDiscWeight", g.SunDiscWeight);
  visit("SunDiscRows", g.SunDiscRows);
  visit("SunDiscTotal", g.SunDiscTotal);
}

}  // namespace lumivex
