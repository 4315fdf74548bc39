#pragma once

#include <type_traits>
#include <vector>

#include "record/colour.h"
#include "record/page_map.h"

namespace lumivex {

/// Colours of wavelengths, cells and lines.
struct ColourState {
  Colour PlotBackColourSpectrum;  ///< fill of the plot box with several wavelengths
  Colour PlotBackColourMono;      ///< fill of the plot box with one wavelength
  Colour LogoColour;
  Colour SecondLineColour;            ///< shade of the second polarisation curve
  Colour PickedLineColour{0x808080};  ///< line colour picked in the colour dialog
  std::vector<Colour> WavelengthColours =
      std::vector<Colour>(2002);  ///< one colour a wavelength of the run, index 1 up
  double ColourValue = 0;         ///< input of the false-colour ramp
  double LeeOverallMaximum = 0;   ///< of the map on show the value of full brightness
  double LeeCurrentMaximum = 0;   ///< its greatest value
  double MapReference = 0;        ///< greatest value of the map that a series of maps is held against; 0 for none
  double MapReferenceThird = 0;   ///< the same of its third picture
  MapValues MapReferenceKind = MapValues::Intensity;  ///< what these are values of
  int FalseColoursFollow = 0;  ///< 1: a map is in false colours while it has one wavelength, until the user chooses
  float CellRed = 0;           ///< channels of the present cell, 0 to 255
  float CellGreen = 0;
  float CellBlue = 0;
  double BarReference = 0;            ///< BarScale kept for later bars; 0 for none
  int BarReferencePerWaveNumber = 0;  ///< 1: it is of intensities freed of the square of the wave number
  int BarReferenceWeighted = 0;       ///< 1: it is of a sum over a spectrum, weighed by the light source
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, ColourState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("PlotBackColourSpectrum", g.PlotBackColourSpectrum);
  visit("PlotBackColourMono", g.PlotBackColourMono);
  visit("LogoColour", g.LogoColour);
  visit("SecondLineColour", g.SecondLineColour);
  visit("PickedLineColour", g.PickedLineColour);
  visit("WavelengthColours", g.WavelengthColours);
  visit("ColourValue", g.ColourValue);
  visit("LeeOverallMaximum", g.LeeOverallMaximum);
  visit("LeeCurrentMaximum", g.LeeCurrentMaximum);
  visit("MapReference", g.MapReference);
  visit("MapReferenceThird", g.MapReferenceThird);
  visit("MapReferenceKind", g.MapReferenceKind);
  visit("FalseColoursFollow", g.FalseColoursFollow);
  visit("CellRed", g.CellRed);
  visit("CellGreen", g.CellGreen);
  visit("CellBlue", g.CellBlue);
  visit("BarReference", g.BarReference);
  visit("BarReferencePerWaveNumber", g.BarReferencePerWaveNumber);
  visit("BarReferenceWeighted", g.BarReferenceWeighted);
}

}  // namespace lumivex
