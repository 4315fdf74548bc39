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
  /// @param label  what stands before the control, null where there is none: it names the control to a screen reader.
  ControlView(Control& control, const ControlActions& actions, const Control* label, QWidget* parent);

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
  void MakePicture();
  void SyncValue();
  void SyncList(SelectionList& list);
  void SyncLook();
  void SyncName();

  Control* control_;
  const Control* label_;
  QPointer<QWidget> widget_;
  std::vector<std::string> items_;
  Colour back_ = colours::White, fore_ = colours::Black;
  std::string tip_;
};

}  // namespace lumivex
