#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "record/controls.h"

namespace lumivex {

/// What the user has set on a form, control by control, in the order of declaration.
using FormSnapshot = std::vector<std::pair<std::string, ControlValue>>;

/// A window or dialog as data: a name, a title and the controls that were declared in it.
class Form {
 public:
  Form(std::string_view name, std::string_view caption) : Caption(caption), name_(name) {}
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  std::string_view Name() const { return name_; }
  const std::vector<Control*>& Controls() const { return controls_; }
  /// The control of that name, whatever its case; null where there is none.
  Control* Find(std::string_view name) const;

  FormSnapshot Snapshot() const;
  /// Puts a snapshot's values back, and takes the mark of bad input off those that change; raises no events. Names that
  /// the form does not hold are passed over.
  void Restore(const FormSnapshot& snapshot);

  std::string Caption;
  bool Visible = false;

 private:
  friend class Control;
  void Register(Control& control) { controls_.push_back(&control); }

  std::string name_;
  std::vector<Control*> controls_;
};

}  // namespace lumivex
