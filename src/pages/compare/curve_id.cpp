#include "pages/compare/curve_id.h"

#include "record/catalogue/graph_texts.h"

namespace lumivex {

namespace {

/// Whether a curve is in its run what the identity names.
bool HasPlace(const PageCurve& curve, const CurveId& id) {
  return curve.data == 0 && static_cast<int>(curve.panel) == id.panel && curve.kind == id.kind &&
         curve.alone == id.alone && curve.name == id.name;
}

bool IsOfLastRun(const Page& page, const PageCurve& curve) {
  return curve.data == 0 && curve.run + 1 == page.runs.size() && page.panels[curve.panel].below == BelowGraph::Nothing;
}

}  // namespace

CurveId IdOf(const Page& page, const PageCurve& curve) {
  CurveId id;
  id.data = curve.data;
  if (curve.data != 0) return id;
  id.run = curve.run < page.runs.size() ? page.runs[curve.run].number : 0;
  id.panel = static_cast<int>(curve.panel);
  id.kind = curve.kind;
  id.alone = curve.alone;
  id.name = curve.name;
  return id;
}

const PageCurve* FindCurve(const Page& page, const CurveId& id) {
  for (const PageCurve& curve : page.curves)
    if (page.panels[curve.panel].below == BelowGraph::Nothing && IdOf(page, curve) == id) return &curve;
  return nullptr;
}

const PageCurve* StandIn(const Page& page, const CurveId& id) {
  if (const PageCurve* found = FindCurve(page, id)) return found;
  for (const PageCurve& curve : page.curves)
    if (IsOfLastRun(page, curve) && HasPlace(curve, id)) return &curve;
  return nullptr;
}

const PageCurve* ReferenceOf(const Page& page, const MeasuredData& data) {
  if (const PageCurve* found = StandIn(page, data.against)) return found;
  // Detectors mostly see both polarisations.
  const bool angles = page.kind.graph.AgainstAngle() && !page.kind.IsMatrix();
  const auto rank = [&](const PageCurve& curve) {
    constexpr int unpolarised = 3;
    return angles && curve.kind == unpolarised ? 0 : curve.kind;
  };
  const PageCurve* best = nullptr;
  for (const PageCurve& curve : page.curves)
    if (IsOfLastRun(page, curve) && curve.panel == 0 && (best == nullptr || rank(curve) < rank(*best))) best = &curve;
  return best;
}

std::string AxisTitleOf(const PageKind& kind) {
  return kind.xTitle.empty() ? std::string(XTitleOf(kind.graph, {kind.fourier, kind.invWavelength})) : kind.xTitle;
}

}  // namespace lumivex
