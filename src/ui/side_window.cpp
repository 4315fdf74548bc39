#include "ui/side_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

#include "session/user_actions.h"
#include "ui/access_keys.h"
#include "ui/look.h"

namespace lumivex {

SideWindow::SideWindow(CommandGate& gate, Session& session, const Parts& parts, QWidget* parent)
    : QMainWindow(parent, Qt::Window), gate_(gate), session_(session), parts_(parts) {
  auto* body = new QWidget(this);
  auto* row = new QHBoxLayout(body);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  panel_ = new PanelView(parts.form, parts.frames, Actions(), false, nullptr);
  side_ = new QScrollArea(body);
  side_->setFrameShape(QFrame::NoFrame);
  side_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  side_->setWidgetResizable(true);
  // Frames as high as their lines, from the top.
  auto* frames = new QWidget(side_);
  auto* column = new QVBoxLayout(frames);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(panel_);
  column->addStretch(1);
  side_->setWidget(frames);
  canvas_ = new Canvas(body);
  canvas_->setAccessibleName(parts.drawing);
  row->addWidget(side_);
  row->addWidget(canvas_, 1);
  setCentralWidget(body);
  reading_ = new QLabel(this);
  reading_->setTextFormat(Qt::PlainText);
  reading_->setContentsMargins(4, 0, 0, 0);
  reading_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  statusBar()->addWidget(reading_, 1);
  menu_ = std::make_unique<MenuView>(*menuBar(), parts.form, std::vector(parts.menu.begin(), parts.menu.end()),
                                     Actions().clicks);
  canvas_->resized = [this] {
    if (!gate_.Running()) Act([this] { RenewDrawing(); });
  };
  resize(parts.size);
}

void SideWindow::FitPanel() {
  panel_->Sync();
  AssignAccessKeys(*this, KeysOfMenus(*menuBar()));
  side_->setFixedWidth(panel_->sizeHint().width() + side_->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2);
}

ControlActions SideWindow::Actions() {
  return {[this](Control& control, const std::string& text) {
            Act([this, &control, &text] { UserTypes(session_, control, text); });
          },
          [this](SelectionList& list, const std::string& item) {
            Act([this, &list, &item] { UserChooses(session_, list, item); });
          },
          [this](Control& control) { Click(control); }};
}

void SideWindow::Click(Control& control) {
  Act([this, &control] { UserClicks(session_, control); });
}

void SideWindow::Act(const CommandGate::Action& command) {
  if (!gate_.Do(command)) Refresh();
}

void SideWindow::RenewDrawing() {
  canvas_->Renew();
  Draw();
  canvas_->update();
}

void SideWindow::Settle() {
  QCoreApplication::sendPostedEvents();
  centralWidget()->layout()->activate();
  if (canvas_->IsStale()) RenewDrawing();
}

void SideWindow::Refresh() {
  const Form& form = parts_.form;
  if (isVisible() != form.Visible) setVisible(form.Visible);
  if (!form.Visible) return;
  panel_->Sync();
  SyncMore();
  menu_->Sync();
  const QString title = ToQString(form.Caption), text = Reading();
  if (windowTitle() != title) setWindowTitle(title);
  if (reading_->text() != text) reading_->setText(text);
  canvas_->ShowChanges();
}

void SideWindow::closeEvent(QCloseEvent* event) {
  // The session closes it, when it is free to.
  event->ignore();
  if (!gate_.Running()) Act([this] { UserClicks(session_, parts_.closes); });
}

void SideWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QMainWindow::keyPressEvent(event);
  Click(parts_.onReturn);
}

}  // namespace lumivex
