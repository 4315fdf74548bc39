#pragma once

#include <QString>
#include <QTextBrowser>

namespace lumivex {

/// The user's guide in a window of its own. It is read from beside the program (an installed one or one in its build
/// folder), so that it opens without a network and without another program.
class GuideWindow final : public QTextBrowser {
 public:
  explicit GuideWindow(QWidget* parent);

  /// Shows the guide from the heading of that name ("" for its start).
  void ShowPage(const QString& heading);
  /// Path of the guide, empty where there is none.
  static QString Path();
};

}  // namespace lumivex
