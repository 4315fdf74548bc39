#pragma once

#include <QFrame>

#include "record/controls.h"
#include "record/page.h"

class QLabel;

namespace lumivex {

/// The frame with the parameters of the run, over the drawing. It stands where the session puts it, moved so far that
/// it neither leaves the drawing nor hides readings, distribution or, as far as there is a corner for it, curves.
class InfoOverlay final : public QFrame {
 public:
  InfoOverlay(Frame& frame, QWidget* parent);
  /// Shows the frame as it is now.
  /// @param page    what it is laid over.
  /// @param unitPx  pixels to one surface unit.
  /// @param roomPx  width of what is to be seen of the drawing (pixels).
  void Sync(const Page& page, double unitPx, int roomPx);

 private:
  Frame& frame_;
  QLabel* title_;
  QLabel* body_;
};

}  // namespace lumivex
