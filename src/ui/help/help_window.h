#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "ui/help/help_topics.h"

class QLineEdit;
class QTextBrowser;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;

namespace lumivex {

/// The guide in a window of its own: contents and search on the left, the page on the right, back and forward above. It
/// is read from beside the program (an installed one or one in its build folder), so that it opens without a network
/// and without another program.
class HelpWindow final : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent);

  /// Shows the guide: from its start, or at the topic of that name.
  void ShowTopic(std::string_view name);
  /// Topics of all pages, in the order of the contents.
  const std::vector<HelpTopic>& Topics() const { return topics_; }
  /// Folder of the guide, empty where there is none.
  static QString Folder();

 private:
  void MakeWidgets();
  void ReadTopics();
  /// The contents, or what was found.
  void ListContents();
  void ListFound(const QString& words);
  /// Shows a topic and remembers it for Back.
  void Visit(std::size_t topic);
  void Open(std::size_t topic);
  void Step(int by);
  void Follow(const QUrl& link);
  void ScrollTo(int heading);
  /// Shows where a topic stands in the contents, or among what was found.
  void MarkInList(std::size_t topic);

  std::vector<HelpTopic> topics_;
  std::vector<std::size_t> visited_;
  std::size_t place_ = 0;  ///< in visited_
  QString shownFile_;
  QLineEdit* search_ = nullptr;
  QTreeWidget* list_ = nullptr;
  QTextBrowser* page_ = nullptr;
  QToolButton* back_ = nullptr;
  QToolButton* forward_ = nullptr;
};

}  // namespace lumivex
