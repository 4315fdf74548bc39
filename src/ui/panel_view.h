#pragma once

#include <QWidget>
#include <memory>
#include <span>
#include <vector>

#include "record/controls.h"
#include "ui/form_view.h"

class QLabel;

namespace lumivex {

/// An input panel, such as that over the top of the graph's surface: frames in columns, as the layout describes them.
class PanelView final : public QWidget {
 public:
  /// @param frames  what stands where.
  /// @param tight   with less air about frames and inputs, for narrow windows.
  PanelView(Form& form, std::span<const FrameLayout> frames, const ControlActions& actions, bool tight,
            QWidget* parent);

  /// The size (pixels) that the panel needs with everything shown that may ever be; it does not change with the graph.
  QSize Needed() const { return needed_; }
  /// Shows every frame and control as it is now.
  void Sync();
  /// The widget of a control, null where the panel does not hold it.
  QWidget* WidgetOf(const Control& control) const;

 private:
  struct Box {
    Frame* frame;  ///< null for lines without a frame
    QWidget* widget;
    QLabel* title;
    std::unique_ptr<FormView> lines;
  };
  void AddBox(Form& form, const FrameLayout& layout, const ControlActions& actions, QWidget& column);

  bool tight_;
  std::vector<Box> boxes_;
  QSize needed_;
};

}  // namespace lumivex
