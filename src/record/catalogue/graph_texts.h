#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/graph.h"
#include "record/features.h"

namespace lumivex {

/// One entry of cboGraph: a graph as the user finds it.
struct GraphRow {
  GraphCode code;  ///< a sub-code of 0 leaves GraphSubType as it was
  std::string_view text;
  int place;  ///< in the list from the start; 0: recognised all the same but not in it
  Feature feature;
};

std::span<const GraphRow> GraphTable();

/// The entry of that text whose graph is there; null where there is none.
const GraphRow* FindGraph(std::string_view text);

/// The texts that cboGraph offers, by place: those whose graph is there.
std::vector<std::string> OfferedGraphs();

/// The inputs of a graph with an axis of its own when its family is chosen anew.
struct AxisStart {
  GraphCode code;
  bool logSteps;                      ///< whether it starts with logarithmic steps
  std::string_view xmin, xmax, step;  ///< texts of the axis' inputs
};

/// The row of a graph; null for graphs without such an axis.
const AxisStart* FindAxisStart(const Graph& graph);

/// Caption of the axis' frame and the unit of its limits ("" or "nm").
struct AxisCaptions {
  std::string_view frame, unit;
};
AxisCaptions CaptionsOf(const Graph& graph);

/// How the horizontal axis of a page differs from that of its run.
struct XAxisChange {
  bool fourier = false;        ///< frequencies, where the graph has a word for them
  bool invWavelength = false;  ///< wavelengths stand as their inverse, in 1/\u00B5m
};

/// Title of the horizontal axis. Empty for a graph whose title names its ranges.
std::string_view XTitleOf(const Graph& graph, XAxisChange change);

/// Title of the vertical axis: " Intensity", "Albedo"; empty for a graph that has none, or one that is not plain text.
/// @param amplitude  moduli are shown.
std::string_view YTitleOf(const Graph& graph, bool amplitude);

/// What stands below the title of the vertical axis: its unit, or the second word of a long title; empty where the
/// title says all.
struct YTitleLook {
  bool amplitude = false;
  bool invWavelength = false;  ///< freed of the wave number
  bool perVolume = false;      ///< of the spheres
};
std::string_view YTitleSecondLineOf(const Graph& graph, YTitleLook look);

/// Title of a second panel, of phases or of the degree of polarisation.
std::string_view SecondTitleOf(bool phases);

/// Units of the axes as the read-out prints them: "deg", "nm", "\u00B5m" or empty for numbers; "sq m", "W" or empty.
std::string_view XUnitOf(const Graph& graph, XAxisChange change = {});
std::string_view YUnitOf(const Graph& graph, YTitleLook look = {});

/// The three curves of a graph.
enum class CurveKind { Perpendicular = 1, Parallel = 2, Unpolarised = 3 };

/// Name of a curve: its polarisation, or the efficiency or cross-section that it is.
std::string_view CurveNameOf(const Graph& graph, CurveKind kind);

/// Name of a ratio of the scattering matrix to S11: S12, S33 and S34 in the order of the kinds.
std::string_view RatioNameOf(CurveKind kind);

}  // namespace lumivex
