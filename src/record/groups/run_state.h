#pragma once

#include <string>
#include <type_traits>

#include "catalogue/graph.h"
#include "catalogue/method.h"

namespace lumivex {

/// What is being run, and how far it is.
struct RunState {
  int PlotMode = 1;                    ///< 1 plain, 2 drawing over the present graph, 4 stop requested
  int CommandAborted = 0;              ///< 1: the present command must end without calculating
  int Busy = 0;                        ///< 1 during start-up and New plot; resize and mouse handlers then do nothing
  int GraphType = 1;                   ///< graph code: below 10 against angle, 10 to 18 against another variable
  int GraphSubType = 1;                ///< sub-code of the graph
  int PrevGraphType = 0;               ///< graph of the run before; 0 before the first run
  int PrevGraphSubType = 0;            ///< its sub-code
  Method ResultMethod = Method::None;  ///< method of the results; none before the first run
  Method CalcMethod = Method::Mie;     ///< method in use; none for an unknown text
  int DiffractionVariant = 0;
  int NumberWavelengths = 1;
  int WavelengthIndex = 1;  ///< running wavelength, from 1
  int NumberSamples = 1;    ///< samples of the size distribution
  int SampleIndex = 1;      ///< running sample, from 1
  double WavelengthPos = 1;
  double SamplePos = 1;
  double DispSample = 0;
  float ProgressFraction = 0;  ///< 0 to 1, of the points of an x-axis run
  double ProgressPercent = 0;
  int CalibrationState = 0;     ///< 3: a machine so fast that no duration is asked about
  int RestoringSettings = 0;    ///< not 0: menu handlers show no dialog
  int LoadingFlag = 0;          ///< not 0: change events of inputs do nothing
  int OverplotFromFile = 0;     ///< 1: the curve to be drawn was read from a file
  int ReplotOfSizes = 0;        ///< 1: Replot is off for Mono alone, and is offered again with a distribution of sizes
  int StopAnswer = 0;           ///< 1 once a Stop of the present run was answered Yes
  double StartTime = 0;         ///< seconds, when the present run began
  double LastRunSeconds = 0;    ///< how long the last run calculated
  double SecondsLeft = -1;      ///< of the present run, as far as can be told; -1 where it cannot
  double EstimatedSeconds = 0;  ///< for the whole run, smoothed from report to report; 0 before the first
  double EstimateTime = 0;      ///< seconds, when it was last looked at
  double SecondsPerPairTerm = 0;  ///< of this machine: one term of one pair of angles; 0 until measured
};

/// The graph chosen.
inline const Graph& ChosenGraph(const RunState& s) {
  return GraphOf({s.GraphType, s.GraphSubType});
}

/// The same where it has an axis of points; null for graphs against angle and all others.
inline const Graph* ChosenAxisGraph(const RunState& s) {
  const Graph& graph = ChosenGraph(s);
  const bool axis =
      graph.family == Family::Axis || graph.family == Family::Convergence || graph.family == Family::Volume;
  return axis ? &graph : nullptr;
}

/// Chooses a graph. A sub-code of 0 leaves GraphSubType as it was.
inline void SetGraph(RunState& s, GraphCode code) {
  s.GraphType = code.type;
  if (code.subType != 0) s.GraphSubType = code.subType;
}

/// Whether there are results, and the graph that they are of.
inline bool HasResults(const RunState& s) {
  return s.PrevGraphType != 0;
}
inline const Graph& ResultGraph(const RunState& s) {
  return GraphOf({s.PrevGraphType, s.PrevGraphSubType});
}

/// Whether the graph chosen is the two-angle contour, which has inputs of its own in place of the angle scale and the
/// radius.
inline bool IsTwoAngleContour(const RunState& s) {
  return ChosenGraph(s).family == Family::TwoAngle;
}

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, RunState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("PlotMode", g.PlotMode);
  visit("CommandAborted", g.CommandAborted);
  visit("Busy", g.Busy);
  visit("GraphType", g.GraphType);
  visit("GraphSubType", g.GraphSubType);
  visit("PrevGraphType", g.PrevGraphType);
  visit("PrevGraphSubType", g.PrevGraphSubType);
  visit("ResultMethod", g.ResultMethod);
  visit("CalcMethod", g.CalcMethod);
  visit("DiffractionVariant", g.DiffractionVariant);
  visit("NumberWavelengths", g.NumberWavelengths);
  visit("WavelengthIndex", g.WavelengthIndex);
  visit("NumberSamples", g.NumberSamples);
  visit("SampleIndex", g.SampleIndex);
  visit("WavelengthPos", g.WavelengthPos);
  visit("SamplePos", g.SamplePos);
  visit("DispSample", g.DispSample);
  visit("ProgressFraction", g.ProgressFraction);
  visit("ProgressPercent", g.ProgressPercent);
  visit("CalibrationState", g.CalibrationState);
  visit("RestoringSettings", g.RestoringSettings);
  visit("LoadingFlag", g.LoadingFlag);
  visit("OverplotFromFile", g.OverplotFromFile);
  visit("ReplotOfSizes", g.ReplotOfSizes);
  visit("StopAnswer", g.StopAnswer);
  visit("StartTime", g.StartTime);
  visit("LastRunSeconds", g.LastRunSeconds);
  visit("SecondsLeft", g.SecondsLeft);
  visit("EstimatedSeconds", g.EstimatedSeconds);
  visit("EstimateTime", g.EstimateTime);
  visit("SecondsPerPairTerm", g.SecondsPerPairTerm);
}

}  // namespace lumivex
