#include "ui/dialog_view.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <string>

#include "record/number_text.h"
#include "ui/access_keys.h"
#include "ui/canvas.h"
#include "ui/look.h"

namespace lumivex {

namespace {

std::span<const LayoutLine> LinesOf(const Form& form) {
  for (const auto& layout : Dialogs())
    if (SameName(layout.form, form.Name())) return layout.lines;
  return {};
}

}  // namespace

DialogView::DialogView(Form& form, Hooks hooks, QWidget* parent)
    : QDialog(parent), form_(form), hooks_(std::move(hooks)), before_(form.Snapshot()), undoKeys_([this](bool redo) {
        hooks_.raise(redo ? "mnuRedo_Click" : "mnuUndo_Click");
      }) {
  setWindowTitle(ToQString(form.Caption));
  auto* column = new QVBoxLayout(this);
  column->setSpacing(8);
  column->setSizeConstraint(QLayout::SetMinimumSize);
  BuildLines();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  ok_->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addSpacing(6);
  column->addWidget(buttons);
  Sync();
  AssignAccessKeys(*this);
  for (const auto& view : lines_->Views()) {
    if (view->Widget()->focusPolicy() == Qt::NoFocus || view->Widget()->isHidden()) continue;
    view->Widget()->setFocus();
    break;
  }
}

void DialogView::BuildLines() {
  auto* column = static_cast<QVBoxLayout*>(layout());
  lines_.reset();
  delete body_;
  body_ = new QWidget(this);
  auto* lines = new QVBoxLayout(body_);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(column->spacing());
  lines_ = std::make_unique<FormView>(form_, LinesOf(form_), FormStyle{}, hooks_.actions, body_);
  column->insertWidget(0, body_);
  undoKeys_.Watch(*body_);
}

void DialogView::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  // Not here: the application is going through its widgets, and those of the lines are replaced.
  if (body_ && IsNewLook(*event)) QTimer::singleShot(0, this, [this] { TakeNewLook(); });
}

void DialogView::TakeNewLook() {
  // Widths were measured with the font, and marks mixed from the palette, of before.
  const QString focused = focusWidget() ? focusWidget()->objectName() : QString();
  BuildLines();
  Sync();
  AssignAccessKeys(*this);
  if (auto* widget = focused.isEmpty() ? nullptr : body_->findChild<QWidget*>(focused)) widget->setFocus();
  adjustSize();
}

void DialogView::Sync() {
  lines_->Sync();
  // A dialog that declares the button has a word of its own for it, and says when it may be pressed.
  if (const Control* button = form_.Find("OKButton")) {
    const QString text = WithAccessKey(*ok_, ToQString(button->ShownCaption()));
    if (ok_->text() != text) ok_->setText(text);
    ok_->setEnabled(button->Enabled);
  }
  DrawPictures();
}

void DialogView::DrawPictures() {
  for (const auto& view : lines_->Views()) {
    if (view->Of().Kind() != ControlKind::Picture || !hooks_.draw) continue;
    auto& canvas = static_cast<Canvas&>(*view->Widget());
    canvas.SetNight(IsDark(palette()));
    canvas.Renew();
    hooks_.draw(form_, canvas.Surface());
    canvas.ShowChanges();
    canvas.resized = [this] { DrawPictures(); };
  }
}

std::string DialogView::EventOf(std::string_view button) const {
  return std::string(form_.Name()) + "." + std::string(button) + "_Click";
}

void DialogView::accept() {
  hooks_.raise(EventOf("OKButton"));
  Sync();
  const bool refused = std::ranges::any_of(
      form_.Controls(), [](const Control* c) { return c->Visible && c->BackColour == colours::BadInput; });
  if (!refused) QDialog::accept();
}

void DialogView::keyPressEvent(QKeyEvent* event) {
  if (!undoKeys_.Take(*event)) QDialog::keyPressEvent(event);
}

void DialogView::reject() {
  hooks_.raise(EventOf("CancelButton"));
  form_.Restore(before_);
  QDialog::reject();
}

}  // namespace lumivex
