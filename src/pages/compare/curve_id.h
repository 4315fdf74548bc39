#pragma once

#include <string>

#include "record/comparison.h"

namespace lumivex {

/// The curve of a page by which looks, pairs, data and marks know it.
CurveId IdOf(const Page& page, const PageCurve& curve);

/// The curve of that identity; null where the page does not have it.
const PageCurve* FindCurve(const Page& page, const CurveId& id);

/// That curve or, once its run has left the page, the one in its place in the last run; null where there is neither.
const PageCurve* StandIn(const Page& page, const CurveId& id);

/// What measured data are held against: the curve that they name or its stand-in, otherwise of the last run the
/// unpolarised curve, or the first one.
const PageCurve* ReferenceOf(const Page& page, const MeasuredData& data);

/// Title of the horizontal axis, which tells whether measured data belong to it.
std::string AxisTitleOf(const PageKind& kind);

}  // namespace lumivex
