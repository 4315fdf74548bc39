#include "session/simulation/simulation_page.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "pages/build_page.h"
#include "record/number_text.h"
#include "record/recording_surface.h"
#include "session/simulation/read_simulation.h"
#include "sky/landscape.h"

namespace lumivex {

namespace {

// The picture of the start: seen by a lens of 28 mm with the sun 15 degrees high, a rainbow stands in the middle of it.
constexpr int landscapeWidth = 1800, landscapeHeight = 1200;
constexpr double landscapeHorizon = 749.4;
/// Where a point begins, as shares of the picture: there the sun's elevation of 15 degrees puts the horizon on that of
/// the landscape.
constexpr double pointAcross = 0.5, antisolarDown = 0.95, sunDown = 0.317;

/// A window of no window system (surface units).
constexpr double blindWidth = 18000, blindHeight = 12000;

constexpr double smallestStep = 0.1;

const Colour circleColour = RGB(255, 255, 255), gridColour = RGB(150, 230, 255);

/// Degrees between lines, where the box has a usable number.
double StepOf(const SelectionList& box) {
  const double step = Val(box.Text);
  return IsNumber(box.Text) && step >= smallestStep && step <= 90 ? step : 0;
}

void AddLines(const Session& session, PagePhotograph& photograph) {
  const auto& s = session.state;
  const auto& form = session.forms.form2;
  const double grid = StepOf(form.cboGrid), rings = StepOf(form.cboRStep);
  if (s.GridShown != 0 && grid > 0)
    photograph.lines.push_back({SkyGrid(photograph.sight.camera, photograph.sight.pose, grid), gridColour});
  if (s.CirclesShown != 0 && rings > 0)
    photograph.lines.push_back(
        {CirclesAbout(photograph.sight.camera, photograph.sight.source.direction, rings), circleColour});
}

void AddMarks(const Session& session, PagePhotograph& photograph) {
  const auto& s = session.state;
  const bool arc = ChosenPoint(session.forms.form2) == PointKind::Arc;
  if (arc)
    for (int i = 0; i < s.ArcPointCount; ++i)
      photograph.marks.push_back({s.ArcX[static_cast<std::size_t>(i)], s.ArcY[static_cast<std::size_t>(i)]});
  if (arc && s.ArcPointCount < 3) return;
  if (const auto point = PointOf(photograph.sight.camera, photograph.sight.source.direction))
    photograph.marks.push_back(*point);
}

std::shared_ptr<const SkyPainter> PreviewOf(Session& session) {
  auto& form = session.forms.form2;
  if (!form.chkPreview.Checked || !session.simulation.light) return nullptr;
  const auto painting = ReadPainting(session, Telling::Quiet);
  if (!painting || !painting->quadrants.Any()) return nullptr;
  return std::make_shared<SkyPainter>(*painting);
}

void MeasurePicture(Session& session) {
  auto& s = session.state;
  s.HalfWidth = 0.5 * session.simulation.photograph->width;
  s.HalfHeight = 0.5 * session.simulation.photograph->height;
  s.ArcPointCount = 0;
  s.ImageFocal = 0;
  ScaleCalc(session, Telling::Quiet);
  // A focal length of before that was none leaves the camera one that can be computed with.
  if (!(s.ImageFocal > 0)) s.ImageFocal = std::max(s.HalfWidth, s.HalfHeight);
  QuadSelect(session);
}

void HoldPhotograph(Session& session, Bitmap picture, const std::string& name) {
  auto& simulation = session.simulation;
  simulation.photograph = simulation.picture = std::make_shared<const Bitmap>(std::move(picture));
  simulation.notes.clear();
  simulation.name = name;
  MeasurePicture(session);
}

void ShowLabels(Session& session) {
  auto& form = session.forms.form2;
  const PointKind kind = ChosenPoint(form);
  const bool pose = kind == PointKind::AltitudeAzimuth, arc = kind == PointKind::Arc;
  form.lblX1.Caption = pose ? "Altitude" : "X";
  form.lblY1.Caption = pose ? "Azimuth" : "Y";
  form.lblX1.Visible = form.lblY1.Visible = form.txtX1.Visible = form.txtY1.Visible = !arc;
  form.lblArc.Visible = arc;
  form.lblSunElevation.Caption = arc ? "Scattering angle" : "Elevation of sun";
  form.lblD1.Visible = form.txtD1.Visible = form.lblD2.Visible = form.txtD2.Visible = form.optDivergingLight.Checked;
  const bool over = PaintsOver(form);
  form.lblStrength.Visible = form.txtStrength.Visible = over;
  form.lblBackground.Visible = form.txtBackRed.Visible = form.txtBackGreen.Visible = form.txtBackBlue.Visible = !over;
  const auto& s = session.state;
  const auto caption = [](const char* name, int on) { return std::string(name) + (on != 0 ? " ON" : " OFF"); };
  form.cmdQuadNE.Caption = caption("NE", s.QuadNE);
  form.cmdQuadNW.Caption = caption("NW", s.QuadNW);
  form.cmdQuadSE.Caption = caption("SE", s.QuadSE);
  form.cmdQuadSW.Caption = caption("SW", s.QuadSW);
  form.cmdCircle.Caption = s.CirclesShown != 0 ? "Circles OFF" : "Circles ON";
  const auto& name = session.simulation.name;
  form.Caption = name.empty() ? "Simulation" : "Simulation: " + name;
}

}  // namespace

Window& SimulationWindow(Session& session) {
  for (Window& window : session.windows)
    if (window.form == &session.forms.form2) return window;
  session.simulationSurface = std::make_unique<RecordingSurface>(blindWidth, blindHeight);
  session.windows.push_back({&session.forms.form2, session.simulationSurface.get()});
  // The inputs stand for this picture, or are what was set before anybody looked.
  HoldPhotograph(session, DefaultLandscape(landscapeWidth, landscapeHeight, landscapeHorizon), "");
  ShowSimulation(session);
  return session.windows.back();
}

void TakeDefaultLandscape(Session& session) {
  TakePhotograph(session, DefaultLandscape(landscapeWidth, landscapeHeight, landscapeHorizon), "");
}

void TakePhotograph(Session& session, Bitmap picture, const std::string& name) {
  HoldPhotograph(session, std::move(picture), name);
  HideCircles(session);
  if (ChosenPoint(session.forms.form2) != PointKind::AltitudeAzimuth) PlacePoint(session);
  if (auto& page = SimulationWindow(session).page; page.photograph) page.photograph->zoom = 1;
}

void PlacePoint(Session& session) {
  auto& form = session.forms.form2;
  auto& s = session.state;
  const PointKind kind = ChosenPoint(form);
  const auto share = [](double half, double part) { return Shortest(std::round(2 * half * part)); };
  s.ArcPointCount = 0;
  form.lblArc.Caption.clear();
  if (kind == PointKind::AltitudeAzimuth) {
    form.txtX1.Text = "26";
    form.txtY1.Text = "162";
  } else {
    form.txtX1.Text = share(s.HalfWidth, pointAcross);
    form.txtY1.Text = share(s.HalfHeight, kind == PointKind::Sun ? sunDown : antisolarDown);
  }
  form.txtSunElevation.Text = kind == PointKind::Arc ? "139" : "15";
  for (TextInput* box : {&form.txtX1, &form.txtY1, &form.txtSunElevation}) box->BackColour = colours::White;
}

void HideCircles(Session& session) {
  session.state.CirclesShown = 0;
  session.forms.form2.cmdCircle.Caption = "Circles ON";
}

void ShowSimulation(Session& session) {
  Window& window = SimulationWindow(session);
  auto& simulation = session.simulation;
  ShowLabels(session);
  session.state.PointShown = static_cast<int>(ChosenPoint(session.forms.form2));
  PagePhotograph photograph = window.page.photograph.value_or(PagePhotograph{});
  photograph.picture = simulation.picture;
  photograph.photograph = simulation.photograph;
  photograph.lines.clear();
  photograph.marks.clear();
  photograph.lightWords = simulation.lightWords;
  ScaleCalc(session, Telling::Quiet);
  QuadSelect(session);
  // Inputs in the middle of being typed leave the picture as it was last understood.
  if (const auto sight = ReadSight(session, Telling::Quiet))
    photograph.sight = *sight;
  else
    photograph.sight.camera = {simulation.picture->width, simulation.picture->height, session.state.ImageFocal,
                               photograph.sight.camera.mapping};
  AddLines(session, photograph);
  AddMarks(session, photograph);
  photograph.preview = PreviewOf(session);
  window.page.photograph = std::move(photograph);
  DrawSimulation(session);
}

void DrawSimulation(Session& session) {
  Window& window = SimulationWindow(session);
  window.page.geometry.surfaceWidth = window.surface->ScaleWidth();
  window.page.geometry.surfaceHeight = window.surface->ScaleHeight();
  if (window.page.photograph) Paint(window.page, *window.surface);
}

}  // namespace lumivex
