#include "ui/guide_window.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QShortcut>
#include <QTextDocument>

namespace lumivex {

GuideWindow::GuideWindow(QWidget* parent) : QTextBrowser(parent) {
  setWindowFlag(Qt::Window);
  setWindowTitle("Lumivex - user guide");
  setOpenExternalLinks(true);
  document()->setDocumentMargin(24);
  const int em = fontMetrics().height();
  resize(48 * em, 46 * em);
  connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
}

QString GuideWindow::Path() {
  const QDir program(QCoreApplication::applicationDirPath());
  for (const char* place : {"../share/lumivex/doc/user_guide.md", "docs/user_guide.md", "../docs/user_guide.md",
                            "../../docs/user_guide.md"})
    if (const QString path = program.absoluteFilePath(place); QFile::exists(path)) return QDir::cleanPath(path);
  // A program that was built elsewhere finds it in the sources that it was built from.
  const QString source = QFileInfo(__FILE__).absoluteDir().absoluteFilePath("../../docs/user_guide.md");
  if (QFile::exists(source)) return QDir::cleanPath(source);
  return {};
}

void GuideWindow::ShowPage(const QString& heading) {
  // As a source, not as a text: links to the other pages and the pictures are then found beside it.
  if (const QString path = Path(); QFileInfo(path).isReadable()) {
    setSource(QUrl::fromLocalFile(path), QTextDocument::MarkdownResource);
  } else {
    setPlainText("The user's guide (user_guide.md) was not found beside the program.");
  }
  show();
  raise();
  activateWindow();
  if (!heading.isEmpty()) find(heading);
}

}  // namespace lumivex
