#include "ui/graph_pointer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "pages/read_out.h"
#include "pages/zoom.h"
#include "record/number_text.h"
#include "session/page.h"
#include "session/user_actions.h"
#include "ui/look.h"

namespace lumivex {

namespace {

constexpr double zoomOfStep = 0.8;  // range after one click of the wheel
constexpr double panOfStep = 0.1;   // of the range, one press of an arrow
constexpr double leastDrag = 60;    // surface units: less is a click
constexpr int restMs = 250;

}  // namespace

GraphPointer::GraphPointer(Canvas& canvas, std::function<void(const CommandGate::Action&)> act)
    : canvas_(canvas), act_(std::move(act)) {
  rest_.setSingleShot(true);
  rest_.setInterval(restMs);
  connect(&rest_, &QTimer::timeout, this, [this] { CalculateMissing(); });
  canvas_.mouse.move = [this](double x, double y) { Read({x, y}); };
  canvas_.mouse.drag = [this](double x, double) { Drag(x); };
  canvas_.mouse.release = [this](double x, double y) {
    dragFrom_.reset();
    CalculateMissing();
    Read({x, y});
  };
  canvas_.mouse.doubleClick = [this](double x, double y) {
    if (InGraph({x, y})) Show(session_->page.home);
  };
  canvas_.mouse.wheel = [this](double x, double y, double steps) {
    if (!InGraph({x, y})) return false;
    Show(RoundedRange(ZoomAt(session_->page, x, std::pow(zoomOfStep, steps))));
    Read({x, y});
    return true;
  };
  canvas_.mouse.leave = [this] { Forget(); };
}

void GraphPointer::Attach(Session& session) {
  session_ = &session;
  dragFrom_.reset();
  missing_ = false;
  Forget();
}

bool GraphPointer::Ready() const {
  return session_ && session_->state.Busy == 0 && HasXAxis(session_->page);
}

bool GraphPointer::InGraph(SurfacePoint place) const {
  return Ready() && ReadAt(session_->page, place.x, place.y);
}

void GraphPointer::Press(SurfacePoint place) {
  if (InGraph(place)) dragFrom_ = place.x;
}

void GraphPointer::Drag(double x) {
  if (!dragFrom_ || !Ready()) return;
  const double moved = x - *dragFrom_;
  if (std::abs(moved) < leastDrag) return;
  dragFrom_ = x;
  Show(RoundedRange(PanBy(session_->page, moved)));
}

void GraphPointer::Read(SurfacePoint place) {
  if (!session_) return;
  place_ = place;
  reading_ = ReadAt(session_->page, place.x, place.y);
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
    reading_ = ReadAt(session_->page, place_->x, place_->y);
    canvas_.SetMark(reading_ && reading_->onCurve ? std::optional(reading_->place) : std::nullopt);
  }
}

QString GraphPointer::Text() const {
  return session_ && reading_ ? ToQString(reading_->text) : QString();
}

void GraphPointer::Show(XRange range) {
  act_([this, range] {
    auto& form = session_->form1;
    if (!UserTypes(*session_, form.txtXmin, Shortest(range.xmin)) ||
        !UserTypes(*session_, form.txtXmax, Shortest(range.xmax)))
      return;
    // Not a replot of the last run alone: curves drawn over it stay.
    missing_ = !ShowRange(*session_, range);
  });
  if (missing_ && !dragFrom_) rest_.start();
}

void GraphPointer::CalculateMissing() {
  rest_.stop();
  if (!std::exchange(missing_, false) || !Ready()) return;
  act_([this] {
    const XRange home = session_->page.home;
    session_->events.Raise("cmdNewPlot_Click");
    // The way back leads to where the user started from.
    session_->page.home = home;
  });
}

void GraphPointer::Step(int direction) {
  if (!session_ || session_->page.panels.empty()) return;
  if (!reading_ || !reading_->onCurve) {
    const GraphBox& box = session_->page.panels.front().box;
    Read({0.5 * (box.left + box.right), 0.5 * (box.top + box.bottom)});
    return;
  }
  reading_ = StepAlongCurve(session_->page, *reading_, direction);
  place_ = reading_->place;
  canvas_.SetMark(reading_->place);
  if (readingChanged) readingChanged();
}

void GraphPointer::NextCurve(int direction) {
  if (!session_ || !reading_ || !reading_->onCurve) return Step(1);
  const auto next = NeighbourCurve(session_->page, *reading_, direction);
  if (!next) return;
  reading_ = next;
  place_ = next->place;
  canvas_.SetMark(next->place);
  if (readingChanged) readingChanged();
}

bool GraphPointer::Key(const QKeyEvent& event) {
  if (!session_) return false;
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
  const bool zoomIn = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
  const bool zoomOut = event.key() == Qt::Key_Minus;
  const bool home = event.key() == Qt::Key_Home;
  if (!left && !right && !zoomIn && !zoomOut && !home) return false;
  if (!Ready()) return true;
  if (home) {
    Show(session_->page.home);
  } else if (left || right) {
    const double width = session_->page.panels.front().box.Width();
    Show(RoundedRange(PanBy(session_->page, (right ? -panOfStep : panOfStep) * width)));
  } else {
    // At the reading, where there is one; else at the middle.
    const GraphBox& box = session_->page.panels.front().box;
    const double x = reading_ && reading_->onCurve ? reading_->place.x : 0.5 * (box.left + box.right);
    Show(RoundedRange(ZoomAt(session_->page, x, zoomIn ? zoomOfStep : 1 / zoomOfStep)));
  }
  Renew();
  if (readingChanged) readingChanged();
  return true;
}

}  // namespace lumivex
