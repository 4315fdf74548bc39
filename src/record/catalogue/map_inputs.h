#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "catalogue/graph.h"

namespace lumivex {

/// Where the size of the sphere is typed.
enum class SizeField {
  None,    ///< it is swept, or follows from a size parameter
  Radius,  ///< txtRadius
  Angle,   ///< txtAngle: the field of the radius holds the limits of the swept index
};

/// Which inputs a Lee diagram or a map reads; the others are hidden.
struct MapInputs {
  GraphCode code;
  SizeField size = SizeField::None;
  bool further = true;             ///< columns from txtF9_min to txtF9_max; otherwise from txtRadius to txtRmax
  std::optional<Swept> held = {};  ///< what txtF9_fixed holds still
  bool absorption = false;         ///< the sphere's absorption is that of txtRefractImag
  bool fixedMedium = false;        ///< starts in a medium of a fixed index, which is typed
  bool angle = false;              ///< intensities at the angle of txtAngle
};

/// The row of a Lee diagram or a map; null for any other graph.
const MapInputs* FindMapInputs(const Graph& graph);

/// A text of a control: the caption of a label or frame, the contents of an input.
struct ControlText {
  GraphCode code;  ///< a sub-type of 0 stands for all of the type
  std::string_view control, text;

  bool IsOf(const Graph& graph) const {
    return graph.code.type == code.type && (code.subType == 0 || graph.code.subType == code.subType);
  }
};

/// What labels and frames of a Lee diagram or a map read.
std::span<const ControlText> MapCaptions();

/// What its inputs start with when its family is chosen anew.
std::span<const ControlText> MapStarts();

/// What cboLee starts with, and reads after a run: one scale for all columns of a map; a Lee diagram, and a map over
/// the real index in the light of several wavelengths, has one for each.
std::string_view MapScaleAtStart(const Graph& graph, bool oneWavelength);

/// Those of them that depend on the swept quantity: they start anew too where another sub-type sweeps another one.
std::span<const ControlText> SweepStarts();

}  // namespace lumivex
