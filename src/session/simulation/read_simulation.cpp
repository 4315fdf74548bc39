#include "session/simulation/read_simulation.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/look/read_look.h"
#include "sky/arc_fit.h"

namespace lumivex {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double farthestPixel = 1e6, longestDistance = 1e9, strongest = 10;

int PlaceIn(const SelectionList& list) {
  return std::max(0, list.PlaceOf(list.Text));
}

/// A number of an input from the lowest to the highest; a bad one is told and marked, or nothing.
std::optional<double> NumberOf(Session& session, TextInput& input, double lowest, double highest, Telling telling) {
  if (telling == Telling::Aloud && !getval(session, input, std::numeric_limits<double>::max(), NumberSign::Any))
    return std::nullopt;
  const double value = Val(input.Text);
  if (IsNumber(input.Text) && value >= lowest && value <= highest) return value;
  if (telling == Telling::Aloud) {
    input.BackColour = colours::BadInput;
    session.platform.Message("Input error",
                             "Values must be in the range " + Shortest(lowest) + " - " + Shortest(highest));
  }
  return std::nullopt;
}

std::optional<Lamp> ReadLamp(Session& session, Telling telling) {
  auto& form = session.forms.form2;
  constexpr double shortest = 1e-9;
  const auto D1 = NumberOf(session, form.txtD1, shortest, longestDistance, telling);
  if (!D1) return std::nullopt;
  const auto D2 = NumberOf(session, form.txtD2, shortest, longestDistance, telling);
  return D2 ? std::optional(Lamp{*D1, *D2}) : std::nullopt;
}

bool ReadPoint(Session& session, Sight& sight, double elevation, Telling telling) {
  auto& form = session.forms.form2;
  const auto x = NumberOf(session, form.txtX1, -farthestPixel, farthestPixel, telling);
  const auto y = x ? NumberOf(session, form.txtY1, -farthestPixel, farthestPixel, telling) : std::nullopt;
  if (!y) return false;
  sight.source.antisolar = ChosenPoint(form) == PointKind::Antisolar;
  sight.source.direction = DirectionOf(sight.camera, {*x, *y});
  sight.pose.altitude = AxisAltitude(sight.source.direction, sight.source.antisolar ? -elevation : elevation);
  return true;
}

bool ReadPose(Session& session, Sight& sight, double elevation, Telling telling) {
  auto& form = session.forms.form2;
  const auto altitude = NumberOf(session, form.txtX1, -90, 90, telling);
  const auto azimuth = altitude ? NumberOf(session, form.txtY1, -360, 360, telling) : std::nullopt;
  if (!azimuth) return false;
  sight.pose = {*altitude * degree, *azimuth * degree};
  sight.source = {InCamera(DirectionAt(-elevation, std::numbers::pi), sight.pose), true};
  return true;
}

std::array<Direction, 3> MarksOf(const Session& session, const Camera& camera) {
  std::array<Direction, 3> marked;
  for (std::size_t i = 0; i < marked.size(); ++i)
    marked[i] = DirectionOf(camera, {session.state.ArcX[i], session.state.ArcY[i]});
  return marked;
}

Camera CameraOf(const Session& session) {
  const auto& s = session.state;
  return {ToWhole(2 * s.HalfWidth), ToWhole(2 * s.HalfHeight), s.ImageFocal,
          static_cast<Mapping>(PlaceIn(session.forms.form2.cboMapping))};
}

bool ReadArc(Session& session, Sight& sight, double scattering, Telling telling) {
  const auto& s = session.state;
  auto& form = session.forms.form2;
  form.lblArc.Caption.clear();
  if (s.ArcPointCount < 3) {
    if (telling == Telling::Aloud) session.platform.Message("Analyse", "Mark three points on the arc first");
    return false;
  }
  const auto arc = FitArc(MarksOf(session, sight.camera), std::numbers::pi - scattering);
  if (!arc) {
    if (telling == Telling::Aloud) session.platform.Message("Analyse", onOneLine);
    return false;
  }
  sight.source = {arc->centre, true};
  const auto shown = [](double angle) { return Format(angle / degree, "0.00") + "\u00B0"; };
  form.lblArc.Caption = "Centre " + shown(AltitudeOf(arc->centre)) + ", " + shown(AzimuthOf(arc->centre)) +
                        " off the axis\nmisses the points by " + shown(arc->residual) + "; free radius " +
                        shown(arc->freeRadius);
  return true;
}

}  // namespace

PointKind ChosenPoint(const Form2& form) {
  return static_cast<PointKind>(PlaceIn(form.cboPoint));
}

bool PaintsOver(const Form2& form) {
  return PlaceIn(form.cboComposite) == 1;
}

bool ErrorRGB(Session& session, Telling telling) {
  auto& form = session.forms.form2;
  for (TextInput* box : {&form.txtBackRed, &form.txtBackGreen, &form.txtBackBlue}) {
    const double value = Int(Val(box->Text));
    if (IsNumber(box->Text) && value >= 0 && value <= 255) {
      if (telling == Telling::Aloud) box->Text = Shortest(value);
      continue;
    }
    if (telling == Telling::Aloud) {
      box->BackColour = colours::BadInput;
      session.platform.Message("Input error", "Values must be in the range 0 - 255");
    }
    return false;
  }
  return true;
}

bool ScaleCalc(Session& session, Telling telling) {
  auto& s = session.state;
  auto& box = session.forms.form2.cboScale;
  const double f = Val(box.Text);
  constexpr double shortest = 1e-3, longest = 1e6;
  if (f > 0 && !(f >= shortest && f <= longest)) {
    if (telling == Telling::Aloud) {
      box.BackColour = colours::BadInput;
      session.platform.Message("Input error", "Values must be in the range 0.001 - 1000000");
    }
    return false;
  }
  if (!(f > 0)) {
    if (telling == Telling::Aloud) {
      box.BackColour = colours::BadInput;
      session.platform.Message("Input error", "Focal length < 0");
    }
    return false;
  }
  const FocalScale scale = FocalInPixels(f, s.HalfWidth, s.HalfHeight);
  s.ImageFocal = scale.pixels;
  s.ScaleDoubtful = scale.doubtful ? 1 : 0;
  return true;
}

bool QuadSelect(Session& session) {
  auto& s = session.state;
  const bool east = s.QuadNE != 0 || s.QuadSE != 0, west = s.QuadNW != 0 || s.QuadSW != 0;
  const bool north = s.QuadNE != 0 || s.QuadNW != 0, south = s.QuadSE != 0 || s.QuadSW != 0;
  const int width = ToWhole(2 * s.HalfWidth), height = ToWhole(2 * s.HalfHeight);
  const int middleX = static_cast<int>(std::ceil(s.HalfWidth)), middleY = static_cast<int>(std::ceil(s.HalfHeight));
  s.XFrom = west ? 0 : middleX;
  s.XTo = (east ? width : middleX) - 1;
  s.YFrom = north ? 0 : middleY;
  s.YTo = (south ? height : middleY) - 1;
  return east || west;
}

bool MarksOnOneLine(const Session& session) {
  // Any radius will do: three points that are not on one line have a circle of each.
  return session.state.ArcPointCount == 3 && !FitArc(MarksOf(session, CameraOf(session)), std::numbers::pi / 4);
}

std::optional<Sight> ReadSight(Session& session, Telling telling) {
  auto& form = session.forms.form2;
  Sight sight;
  sight.camera = CameraOf(session);
  const PointKind kind = ChosenPoint(form);
  const bool arc = kind == PointKind::Arc;
  const auto angle = NumberOf(session, form.txtSunElevation, arc ? 0 : -90, arc ? 180 : 90, telling);
  if (!angle) return std::nullopt;
  const double radians = *angle * degree;
  const bool read = arc                                  ? ReadArc(session, sight, radians, telling)
                    : kind == PointKind::AltitudeAzimuth ? ReadPose(session, sight, radians, telling)
                                                         : ReadPoint(session, sight, radians, telling);
  if (!read) return std::nullopt;
  if (form.optDivergingLight.Checked) {
    sight.source.lamp = ReadLamp(session, telling);
    if (!sight.source.lamp) return std::nullopt;
  }
  return sight;
}

std::optional<SkyPainting> ReadPainting(Session& session, Telling telling) {
  auto& form = session.forms.form2;
  auto& s = session.state;
  const auto sight = ReadSight(session, telling);
  if (!sight) return std::nullopt;
  SkyPainting painting;
  painting.sight = *sight;
  painting.light = session.simulation.light;
  s.PolarisationCode = PlaceIn(form.cboPolarisation);
  s.ViewCode = PlaceIn(form.cboView);
  painting.polarisation = static_cast<SkyPolarisation>(s.PolarisationCode);
  painting.view = static_cast<SkyView>(s.ViewCode);
  const ColourRules rules = ReadLook(session).colours.rules;
  painting.saturated = rules.saturated;
  painting.saturation = rules.saturation;
  painting.gamma = rules.gamma;
  painting.compositing = PaintsOver(form) ? Compositing::Over : Compositing::Replace;
  if (painting.compositing == Compositing::Replace) {
    if (!ErrorRGB(session, telling)) return std::nullopt;
    const auto channel = [](const TextInput& box) { return ToWhole(Int(Val(box.Text))); };
    painting.background = {channel(form.txtBackRed), channel(form.txtBackGreen), channel(form.txtBackBlue)};
  } else {
    const auto strength = NumberOf(session, form.txtStrength, 0, strongest, telling);
    if (!strength) return std::nullopt;
    painting.strength = *strength;
  }
  painting.quadrants = {s.QuadNE != 0, s.QuadNW != 0, s.QuadSE != 0, s.QuadSW != 0};
  return painting;
}

}  // namespace lumivex
