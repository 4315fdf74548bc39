#include "ui/form_view.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/look.h"

namespace lumivex {

namespace {

constexpr std::size_t mostApart = 4;  // controls of a line that share its width by their contents
constexpr int boxWidth = 28;          // a tick box and the air about it (pixels)
constexpr int compactMargin = 6;      // frame and a dot of air above and below the text (pixels)
constexpr int tightMargin = 3;        // the frame alone
constexpr int leastArrow = 20;        // width of a list's arrow (pixels)

bool IsInput(const Control& control) {
  return control.Kind() == ControlKind::TextInput || control.Kind() == ControlKind::SelectionList;
}

std::vector<Control*> ControlsOf(const Form& form, const LayoutLine& line) {
  std::vector<Control*> controls;
  for (const auto name : line.controls)
    if (Control* control = name.empty() ? nullptr : form.Find(name)) controls.push_back(control);
  return controls;
}

/// Digits that the inputs of a line with several have room for: what stands in them at the start, in all lines alike.
int CharsOfFields(const Form& form, std::span<const LayoutLine> lines) {
  std::size_t chars = 7;
  for (const auto& line : lines) {
    const auto controls = ControlsOf(form, line);
    if (std::ranges::count_if(controls, [](const Control* c) { return IsInput(*c); }) < 2) continue;
    for (const Control* control : controls)
      if (control->Kind() == ControlKind::TextInput) chars = std::max(chars, control->Value().text.size());
  }
  return static_cast<int>(std::min<std::size_t>(chars, 16));
}

}  // namespace

FormView::FormView(Form& form, std::span<const LayoutLine> lines, const FormStyle& style, const ControlActions& actions,
                   QWidget* parent)
    : style_(style), column_(static_cast<QVBoxLayout*>(parent->layout())) {
  // Room for the digits, the frame and the arrow of a list.
  frameWidth_ = 2 * parent->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) + 10;
  // The arrow does not shrink with the font.
  arrowWidth_ = std::max(parent->fontMetrics().height() + 4, style.tight ? leastArrow : 0);
  fieldWidth_ = style.fieldChars * parent->fontMetrics().horizontalAdvance('0') + frameWidth_ + arrowWidth_;
  leastFieldWidth_ = CharsOfFields(form, lines) * parent->fontMetrics().horizontalAdvance('0') + frameWidth_;
  for (const auto& line : lines) AddLine(form, line, actions, parent);
}

void FormView::AddLine(Form& form, const LayoutLine& line, const ControlActions& actions, QWidget* parent) {
  const auto controls = ControlsOf(form, line);
  if (controls.empty()) return;
  const bool labelled = controls.size() > 1 && controls.front()->Kind() == ControlKind::Label && IsInput(*controls[1]);
  const auto inputs = std::ranges::count_if(controls, [](const Control* c) { return IsInput(*c); });

  auto* row = new QHBoxLayout;
  row->setSpacing(column_->spacing() + 2);
  // Titles of columns: they end where the fields below them do.
  const bool titles = line.controls.front().empty();
  if (titles) row->addStretch(1);
  for (Control* control : controls) {
    const bool isNamed = labelled && control == controls[1];
    auto& view = views_.emplace_back(
        std::make_unique<ControlView>(*control, actions, isNamed ? controls.front() : nullptr, parent));
    view->Sync();
    QWidget* widget = view->Widget();
    widget->setVisible(true);  // so that the first measure counts everything; the next Sync hides what is hidden
    const bool isLabel = control->Kind() == ControlKind::Label;
    if (style_.compact && IsInput(*control))
      widget->setFixedHeight(widget->fontMetrics().height() + (style_.tight ? tightMargin : compactMargin));
    if (style_.compact && control->Kind() == ControlKind::CommandButton) {
      widget->setMinimumWidth(widget->fontMetrics().horizontalAdvance(ToQString(control->ShownCaption())) +
                              arrowWidth_);
      widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    if (labelled && IsInput(*control)) {
      widget->setFixedWidth(ShareOfField(inputs, row->spacing()));
      row->addWidget(widget, 0);
      if (isNamed) static_cast<QLabel*>(views_[views_.size() - 2]->Widget())->setBuddy(widget);
    } else if (titles) {
      widget->setFixedWidth(ShareOfField(std::ssize(controls), row->spacing()));
      row->addWidget(widget, 0, Qt::AlignBottom);
    } else {
      if (IsInput(*control)) {
        // A number of eight digits fits, or what stands in a list at the start; the rest of the line is its to take.
        const bool isList = control->Kind() == ControlKind::SelectionList;
        const QString text = isList ? ToQString(control->Value().text) : QStringLiteral("00000000");
        widget->setMinimumWidth(widget->fontMetrics().horizontalAdvance(text) + frameWidth_ +
                                (isList ? arrowWidth_ : 0));
        widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
      }
      if (controls.size() > mostApart) {
        // Many small boxes: one below the other in every line.
        widget->setFixedWidth(widget->fontMetrics().horizontalAdvance(QStringLiteral("00")) + boxWidth);
      }
      const bool isBetweenInputs = isLabel && inputs > 0 && !labelled;
      row->addWidget(widget, isBetweenInputs ? 0 : 1);
    }
  }
  column_->addLayout(row);
}

int FormView::ShareOfField(std::ptrdiff_t fields, int spacing) const {
  const int share = static_cast<int>((fieldWidth_ - (fields - 1) * spacing) / fields);
  return style_.compact ? share : std::max(share, leastFieldWidth_);
}

void FormView::Sync() {
  for (auto& view : views_) view->Sync();
}

}  // namespace lumivex
