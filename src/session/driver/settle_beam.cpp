#include "session/driver/settle_beam.h"

#include <cmath>
#include <optional>
#include <string>

#include "record/number_text.h"
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

std::string WarningOf(const RunRequest& request, bool ofConfinement) {
  const SettingResult at = SettingAt(request, request.light.lambda);
  const auto numbers = NumbersOf(request);
  if (!at.Good() || !numbers) return "";
  const double wavelength = at.setting.lambda / at.setting.indices.MediumInUse();
  return ofConfinement ? ConfinementWarning(*numbers, wavelength)
                       : SpreadingWarning(request.method.beam, wavelength, at.setting.radius);
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
    const std::string warning = WarningOf(*request, ofConfinement);
    if (warning.empty() || alone) continue;
    if (!AskBeam(session, caption, warning)) return false;
    DebyeLabel(session);
  }
  const auto request = RequestNow(session);
  const auto numbers = request ? NumbersOf(*request) : std::nullopt;
  if (!numbers) return true;
  auto& dialog = session.forms.dlogMmax;
  WriteLimits(dialog, *numbers);
  return !session.form1.mnuHidden.Checked || alone || AskIn(session, dialog);
}

}  // namespace lumivex
