#pragma once

#include <string>
#include <vector>

#include "pages/look.h"
#include "runs/results.h"

namespace lumivex {

/// Title of a run: "Mie scattering:  Water in a vacuum". It names no material where the graph varies it.
std::string RunTitleOf(const Results& results);

/// Label of the method, with its p: "Debye series (p = 2)".
std::string MethodLabelOf(const Results& results);

/// The parameters of a run in words, a line each.
std::vector<std::string> ParameterLinesOf(const Results& results);

/// The pulse of a run and how its times are counted; empty in steady light.
std::string PulseWords(const RunRequest& asked);

/// What the look makes of the numbers of a run before they are drawn and saved, a line each.
std::vector<std::string> ChangeLinesOf(const Results& results, const Look& look);

/// What may tell a run from others on its page, and what tells it from those that agree in all of that: see PageRun.
std::vector<std::string> MarksOf(const Results& results);
std::vector<std::string> FinerMarksOf(const Results& results);
std::vector<std::string> PlaceMarksOf(const Results& results);

/// "12 ms" or "3.2 s".
std::string TimeWords(double seconds);

/// What surface waves and rays of flattened drops were added of, beyond the label of their method; empty for others.
std::string FurtherWordsOf(const Results& results);

}  // namespace lumivex
