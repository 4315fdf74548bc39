#include "session/driver/settle_beam.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "record/number_text.h"
#include "runs/beam_methods.h"
#include "runs/curves.h"
#include "runs/families.h"
#include "runs/settings.h"
#include "session/driver/read_run.h"
#include "session/inputs/beams/beam_menus.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/methods/debye_label.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979;

const std::string micrometres = " \u00B5m";
const std::string answers = "\nClick on OK to use values shown above\nClick on Cancel to stop calculation";

std::string Rounded(double um) {
  constexpr int decimals = 4;
  return Str(RoundDecimals(um, decimals));
}

/// Of a beam narrower than five thirds of its wavelength the localised approximation is too rough.
std::string ConfinementWarning(const BeamNumbers& numbers, double wavelength) {
  constexpr double widest = 0.1;
  if (!(numbers.s > widest)) return "";
  return "Recommended values of beam\nhalf-width w0 >" + Rounded(5 * wavelength / pi) + " -" +
         Rounded(7.5 * wavelength / pi) + micrometres + answers;
}

/// The sphere must lie within the length over which the beam spreads.
std::string SpreadingWarning(const Illumination& light, double wavelength, double radius) {
  const double reach = pi / wavelength * light.w0 * light.w0;
  if (light.z0 + reach >= radius && -radius >= light.z0 - reach) return "";
  return "Set w0 >" + Rounded(std::sqrt(wavelength * radius / pi)) + micrometres +
         (light.z0 != 0 ? " and/or set z0 = 0" : "") + " to increase the spreading length of the Gaussian beam" +
         answers;
}

/// What a run with the inputs as they stand would be.
std::optional<RunRequest> RequestNow(Session& session) {
  auto request = ReadRun(session);
  if (!request || request->method.beam.Plane() || !TraitsOf(request->method.method).series) return std::nullopt;
  return request;
}

/// A sphere of a run in the light that meets it.
struct Lit {
  double radius = 0, wavelength = 0;  ///< um; of the light in the medium
  SphereAsked asked;
};

void AddLit(const RunRequest& request, const Setting& setting, std::vector<Lit>& spheres) {
  double radius = setting.radius;
  if (request.Cloud())
    for (const double sample : SamplesAt(request, radius).radius) radius = std::max(radius, sample);
  const double medium = setting.indices.MediumInUse();
  Lit lit{radius, setting.lambda / medium, {}};
  lit.asked.x = SizeParameterOf(radius, medium, setting.lambda);
  lit.asked.mRe = setting.mRe;
  lit.asked.mIm = setting.mIm;
  lit.asked.radius = radius;
  spheres.push_back(lit);
}

/// The spheres at both ends of what a run sweeps: between them beams are neither narrower for their wavelength nor for
/// their sphere.
std::vector<Lit> EndsOf(const RunRequest& request) {
  std::vector<Lit> spheres;
  const auto addAt = [&](double lambda) {
    if (const SettingResult at = SettingAt(request, lambda); at.Good()) AddLit(request, at.setting, spheres);
  };
  if (const AxisRun* axis = AxisOf(request.run)) {
    const SettingResult base = SettingAt(request, request.light.lambda);
    for (const double end : {axis->xmin, axis->xmax})
      if (const SettingResult at = SettingAtPoint(request, request.graph.axis, end, base.setting); at.Good())
        AddLit(request, at.setting, spheres);
  } else if (request.light.spectrum) {
    const auto& wavelengths = request.light.spectrum->wavelength;
    addAt(wavelengths[1]);
    addAt(wavelengths[static_cast<std::size_t>(request.Wavelengths())]);
  } else {
    addAt(request.light.lambda);
  }
  return spheres;
}

/// What no run of the request can be made of: told before anybody is asked for a better beam or for time.
bool IsBeyond(Session& session, const RunRequest& request) {
  for (const Lit& lit : EndsOf(request)) {
    const Refusal beyond = BeyondBeam(request.method, lit.asked);
    if (beyond.text.empty()) continue;
    session.platform.Message(beyond.title, beyond.text);
    return true;
  }
  return false;
}

/// A beam that passes so far from all spheres that nothing of it meets them leaves nothing to draw.
bool PassesBy(const RunRequest& request) {
  const Illumination& light = request.method.beam;
  if (light.central) return false;
  // The field of a Gaussian falls to 1e-30 of that in its middle.
  constexpr double widths = 8.3;
  return std::ranges::all_of(EndsOf(request), [&](const Lit& lit) {
    const double spread = light.z0 * lit.wavelength / (pi * light.w0 * light.w0);
    const double width = light.w0 * std::hypot(1.0, spread);
    return std::hypot(light.x0, light.y0) - lit.radius > widths * width;
  });
}

std::string WarningOf(const RunRequest& request, bool ofConfinement) {
  std::string warning;
  double worst = 0;
  for (const Lit& lit : EndsOf(request)) {
    const double narrow = ofConfinement ? lit.wavelength : lit.wavelength * lit.radius;
    const std::string of =
        ofConfinement ? ConfinementWarning(NumbersOfBeam(request.method.beam, lit.asked.x, lit.radius), lit.wavelength)
                      : SpreadingWarning(request.method.beam, lit.wavelength, lit.radius);
    if (of.empty() || narrow <= worst) continue;
    worst = narrow;
    warning = of;
  }
  return warning;
}

void WriteLimits(DlogMmax& dialog, const BeamNumbers& numbers) {
  dialog.txtMmax.Text = std::to_string(numbers.limits.Mmax);
  dialog.txtLmax.Text = std::to_string(numbers.limits.Lmax);
  dialog.txtMmax1.Text = std::to_string(StartOfLogarithms(numbers.limits));
  dialog.txtJmax1.Text = "1000";
}

}  // namespace

bool SettleBeam(Session& session) {
  const std::string caption = session.form1.mnuTopHat.Checked ? "Top hat beam" : "Gaussian beam";
  const bool alone = session.state.BatchActive != 0;
  for (const bool ofConfinement : {true, false}) {
    const auto request = RequestNow(session);
    if (!request) return true;
    if (IsBeyond(session, *request)) return false;
    const std::string warning = WarningOf(*request, ofConfinement);
    if (warning.empty() || alone) continue;
    if (!AskBeam(session, caption, warning)) return false;
    DebyeLabel(session);
  }
  const auto request = RequestNow(session);
  const auto numbers = request ? NumbersOf(*request) : std::nullopt;
  if (!numbers) return true;
  if (IsBeyond(session, *request)) return false;
  if (PassesBy(*request)) {
    session.platform.Message(caption,
                             "The beam does not reach the sphere: bring it nearer to the axis, or make it wider");
    return false;
  }
  auto& dialog = session.forms.dlogMmax;
  WriteLimits(dialog, *numbers);
  return !session.form1.mnuHidden.Checked || alone || AskIn(session, dialog);
}

}  // namespace lumivex
