#include "ui/live_view.h"

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <initializer_list>
#include <utility>

#include "session/live/number_step.h"
#include "session/live/slides.h"
#include "session/user_actions.h"
#include "ui/look.h"
#include "ui/menu_view.h"
#include "ui/slider_view.h"

namespace lumivex {

LiveView::LiveView(QMainWindow& window, Canvas& canvas, Act act, std::function<void()> refresh)
    : canvas_(canvas),
      act_(std::move(act)),
      refresh_(std::move(refresh)),
      tools_(new QToolBar("Tools", &window)),
      keys_([this](QLineEdit& field, int steps) { StepNumber(field, steps); }) {
  tools_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  // At the end of the menu bar it takes no room of the graph.
  window.menuBar()->setCornerWidget(tools_, Qt::TopRightCorner);
}

LiveView::~LiveView() = default;

SliderView* LiveView::Slider() const {
  return slider_;
}

void LiveView::Start() {
  follows_ = true;
  if (session_) Begin();
}

void LiveView::Begin() {
  graph_ = std::make_unique<LiveGraph>(*session_, [this](std::function<void()> action) {
    QMetaObject::invokeMethod(this, std::move(action), Qt::QueuedConnection);
  });
  graph_->shown = refresh_;
}

void LiveView::Attach(Session& session, const MenuView& menu) {
  session_ = &session;
  delete slider_;
  tools_->clear();
  for (const MenuEntry* entry : {&session.form1.mnuLiveGraph, &session.form1.mnuSlider})
    if (QAction* action = menu.ActionOf(*entry)) tools_->addAction(action);
  if (follows_) Begin();
}

void LiveView::Watch(QWidget& panel) {
  keys_.Watch(panel);
  const Form1& form = session_->form1;
  const std::initializer_list<const Control*> sliding = {&form.txtRadius, &form.txtLambda, &form.txtRefractReal,
                                                         &form.cboRays};
  for (const Control* control : sliding) {
    auto* widget = panel.findChild<QWidget*>(ToQString(control->Name()));
    auto* list = qobject_cast<QComboBox*>(widget);
    if (QWidget* field = list ? list->lineEdit() : widget) field->installEventFilter(this);
  }
}

bool LiveView::eventFilter(QObject* watched, QEvent* event) {
  auto* field = qobject_cast<QLineEdit*>(watched);
  if (event->type() != QEvent::ContextMenu || !field || !graph_) return QObject::eventFilter(watched, event);
  QMenu* menu = field->createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addSeparator();
  const QWidget* named = qobject_cast<QComboBox*>(field->parentWidget());
  const std::string name = FromQString((named ? named : field)->objectName());
  menu->addAction(tr("Slider ..."), this, [this, name] { ShowSlider(session_->form1.Find(name)); });
  menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
  return true;
}

void LiveView::Pause() {
  if (graph_) graph_->Pause();
}

bool LiveView::Follow() {
  return graph_ && graph_->Follow();
}

bool LiveView::Escape() {
  return graph_ && graph_->Drop();
}

QString LiveView::Words() const {
  return graph_ ? ToQString(graph_->Words()) : QString();
}

void LiveView::Sync() {
  QString note;
  if (graph_ && session_->preview)
    note = tr("Live");
  else if (graph_ && graph_->Stands() == LiveGraph::Standing::Waiting)
    note = tr("Inputs changed");
  const auto& s = session_->state;
  canvas_.SetNote(note, {double{s.GraphRight}, double{s.GraphTop}});
  if (!slider_) return;
  slider_->Sync();
  // A line above the plot, whose uppermost number stands there.
  slider_->StandAbove(static_cast<int>(s.GraphTop * canvas_.Unit()) - canvas_.fontMetrics().height(), canvas_.width());
}

void LiveView::StepNumber(QLineEdit& field, int steps) {
  auto* input = session_ ? dynamic_cast<TextInput*>(session_->form1.Find(FromQString(field.objectName()))) : nullptr;
  if (input == nullptr) return;
  const auto text = SteppedText(*session_, *input, steps);
  if (text) act_([this, input, &text] { UserTypes(*session_, *input, *text); });
}

void LiveView::ShowSlider(const Control* input) {
  if (!session_) return;
  if (!slider_) slider_ = new SliderView(*session_, graph_.get(), act_, &canvas_);
  slider_->savePicture = savePicture;
  slider_->Open(SlidOf(*session_, input));
  Sync();
}

}  // namespace lumivex
