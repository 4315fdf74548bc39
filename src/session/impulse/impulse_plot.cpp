#include "session/impulse/impulse_plot.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>

#include "pages/build_page.h"
#include "record/number_text.h"
#include "record/recording_surface.h"
#include "runs/curves.h"
#include "runs/pulse_band.h"
#include "runs/run.h"
#include "session/checks/number_input.h"
#include "session/driver/overplot.h"
#include "session/inputs/look/read_look.h"

namespace lumivex {

namespace {

/// A window of no window system (surface units).
constexpr double blindWidth = 15000, blindHeight = 9000;
constexpr const char* noPicture = "The response at one angle needs a graph of an impulse response";
constexpr int secondKind = 2, thirdKind = 3;

bool IsPicture(const Results& results) {
  return results.asked.graph.family == Family::Impulse;
}

/// The request of the picture for one of its angles.
RunRequest AtAngle(const RunRequest& picture, double angle) {
  const auto& map = std::get<AngleMapRun>(picture.run);
  RunRequest request = picture;
  request.graph = {{19, 2},         Family::PulseAnswer, AxisVariable::PulseTime, Quantity::Intensity,
                   Drawing::Curves, MethodsTaken::Any};
  request.run = WholeWindow(picture, *map.pulse, angle * std::numbers::pi / 180);
  request.words.scale = "Time";
  return request;
}

/// The times of the graph on show, whatever the panel says by now: of a picture its columns.
std::pair<double, double> TimesOnShow(const Session& session) {
  const RunRequest& request = session.state.LastResults->asked;
  if (const auto* map = std::get_if<AngleMapRun>(&request.run))
    return {map->columns.At(0), map->columns.At(map->columns.steps)};
  const Page& page = session.page;
  if (!page.panels.empty() && page.kind.graph.family == Family::PulseAnswer)
    return {page.panels.front().limits.xmin, page.panels.front().limits.xmax};
  const auto& axis = std::get<AxisRun>(request.run);
  return {axis.xmin, axis.xmax};
}

/// As the panel has them where they are still those of the graph: there they are round, samples are not.
void WriteTimes(Session& session) {
  constexpr int decimals = 2;
  auto& form = session.forms.impulsePlot;
  const Form1& panel = session.form1;
  const auto [low, high] = TimesOnShow(session);
  const RunRequest& request = session.state.LastResults->asked;
  const auto* map = std::get_if<AngleMapRun>(&request.run);
  const double step = map != nullptr ? map->columns.At(1) - map->columns.At(0) : StepOf(request);
  const bool same =
      std::fabs(Val(panel.txtF9_min.Text) - low) <= step && std::fabs(Val(panel.txtF9_max.Text) - high) <= step;
  form.txtXmin.Text = same ? panel.txtF9_min.Text : Shortest(RoundDecimals(low, decimals));
  form.txtXmax.Text = same ? panel.txtF9_max.Text : Shortest(RoundDecimals(high, decimals));
}

/// Whether the results of the window are those of the angle.
bool HasAngle(const Session& session, double angle) {
  const auto& held = session.impulseResults;
  if (!held || held == session.state.LastResults) return false;
  const auto& axis = std::get<AxisRun>(held->asked.run);
  return std::fabs(axis.angle * 180 / std::numbers::pi - angle) < 1e-9 &&
         session.impulseSource.lock() == session.state.LastResults;
}

/// @return whether the window has results to draw.
bool TakeAngle(Session& session) {
  const auto& last = session.state.LastResults;
  auto& form = session.forms.impulsePlot;
  if (!IsPicture(*last)) {
    session.impulseResults = last;
    return true;
  }
  const bool plane = last->asked.method.beam.Plane();
  const double angle = Val(form.cboTheta.Text);
  const bool good = IsNumber(form.cboTheta.Text) && (plane ? angle >= 0 && angle <= 180 : std::fabs(angle) <= 360);
  form.cboTheta.BackColour = good ? colours::White : colours::BadInput;
  if (!good) {
    session.platform.Message("Input error", plane ? "Scattering angles lie between 0 and 180 degrees"
                                                  : "Scattering angles lie between -360 and 360 degrees");
    return false;
  }
  if (HasAngle(session, angle)) return true;
  RunEnd end = RunBeside(session, AtAngle(last->asked, angle));
  if (!end.refusal.text.empty()) session.platform.Message(end.refusal.title, end.refusal.text);
  if (!end.hasResults) return false;
  session.impulseResults = std::make_shared<const Results>(std::move(end.results));
  session.impulseSource = last;
  return true;
}

/// What the window shows stays there when another graph has come; of another angle there is nothing to show.
bool KeepsAngle(Session& session) {
  const auto& held = session.impulseResults;
  auto& text = session.forms.impulsePlot.cboTheta.Text;
  if (!held || held->asked.graph.quantity != Quantity::Intensity) return true;
  const double angle = std::get<AxisRun>(held->asked.run).angle * 180 / std::numbers::pi;
  if (IsNumber(text) && std::fabs(Val(text) - angle) < 1e-6) return true;
  text = Significant(angle, 8);
  session.platform.Message("Option not available", noPicture);
  return false;
}

std::optional<double> LimitOf(const SelectionList& list) {
  if (SameName(Trim(list.Text), "Automatic")) return std::nullopt;
  return Val(list.Text);
}

/// What makes no axis is told.
bool LimitsHold(Session& session) {
  auto& form = session.forms.impulsePlot;
  const auto refuse = [&](Control& control, std::string_view text) {
    control.BackColour = colours::BadInput;
    session.platform.Message("Input error", text);
    return false;
  };
  for (Control* input : std::initializer_list<Control*>{&form.txtXmin, &form.txtXmax, &form.cboYmin, &form.cboYmax})
    input->BackColour = colours::White;
  for (Control* input : std::initializer_list<Control*>{&form.cboYmin, &form.cboYmax}) {
    const auto& list = *static_cast<SelectionList*>(input);
    if (LimitOf(list) && !IsNumber(list.Text)) return refuse(*input, "Value must be a number or \"Automatic\"");
  }
  if (!(Val(form.txtXmin.Text) < Val(form.txtXmax.Text)))
    return refuse(form.txtXmin, "Minimum value must be less than maximum value");
  const auto low = LimitOf(form.cboYmin), high = LimitOf(form.cboYmax);
  for (const auto& [limit, list] : {std::pair{low, &form.cboYmin}, std::pair{high, &form.cboYmax}})
    if (form.OptLog.Checked && limit && !(*limit > 0)) return refuse(*list, "Value must be positive");
  if (low && high && !(*low < *high)) return refuse(form.cboYmin, "Minimum value must be less than maximum value");
  return true;
}

Look LookOfWindow(const Session& session) {
  const auto& form = session.forms.impulsePlot;
  Look look = ReadLook(session);
  look.scale = {};
  look.scale.logY = form.OptLog.Checked;
  look.scale.x = {Val(form.txtXmin.Text), Val(form.txtXmax.Text)};
  look.scale.ymin = LimitOf(form.cboYmin);
  look.scale.ymax = LimitOf(form.cboYmax);
  look.polarisations = PolarisationsChosen(form.cboPol.Text);
  look.second = SecondPanel::None;
  look.amplitude = look.invWavelength = look.interpolate = look.special = false;
  look.averageWidth.reset();
  look.fourier.reset();
  look.sun = {};
  look.size = GraphSize::Large;
  look.logo.clear();
  look.readingsVisible = false;
  return look;
}

PageGeometry GeometryOfWindow(const DrawingSurface& surface) {
  constexpr double left = 1500, right = 500, above = 1000, below = 1800, leastSide = 1500;
  PageGeometry geometry;
  geometry.surfaceWidth = surface.ScaleWidth();
  geometry.surfaceHeight = surface.ScaleHeight();
  geometry.box = {left, std::max(left + leastSide, geometry.surfaceWidth - right), above,
                  std::max(above + leastSide, geometry.surfaceHeight - below)};
  return geometry;
}

/// Intensities fall by many decades between one order of light and the next: an axis of its own choice shows those
/// that can be light, and not the rounding below.
void FitBottom(const Results& results, Look& look) {
  constexpr double decades = 1e-8;
  if (!look.scale.logY || look.scale.ymin) return;
  const Curves curves = CurvesOf(results, {});
  double top = look.scale.ymax.value_or(0);
  for (const auto* list : {&curves.perpendicular, &curves.parallel})
    for (std::size_t i = 1; !look.scale.ymax && i < list->size() && i < curves.x.size(); ++i)
      if (curves.x[i] >= look.scale.x.xmin && curves.x[i] <= look.scale.x.xmax) top = std::max(top, (*list)[i]);
  if (top > 0) look.scale.ymin = std::pow(10, std::floor(std::log10(decades * top)));
}

void NameCurves(Page& page) {
  if (page.kind.graph.quantity != Quantity::Intensity) return;
  for (PageCurve& curve : page.curves)
    curve.keyName = curve.kind == thirdKind ? "Unpolarised" : curve.kind == secondKind ? "Parallel" : "Perpendicular";
}

void ClearReading(ImpulsePlotForm& form) {
  for (Label* label : {&form.lblTime, &form.lblIntensity1, &form.lblIntensity2}) label->Caption.clear();
}

}  // namespace

Window& ImpulseWindow(Session& session) {
  for (Window& window : session.windows)
    if (window.form == &session.forms.impulsePlot) return window;
  session.impulseSurface = std::make_unique<RecordingSurface>(blindWidth, blindHeight);
  session.windows.push_back({&session.forms.impulsePlot, session.impulseSurface.get()});
  return session.windows.back();
}

void OpenImpulsePlot(Session& session, double angle) {
  const auto& last = session.state.LastResults;
  if (!last || !last->asked.graph.OfPulse()) {
    session.platform.Message("Option not available", noPicture);
    return;
  }
  auto& form = session.forms.impulsePlot;
  const bool picture = IsPicture(*last);
  form.cboTheta.Enabled = picture;
  if (picture) form.cboTheta.Text = Significant(angle, 8);
  WriteTimes(session);
  if (!picture) form.cboPol.Text = "All 3";
  if (!TakeAngle(session)) return;
  ImpulseWindow(session);
  session.platform.Show(form);
  IPgraph(session);
}

void IPgraph(Session& session) {
  auto& form = session.forms.impulsePlot;
  Window& window = ImpulseWindow(session);
  if (!session.impulseResults || !LimitsHold(session)) return;
  Look look = LookOfWindow(session);
  FitBottom(*session.impulseResults, look);
  window.page = BuildPage(*session.impulseResults, look, GeometryOfWindow(*window.surface), window.page.scale);
  NameCurves(window.page);
  window.page.style.legends = true;
  const bool ofAngle = session.impulseResults->asked.graph.quantity == Quantity::Intensity;
  form.Caption = ofAngle ? "Impulse response at " + form.cboTheta.Text + "\u00B0" : "Impulse response";
  ClearReading(form);
  form.cmdReplot.Enabled = false;
  DrawImpulsePlot(session);
}

ImpulseCurveRows ImpulseCurve(const Page& page, int kind) {
  for (const PageCurve& curve : page.curves)
    if (curve.kind == kind) return {&curve.x.All(), &curve.y.All()};
  return {};
}

void InversePlot(Session& session, double x, double) {
  const Window& window = ImpulseWindow(session);
  auto& form = session.forms.impulsePlot;
  if (window.page.panels.empty() || !session.impulseResults) return;
  const PagePanel& panel = window.page.panels.front();
  if (x < panel.box.left || x > panel.box.right) return;
  const AxisLimits& limits = panel.limits;
  const double time =
      limits.xmin + (x - panel.box.left) * (limits.xmax - limits.xmin) / (panel.box.right - panel.box.left);
  const Curves curves = CurvesOf(*session.impulseResults, {});
  if (curves.x.size() < 2) return;
  const double step = StepOf(session.impulseResults->asked);
  const auto last = static_cast<double>(curves.x.size() - 1);
  const auto row = static_cast<std::size_t>(std::clamp(std::round((time - curves.x[1]) / step) + 1, 1.0, last));
  constexpr int digits = 6;
  ClearReading(form);
  form.lblTime.Caption = "Time = " + Significant(time, digits) + " fs";
  // Before the first sample and after the last there is nothing.
  if (!(std::fabs(curves.x[row] - time) <= step)) return;
  form.lblIntensity1.Caption = "Intensity 1 = " + Format(curves.perpendicular[row], "Scientific");
  form.lblIntensity2.Caption = "Intensity 2 = " + Format(curves.parallel[row], "Scientific");
}

void DrawImpulsePlot(Session& session) {
  Window& window = ImpulseWindow(session);
  window.page = PlacePage(std::move(window.page), GeometryOfWindow(*window.surface));
  Paint(window.page, *window.surface);
}

void ImpulsePlot_Change(Session& session) {
  auto& form = session.forms.impulsePlot;
  for (Control* input :
       std::initializer_list<Control*>{&form.cboTheta, &form.txtXmin, &form.txtXmax, &form.cboYmin, &form.cboYmax})
    input->BackColour = colours::White;
  form.cmdReplot.Enabled = true;
}

void ImpulsePlot_cmdReplot_Click(Session& session) {
  const auto& last = session.state.LastResults;
  if (last && last->asked.graph.OfPulse()) {
    if (!TakeAngle(session)) return;
  } else if (!KeepsAngle(session)) {
    return;
  }
  IPgraph(session);
}

void ImpulsePlot_cmdClose_Click(Session& session) {
  session.forms.impulsePlot.Visible = false;
}

void ImpulsePlot_mnuPicture_Click(Session& session) {
  const auto path = session.platform.SaveFileName({"Save picture", "Pictures (*.png *.svg *.pdf)", "impulse.png"});
  if (!path || path->empty()) return;
  const std::string failure = session.platform.SaveDrawing(ImpulseWindow(session).page, *path);
  if (!failure.empty()) session.platform.Message("Error", failure);
}

void OfferImpulsePlot(Session& session) {
  auto& form = session.forms.impulsePlot;
  const auto& last = session.state.LastResults;
  const bool another =
      last && last->asked.graph.OfPulse() && session.impulseSource.lock() != last && session.impulseResults != last;
  if (form.Visible && another) form.cmdReplot.Enabled = true;
}

}  // namespace lumivex
