#include "session/live/slides.h"

#include <algorithm>
#include <cmath>

#include "record/number_text.h"
#include "session/checks/check.h"
#include "session/inputs/dialog_use.h"
#include "session/undo.h"
#include "session/user_actions.h"

namespace lumivex {

namespace {

bool IsLogarithmic(const SlideRange& range) {
  return range.logarithmic && range.low > 0 && range.high > 0;
}

/// The input of the main window that holds the number; a temperature stands in its dialog.
const Control* InputOf(const Session& session, Slid what) {
  const Form1& form = session.form1;
  switch (what) {
    case Slid::Radius:
      return &form.txtRadius;
    case Slid::Wavelength:
      return &form.txtLambda;
    case Slid::Index:
      return &form.txtRefractReal;
    case Slid::Rays:
      return &form.cboRays;
    default:
      return nullptr;
  }
}

void SlideTemperature(Session& session, const std::string& text) {
  auto& field = session.forms.dlogTemp.txtTemp;
  if (field.Text == text) return;
  RememberInputs(session, "dlogTemp.txtTemp_Slide");
  {
    const ActionScope acting(session.undo);
    field.Text = text;
    session.events.Raise("dlogTemp.txtTemp_Change");
    RaiseQuietly(session, "mnuRI_IAPWS_Click");
  }
  OfferHistory(session);
}

/// Where the ending of a path begins; its end where there is none.
std::size_t EndingOf(std::string_view path) {
  const std::size_t folder = path.find_last_of("/\\"), dot = path.rfind('.');
  const bool none = dot == std::string_view::npos || (folder != std::string_view::npos && dot < folder);
  return none ? path.size() : dot;
}

}  // namespace

std::string SlideRange::TextAt(double place) const {
  const double share = std::clamp(place, 0.0, 1.0);
  const bool log = IsLogarithmic(*this);
  const double value = log ? low * std::pow(high / low, share) : low + share * (high - low);
  if (whole) return Shortest(std::round(value));
  // Of equal ratios a thousandth of the value itself.
  const double step = std::abs(log ? value : high - low) / 1000;
  const int decimals = step > 0 ? std::clamp(static_cast<int>(std::ceil(-std::log10(step))), 0, 9) : 0;
  return Shortest(RoundDecimals(value, decimals));
}

double SlideRange::PlaceOf(double value) const {
  const bool log = IsLogarithmic(*this) && value > 0;
  const double place = log ? std::log(value / low) / std::log(high / low) : (value - low) / (high - low);
  return std::isfinite(place) ? std::clamp(place, 0.0, 1.0) : 0;
}

std::string NameOfSlid(const Session& session, Slid what) {
  const Form1& form = session.form1;
  switch (what) {
    case Slid::Radius:
      return form.Label7.Caption;
    case Slid::Wavelength:
      return form.Label6.Caption;
    case Slid::Index:
      return "Refractive index";
    case Slid::Temperature:
      return session.forms.dlogTemp.lblTemp.Caption;
    default:
      return form.Label9.Caption;
  }
}

bool CanSlide(const Session& session, Slid what) {
  const Form1& form = session.form1;
  if (what == Slid::Temperature) return form.mnuRI_IAPWS.Checked && form.txtRefractReal.Visible;
  const Control* input = InputOf(session, what);
  return input->Visible && input->Enabled;
}

const std::string& SlidText(const Session& session, Slid what) {
  if (what == Slid::Temperature) return session.forms.dlogTemp.txtTemp.Text;
  const Control* input = InputOf(session, what);
  return what == Slid::Rays ? static_cast<const SelectionList*>(input)->Text
                            : static_cast<const TextInput*>(input)->Text;
}

SlideRange RangeToBeginWith(const Session& session, Slid what) {
  switch (what) {
    case Slid::Radius: {
      const double now = Val(SlidText(session, what));
      return now > 0 ? SlideRange{now / 2, 5 * now, true, false} : SlideRange{1, 50, true, false};
    }
    case Slid::Wavelength:
      return {0.38, 0.7, false, false};
    case Slid::Index:
      return {1.2, 1.6, false, false};
    case Slid::Temperature:
      return {0, 100, false, false};
    default:
      return {0, 10, false, true};
  }
}

Slid SlidOf(const Session& session, const Control* control) {
  for (const Slid what : allSlid)
    if (control != nullptr && InputOf(session, what) == control) return what;
  return Slid::Radius;
}

void UserSlides(Session& session, Slid what, const std::string& text) {
  if (!CanSlide(session, what)) return;
  if (what == Slid::Temperature) return SlideTemperature(session, text);
  Form1& form = session.form1;
  Control* input = form.Find(InputOf(session, what)->Name());
  UserTypes(session, *input, text);
}

std::string FilmName(std::string_view path, int number) {
  constexpr std::size_t digits = 4;
  const std::size_t ending = EndingOf(path);
  std::string count = std::to_string(number);
  count.insert(0, digits - std::min(digits, count.size()), '0');
  const std::string_view kind = ending < path.size() ? path.substr(ending) : ".png";
  return std::string(path.substr(0, ending)) + "_" + count + std::string(kind);
}

std::string FaultOfFilmName(std::string_view path) {
  const std::size_t ending = EndingOf(path);
  if (ending == path.size() || EndsWith(std::string(path), ".png")) return {};
  return "A film is a series of PNG pictures: its name ends in .png";
}

}  // namespace lumivex
