#include "pages/curves/curve_names.h"

#include <algorithm>
#include <map>

namespace lumivex {

namespace {

using Marks = std::vector<std::string> PageRun::*;

/// Adds to each of the runs the marks that are not the same in all of them.
void AddDifferences(const Page& page, const std::vector<std::size_t>& runs, Marks marks,
                    std::vector<std::string>& words) {
  std::size_t places = 0;
  for (const std::size_t run : runs) places = std::max(places, (page.runs[run].*marks).size());
  for (std::size_t place = 0; place < places; ++place) {
    const auto mark = [&](std::size_t run) {
      const auto& all = page.runs[run].*marks;
      return place < all.size() ? all[place] : std::string();
    };
    const std::string first = mark(runs.front());
    if (std::ranges::all_of(runs, [&](std::size_t run) { return mark(run) == first; })) continue;
    for (const std::size_t run : runs)
      if (const std::string one = mark(run); !one.empty()) words[run] += (words[run].empty() ? "" : ", ") + one;
  }
}

std::string Joined(const std::string& run, const std::string& name) {
  return run.empty() ? name : run + ": " + name;
}

}  // namespace

CurveNames::CurveNames(const Page& page) : runs_(page.runs.size()), alone_(page.runs.size()) {
  // A run whose curves have left the page is not told from.
  std::vector<std::size_t> shown;
  for (std::size_t run = 0; run < page.runs.size(); ++run)
    if (std::ranges::any_of(page.curves, [run](const PageCurve& curve) { return curve.run == run; }))
      shown.push_back(run);
  if (shown.size() < 2) return;
  AddDifferences(page, shown, &PageRun::marks, alone_);
  runs_ = alone_;
  AddDifferences(page, shown, &PageRun::placeMarks, runs_);
  for (auto* names : {&runs_, &alone_}) {
    std::map<std::string, std::vector<std::size_t>> alike;
    for (const std::size_t run : shown) alike[(*names)[run]].push_back(run);
    for (const auto& [words, runs] : alike)
      if (runs.size() > 1) AddDifferences(page, runs, &PageRun::finerMarks, *names);
  }
}

const std::string& CurveNames::OfRun(std::size_t run) const {
  static const std::string none;
  return run < runs_.size() ? runs_[run] : none;
}

const std::string& CurveNames::RunOf(const PageCurve& curve) const {
  return curve.alone && curve.run < alone_.size() ? alone_[curve.run] : OfRun(curve.run);
}

std::string CurveNames::Of(const PageCurve& curve) const {
  if (!curve.givenName.empty()) return curve.givenName;
  return Joined(RunOf(curve), curve.name);
}

std::string CurveNames::InKey(const PageCurve& curve) const {
  if (!curve.givenName.empty()) return curve.givenName;
  return Joined(RunOf(curve), curve.keyName.empty() ? curve.name : curve.keyName);
}

}  // namespace lumivex
