#include "ui/impulse_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>
#include <vector>

#include "record/layout/impulse_dialog_lines.h"
#include "session/impulse/impulse_plot.h"
#include "session/user_actions.h"
#include "ui/access_keys.h"
#include "ui/look.h"

namespace lumivex {

namespace {
constexpr QSize startSize{1080, 640};
}

ImpulseWindowView::ImpulseWindowView(CommandGate& gate, Session& session, QWidget* parent)
    : QMainWindow(parent, Qt::Window), gate_(gate), session_(session), form_(session.forms.impulsePlot) {
  auto* body = new QWidget(this);
  auto* row = new QHBoxLayout(body);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  panel_ = new PanelView(form_, impulsePlotFrames, Actions(), false, nullptr);
  auto* side = new QScrollArea(body);
  side->setFrameShape(QFrame::NoFrame);
  side->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  side->setWidgetResizable(true);
  // Frames as high as their lines, from the top.
  auto* frames = new QWidget(side);
  auto* column = new QVBoxLayout(frames);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(panel_);
  column->addStretch(1);
  side->setWidget(frames);
  canvas_ = new Canvas(body);
  canvas_->setAccessibleName("Response at one angle");
  row->addWidget(side);
  row->addWidget(canvas_, 1);
  setCentralWidget(body);
  reading_ = new QLabel(this);
  reading_->setTextFormat(Qt::PlainText);
  reading_->setContentsMargins(4, 0, 0, 0);
  reading_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  statusBar()->addWidget(reading_, 1);
  menu_ = std::make_unique<MenuView>(*menuBar(), form_,
                                     std::vector<MenuRow>(std::begin(impulsePlotMenu), std::end(impulsePlotMenu)),
                                     Actions().clicks);
  panel_->Sync();
  AssignAccessKeys(*this, KeysOfMenus(*menuBar()));
  side->setFixedWidth(panel_->sizeHint().width() + side->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2);
  canvas_->resized = [this] {
    if (!gate_.Running()) Act([this] { RenewDrawing(); });
  };
  canvas_->mouse.press = [this](double x, double y) { Act([this, x, y] { InversePlot(session_, x, y); }); };
  resize(startSize);
}

ControlActions ImpulseWindowView::Actions() {
  return {[this](Control& control, const std::string& text) {
            Act([this, &control, &text] { UserTypes(session_, control, text); });
          },
          [this](SelectionList& list, const std::string& item) {
            Act([this, &list, &item] { UserChooses(session_, list, item); });
          },
          [this](Control& control) { Act([this, &control] { UserClicks(session_, control); }); }};
}

void ImpulseWindowView::Act(const CommandGate::Action& command) {
  if (!gate_.Do(command)) Refresh();
}

void ImpulseWindowView::RenewDrawing() {
  canvas_->Renew();
  ImpulseWindow(session_).surface = &canvas_->Surface();
  DrawImpulsePlot(session_);
  canvas_->update();
}

void ImpulseWindowView::Settle() {
  QCoreApplication::sendPostedEvents();
  centralWidget()->layout()->activate();
  if (canvas_->IsStale()) RenewDrawing();
}

void ImpulseWindowView::Refresh() {
  if (isVisible() != form_.Visible) setVisible(form_.Visible);
  if (!form_.Visible) return;
  panel_->Sync();
  menu_->Sync();
  QString text;
  for (const Label* label : {&form_.lblTime, &form_.lblIntensity1, &form_.lblIntensity2})
    if (!label->Caption.empty()) text += (text.isEmpty() ? "" : "     ") + ToQString(label->Caption);
  const QString title = ToQString(form_.Caption);
  if (windowTitle() != title) setWindowTitle(title);
  if (reading_->text() != text) reading_->setText(text);
  canvas_->ShowChanges();
}

void ImpulseWindowView::closeEvent(QCloseEvent* event) {
  // The session closes it, when it is free to.
  event->ignore();
  if (!gate_.Running()) Act([this] { UserClicks(session_, form_.cmdClose); });
}

void ImpulseWindowView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return close(), void();
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QMainWindow::keyPressEvent(event);
  Actions().clicks(form_.cmdReplot);
}

}  // namespace lumivex
