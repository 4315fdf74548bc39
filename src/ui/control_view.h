#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>

#include "record/controls.h"

class QButtonGroup;

namespace lumivex {

/// What a user did to a control; the view tells it and shows afterwards whatever the control then says.
struct ControlActions {
  std::function<void(Control&, const std::string& text)> types;          ///< typed into an input or an editable list
  std::function<void(SelectionList&, const std::string& item)> chooses;  ///< chose an item
  std::function<void(Control&)> clicks;                                  ///< pressed a button, option or check box
};

/// The widget of one control: shows the control's fields and reports what the user does to it.
class ControlView {
 public:
  /// @param caption  text of the label that stands before the control, "" where there is none: its accessible name.
  ControlView(Control& control, const ControlActions& actions, std::string_view caption, QWidget* parent);

  Control& Of() const { return *control_; }
  QWidget* Widget() const { return widget_; }
  /// Shows the control as it is now; cheap when nothing has changed.
  void Sync();
  /// Whether there is anything to show.
  bool IsShown() const;

 private:
  void MakeTextInput(const ControlActions& actions);
  void MakeList(const ControlActions& actions);
  void MakeOption(const ControlActions& actions);
  void MakeCheckBox(const ControlActions& actions);
  void MakeButton(const ControlActions& actions);
  void MakeLabel();
  void SyncValue();
  void SyncList(SelectionList& list);
  void SyncLook();

  Control* control_;
  QString caption_;
  QPointer<QWidget> widget_;
  std::vector<std::string> items_;
  Colour back_ = colours::White, fore_ = colours::Black;
  QPalette plain_;
  std::string tip_;
};

}  // namespace lumivex
