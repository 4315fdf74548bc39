#include "ui/graph_pointer.h"

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <utility>

#include "pages/bars/bar_place.h"
#include "pages/curves/curve_key.h"
#include "pages/read_out.h"
#include "session/compare/compare.h"
#include "session/page.h"
#include "session/view.h"
#include "ui/look.h"

namespace lumivex {

namespace {

constexpr double zoomOfStep = 0.8;  // range after one click of the wheel
constexpr double panOfStep = 0.1;   // of the range, one press of an arrow
constexpr double leastDrag = 60;    // surface units: less is a click
constexpr double numbersX = 700;    // height of the numbers and the title below the plot (surface units)
constexpr int restMs = 500;
constexpr std::size_t mostSteps = 100;

/// Whether two ranges look the same on the screen.
bool Same(XRange a, XRange b) {
  const double slack = 1e-6 * std::abs(b.xmax - b.xmin);
  return std::abs(a.xmin - b.xmin) <= slack && std::abs(a.xmax - b.xmax) <= slack;
}

/// The view as it can be typed. One that has come back to the whole is the whole, whatever its last digits.
PageView Settled(const Page& page, PageView view) {
  const PageView home = HomeOf(page), shown = ViewOf(page);
  view.x = Same(view.x, home.x) ? home.x : Same(view.x, shown.x) ? shown.x : RoundedRange(view.x);
  if (view.x == home.x && view.y && Same(*view.y, page.homeY)) view.y.reset();
  return view;
}

/// Keys that move the key of a page together with Shift.
bool IsMovingKey(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home;
}

}  // namespace

GraphPointer::GraphPointer(Canvas& canvas, std::function<void(const CommandGate::Action&)> act)
    : canvas_(canvas), act_(std::move(act)) {
  rest_.setSingleShot(true);
  rest_.setInterval(restMs);
  click_.setSingleShot(true);
  QObject::connect(&click_, &QTimer::timeout, &canvas_, [this] {
    if (clicked && Ready()) clicked(clickAt_.x, clickAt_.y);
  });
  canvas_.mouse.move = [this](double x, double y) { Read({x, y}); };
  canvas_.mouse.drag = [this](double x, double y) { Drag({x, y}); };
  canvas_.mouse.release = [this](double x, double y) {
    // Two clicks bring the whole picture back: the first waits whether it stays alone.
    if (dragFrom_ && !dragged_) clickAt_ = SurfacePoint{x, y}, click_.start(QApplication::doubleClickInterval());
    dragFrom_.reset();
    keyGrip_.reset();
    rest_.stop();
    Read({x, y});
  };
  canvas_.mouse.doubleClick = [this](double x, double y) {
    click_.stop();
    if (IsOnKey({x, y})) return act_([this] { MoveKey(*session_, std::nullopt); });
    if (ZoneAt({x, y}) != Zone::None) Show(HomeOf(ShownPage(*session_)));
  };
  canvas_.mouse.wheel = [this](const CanvasWheel& wheel) { return Wheel(wheel); };
  canvas_.mouse.leave = [this] { Forget(); };
}

void GraphPointer::Attach(Session& session) {
  session_ = &session;
  dragFrom_.reset();
  past_.clear();
  zoomedLast_ = false;
  Forget();
}

bool GraphPointer::Ready() const {
  return session_ && session_->state.Busy == 0 && HasXAxis(ShownPage(*session_));
}

GraphPointer::Zone GraphPointer::ZoneAt(SurfacePoint place) const {
  if (!Ready()) return Zone::None;
  const auto& panels = ShownPage(*session_).panels;
  for (const auto& panel : panels)
    if (panel.box.Holds(place.x, place.y)) return Zone::Plot;
  const GraphBox &main = panels.front().box, &last = panels.back().box;
  const bool besides = place.x >= 0 && place.x < main.left && place.y >= main.top && place.y <= main.bottom;
  if (besides) return Zone::YAxis;
  const auto bars = BarBoxes(ShownPage(*session_));
  const double foot = bars ? bars->back().bottom : last.bottom + numbersX;
  const bool below = place.y > last.bottom && place.y <= foot;
  return below && place.x >= main.left && place.x <= last.right ? Zone::XAxis : Zone::None;
}

bool GraphPointer::IsOnTimes(SurfacePoint place) const {
  return ZoneAt(place) == Zone::Plot && ShownPage(*session_).map &&
         ShownPage(*session_).kind.graph.family == Family::Impulse;
}

void GraphPointer::Press(SurfacePoint place) {
  click_.stop();
  dragged_ = false;
  if (IsOnKey(place)) {
    const auto box = KeyBox(canvas_.Surface(), ShownPage(*session_));
    keyGrip_ = SurfacePoint{place.x - box->left, place.y - box->top};
    return;
  }
  if (ZoneAt(place) == Zone::Plot) dragFrom_ = place;
}

bool GraphPointer::Wheel(const CanvasWheel& wheel) {
  const SurfacePoint at{wheel.x, wheel.y};
  const Zone zone = ZoneAt(at);
  if (zone == Zone::None) return false;
  const Page& page = ShownPage(*session_);
  const double factor = std::pow(zoomOfStep, wheel.steps);
  PageView view = ViewOf(page);
  if (zone != Zone::YAxis) view.x = ZoomAt(page, at.x, factor);
  // A second panel has a scale of its own.
  const bool onMain = page.map || page.panels.front().box.Holds(at.x, at.y);
  if (zone == Zone::YAxis || (zone == Zone::Plot && onMain && !wheel.one)) view.y = ZoomYAt(page, at.y, factor);
  place_ = at;
  Show(Settled(page, view));
  return true;
}

bool GraphPointer::IsOnKey(SurfacePoint place) {
  if (!session_ || session_->state.Busy != 0 || !TakesComparison(ShownPage(*session_))) return false;
  const auto box = KeyBox(canvas_.Surface(), ShownPage(*session_));
  return box && box->Holds(place.x, place.y);
}

void GraphPointer::Drag(SurfacePoint place) {
  if (keyGrip_) {
    const KeyPlace to = KeyPlaceAt(ShownPage(*session_), place.x - keyGrip_->x, place.y - keyGrip_->y);
    return act_([this, to] { MoveKey(*session_, to); });
  }
  if (!dragFrom_ || !Ready()) return;
  const double right = place.x - dragFrom_->x, down = place.y - dragFrom_->y;
  if (std::hypot(right, down) < leastDrag) return;
  dragFrom_ = place;
  dragged_ = true;
  Pan(right, down);
}

void GraphPointer::Pan(double right, double down) {
  const Page& page = ShownPage(*session_);
  PageView view = ViewOf(page);
  view.x = PanBy(page, right);
  // The vertical axis follows what is in view unless it was zoomed itself.
  if (view.y) view.y = PanYBy(page, down);
  Show(Settled(page, view));
}

void GraphPointer::Read(SurfacePoint place) {
  if (!session_) return;
  place_ = place;
  canvas_.setCursor(IsOnKey(place) ? Qt::SizeAllCursor : Qt::ArrowCursor);
  reading_ = ReadAt(ShownPage(*session_), place.x, place.y);
  canvas_.SetMark(reading_ && reading_->onCurve ? std::optional(reading_->place) : std::nullopt);
  if (readingChanged) readingChanged();
}

void GraphPointer::Forget() {
  place_.reset();
  reading_.reset();
  canvas_.SetMark({});
  if (readingChanged) readingChanged();
}

void GraphPointer::Renew() {
  if (place_ && session_) {
    reading_ = ReadAt(ShownPage(*session_), place_->x, place_->y);
    canvas_.SetMark(reading_ && reading_->onCurve ? std::optional(reading_->place) : std::nullopt);
  }
}

QString GraphPointer::Text() const {
  return session_ && reading_ ? ToQString(reading_->text) : QString();
}

void GraphPointer::BeginStep() {
  if (!rest_.isActive()) past_.push_back(ViewOf(ShownPage(*session_)));
  if (past_.size() > mostSteps) past_.erase(past_.begin());
  rest_.start();
}

void GraphPointer::Show(const PageView& view) {
  if (view == ViewOf(ShownPage(*session_))) return;
  BeginStep();
  zoomedLast_ = true;
  act_([this, view] { ShowView(*session_, view); });
}

bool GraphPointer::Enter() {
  if (!zoomedLast_ || !Ready()) return false;
  const auto run = RunOfView(*session_);
  if (!run) return false;
  act_([this, &run] { CalculateView(*session_, *run); });
  return true;
}

QString GraphPointer::Offer() const {
  const auto run = zoomedLast_ && Ready() ? RunOfView(*session_) : std::nullopt;
  if (!run) return {};
  if (!run->complete) return QStringLiteral("Not all in view has been calculated: Enter does");
  return QStringLiteral("%1 points in view: Enter calculates more").arg(run->points);
}

void GraphPointer::Step(int direction) {
  if (!session_ || ShownPage(*session_).panels.empty()) return;
  if (!reading_ || !reading_->onCurve) {
    const GraphBox& box = ShownPage(*session_).panels.front().box;
    Read({0.5 * (box.left + box.right), 0.5 * (box.top + box.bottom)});
    return;
  }
  reading_ = StepAlongCurve(ShownPage(*session_), *reading_, direction);
  place_ = reading_->place;
  canvas_.SetMark(reading_->place);
  if (readingChanged) readingChanged();
}

void GraphPointer::NextCurve(int direction) {
  if (!session_ || !reading_ || !reading_->onCurve) return Step(1);
  const auto next = NeighbourCurve(ShownPage(*session_), *reading_, direction);
  if (!next) return;
  reading_ = next;
  place_ = next->place;
  canvas_.SetMark(next->place);
  if (readingChanged) readingChanged();
}

bool GraphPointer::MoveKeyBy(const QKeyEvent& event) {
  constexpr double step = 0.02;
  constexpr KeyPlace fromBelow{0.6, 0.04};
  if (!(event.modifiers() & Qt::ShiftModifier) || !IsMovingKey(event.key())) return false;
  if (!KeyBox(canvas_.Surface(), ShownPage(*session_))) return true;
  if (event.key() == Qt::Key_Home) {
    act_([this] { MoveKey(*session_, std::nullopt); });
    return true;
  }
  KeyPlace to = ShownPage(*session_).keyAt.value_or(fromBelow);
  if (ShownPage(*session_).keyAt) {
    if (event.key() == Qt::Key_Left) to.x -= step;
    if (event.key() == Qt::Key_Right) to.x += step;
    if (event.key() == Qt::Key_Up) to.y -= step;
    if (event.key() == Qt::Key_Down) to.y += step;
  }
  to = {std::clamp(to.x, 0.0, 1.0), std::clamp(to.y, 0.0, 1.0)};
  act_([this, to] { MoveKey(*session_, to); });
  return true;
}

bool GraphPointer::Key(const QKeyEvent& event) {
  if (!session_) return false;
  if (TakesComparison(ShownPage(*session_)) && MoveKeyBy(event)) return true;
  if (event.key() == Qt::Key_M && event.modifiers() == Qt::NoModifier) {
    if (reading_ && reading_->onCurve) act_([this] { MarkPoint(*session_, reading_->place.x, reading_->place.y); });
    return true;
  }
  const bool ctrl = event.modifiers() & Qt::ControlModifier;
  const bool left = event.key() == Qt::Key_Left || event.key() == Qt::Key_Down;
  const bool right = event.key() == Qt::Key_Right || event.key() == Qt::Key_Up;
  if (ctrl && (left || right)) {
    Step(right ? 1 : -1);
    return true;
  }
  if (event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown) {
    NextCurve(event.key() == Qt::Key_PageUp ? -1 : 1);
    return true;
  }
  if (event.key() == Qt::Key_Backspace) {
    if (!Ready() || past_.empty()) return true;
    const PageView before = past_.back();
    past_.pop_back();
    act_([this, &before] { ShowView(*session_, before); });
    return true;
  }
  const bool zoomIn = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
  const bool zoomOut = event.key() == Qt::Key_Minus;
  const bool home = event.key() == Qt::Key_Home;
  if (!left && !right && !zoomIn && !zoomOut && !home) return false;
  if (!Ready()) return true;
  const GraphBox& box = ShownPage(*session_).panels.front().box;
  const bool upright = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
  if (home) {
    Show(HomeOf(ShownPage(*session_)));
  } else if (upright && ShownPage(*session_).zoomedY) {
    Pan(0, (right ? panOfStep : -panOfStep) * box.Height());
  } else if (left || right) {
    Pan((right ? -panOfStep : panOfStep) * box.Width(), 0);
  } else {
    ZoomX(zoomIn ? zoomOfStep : 1 / zoomOfStep);
  }
  return true;
}

void GraphPointer::ZoomX(double factor) {
  // At the reading, where there is one; else at the middle.
  const Page& page = ShownPage(*session_);
  const GraphBox& box = page.panels.front().box;
  const double x = reading_ && reading_->onCurve ? reading_->place.x : 0.5 * (box.left + box.right);
  PageView view = ViewOf(page);
  view.x = ZoomAt(page, x, factor);
  Show(Settled(page, view));
}

}  // namespace lumivex
