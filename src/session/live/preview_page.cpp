#include "session/live/preview_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "pages/build_page.h"
#include "pages/compare/compare_page.h"
#include "pages/zoom.h"
#include "session/driver/display_run.h"
#include "session/driver/keep_results.h"
#include "session/inputs/look/read_look.h"

namespace lumivex {

namespace {

using Pencil = std::array<Colour, 3>;

/// Pens of what is only sketched: grey, as no light is, darkest for the first curve; on a dark desktop they read as
/// well. Beside curves that are grey themselves a quiet blue.
constexpr Pencil greyPencil = {Colour{0x606060}, Colour{0x8C8C8C}, Colour{0xA5A5A5}};
constexpr Pencil bluePencil = {Colour{0xAA5A28}, Colour{0xBE825A}, Colour{0xCDA082}};

bool IsGrey(Colour colour) {
  constexpr int slack = 8;
  const auto [least, most] = std::minmax({colour.Red(), colour.Green(), colour.Blue()});
  return most - least <= slack;
}

void SketchLastRun(Page& page) {
  const std::size_t last = page.runs.size() - 1;
  const bool grey = std::ranges::any_of(
      page.curves, [&](const PageCurve& curve) { return curve.run != last && IsGrey(curve.colour); });
  const Pencil& pencil = grey ? bluePencil : greyPencil;
  for (PageCurve& curve : page.curves) {
    if (curve.run != last) continue;
    curve.colour = pencil[static_cast<std::size_t>(std::clamp(curve.kind, 1, 3) - 1)];
    curve.colours.clear();
  }
}

/// Whether the range of the horizontal axis and the limits that were typed for the vertical one are those of the page.
bool HasItsAxes(const Page& kept, const Page& fresh, const Look& look) {
  if (!(kept.home == fresh.home) || kept.kind.polar != fresh.kind.polar) return false;
  return (!look.scale.ymin || kept.homeY.xmin == fresh.homeY.xmin) &&
         (!look.scale.ymax || kept.homeY.xmax == fresh.homeY.xmax);
}

std::size_t RunsOn(const Page& page) {
  return page.runs.size() + page.runsLeftOut;
}

}  // namespace

Preview PreviewOf(Session& copy, Results&& results, const Page& kept) {
  results.number = Results::unasked;
  KeepResults(copy, std::move(results));
  copy.page = kept;
  ShowLastResults(copy, Onto::FreshPage);
  Preview preview{copy.state.LastResults, std::move(copy.page)};
  const Look look = ReadLook(copy);
  if (!HasItsAxes(kept, preview.page, look)) return preview;
  const auto& folded = copy.state.FoldedResults;
  Page over = DrawOver(PlacePage(PlainPage(kept), preview.page.geometry), folded ? *folded : *preview.results, look);
  if (RunsOn(over) == RunsOn(PlainPage(preview.page))) return preview;
  SketchLastRun(over);
  // Limits that were chosen for the curves are chosen anew, so that the new one does not leave the frame.
  if (HasXAxis(over)) {
    const PageView view = ViewOf(over);
    over = WithView(std::move(over), view, look);
  }
  preview.page = WithComparison(std::move(over), copy.comparison, look);
  return preview;
}

}  // namespace lumivex
