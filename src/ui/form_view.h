#pragma once

#include <QWidget>
#include <memory>
#include <span>
#include <vector>

#include "record/form.h"
#include "record/layout/panel_layout.h"
#include "ui/control_view.h"

class QVBoxLayout;

namespace lumivex {

/// How the lines of a form look.
struct FormStyle {
  int fieldChars = 12;   ///< digits that the inputs of a labelled line have room for, together
  bool compact = false;  ///< inputs hardly higher than their text
  bool tight = false;    ///< and no higher, with less air about them
};

/// The controls of a form as lines of widgets, built from their description.
///
/// A line that begins with a label gives its inputs a common width at the right edge, so that they stand below each
/// other; a line without one shares its width out evenly. A line that begins with "" holds the titles of such inputs.
/// The label also names its first input to a screen reader.
class FormView {
 public:
  /// @param lines   what stands where; names that the form does not hold are passed over.
  /// @param parent  the widget that gets the lines; has a QVBoxLayout.
  FormView(Form& form, std::span<const LayoutLine> lines, const FormStyle& style, const ControlActions& actions,
           QWidget* parent);

  /// Shows every control as it is now.
  void Sync();
  /// Every view, in the order of the lines.
  const std::vector<std::unique_ptr<ControlView>>& Views() const { return views_; }

 private:
  void AddLine(Form& form, const LayoutLine& line, const ControlActions& actions, QWidget* parent);

  /// Width of one of several inputs behind a label; in a dialog each has room for the longest number of its form.
  int ShareOfField(std::ptrdiff_t fields, int spacing) const;

  FormStyle style_;
  int frameWidth_ = 0, arrowWidth_ = 0, fieldWidth_ = 0, leastFieldWidth_ = 0;  // pixels
  QVBoxLayout* column_;
  std::vector<std::unique_ptr<ControlView>> views_;
};

}  // namespace lumivex
