#include "ui/impulse_window.h"

#include <QKeyEvent>

#include "record/layout/impulse_dialog_lines.h"
#include "session/impulse/impulse_plot.h"
#include "ui/look.h"

namespace lumivex {

namespace {
constexpr QSize startSize{1080, 640};
}

ImpulseWindowView::ImpulseWindowView(CommandGate& gate, Session& session, QWidget* parent)
    : SideWindow(gate, session,
                 {session.forms.impulsePlot, impulsePlotFrames, impulsePlotMenu, session.forms.impulsePlot.cmdClose,
                  session.forms.impulsePlot.cmdReplot, "Response at one angle", startSize},
                 parent),
      form_(session.forms.impulsePlot) {
  canvas_->mouse.press = [this](double x, double y) { Act([this, x, y] { InversePlot(session_, x, y); }); };
  FitPanel();
}

void ImpulseWindowView::Draw() {
  ImpulseWindow(session_).surface = &canvas_->Surface();
  DrawImpulsePlot(session_);
}

QString ImpulseWindowView::Reading() const {
  QString text;
  for (const Label* label : {&form_.lblTime, &form_.lblIntensity1, &form_.lblIntensity2})
    if (!label->Caption.empty()) text += (text.isEmpty() ? "" : "     ") + ToQString(label->Caption);
  return text;
}

void ImpulseWindowView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return close(), void();
  SideWindow::keyPressEvent(event);
}

}  // namespace lumivex
