#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "axes/sample_axis.h"
#include "record/colour.h"

namespace lumivex {

struct MapFound;

/// What the cells of a map tell. Only maps that agree in it can be held against each other.
enum class MapValues {
  Intensity,               ///< of one wavelength
  IntensityPerWaveNumber,  ///< freed of the square of the wave number
  Sum,                     ///< over the wavelengths of a spectrum, by channel
  SumPerWaveNumber,
  Efficiency
};

/// One side of a map: its samples and its words.
struct MapSide {
  SampleAxis samples;
  std::string title;                  ///< below the panels, or at the left above the numbers
  std::string firstLine, secondLine;  ///< of the title where it stands over a narrow margin
  std::string name, unit;             ///< in readings and tables
};

/// One picture of a map.
struct MapPicture {
  std::string title;  ///< over it
  std::string name;   ///< in readings and tables
  /// Row by row from the top left, the lowest sample at the bottom. Copies of a page share them.
  std::shared_ptr<const std::vector<Colour>> cells;
};

/// A line below the pictures.
struct MapLine {
  enum class Place {
    ScaleMaximum,    ///< below the third picture, ending at its right edge
    CurrentMaximum,  ///< below it, from its left edge
    Diagnostics,     ///< below the first
    Diagnostics3     ///< under that
  };
  Place place = Place::ScaleMaximum;
  std::string text;
  Colour colour;
};

/// Places over the pictures, in the quantities of their sides.
struct MapMarks {
  struct Place {
    double across = 0, up = 0;
  };
  std::vector<Place> places;
  bool joined = false;  ///< the corners of a line; otherwise dots
  Colour colour;
  std::vector<std::string> texts;  ///< of places that have one, in their order; empty where none has
};

/// The key of false colours: cells from left to right, and numbers under them.
struct ColourKey {
  struct Number {
    double part = 0;  ///< of the width, from the left
    std::string text;
  };
  std::vector<Colour> cells;
  std::vector<Number> numbers;
  std::string words;  ///< what the numbers are, within it
};

/// Pictures of the same cells side by side, with what was calculated for each.
struct PageMap {
  MapSide across, up;
  /// The values drawn. Row `lowest` of them is the lowest one of the pictures.
  std::shared_ptr<const MapFound> values;
  int lowest = 0;
  MapValues kind = MapValues::Intensity;
  std::vector<MapPicture> pictures;
  std::vector<double> wavelengths;  ///< of the spectrum (nm), first index 0; empty for one wavelength
  double scaleMaximum = 0;          ///< value of full brightness, where all columns have one
  double currentMaximum = 0;        ///< greatest value of this map
  double thirdMaximum = 0;          ///< that of its third picture, or of the last one
  std::vector<MapLine> lines;
  std::optional<ColourKey> key;
  std::vector<MapMarks> marks;  ///< over each picture
};

}  // namespace lumivex
