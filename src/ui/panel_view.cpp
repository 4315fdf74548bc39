#include "ui/panel_view.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <map>

#include "ui/look.h"
#include "ui/wrap_label.h"

namespace lumivex {

namespace {

/// A quiet frame: a thin rounded line and the ground a shade lighter than the window.
class FrameBox final : public QWidget {
 public:
  using QWidget::QWidget;

  /// Distance of the lines (pixels): as little as the panel was measured with, and what is airy.
  static constexpr int leastSpacing = 2, mostSpacing = 6;

 protected:
  bool event(QEvent* event) override {
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) Spread();
    return done;
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool dark = IsDark(palette());
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(dark ? 0.25F : 0.18F);
    QColor ground = Qt::white;
    ground.setAlphaF(dark ? 0.04F : 0.45F);
    painter.setPen(line);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  }

 private:
  /// Lines that a graph hides leave their room to the others.
  void Spread() {
    auto* lines = static_cast<QVBoxLayout*>(layout());
    int shown = 0;
    for (int i = 0; i < lines->count(); ++i) shown += lines->itemAt(i)->isEmpty() ? 0 : 1;
    if (shown < 2) return;
    const int natural = lines->hasHeightForWidth() ? lines->heightForWidth(width()) : lines->sizeHint().height();
    const int tight = natural - (shown - 1) * (lines->spacing() - leastSpacing);
    const int spacing = std::clamp(leastSpacing + (height() - tight) / shown, leastSpacing, mostSpacing);
    if (spacing != lines->spacing()) lines->setSpacing(spacing);
  }
};

}  // namespace

PanelView::PanelView(Form& form, std::span<const FrameLayout> frames, const ControlActions& actions, bool tight,
                     QWidget* parent)
    : QWidget(parent), tight_(tight) {
  setAutoFillBackground(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(tight ? 2 : 5, 4, tight ? 2 : 4, 1);
  row->setSpacing(tight ? 2 : 4);
  std::map<int, QWidget*> columns;
  for (const auto& layout : frames) {
    QWidget*& column = columns[layout.column];
    if (!column) {
      column = new QWidget(this);
      auto* boxes = new QVBoxLayout(column);
      boxes->setContentsMargins(0, 0, 0, 0);
      boxes->setSpacing(4);
      row->addWidget(column);
    }
    AddBox(form, layout, actions, *column);
  }
  needed_ = row->sizeHint();
  // Columns keep their places whatever a graph hides: each has the width of all that it may ever show.
  for (const auto& [number, column] : columns) {
    const int width = column->sizeHint().width();
    column->setMinimumWidth(width);
    row->setStretchFactor(column, width);
  }

  QWidget* previous = nullptr;
  for (const auto& box : boxes_) {
    for (const auto& view : box.lines->Views()) {
      if (view->Of().Kind() == ControlKind::Label) continue;
      if (previous) setTabOrder(previous, view->Widget());
      previous = view->Widget();
    }
  }
}

void PanelView::AddBox(Form& form, const FrameLayout& layout, const ControlActions& actions, QWidget& column) {
  auto* frame = layout.frame.empty() ? nullptr : dynamic_cast<Frame*>(form.Find(layout.frame));
  QWidget* box = frame ? new FrameBox(&column) : new QWidget(&column);
  auto* lines = new QVBoxLayout(box);
  const int side = frame ? (tight_ ? 3 : 5) : 1;
  lines->setContentsMargins(side, frame ? 2 : 1, side, frame ? 4 : 1);
  lines->setSpacing(frame ? FrameBox::leastSpacing : 4);
  QLabel* title = nullptr;
  if (frame) {
    title = new WrapLabel(layout.longTitle, box);
    title->setText(ToQString(frame->Caption));
    QFont bold = title->font();
    bold.setWeight(QFont::DemiBold);
    title->setFont(bold);
    lines->addWidget(title);
    box->setAccessibleName(ToQString(frame->Caption));
  }
  auto view = std::make_unique<FormView>(form, layout.lines, FormStyle{layout.fieldChars, true, tight_}, actions, box);
  lines->addStretch(1);
  static_cast<QVBoxLayout*>(column.layout())->addWidget(box, 1);
  boxes_.push_back({frame, box, title, std::move(view)});
}

void PanelView::Sync() {
  for (auto& box : boxes_) {
    box.lines->Sync();
    if (!box.frame) continue;
    const QString caption = ToQString(box.frame->Caption);
    if (box.title->text() != caption) {
      box.title->setText(caption);
      box.widget->setAccessibleName(ToQString(box.frame->Caption));
    }
    if (box.widget->isHidden() == box.frame->Visible) box.widget->setVisible(box.frame->Visible);
    if (box.widget->isEnabledTo(box.widget->parentWidget()) != box.frame->Enabled)
      box.widget->setEnabled(box.frame->Enabled);
  }
}

QWidget* PanelView::WidgetOf(const Control& control) const {
  for (const auto& box : boxes_)
    for (const auto& view : box.lines->Views())
      if (&view->Of() == &control) return view->Widget();
  return nullptr;
}

}  // namespace lumivex
