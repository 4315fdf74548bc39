#include "ui/slider_view.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "record/number_text.h"
#include "ui/look.h"

namespace lumivex {

namespace {

constexpr int places = 1000;       // of the slider
constexpr int lookMs = 15;         // how often a film looks whether its picture is there
constexpr double filmSeconds = 8;  // from end to end on the screen
constexpr int picturesAtFirst = 46, mostPictures = 9999;

void SetText(QLineEdit* edit, const std::string& text) {
  if (!edit->hasFocus() || edit->text().isEmpty()) edit->setText(ToQString(text));
}

}  // namespace

SliderView::SliderView(Session& session, LiveGraph* graph, std::function<void(const CommandGate::Action&)> act,
                       QWidget* parent)
    : QFrame(parent), session_(session), graph_(graph), act_(std::move(act)) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setAccessibleName(tr("Slider"));
  Build();
  moving_.setInterval(lookMs);
  connect(&moving_, &QTimer::timeout, this, [this] { GoOn(); });
}

void SliderView::Build() {
  list_ = new QComboBox;
  list_->setAccessibleName(tr("What the slider moves"));
  low_ = new QLineEdit;
  low_->setAccessibleName(tr("Left end of the slider"));
  high_ = new QLineEdit;
  high_->setAccessibleName(tr("Right end of the slider"));
  slider_ = new QSlider(Qt::Horizontal);
  slider_->setRange(0, places);
  slider_->setPageStep(places / 20);
  slider_->setMinimumWidth(120);
  logarithmic_ = new QCheckBox(tr("Log"));
  logarithmic_->setToolTip(tr("Equal steps of the slider are equal ratios"));
  play_ = new QPushButton(tr("Play"));
  play_->setObjectName("Play");
  play_->setToolTip(tr("Sweeps from the left end to the right one"));
  save_ = new QPushButton(tr("Save film ..."));
  save_->setObjectName("SaveFilm");
  save_->setToolTip(tr("Writes the sweep as numbered PNG pictures"));
  pictures_ = new QSpinBox;
  pictures_->setRange(2, mostPictures);
  pictures_->setValue(picturesAtFirst);
  pictures_->setSuffix(tr(" pictures"));
  pictures_->setAccessibleName(tr("Pictures of the film"));
  auto* close = new QPushButton(tr("Close"));
  for (QLineEdit* end : {low_, high_}) {
    end->setMaximumWidth(fontMetrics().averageCharWidth() * 11);
    connect(end, &QLineEdit::editingFinished, this, [this] { TakeEnds(); });
  }
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 3, 6, 3);
  row->setSpacing(5);
  for (QWidget* widget :
       std::initializer_list<QWidget*>{list_, low_, slider_, high_, logarithmic_, play_, save_, pictures_, close})
    row->addWidget(widget, widget == slider_ ? 1 : 0);
  connect(list_, &QComboBox::activated, this,
          [this](int place) { Choose(static_cast<Slid>(list_->itemData(place).toInt())); });
  connect(logarithmic_, &QCheckBox::toggled, this, [this](bool on) {
    range_.logarithmic = on;
    Sync();
  });
  connect(slider_, &QSlider::valueChanged, this, [this](int place) {
    Stop();
    Slide(static_cast<double>(place) / places);
  });
  connect(play_, &QPushButton::clicked, this, [this] { moving_.isActive() ? Stop() : Play(); });
  connect(save_, &QPushButton::clicked, this, [this] { film_ ? Stop() : AskForFilm(); });
  connect(close, &QPushButton::clicked, this, [this] {
    Stop();
    hide();
  });
}

void SliderView::Open(Slid what) {
  if (isHidden() || what != what_) Choose(CanSlide(session_, what) ? what : Slid::Radius);
  show();
  raise();
  Sync();
  // Not here: a command gives the focus back to where it was.
  QTimer::singleShot(0, slider_, [this] { slider_->setFocus(); });
}

void SliderView::Choose(Slid what) {
  Stop();
  what_ = what;
  range_ = RangeToBeginWith(session_, what);
  low_->clear();
  high_->clear();
  Sync();
}

void SliderView::TakeEnds() {
  const std::string low = FromQString(low_->text()), high = FromQString(high_->text());
  // An end that is none goes back to what it was.
  if (IsNumber(low) && IsNumber(high) && Val(low) != Val(high)) {
    range_.low = Val(low);
    range_.high = Val(high);
  }
  low_->setText(ToQString(Shortest(range_.low)));
  high_->setText(ToQString(Shortest(range_.high)));
  Sync();
}

void SliderView::Sync() {
  if (isHidden()) return;
  std::vector<std::pair<QString, int>> offered;
  for (const Slid what : allSlid)
    if (CanSlide(session_, what)) offered.emplace_back(ToQString(NameOfSlid(session_, what)), static_cast<int>(what));
  if (offered != std::exchange(offered_, offered)) {
    list_->clear();
    for (const auto& [name, number] : offered) list_->addItem(name, number);
  }
  list_->setCurrentIndex(list_->findData(static_cast<int>(what_)));
  const bool can = CanSlide(session_, what_), films = can && graph_ && session_.form1.mnuLiveGraph.Checked;
  SetText(low_, Shortest(range_.low));
  SetText(high_, Shortest(range_.high));
  const QString name = ToQString(NameOfSlid(session_, what_)), text = ToQString(SlidText(session_, what_));
  slider_->setAccessibleName(name);
  slider_->setAccessibleDescription(text);
  {
    const QSignalBlocker quiet(slider_);
    slider_->setValue(static_cast<int>(range_.PlaceOf(Val(SlidText(session_, what_))) * places + 0.5));
  }
  {
    const QSignalBlocker quiet(logarithmic_);
    logarithmic_->setChecked(range_.logarithmic && range_.low > 0);
  }
  logarithmic_->setEnabled(!range_.whole && range_.low > 0 && range_.high > 0);
  slider_->setEnabled(can);
  play_->setEnabled(films && !film_);
  save_->setEnabled(films);
  pictures_->setEnabled(films && !film_);
  play_->setText(moving_.isActive() && !film_ ? tr("Pause") : tr("Play"));
  save_->setText(film_ ? tr("Stop film") : tr("Save film ..."));
  save_->setAccessibleDescription(film_ ? tr("Picture %1 of %2").arg(film_->next + 1).arg(pictures_->value())
                                        : QString());
}

void SliderView::StandAbove(int bottom, int room) {
  constexpr int mostWidth = 900;
  const QSize size(std::min(std::max(mostWidth, sizeHint().width()), room), sizeHint().height());
  setGeometry(0, std::max(0, bottom - size.height()), size.width(), size.height());
}

bool SliderView::Slide(double place) {
  const std::string text = range_.TextAt(place);
  act_([this, &text] { UserSlides(session_, what_, text); });
  return SlidText(session_, what_) == text;
}

void SliderView::Play() {
  // From the end it begins again.
  const double now = range_.PlaceOf(Val(SlidText(session_, what_)));
  startPlace_ = now < 1 ? now : 0;
  since_.start();
  moving_.start();
  Slide(startPlace_);
}

void SliderView::GoOn() {
  // What stands in an open dialog is not to be mixed with what the film types.
  if (session_.state.Busy != 0 || !session_.undo.open.empty()) return;
  if (!CanSlide(session_, what_) || !session_.form1.mnuLiveGraph.Checked) return Stop();
  if (film_) return SaveOn();
  // The place goes by the clock: slow runs have fewer pictures, and none is cut off.
  if (graph_->Stands() == LiveGraph::Standing::Running) return;
  const double place = startPlace_ + static_cast<double>(since_.elapsed()) / 1000 / filmSeconds;
  if (place >= 1) moving_.stop();
  Slide(place);
}

void SliderView::AskForFilm() {
  std::optional<std::string> path;
  act_([&] { path = session_.platform.SaveFileName({"Save film", "PNG pictures (*.png)", "film.png"}); });
  if (!path) return;
  Stop();
  film_ = Film{*path, SlidText(session_, what_)};
  if (const std::string fault = FaultOfFilmName(*path); !fault.empty()) return EndFilm(fault);
  graph_->SetPatient(true);
  moving_.start();
  SaveOn();
}

void SliderView::SaveOn() {
  using Standing = LiveGraph::Standing;
  const int count = pictures_->value();
  if (film_->awaited) {
    const Standing stands = graph_->Stands();
    if (stands == Standing::Running) return;
    if (stands == Standing::Waiting || stands == Standing::Refused)
      return EndFilm("Picture " + std::to_string(film_->next + 1) + " cannot be calculated: " + graph_->Words());
    const std::string trouble = savePicture(FilmName(film_->path, film_->next + 1));
    if (!trouble.empty()) return EndFilm(trouble);
    film_->awaited = false;
    if (++film_->next == count) return EndFilm({});
  }
  // While another command is under way nothing is typed: the next look tries again.
  film_->awaited = Slide(static_cast<double>(film_->next) / (count - 1));
}

void SliderView::EndFilm(const std::string& trouble) {
  const Film film = *std::exchange(film_, std::nullopt);
  moving_.stop();
  graph_->SetPatient(false);
  act_([&] {
    UserSlides(session_, what_, film.before);
    if (!trouble.empty()) session_.platform.Message("Save film", trouble);
  });
}

void SliderView::Stop() {
  moving_.stop();
  if (film_) EndFilm({});
  Sync();
}

void SliderView::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QFrame::keyPressEvent(event);
  if (moving_.isActive()) return Stop();
  hide();
}

}  // namespace lumivex
