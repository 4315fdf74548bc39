#include "ui/control_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "ui/access_keys.h"
#include "ui/canvas.h"
#include "ui/grouped_list.h"
#include "ui/look.h"
#include "ui/wrap_label.h"

namespace lumivex {

namespace {

/// Captions from this length on may take two lines.
constexpr qsizetype longCaption = 22;

template <class Button>
void ConnectClick(Button* button, Control& control, const ControlActions& actions) {
  QObject::connect(button, &QAbstractButton::clicked, button, [&control, clicks = actions.clicks] { clicks(control); });
}

void SetText(QLineEdit* edit, const QString& text) {
  if (edit->text() == text) return;
  const QSignalBlocker quiet(edit);
  const int cursor = edit->cursorPosition();
  edit->setText(text);
  edit->setCursorPosition(edit->hasFocus() ? cursor : 0);
}

template <class Widget>
void SetCaption(Widget* widget, const QString& text) {
  if (widget->text() != text) widget->setText(text);
}

void SetChecked(QAbstractButton* button, bool on) {
  if (button->isChecked() == on) return;
  const QSignalBlocker quiet(button);
  button->setChecked(on);
}

}  // namespace

ControlView::ControlView(Control& control, const ControlActions& actions, const Control* label, QWidget* parent)
    : control_(&control), label_(label) {
  switch (control.Kind()) {
    case ControlKind::TextInput:
      MakeTextInput(actions);
      break;
    case ControlKind::SelectionList:
      MakeList(actions);
      break;
    case ControlKind::OptionButton:
      MakeOption(actions);
      break;
    case ControlKind::CheckBox:
      MakeCheckBox(actions);
      break;
    case ControlKind::CommandButton:
      MakeButton(actions);
      break;
    case ControlKind::Picture:
      MakePicture();
      break;
    default:
      MakeLabel();
      break;
  }
  widget_->setParent(parent);
  widget_->setObjectName(ToQString(control.Name()));
}

void ControlView::MakeTextInput(const ControlActions& actions) {
  auto* edit = new QLineEdit;
  edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance("000000"));
  QObject::connect(
      edit, &QLineEdit::textEdited, edit,
      [control = control_, types = actions.types](const QString& text) { types(*control, FromQString(text)); });
  widget_ = edit;
}

void ControlView::MakeList(const ControlActions& actions) {
  auto* box = new QComboBox;
  auto& list = static_cast<SelectionList&>(*control_);
  box->setEditable(list.Editable);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(4);
  box->setMaxVisibleItems(20);
  if (box->lineEdit()) {
    box->setCompleter(nullptr);
    QObject::connect(box->lineEdit(), &QLineEdit::textEdited, box,
                     [&list, types = actions.types](const QString& text) { types(list, FromQString(text)); });
  }
  QObject::connect(box, &QComboBox::activated, box, [&list, box, chooses = actions.chooses](int place) {
    list.Picked = ItemOfRow(*box, place);
    chooses(list, FromQString(box->itemText(place)));
  });
  widget_ = box;
}

void ControlView::MakeOption(const ControlActions& actions) {
  auto* button = new QRadioButton;
  // The session keeps one of a group on; the widgets only show it.
  button->setAutoExclusive(false);
  ConnectClick(button, *control_, actions);
  widget_ = button;
}

void ControlView::MakeCheckBox(const ControlActions& actions) {
  auto* box = new QCheckBox;
  ConnectClick(box, *control_, actions);
  widget_ = box;
}

void ControlView::MakeButton(const ControlActions& actions) {
  auto* button = new QPushButton;
  button->setAutoDefault(false);
  ConnectClick(button, *control_, actions);
  widget_ = button;
}

void ControlView::MakePicture() {
  constexpr int widthPx = 420, heightPx = 220, unitsPerPixel = 15;
  const auto& picture = static_cast<const lumivex::Picture&>(*control_);
  auto* canvas = new Canvas;
  canvas->setFocusPolicy(Qt::NoFocus);
  canvas->setMinimumSize(picture.Width > 0 ? static_cast<int>(picture.Width) / unitsPerPixel : widthPx,
                         picture.Height > 0 ? static_cast<int>(picture.Height) / unitsPerPixel : heightPx);
  canvas->setAccessibleName(ToQString(control_->Tip));
  widget_ = canvas;
}

void ControlView::MakeLabel() {
  auto* label = new WrapLabel(ToQString(control_->ShownCaption()).size() >= longCaption);
  label->setTextFormat(Qt::PlainText);
  widget_ = label;
}

bool ControlView::IsShown() const {
  if (!control_->Visible) return false;
  return control_->Kind() != ControlKind::Label || !control_->ShownCaption().empty();
}

void ControlView::SyncList(SelectionList& list) {
  auto* box = static_cast<QComboBox*>(widget_.data());
  const QSignalBlocker quiet(box);
  if (items_ != list.Items) {
    items_ = list.Items;
    FillBox(*box, list);
    const int wanted = box->view()->sizeHintForColumn(0) + box->fontMetrics().horizontalAdvance("MM");
    box->view()->setMinimumWidth(wanted);
  }
  const QString text = ToQString(list.Text);
  QLineEdit* edit = box->lineEdit();
  const bool typing = edit && edit->hasFocus() && edit->text() == text;
  const int cursor = edit ? edit->cursorPosition() : 0;
  const int index = RowOfText(*box, text);
  if (box->currentIndex() != index && !(index >= 0 && box->itemText(box->currentIndex()) == text))
    box->setCurrentIndex(index);
  if (edit) {
    SetText(edit, text);
    // Another current item empties the box in between, which would send the cursor of who is typing to the front.
    if (typing) edit->setCursorPosition(cursor);
  } else if (index < 0 && box->placeholderText() != text) {
    box->setPlaceholderText(text);
  }
}

void ControlView::SyncValue() {
  switch (control_->Kind()) {
    case ControlKind::TextInput:
      SetText(static_cast<QLineEdit*>(widget_.data()), ToQString(static_cast<TextInput*>(control_)->Text));
      break;
    case ControlKind::SelectionList:
      SyncList(static_cast<SelectionList&>(*control_));
      break;
    case ControlKind::OptionButton:
    case ControlKind::CheckBox: {
      auto* button = static_cast<QAbstractButton*>(widget_.data());
      SetCaption(button, ShownText(control_->ShownCaption()));
      SetChecked(button, control_->Value().checked);
      break;
    }
    case ControlKind::CommandButton: {
      auto* button = static_cast<QPushButton*>(widget_.data());
      SetCaption(button, WithAccessKey(*button, ShownText(control_->ShownCaption())));
      if (button->isDefault() != static_cast<CommandButton*>(control_)->Default)
        button->setDefault(static_cast<CommandButton*>(control_)->Default);
      break;
    }
    case ControlKind::Picture:
      break;  // whoever has the page paints it
    default:
      SetCaption(static_cast<QLabel*>(widget_.data()), ToQString(control_->ShownCaption()));
      break;
  }
}

void ControlView::SyncLook() {
  if (control_->BackColour != back_ || control_->ForeColour != fore_) {
    back_ = control_->BackColour;
    fore_ = control_->ForeColour;
    const bool isLabel = control_->Kind() == ControlKind::Label;
    // Only the colours of the mark are set: all others go on following the desktop.
    widget_->setPalette(isLabel ? InkedPalette({}, fore_) : MarkedPalette({}, back_));
    const bool isMarked = back_ == colours::BadInput || back_ == colours::Warning;
    if (control_->Kind() == ControlKind::OptionButton || control_->Kind() == ControlKind::CheckBox)
      widget_->setAutoFillBackground(isMarked);
    tip_ = "\n";  // the description tells of the mark, so it has to be written again
  }
  if (tip_ != control_->Tip) {
    tip_ = control_->Tip;
    const QString tip = ToQString(tip_);
    if (widget_->toolTip() != tip) widget_->setToolTip(tip);
    const bool isBad = back_ == colours::BadInput, isDoubtful = back_ == colours::Warning;
    widget_->setAccessibleDescription(isBad ? tip + " (not accepted)" : isDoubtful ? tip + " (to be checked)" : tip);
  }
}

void ControlView::Sync() {
  SyncValue();
  SyncLook();
  if (widget_->isEnabledTo(widget_->parentWidget()) != control_->Enabled) widget_->setEnabled(control_->Enabled);
  const bool shown = IsShown();
  if (widget_->isHidden() == shown) widget_->setVisible(shown);
  SyncName();
}

void ControlView::SyncName() {
  if (control_->Kind() != ControlKind::TextInput && control_->Kind() != ControlKind::SelectionList) return;
  // What the input means may change with the graph, and its label says it.
  const std::string_view caption = label_ ? label_->ShownCaption() : std::string_view{};
  const QString name = ToQString(caption.empty() ? std::string_view(control_->Tip) : caption);
  if (widget_->accessibleName() != name) widget_->setAccessibleName(name);
}

}  // namespace lumivex
