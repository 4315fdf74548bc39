#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "record/colour.h"

namespace lumivex {

class Form;
class DrawingSurface;

enum class ControlKind {
  TextInput,
  SelectionList,
  OptionButton,
  CheckBox,
  MenuEntry,
  Label,
  CommandButton,
  Picture,
  Frame
};

/// What a snapshot keeps of a control: what the user typed, chose or ticked.
struct ControlValue {
  std::string text;
  bool checked = false;
  bool operator==(const ControlValue&) const = default;
};

/// A named input, output or command of a form, as data: the window, a script, a batch file and a test all see the
/// same one. Declaring a control registers it with its form, under a name that is unique there whatever its case.
///
/// Assigning to a control's fields raises no event; what a user does goes through the session, which raises it.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  std::string_view Name() const { return name_; }
  ControlKind Kind() const { return kind_; }
  Form& Owner() const { return *owner_; }

  /// The part of the control that a user sets; a label, a button, a picture and a frame have none.
  virtual ControlValue Value() const { return {}; }
  virtual void SetValue(const ControlValue&) {}
  /// The text beside or on the control; an input has none.
  virtual std::string_view ShownCaption() const { return {}; }

  bool Visible = true;
  bool Enabled = true;
  Colour BackColour = colours::White;
  Colour ForeColour = colours::Black;
  std::string Tip;  ///< unit and meaning in a few words; also the accessible description

 protected:
  Control(Form& owner, std::string_view name, ControlKind kind, std::string_view tip);

 private:
  Form* owner_;
  std::string name_;
  ControlKind kind_;
};

struct TextInput final : Control {
  TextInput(Form& owner, std::string_view name, std::string_view text = "", std::string_view tip = "")
      : Control(owner, name, ControlKind::TextInput, tip), Text(text) {}
  ControlValue Value() const override { return {Text, false}; }
  void SetValue(const ControlValue& value) override { Text = value.text; }
  std::string Text;
};

/// A list of texts of which one stands in the box; an editable one takes typed text too.
struct SelectionList final : Control {
  enum class Style { Fixed, Editable };
  SelectionList(Form& owner, std::string_view name, Style style, std::string_view text = "", std::string_view tip = "")
      : Control(owner, name, ControlKind::SelectionList, tip), Editable(style == Style::Editable), Text(text) {}
  ControlValue Value() const override { return {Text, false}; }
  void SetValue(const ControlValue& value) override { Text = value.text; }
  /// Whether one of the items reads so (exactly).
  bool Holds(std::string_view text) const;
  /// The place of the item of that text, from 0: of several the one picked last, else the first; -1 for none.
  int PlaceOf(std::string_view text) const;
  bool Editable;
  std::string Text;
  std::vector<std::string> Items;
  int Picked = -1;  ///< place of the item picked last, from 0, which tells items of one text apart; -1 for a typed text
};

/// One of a group of which exactly one is on.
struct OptionButton final : Control {
  OptionButton(Form& owner, std::string_view name, std::string_view group, std::string_view caption, bool on = false,
               std::string_view tip = "")
      : Control(owner, name, ControlKind::OptionButton, tip), Group(group), Caption(caption), Checked(on) {}
  ControlValue Value() const override { return {{}, Checked}; }
  void SetValue(const ControlValue& value) override { Checked = value.checked; }
  std::string_view ShownCaption() const override { return Caption; }
  /// Turns this one on and the others of its group off.
  void Select();
  std::string Group;
  std::string Caption;
  bool Checked;
};

struct CheckBox final : Control {
  CheckBox(Form& owner, std::string_view name, std::string_view caption, bool on = false, std::string_view tip = "")
      : Control(owner, name, ControlKind::CheckBox, tip), Caption(caption), Checked(on) {}
  ControlValue Value() const override { return {{}, Checked}; }
  void SetValue(const ControlValue& value) override { Checked = value.checked; }
  std::string_view ShownCaption() const override { return Caption; }
  std::string Caption;
  bool Checked;
};

struct MenuEntry final : Control {
  MenuEntry(Form& owner, std::string_view name, std::string_view caption, bool on = false, std::string_view tip = "")
      : Control(owner, name, ControlKind::MenuEntry, tip), Caption(caption), Checked(on) {}
  ControlValue Value() const override { return {{}, Checked}; }
  void SetValue(const ControlValue& value) override { Checked = value.checked; }
  std::string_view ShownCaption() const override { return Caption; }
  std::string Caption;
  bool Checked;
};

struct Label final : Control {
  Label(Form& owner, std::string_view name, std::string_view caption = "", std::string_view tip = "")
      : Control(owner, name, ControlKind::Label, tip), Caption(caption) {}
  std::string_view ShownCaption() const override { return Caption; }
  std::string Caption;
  double Left = 0;      ///< surface units, for a label that stands on the drawing
  double Top = 0;       ///< surface units
  double FontSize = 8;  ///< points
};

struct CommandButton final : Control {
  CommandButton(Form& owner, std::string_view name, std::string_view caption, std::string_view tip = "")
      : Control(owner, name, ControlKind::CommandButton, tip), Caption(caption) {}
  std::string_view ShownCaption() const override { return Caption; }
  std::string Caption;
  bool Default = false;  ///< Enter presses it
};

/// A drawing area of its own beside the form's.
struct Picture final : Control {
  Picture(Form& owner, std::string_view name, std::string_view tip = "")
      : Control(owner, name, ControlKind::Picture, tip) {}
  double Left = 0, Top = 0, Width = 0, Height = 0;  ///< surface units of the form
  DrawingSurface* Surface = nullptr;                ///< set by whoever shows it
};

struct Frame final : Control {
  Frame(Form& owner, std::string_view name, std::string_view caption = "", std::string_view tip = "")
      : Control(owner, name, ControlKind::Frame, tip), Caption(caption) {}
  std::string_view ShownCaption() const override { return Caption; }
  std::string Caption;
  double Left = 0;   ///< surface units, for a frame that stands on the drawing
  std::string Body;  ///< lines of text inside, where it holds no inputs
};

}  // namespace lumivex
