#pragma once

#include <QDialog>
#include <memory>

#include "record/drawing_surface.h"
#include "record/form.h"
#include "ui/form_view.h"
#include "ui/undo_keys.h"

class QPushButton;

namespace lumivex {

/// A dialog over any form that the layout describes: its lines, then OK and Cancel. Modal with exec, modeless with
/// show.
///
/// The events of its inputs run while it is open. OK raises the form's own OK event and keeps the dialog open as long
/// as an input is marked as bad; Cancel raises the Cancel event and puts back what stood there before.
class DialogView final : public QDialog {
 public:
  struct Hooks {
    ControlActions actions;
    std::function<void(std::string_view event)> raise;               ///< "dlogTemp.OKButton_Click"
    std::function<void(const Form& form, DrawingSurface& on)> draw;  ///< paints the page of a dialog with a picture
  };
  DialogView(Form& form, Hooks hooks, QWidget* parent);

  const Form& Of() const { return form_; }
  void Sync();
  void accept() override;
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildLines();
  void TakeNewLook();
  void DrawPictures();
  std::string EventOf(std::string_view button) const;

  Form& form_;
  Hooks hooks_;
  FormSnapshot before_;
  QWidget* body_ = nullptr;  ///< holds the lines
  QPushButton* ok_ = nullptr;
  std::unique_ptr<FormView> lines_;
  UndoKeys undoKeys_;
};

}  // namespace lumivex
