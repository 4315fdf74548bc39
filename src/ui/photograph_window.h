#pragma once

#include <QSlider>
#include <QTimer>
#include <functional>
#include <optional>
#include <vector>

#include "ui/side_window.h"
#include "ui/undo_keys.h"

namespace lumivex {

/// The simulation window: a photograph with the light of a run over it.
///
/// A drag over the picture moves the chosen point, and the light follows; the right or middle button moves the view,
/// the wheel zooms it.
class PhotographWindow final : public SideWindow {
 public:
  PhotographWindow(CommandGate& gate, Session& session, QWidget* parent);

 protected:
  void Draw() override;
  QString Reading() const override;
  void SyncMore() override;
  /// Stop acts inside the painting; the gate lets nothing else through.
  void Click(Control& control) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// A slider below an input, which types into it.
  struct Slider {
    Control* input;
    QSlider* widget;
    std::function<double(double)> valueAt;  ///< of the slider's place, 0 to 1
    std::function<double(double)> placeOf;
  };

  void ConnectMouse();
  bool Nudge(const QKeyEvent& event);
  void AddSlider(Control& input, std::function<double(double)> valueAt, std::function<double(double)> placeOf);
  void Follow();

  Form2& form_;
  std::vector<Slider> sliders_;
  std::optional<SurfacePoint> draggedTo_;  ///< the last place of a drag that the picture has not followed yet
  QTimer follow_;
  UndoKeys undoKeys_;
};

}  // namespace lumivex
