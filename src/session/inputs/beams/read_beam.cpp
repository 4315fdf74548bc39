#include "session/inputs/beams/read_beam.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "record/number_text.h"
#include "runs/beam_methods.h"
#include "runs/settings.h"
#include "session/inputs/methods/sphere_size.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

constexpr int startJmax = 1000, mostJ = 32767;
constexpr double startError = 1e-20;

int TypedCount(const TextInput& field, int least, int most) {
  return ToWhole(std::clamp(Val(field.Text), double(least), double(most)));
}

}  // namespace

bool InBeam(const Form1& form) {
  return !form.mnuPlaneWave.Checked;
}

Illumination ReadBeam(const Session& session) {
  const auto& form = session.form1;
  const auto& dialog = session.forms.dlogGaussianBeam;
  Illumination light;
  if (!InBeam(form) || !TraitsOf(session.state.CalcMethod).beams) return light;
  light.kind = form.mnuTopHat.Checked ? Illumination::Kind::TopHat : Illumination::Kind::Gaussian;
  light.x0 = Val(dialog.txtBeamXF.Text);
  light.y0 = Val(dialog.txtBeamYF.Text);
  light.z0 = Val(dialog.txtBeamZF.Text);
  light.w0 = Val(dialog.txtBeamWo.Text);
  light.oneBeam = dialog.chkLock.Checked;
  light.phi = (dialog.chkLock.Checked ? Val(dialog.txtPhi.Text) : 90.0) * std::numbers::pi / 180;
  light.pair = form.mnuMultBeams.Checked;
  light.central = form.mnuCentralBeam.Checked;
  return light;
}

AngleRows RowsOfBeam(double xmin, double xmax, double step) {
  constexpr double nearly = 1e-6;  // of a row
  AngleRows rows;
  rows.xmin = xmin;
  rows.xmax = xmax;
  rows.step = step;
  const int count = ToWhole(Int((xmax - xmin) / step + nearly)) + 1;
  rows.origin = xmin;
  rows.NANG = count / 2 + 1;
  rows.firstPoint = 1;
  rows.lastPoint = (xmax - xmin) / step + 1;
  rows.window = {1, count};
  return rows;
}

void TakeTypedLimits(const Session& session, RunRequest& request) {
  const auto& form = session.form1;
  Illumination& light = request.method.beam;
  if (light.Plane() || !TraitsOf(request.method.method).series || !form.mnuHidden.Checked) return;
  const auto numbers = NumbersOf(request);
  if (!numbers) return;
  const auto& dialog = session.forms.dlogMmax;
  const int Lmax = TypedCount(dialog.txtLmax, 1, MaxSeriesTerms);
  const BeamLimits typed{Lmax, TypedCount(dialog.txtMmax, 1, Lmax)};
  // Of many spheres each has its own Lmax, unless just that was typed.
  const BeamLimits changed{typed.Lmax != numbers->limits.Lmax ? typed.Lmax : 0,
                           typed.Mmax != numbers->limits.Mmax ? typed.Mmax : 0};
  if (changed != BeamLimits{0, 0}) light.limits = changed;
  const int Mmax1 = TypedCount(dialog.txtMmax1, 0, MaxSeriesTerms);
  light.rule = {TypedCount(dialog.txtJmax1, 0, mostJ), std::max(Val(dialog.txtError.Text), 0.0), true,
                typed.Mmax >= Mmax1};
  light.rule.closed =
      light.rule.Jmax == startJmax && light.rule.error == startError && Mmax1 == StartOfLogarithms(numbers->limits);
  if (light.rule.closed) light.rule.logarithms = true;
}

std::optional<BeamNumbers> NumbersOf(const RunRequest& request) {
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return std::nullopt;
  Illumination light = request.method.beam;
  light.limits.reset();
  return NumbersOfBeam(light, at.setting.x, at.setting.radius);
}

int StartOfLogarithms(const BeamLimits& limits) {
  return ToWhole(limits.Mmax / 2.0);
}

BeamLimits LimitsNow(const Session& session) {
  constexpr double least = 1e-9;
  const double radius = std::max(RadiusInUse(session), least);
  const double lambda = std::max(Val(session.form1.txtLambda.Text), least);
  Illumination light = ReadBeam(session);
  if (light.Plane() || !(light.w0 > 0)) return {};
  return NumbersOfBeam(light, SizeParameterOf(radius, MediumIndexInUse(session), lambda), radius).limits;
}

}  // namespace lumivex
