#include "ui/help/help_window.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/look.h"

namespace lumivex {

namespace {

/// The pages in the order of the contents; others of the folder are for developers.
constexpr const char* pages[] = {
    "user_guide.md",          "input_pages.md",
    "user_guide_graphs.md",   "user_guide_comparing.md",
    "graph_pages.md",         "user_guide_methods.md",
    "method_pages.md",        "user_guide_maps.md",
    "user_guide_colour.md",   "user_guide_simulation.md",
    "user_guide_examples.md", "physics.md",
    "physics_rays.md",        "physics_layers.md",
    "physics_beams.md",       "physics_drops.md",
    "physics_time.md",        "user_guide_time.md",
    "physics_sky.md",         "physics_materials.md",
    "results-file.md",        "batch-file.md",
    "json-lines.md",          "cluster.md",
};

QString Read(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QToolButton* Button(Qt::ArrowType arrow, const QString& name, const QKeySequence& keys, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setArrowType(arrow);
  button->setToolTip(name + " (" + keys.toString(QKeySequence::NativeText) + ")");
  button->setAccessibleName(name);
  button->setShortcut(keys);
  button->setEnabled(false);
  return button;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QWidget(parent) {
  setWindowFlag(Qt::Window);
  setWindowTitle("Lumivex - user guide");
  ReadTopics();
  MakeWidgets();
  ListContents();
  const int em = fontMetrics().height();
  resize(66 * em, 46 * em);
  connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, search_, [this] {
    search_->setFocus();
    search_->selectAll();
  });
}

void HelpWindow::MakeWidgets() {
  back_ = Button(Qt::LeftArrow, "Back", QKeySequence(Qt::ALT | Qt::Key_Left), this);
  forward_ = Button(Qt::RightArrow, "Forward", QKeySequence(Qt::ALT | Qt::Key_Right), this);
  search_ = new QLineEdit(this);
  search_->setPlaceholderText("Search the guide");
  search_->setAccessibleName("Search the guide");
  search_->setClearButtonEnabled(true);
  list_ = new QTreeWidget(this);
  list_->setHeaderHidden(true);
  list_->setAccessibleName("Contents");
  list_->setUniformRowHeights(true);
  page_ = new QTextBrowser(this);
  page_->setAccessibleName("Page of the guide");
  page_->setOpenLinks(false);
  page_->document()->setDocumentMargin(24);

  auto* head = new QHBoxLayout;
  head->addWidget(back_);
  head->addWidget(forward_);
  head->addWidget(search_);
  auto* side = new QWidget(this);
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(6, 6, 0, 6);
  column->addLayout(head);
  column->addWidget(list_);
  auto* halves = new QSplitter(this);
  halves->addWidget(side);
  halves->addWidget(page_);
  halves->setStretchFactor(1, 1);
  const int em = fontMetrics().height();
  halves->setSizes({18 * em, 48 * em});
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(halves);

  connect(search_, &QLineEdit::textChanged, this, [this](const QString& words) { ListFound(words); });
  connect(search_, &QLineEdit::returnPressed, this, [this] {
    if (auto* first = list_->topLevelItem(0))
      Visit(static_cast<std::size_t>(first->data(0, Qt::UserRole).toULongLong()));
  });
  connect(list_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item != nullptr) Visit(static_cast<std::size_t>(item->data(0, Qt::UserRole).toULongLong()));
  });
  connect(back_, &QToolButton::clicked, this, [this] { Step(-1); });
  connect(forward_, &QToolButton::clicked, this, [this] { Step(1); });
  connect(page_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { Follow(link); });
}

QString HelpWindow::Folder() {
  const QDir program(QCoreApplication::applicationDirPath());
  for (const char* place : {"../share/lumivex/doc", "docs", "../docs", "../../docs"})
    if (const QString path = program.absoluteFilePath(place); QFile::exists(path + "/user_guide.md"))
      return QDir::cleanPath(path);
  // A program that was built elsewhere finds it in the sources that it was built from.
  const QString source = QFileInfo(__FILE__).absoluteDir().absoluteFilePath("../../../docs");
  return QFile::exists(source + "/user_guide.md") ? QDir::cleanPath(source) : QString();
}

void HelpWindow::ReadTopics() {
  const QString folder = Folder();
  for (const char* page : pages) {
    auto topics = TopicsOf(FromQString(Read(folder + "/" + page)), page);
    topics_.insert(topics_.end(), std::make_move_iterator(topics.begin()), std::make_move_iterator(topics.end()));
  }
}

void HelpWindow::ListContents() {
  const QSignalBlocker quiet(list_);
  list_->clear();
  list_->setRootIsDecorated(true);
  QTreeWidgetItem *page = nullptr, *chapter = nullptr;
  for (std::size_t i = 0; i < topics_.size(); ++i) {
    const HelpTopic& topic = topics_[i];
    auto* item = new QTreeWidgetItem(QStringList(ToQString(topic.title)));
    item->setData(0, Qt::UserRole, static_cast<qulonglong>(i));
    if (topic.level == 1 || page == nullptr) {
      list_->addTopLevelItem(page = item);
      chapter = nullptr;
    } else if (topic.level == 2 || chapter == nullptr) {
      page->addChild(chapter = item);
    } else {
      chapter->addChild(item);
    }
  }
}

void HelpWindow::ListFound(const QString& words) {
  if (words.trimmed().isEmpty()) return ListContents();
  constexpr std::size_t most = 40;
  const QSignalBlocker quiet(list_);
  list_->clear();
  list_->setRootIsDecorated(false);
  auto found = SearchTopics(topics_, FromQString(words));
  found.resize(std::min(found.size(), most));
  for (const std::size_t place : found) {
    auto* item = new QTreeWidgetItem(list_, QStringList(ToQString(topics_[place].title)));
    item->setData(0, Qt::UserRole, static_cast<qulonglong>(place));
    item->setToolTip(0, ToQString(topics_[place].text.substr(0, topics_[place].text.find("\n\n"))).trimmed());
  }
}

void HelpWindow::ShowTopic(std::string_view name) {
  // A page has its lines, and its headings their places, by the width of the window.
  show();
  if (topics_.empty()) {
    page_->setPlainText("The user's guide (user_guide.md) was not found beside the program.");
  } else {
    Visit(TopicFor(topics_, name));
  }
  raise();
  activateWindow();
}

void HelpWindow::Visit(std::size_t topic) {
  if (visited_.empty() || visited_[place_] != topic) {
    visited_.resize(visited_.empty() ? 0 : place_ + 1);
    visited_.push_back(topic);
    place_ = visited_.size() - 1;
  }
  Open(topic);
}

void HelpWindow::Step(int by) {
  place_ = by < 0 ? place_ - 1 : place_ + 1;
  Open(visited_[place_]);
}

void HelpWindow::Open(std::size_t topic) {
  const HelpTopic& shown = topics_[topic];
  const QString file = Folder() + "/" + ToQString(shown.file);
  // As a source, not as a text: the pictures are then found beside it.
  if (file != shownFile_) page_->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
  shownFile_ = file;
  ScrollTo(shown.number);
  MarkInList(topic);
  back_->setEnabled(place_ > 0);
  forward_->setEnabled(place_ + 1 < visited_.size());
  setWindowTitle("Lumivex - " + ToQString(shown.title));
}

void HelpWindow::MarkInList(std::size_t topic) {
  const QSignalBlocker quiet(list_);
  for (QTreeWidgetItemIterator item(list_); *item != nullptr; ++item)
    if ((*item)->data(0, Qt::UserRole).toULongLong() == topic) list_->setCurrentItem(*item);
}

void HelpWindow::ScrollTo(int heading) {
  int number = -1;
  for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
    const int level = block.blockFormat().headingLevel();
    if (level < 1 || level > 3 || ++number < heading) continue;
    const double top = page_->document()->documentLayout()->blockBoundingRect(block).top();
    page_->verticalScrollBar()->setValue(heading == 0 ? 0 : static_cast<int>(top));
    return;
  }
}

void HelpWindow::Follow(const QUrl& link) {
  if (!link.scheme().isEmpty() && !link.isLocalFile()) {
    QDesktopServices::openUrl(link);
    return;
  }
  const QString named = QFileInfo(link.path()).fileName();
  const std::string file = FromQString(named.isEmpty() ? QFileInfo(shownFile_).fileName() : named);
  const std::string anchor = FromQString(link.fragment());
  const auto leads = [&](const HelpTopic& topic) {
    return topic.file == file && (anchor.empty() || AnchorOf(topic.title) == anchor);
  };
  const auto topic = std::ranges::find_if(topics_, leads);
  if (topic != topics_.end()) Visit(static_cast<std::size_t>(topic - topics_.begin()));
}

}  // namespace lumivex
