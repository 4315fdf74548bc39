#include "session/driver/array_size.h"

#include <algorithm>
#include <cmath>

#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr int spareRows = 100;  // averaging and interpolation look past the last row
constexpr int impulseRows = 18001;
constexpr int sunRows = 25;

void SizeCurves(ResultArrays& r, int rows) {
  const auto size = static_cast<std::size_t>(rows) + 1;
  for (auto* curve : {&r.XValues, &r.Iperp, &r.Ipar, &r.Iunpol, &r.Extra1, &r.Extra2, &r.Extra3}) curve->resize(size);
}

void SizeForAngles(Session& session) {
  auto& s = session.state;
  const double step = s.Xstep;
  const double rows = 180 / step + 1;
  if (!(step > 0) || !(rows <= mostAngleRows)) return;
  s.AngleRows = rows;
  // The neighbouring rows that interpolation and the solar disc need beyond the displayed ones.
  const double margin = Int(0.25 / step);
  s.AngleLow = std::max(1, ToWhole(s.Xmin / step + 1 - margin));
  s.AngleHigh = ToWhole(std::min(s.Xmax / step + 1 + margin, s.AngleRows));
  s.MirrorCount = 2 * s.NANG - 1 - s.AngleLow;
  SizeCurves(s, ToWhole(s.AngleRows) + spareRows);
}

}  // namespace

void Array_Size(Session& session) {
  auto& s = session.state;
  const Graph& graph = ChosenGraph(s);
  if (graph.OfAngles() || graph.AgainstAxis()) {
    const auto& form = session.form1;
    s.Xmin = Val(form.txtXmin.Text);
    s.Xmax = Val(form.txtXmax.Text);
    s.Xstep = Val(form.cboStep.Text);
    if (graph.OfAngles()) SizeForAngles(session);
  } else if (graph.family == Family::Impulse) {
    SizeCurves(s, impulseRows);
    s.S1.Resize(impulseRows);
    s.S2.Resize(impulseRows);
    s.SunDiscWeight.resize(sunRows + 1);
  }
}

}  // namespace lumivex
