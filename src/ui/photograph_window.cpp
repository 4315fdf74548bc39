#include "ui/photograph_window.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "pages/photograph/photograph_page.h"
#include "record/layout/simulation_layout.h"
#include "record/number_text.h"
#include "session/simulation/simulation_events.h"
#include "session/simulation/simulation_page.h"
#include "session/user_actions.h"
#include "ui/look.h"

namespace lumivex {

namespace {

constexpr QSize startSize{1240, 860};
constexpr int sliderSteps = 400;
constexpr double wheelFactor = 1.25;
constexpr double unitsPerPixel = 15;
/// Ends of the sliders.
constexpr double shortestFocal = 8, longestFocal = 400, mostStrength = 3;

}  // namespace

PhotographWindow::PhotographWindow(CommandGate& gate, Session& session, QWidget* parent)
    : SideWindow(gate, session,
                 {session.forms.form2, simulationFrames, simulationMenu, session.forms.form2.cmdExit2,
                  session.forms.form2.cmdSimPlot, "Photograph", startSize},
                 parent),
      form_(session.forms.form2),
      undoKeys_([this](bool redo) {
        auto& main = session_.form1;
        Act([&] { UserClicks(session_, redo ? main.mnuRedo : main.mnuUndo); });
      }) {
  const double octaves = std::log(longestFocal / shortestFocal);
  AddSlider(
      form_.cboScale, [octaves](double place) { return RoundDecimals(shortestFocal * std::exp(octaves * place), 1); },
      [octaves](double value) { return value > 0 ? std::log(value / shortestFocal) / octaves : 0; });
  AddSlider(
      form_.txtStrength, [](double place) { return RoundDecimals(mostStrength * place, 2); },
      [](double value) { return value / mostStrength; });
  undoKeys_.Watch(*panel_);
  follow_.setSingleShot(true);
  connect(&follow_, &QTimer::timeout, this, [this] { Follow(); });
  ConnectMouse();
  FitPanel();
}

void PhotographWindow::ConnectMouse() {
  canvas_->mouse.press = [this](double x, double y) { Act([this, x, y] { picture1_mousedown(session_, x, y); }); };
  canvas_->mouse.move = [this](double x, double y) { Act([this, x, y] { picture1_mousemove(session_, x, y); }); };
  // Of many places between two pictures only the last counts.
  canvas_->mouse.drag = [this](double x, double y) {
    draggedTo_ = SurfacePoint{x, y};
    if (!follow_.isActive()) follow_.start(0);
  };
  canvas_->mouse.release = [this](double, double) { Follow(); };
  canvas_->key = [this](const QKeyEvent& event) { return Nudge(event); };
  canvas_->mouse.leave = [this] { form_.lblPosition.Caption.clear(), Refresh(); };
  canvas_->mouse.pan = [this](double right, double down) {
    Act([this, right, down] {
      PanPhotograph(SimulationWindow(session_).page, right, down);
      DrawSimulation(session_);
    });
  };
  canvas_->mouse.wheel = [this](const CanvasWheel& wheel) {
    Act([this, wheel] {
      ZoomPhotograph(SimulationWindow(session_).page, {wheel.x, wheel.y}, std::pow(wheelFactor, wheel.steps));
      DrawSimulation(session_);
    });
    return true;
  };
}

bool PhotographWindow::Nudge(const QKeyEvent& event) {
  constexpr double far = 10;
  const double by = event.modifiers() & Qt::ShiftModifier ? far : 1;
  const int key = event.key();
  const double right = key == Qt::Key_Right ? by : key == Qt::Key_Left ? -by : 0;
  const double down = key == Qt::Key_Down ? by : key == Qt::Key_Up ? -by : 0;
  if (right == 0 && down == 0) return false;
  Act([this, right, down] { NudgePoint(session_, right, down); });
  return true;
}

void PhotographWindow::Follow() {
  follow_.stop();
  const auto place = std::exchange(draggedTo_, std::nullopt);
  if (place) Act([this, place] { DragPoint(session_, place->x, place->y, false); });
}

void PhotographWindow::AddSlider(Control& input, std::function<double(double)> valueAt,
                                 std::function<double(double)> placeOf) {
  QWidget* field = panel_->WidgetOf(input);
  auto* lines = field ? static_cast<QVBoxLayout*>(field->parentWidget()->layout()) : nullptr;
  if (!lines) return;
  auto* slider = new QSlider(Qt::Horizontal, field->parentWidget());
  slider->setRange(0, sliderSteps);
  slider->setAccessibleName(ToQString(input.Tip));
  slider->setToolTip(ToQString(input.Tip));
  int at = 0;
  while (at < lines->count() && !(lines->itemAt(at)->layout() && lines->itemAt(at)->layout()->indexOf(field) >= 0))
    ++at;
  lines->insertWidget(at + 1, slider);
  sliders_.push_back({&input, slider, std::move(valueAt), std::move(placeOf)});
  const auto value = sliders_.back().valueAt;
  connect(slider, &QSlider::valueChanged, this, [this, &input, value](int place) {
    Act([&] { UserTypes(session_, input, Shortest(value(static_cast<double>(place) / sliderSteps))); });
  });
}

void PhotographWindow::SyncMore() {
  for (const Slider& slider : sliders_) {
    const double place = sliderSteps * slider.placeOf(Val(slider.input->Value().text));
    const QSignalBlocker silent(slider.widget);
    // A value that the slider has just typed comes back rounded: the handle stays where the hand is.
    if (!slider.widget->isSliderDown())
      slider.widget->setValue(static_cast<int>(std::lround(std::clamp(place, 0.0, double{sliderSteps}))));
    slider.widget->setVisible(slider.input->Visible);
    slider.widget->setEnabled(slider.input->Enabled);
  }
}

void PhotographWindow::Click(Control& control) {
  if (gate_.Running() && &control == &form_.cmdStopSim) return static_cast<void>(UserClicks(session_, control));
  Act([this, &control] {
    const auto stopButton = std::exchange(gate_.stopButton, panel_->WidgetOf(form_.cmdStopSim));
    UserClicks(session_, control);
    gate_.stopButton = stopButton;
  });
}

void PhotographWindow::Draw() {
  Window& window = SimulationWindow(session_);
  window.surface = &canvas_->Surface();
  if (window.page.photograph) window.page.photograph->unitsPerDot = unitsPerPixel / canvas_->devicePixelRatioF();
  DrawSimulation(session_);
}

QString PhotographWindow::Reading() const {
  return ToQString(form_.lblPosition.Caption);
}

void PhotographWindow::keyPressEvent(QKeyEvent* event) {
  if (!undoKeys_.Take(*event)) SideWindow::keyPressEvent(event);
}

}  // namespace lumivex
