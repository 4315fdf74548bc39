#include "ui/curves_window.h"

#include <QCloseEvent>
#include <QColorDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "record/number_text.h"
#include "session/user_actions.h"
#include "ui/look.h"

namespace lumivex {

namespace {

constexpr QSize startSize{520, 460};
constexpr int nameColumn = 0, keptColumn = 1;

QColor ToQColor(Colour colour) {
  return {colour.Red(), colour.Green(), colour.Blue()};
}

QIcon Swatch(Colour colour, int size) {
  QPixmap picture(size, size);
  picture.fill(ToQColor(colour));
  QPainter painter(&picture);
  painter.setPen(Qt::gray);
  painter.drawRect(0, 0, size - 1, size - 1);
  return picture;
}

QTreeWidget* List(const QString& name, const QStringList& heads, QWidget* parent) {
  auto* list = new QTreeWidget(parent);
  list->setAccessibleName(name);
  list->setHeaderLabels(heads);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setAllColumnsShowFocus(true);
  return list;
}

/// A column of ticks alone has no text to be typed.
class TicksOnly final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QWidget* createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const override { return nullptr; }
};

bool SameList(const std::vector<ListedCurve>& a, const std::vector<ListedCurve>& b) {
  return std::ranges::equal(a, b, [](const ListedCurve& p, const ListedCurve& q) {
    return p.id == q.id && p.name == q.name && p.colour == q.colour && p.shown == q.shown && p.kept == q.kept &&
           p.words == q.words;
  });
}

}  // namespace

CurvesWindow::CurvesWindow(CommandGate& gate, Session& session, QWidget* parent)
    : QWidget(parent, Qt::Tool), gate_(gate), session_(session), form_(session.forms.curves) {
  setWindowTitle(ToQString(form_.Caption));
  askColour = [this](const QColor& now) -> std::optional<QColor> {
    const QColor picked = QColorDialog::getColor(now, this, "Colour of the curve");
    if (!picked.isValid()) return std::nullopt;
    return picked;
  };
  auto* tabs = new QTabWidget(this);
  tabs->setAccessibleName("Curves and marked points");
  tabs->tabBar()->setAccessibleName("Curves or marked points");
  tabs->addTab(BuildCurves(), "C&urves");
  tabs->addTab(BuildMarkers(), "Marked &points");
  auto* column = new QVBoxLayout(this);
  column->addWidget(tabs);
  resize(startSize);
  ShowList();
  ShowChosen();
  ShowMarkers();
}

QPushButton* CurvesWindow::Button(const QString& text, const QString& tip, std::function<void()> press,
                                  QWidget* parent) {
  auto* button = new QPushButton(text, parent);
  button->setToolTip(tip);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [press = std::move(press)] { press(); });
  return button;
}

QWidget* CurvesWindow::BuildCurves() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  curves_ = List("Curves", {"Curve", "Kept"}, page);
  curves_->header()->setStretchLastSection(false);
  curves_->header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
  curves_->header()->setSectionResizeMode(keptColumn, QHeaderView::ResizeToContents);
  curves_->setItemDelegateForColumn(keptColumn, new TicksOnly(curves_));
  curves_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
  curves_->setToolTip("A tick shows a curve; double click or F2 to give it a name; kept curves stay over new plots");
  connect(curves_, &QTreeWidget::itemChanged, this, &CurvesWindow::Changed);
  connect(curves_, &QTreeWidget::currentItemChanged, this, [this] { ShowChosen(); });
  column->addWidget(curves_, 1);
  column->addWidget(BuildChosen(page));
  return page;
}

QWidget* CurvesWindow::BuildChosen(QWidget* parent) {
  auto* body = new QWidget(parent);
  auto* grid = new QGridLayout(body);
  grid->setContentsMargins(0, 0, 0, 0);
  keep_ = Button(
      "&Keep", "Holds the curve over new plots, in a colour of its own",
      [this] {
        if (const ListedCurve* curve = Chosen())
          Act([this, id = curve->id, kept = curve->kept] { KeepCurve(session_, id, !kept); });
      },
      body);
  colour_ = Button(
      "&Colour ...", "Another colour for the curve", [this] { PickColour(); }, body);
  remove_ = Button(
      "&Remove", "Takes the curve off the page; Undo brings it back",
      [this] {
        if (const ListedCurve* curve = Chosen()) Act([this, id = curve->id] { RemoveCurve(session_, id); });
      },
      body);
  auto* open = Button(
      "&Open data ...", "Columns of a text file as points over the curves",
      [this] { Act([this] { UserClicks(session_, session_.form1.mnuOpenData); }); }, body);
  QPushButton* const upper[] = {keep_, colour_, remove_, open};
  for (int i = 0; i < 4; ++i) grid->addWidget(upper[i], 0, i);

  against_ = new QComboBox(body);
  against_->setAccessibleName("The other curve");
  against_->setToolTip("The curve that the chosen one is compared with, or measured data are held against");
  against_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(against_, &QComboBox::activated, this, [this](int place) {
    const ListedCurve* curve = Chosen();
    const auto other = static_cast<std::size_t>(against_->itemData(place).toInt());
    if (curve && curve->id.data != 0 && other < listed_.size())
      Act([this, number = curve->id.data, id = listed_[other].id] { HoldAgainst(session_, number, id); });
  });
  auto* label = new QLabel("&With", body);
  label->setBuddy(against_);
  difference_ = Button(
      "&Difference", "The chosen curve less the other, below the graph", [this] { Compare(BelowGraph::Difference); },
      body);
  ratio_ = Button(
      "Ra&tio", "The chosen curve over the other, below the graph", [this] { Compare(BelowGraph::Ratio); }, body);
  none_ = Button(
      "&Nothing below", "Takes the panel below the graph away",
      [this] { Act([this] { ShowBelow(session_, BelowGraph::Nothing); }); }, body);
  grid->addWidget(label, 1, 0);
  grid->addWidget(against_, 1, 1, 1, 3);
  grid->addWidget(difference_, 2, 1);
  grid->addWidget(ratio_, 2, 2);
  grid->addWidget(none_, 2, 3);

  factors_ = new QWidget(body);
  auto* row = new QHBoxLayout(factors_);
  row->setContentsMargins(0, 0, 0, 0);
  fitted_ = new QRadioButton("Factor &fitted", factors_);
  fitted_->setToolTip("measured = factor times curve, by least squares with the errors of the data");
  typed_ = new QRadioButton("t&yped", factors_);
  factor_ = new QLineEdit(factors_);
  factor_->setAccessibleName("Factor of the measured data");
  connect(fitted_, &QRadioButton::clicked, this, [this] {
    if (const ListedCurve* curve = Chosen())
      Act([this, number = curve->id.data] { ScaleData(session_, number, std::nullopt); });
  });
  connect(typed_, &QRadioButton::clicked, this, [this] { TypeFactor(); });
  connect(factor_, &QLineEdit::editingFinished, this, [this] {
    if (factor_->isModified()) TypeFactor();
  });
  row->addWidget(fitted_);
  row->addWidget(typed_);
  row->addWidget(factor_, 1);
  grid->addWidget(factors_, 3, 0, 1, 4);
  words_ = new QLabel(body);
  words_->setTextFormat(Qt::PlainText);
  words_->setWordWrap(true);
  words_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  grid->addWidget(words_, 4, 0, 1, 4);
  return body;
}

QWidget* CurvesWindow::BuildMarkers() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  clicks_ = new QCheckBox("&Mark points by clicks", page);
  clicks_->setToolTip("A click on a curve marks its nearest point; with the keyboard M marks the point that is read");
  connect(clicks_, &QCheckBox::clicked, this,
          [this] { Act([this] { UserClicks(session_, session_.form1.mnuMarkPoints); }); });
  markers_ = List("Marked points", {"No.", "x", "Value", "Curve"}, page);
  connect(markers_, &QTreeWidget::currentItemChanged, this,
          [this] { deleteMark_->setEnabled(markers_->currentItem() != nullptr); });
  auto* row = new QHBoxLayout;
  deleteMark_ = Button(
      "&Delete", "Forgets the chosen point",
      [this] {
        const int place = markers_->indexOfTopLevelItem(markers_->currentItem());
        if (place < 0 || place >= static_cast<int>(marked_.size())) return;
        Act([this, number = marked_[static_cast<std::size_t>(place)].number] { DeleteMarker(session_, number); });
      },
      page);
  clearMarks_ = Button(
      "C&lear", "Forgets all points", [this] { Act([this] { ClearMarkers(session_); }); }, page);
  copyMarks_ = Button(
      "Cop&y", "All points as a table for a spreadsheet",
      [this] { session_.platform.CopyText(MarkersAsText(session_.comparison, '\t')); }, page);
  for (QPushButton* button : {deleteMark_, clearMarks_, copyMarks_}) row->addWidget(button);
  row->addStretch(1);
  column->addWidget(clicks_);
  column->addWidget(markers_, 1);
  column->addLayout(row);
  return page;
}

void CurvesWindow::Act(const CommandGate::Action& command) {
  if (!gate_.Do(command)) Refresh();
}

const ListedCurve* CurvesWindow::Chosen() const {
  const int place = curves_->indexOfTopLevelItem(curves_->currentItem());
  return place >= 0 && place < static_cast<int>(listed_.size()) ? &listed_[static_cast<std::size_t>(place)] : nullptr;
}

void CurvesWindow::Changed(QTreeWidgetItem* item, int column) {
  const int place = curves_->indexOfTopLevelItem(item);
  if (filling_ || place < 0 || place >= static_cast<int>(listed_.size())) return;
  const ListedCurve before = listed_[static_cast<std::size_t>(place)];
  const bool ticked = item->checkState(column) == Qt::Checked;
  if (column == keptColumn) {
    if (ticked != before.kept) Act([&] { KeepCurve(session_, before.id, ticked); });
  } else if (ticked != before.shown) {
    Act([&] { ShowCurve(session_, before.id, ticked); });
  } else if (const std::string name = FromQString(item->text(nameColumn)); name != before.name) {
    Act([&] { NameCurve(session_, before.id, std::string(Trim(name))); });
  }
}

void CurvesWindow::PickColour() {
  const ListedCurve* curve = Chosen();
  if (curve == nullptr) return;
  const CurveId id = curve->id;
  const auto picked = askColour(ToQColor(curve->colour));
  if (picked) Act([&] { ColourCurve(session_, id, RGB(picked->red(), picked->green(), picked->blue())); });
}

void CurvesWindow::Compare(BelowGraph how) {
  const ListedCurve* curve = Chosen();
  const auto other = static_cast<std::size_t>(against_->currentData().toInt());
  if (curve == nullptr || against_->currentIndex() < 0 || other >= listed_.size()) return;
  Act([this, first = curve->id, second = listed_[other].id, how] { ComparePair(session_, first, second, how); });
}

void CurvesWindow::TypeFactor() {
  const ListedCurve* curve = Chosen();
  const std::string text = FromQString(factor_->text());
  if (curve == nullptr || curve->id.data == 0) return;
  if (!IsNumber(text) || Val(text) == 0) return ShowChosen();
  factor_->setModified(false);
  Act([this, number = curve->id.data, value = Val(text)] { ScaleData(session_, number, value); });
}

void CurvesWindow::ShowList() {
  auto list = CurvesOnPage(session_);
  if (SameList(list, listed_)) return;
  const int chosen = curves_->indexOfTopLevelItem(curves_->currentItem());
  listed_ = std::move(list);
  filling_ = true;
  const int size = curves_->fontMetrics().height();
  while (curves_->topLevelItemCount() > static_cast<int>(listed_.size()))
    delete curves_->takeTopLevelItem(curves_->topLevelItemCount() - 1);
  while (curves_->topLevelItemCount() < static_cast<int>(listed_.size())) new QTreeWidgetItem(curves_);
  for (int i = 0; i < static_cast<int>(listed_.size()); ++i) {
    const ListedCurve& curve = listed_[static_cast<std::size_t>(i)];
    QTreeWidgetItem& item = *curves_->topLevelItem(i);
    item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
    item.setText(nameColumn, ToQString(curve.name));
    item.setToolTip(nameColumn, ToQString(curve.words.empty() ? curve.name : curve.name + ": " + curve.words));
    item.setIcon(nameColumn, Swatch(curve.colour, size));
    item.setCheckState(nameColumn, curve.shown ? Qt::Checked : Qt::Unchecked);
    if (curve.id.data == 0) item.setCheckState(keptColumn, curve.kept ? Qt::Checked : Qt::Unchecked);
    if (curve.id.data != 0) item.setData(keptColumn, Qt::CheckStateRole, {});
  }
  const int count = curves_->topLevelItemCount();
  if (count > 0) curves_->setCurrentItem(curves_->topLevelItem(std::clamp(chosen, 0, count - 1)));
  filling_ = false;
}

void CurvesWindow::ShowChosen() {
  const ListedCurve* curve = Chosen();
  const MeasuredData* points = curve ? FindData(session_, curve->id.data) : nullptr;
  keep_->setEnabled(curve && !points);
  keep_->setText(curve && curve->kept ? "Let &go" : "&Keep");
  for (QPushButton* button : {colour_, remove_}) button->setEnabled(curve != nullptr);
  const CurveId other = points               ? curve->against
                        : listed_.size() > 1 ? listed_[against_->currentData().toUInt() % listed_.size()].id
                                             : CurveId{};
  against_->clear();
  for (std::size_t i = 0; i < listed_.size(); ++i) {
    if (&listed_[i] == curve || (points && listed_[i].id.data != 0)) continue;
    against_->addItem(ToQString(listed_[i].name), static_cast<int>(i));
    if (listed_[i].id == other) against_->setCurrentIndex(against_->count() - 1);
  }
  const bool two = curve && against_->count() > 0;
  against_->setEnabled(two);
  difference_->setEnabled(two);
  ratio_->setEnabled(two);
  none_->setEnabled(session_.comparison.below != BelowGraph::Nothing);
  factors_->setVisible(points != nullptr);
  words_->setVisible(points != nullptr);
  if (!points) return;
  (points->fitted ? fitted_ : typed_)->setChecked(true);
  factor_->setText(ToQString(std::string(Trim(Significant(curve->factor, 8)))));
  words_->setText(ToQString(curve->words));
}

void CurvesWindow::ShowMarkers() {
  clicks_->setChecked(session_.form1.mnuMarkPoints.Checked);
  const auto& markers = session_.comparison.markers;
  for (QPushButton* button : {clearMarks_, copyMarks_}) button->setEnabled(!markers.empty());
  deleteMark_->setEnabled(markers_->currentItem() != nullptr);
  if (markers == marked_) return;
  marked_ = markers;
  markers_->clear();
  const auto value = [](double number, const std::string& unit) {
    return ToQString(std::string(Trim(Significant(number, 7))) + (unit.empty() ? "" : " " + unit));
  };
  for (const Marker& marker : marked_)
    new QTreeWidgetItem(markers_, {QString::number(marker.number), value(marker.x, marker.xUnit),
                                   value(marker.y, marker.yUnit), ToQString(marker.curve)});
  for (int column = 0; column < markers_->columnCount(); ++column) markers_->resizeColumnToContents(column);
}

void CurvesWindow::Refresh() {
  if (isVisible() != form_.Visible) setVisible(form_.Visible);
  if (!form_.Visible) return;
  ShowList();
  ShowChosen();
  ShowMarkers();
}

void CurvesWindow::closeEvent(QCloseEvent* event) {
  form_.Visible = false;
  event->accept();
}

void CurvesWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return close(), void();
  QWidget::keyPressEvent(event);
}

}  // namespace lumivex
