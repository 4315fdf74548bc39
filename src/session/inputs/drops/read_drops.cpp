#include "session/inputs/drops/read_drops.h"

#include <algorithm>
#include <array>
#include <numbers>

#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double lastPole = 25;

}  // namespace

DropOptions ReadDrop(const Session& session) {
  const auto& d = session.forms.dlogNonSpherical;
  DropOptions drop;
  drop.form = d.optBurgeroid.Checked ? DropForm::Burgeroid : DropForm::Spheroid;
  if (d.optSpheroid.Checked && d.optRatioTyped.Checked) drop.axisRatio = Val(d.txtAxisRatio.Text);
  drop.elevation = Val(d.txtElevation.Text) * degree;
  if (!d.chkAllRound.Checked) {
    drop.clock = Val(d.txtClock.Text) * degree;
    drop.clockHalfWidth = Val(d.txtClockWidth.Text) * degree;
  }
  drop.rays = Val(d.cboRayCount.Text);
  drop.sky = d.chkSky.Checked;
  return drop;
}

std::vector<int> RaysOfDrop(const Session& session) {
  const auto& d = session.forms.dlogNonSpherical;
  std::vector<int> rays;
  for (const CheckBox* box : {&d.chkP0, &d.chkP1, &d.chkP2, &d.chkP3, &d.chkP4}) rays.push_back(box->Checked ? 1 : 0);
  while (!rays.empty() && rays.back() == 0) rays.pop_back();
  return rays;
}

DewOptions ReadDew(const Session& session) {
  const auto& d = session.forms.dlogHeiligenschein;
  return {Val(d.txtDistance.Text), Val(d.txtSlope.Text) * degree};
}

SurfaceWaveOptions ReadSurfaceWaves(const Session& session) {
  const auto& form = session.form1;
  const auto pole = [](const SelectionList& list) { return ToWhole(std::clamp(Val(list.Text), 1.0, lastPole)); };
  SurfaceWaveOptions waves;
  if (form.mnuSWShort.Checked) waves.path = SurfacePath::Short;
  if (form.mnuSWLong.Checked) waves.path = SurfacePath::Long;
  waves.firstPole = pole(form.cboQmin);
  waves.lastPole = pole(form.cboQmax);
  waves.amplitude = Val(form.txtSWAmp.Text);
  return waves;
}

}  // namespace lumivex
