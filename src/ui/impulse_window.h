#pragma once

#include "ui/side_window.h"

namespace lumivex {

/// The window of the answer to a pulse at one angle: its curves, and the values of a click below.
class ImpulseWindowView final : public SideWindow {
 public:
  ImpulseWindowView(CommandGate& gate, Session& session, QWidget* parent);

 protected:
  void Draw() override;
  QString Reading() const override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  const ImpulsePlotForm& form_;
};

}  // namespace lumivex
