#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "record/page.h"

namespace lumivex {

/// What the user has made of the curves of pages, to compare them with each other and with measurements: plain values
/// of the session, beside the inputs. pages/compare lays them over a page; the page as its runs gave it is never lost.

/// Tells a curve from all others of a session, on whatever page it is drawn.
struct CurveId {
  int run = 0;    ///< number of its run (PageRun::number); 0 for measured data
  int data = 0;   ///< number of the measured data; 0 for a curve of a run
  int panel = 0;  ///< of the page as its run gave it
  int kind = 1;
  bool alone = false;
  std::string name;
  bool operator==(const CurveId&) const = default;
};

/// What is changed of how a run draws a curve.
struct CurveChange {
  CurveId id;
  std::string name;              ///< empty: its own
  std::optional<Colour> colour;  ///< nothing: its own
  bool hidden = false;
  bool removed = false;  ///< hidden, and out of the list of curves
  bool operator==(const CurveChange&) const = default;
};

/// A curve that stays while other runs are plotted, wherever it fits the axes.
struct KeptCurve {
  CurveId id;
  PageKind kind;
  PageRun run;
  PageCurve curve;
};

/// The points of a file, by rising x, first index 0.
struct MeasuredPoints {
  std::vector<double> x, y;
  std::vector<double> error;  ///< of y, one standard deviation; empty where the file has none
};

/// Measured data over the curves.
struct MeasuredData {
  int number = 1;
  std::string name;
  std::shared_ptr<const MeasuredPoints> points;
  std::string axis;  ///< title of the horizontal axis that x runs along: the data are drawn on no other
  Colour colour;
  bool hidden = false;
  bool fitted = true;  ///< the factor by least squares; otherwise the typed one
  double factor = 1;   ///< measured = factor times curve; the points are drawn divided by it
  CurveId against;     ///< curve that they are held against
  bool operator==(const MeasuredData&) const = default;
};

/// Two curves of which the second is taken from the first, or divides it.
struct CurvePair {
  CurveId first, second;
  bool operator==(const CurvePair&) const = default;
};

/// A point of a curve that the user has marked.
struct Marker {
  int number = 1;
  CurveId id;         ///< of its curve
  std::string curve;  ///< name that the curve had
  double x = 0, y = 0;
  std::string xUnit, yUnit;
  bool operator==(const Marker&) const = default;
};

struct Comparison {
  std::vector<CurveChange> changes;
  std::vector<std::shared_ptr<const KeptCurve>> kept;
  std::vector<MeasuredData> data;
  std::vector<CurvePair> pairs;
  BelowGraph below = BelowGraph::Nothing;  ///< what the panel below the graph shows of pairs and of data
  std::optional<KeyPlace> keyAt;           ///< nothing: the key stands below the graph
  std::vector<Marker> markers;
  int lastData = 0, lastMarker = 0;  ///< numbers that were given
  bool operator==(const Comparison&) const = default;
};

}  // namespace lumivex
