#pragma once

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "session/compare/compare.h"
#include "ui/command_gate.h"

namespace lumivex {

/// The window of curves: every curve of the page and measured data with a tick, its colour and its name, what is done
/// with the chosen one, and the marked points.
///
/// Every act is one command of the gate. It shows one session, and looks at nothing of it after that has gone.
class CurvesWindow final : public QWidget {
 public:
  CurvesWindow(CommandGate& gate, Session& session, QWidget* parent);

  /// Shows the curves and marks as they are now, and itself where its form is visible.
  void Refresh();
  QTreeWidget& Curves() { return *curves_; }
  QTreeWidget& Markers() { return *markers_; }
  /// Asks for a colour; nothing where the user cancels.
  std::function<std::optional<QColor>(const QColor& now)> askColour;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* BuildCurves();
  QWidget* BuildChosen(QWidget* parent);
  QWidget* BuildMarkers();
  QPushButton* Button(const QString& text, const QString& tip, std::function<void()> press, QWidget* parent);
  void Act(const CommandGate::Action& command);
  /// The chosen curve; null where none is.
  const ListedCurve* Chosen() const;
  void Changed(QTreeWidgetItem* item, int column);
  void PickColour();
  void Compare(BelowGraph how);
  void TypeFactor();
  void ShowList();
  void ShowChosen();
  void ShowMarkers();

  CommandGate& gate_;
  Session& session_;
  CurvesForm& form_;
  std::vector<ListedCurve> listed_;
  std::vector<Marker> marked_;
  bool filling_ = false;  ///< what changes in the lists is not the user's doing

  QTreeWidget* curves_ = nullptr;
  QPushButton* keep_ = nullptr;
  QPushButton* colour_ = nullptr;
  QPushButton* remove_ = nullptr;
  QComboBox* against_ = nullptr;
  QPushButton* difference_ = nullptr;
  QPushButton* ratio_ = nullptr;
  QPushButton* none_ = nullptr;
  QWidget* factors_ = nullptr;
  QRadioButton* fitted_ = nullptr;
  QRadioButton* typed_ = nullptr;
  QLineEdit* factor_ = nullptr;
  QLabel* words_ = nullptr;
  QTreeWidget* markers_ = nullptr;
  QCheckBox* clicks_ = nullptr;
  QPushButton* deleteMark_ = nullptr;
  QPushButton* clearMarks_ = nullptr;
  QPushButton* copyMarks_ = nullptr;
};

}  // namespace lumivex
