#pragma once

#include "record/form.h"

namespace lumivex {

/// The cube of spheres of the volume graphs, as far as the panel has no place for it.
struct DlogVolume final : Form {
  DlogVolume() : Form("dlogVolume", "Spheres in a volume") {}

  static constexpr const char* startCount = "100";
  static constexpr const char* startSide = "1000";
  static constexpr const char* startSeed = "1";

  Label lblCount{*this, "lblCount", "Number of spheres N"};
  TextInput txtCount{
      *this, "txtCount", startCount,
      "Number of spheres in the cube: independent points, which may overlap; each is lit by the incident "
      "wave alone"};
  Label lblSide{*this, "lblSide", "Side of the cube (\u00B5m)"};
  TextInput txtSide{*this, "txtSide", startSide, "Side of the cube of the spheres in micrometres"};
  Label lblSeed{*this, "lblSeed", "Seed"};
  TextInput txtSeed{*this, "txtSeed", startSeed,
                    "A whole number from 0: the same seed gives the same places, sizes and paths, another one others"};
  Label lblNote{
      *this, "lblNote",
      "The places are random and independent of each other: spheres may overlap, and light is scattered once."};
};

}  // namespace lumivex
