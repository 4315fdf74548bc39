#include "ui/main_window.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QCloseEvent>
#include <QComboBox>
#include <QCursor>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "files/open_file.h"
#include "pages/build_page.h"
#include "pages/items/readings.h"
#include "pages/page_in_words.h"
#include "record/text_file.h"
#include "session/info.h"
#include "session/page.h"
#include "session/undo.h"
#include "session/user_actions.h"
#include "session/window_events.h"
#include "ui/access_keys.h"
#include "ui/help/help_topics.h"
#include "ui/look.h"
#include "ui/menu_button.h"

namespace lumivex {

namespace {

constexpr double panelHeight = 2800;                     // the strip of the input panel (surface units)
constexpr double leastHeight = 7000;                     // below that the drawing is scrolled
constexpr double marginRight = 600, marginBottom = 900;  // around a graph of fixed size (surface units)

/// Title bar and edges that the desktop puts around a window (pixels); it tells them only once the window is shown.
constexpr QSize windowFrame{16, 40};
constexpr int startWidthPx = 1400, startHeightPx = 900;

bool IsReturn(const QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent*>(event)->key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

std::vector<std::string> LocalFiles(const QMimeData& data) {
  std::vector<std::string> paths;
  for (const QUrl& url : data.urls())
    if (url.isLocalFile()) paths.push_back(FromQString(url.toLocalFile()));
  return paths;
}

/// What a window may take of its screen; without a display there is none to stand out of.
QSize RoomOnScreen(const QWidget& window) {
  constexpr int plenty = 4000;
  if (QGuiApplication::platformName() == "offscreen") return {plenty, plenty};
  return window.screen()->availableGeometry().size() - windowFrame;
}

}  // namespace

MainWindow::MainWindow(CommandGate& gate)
    : gate_(gate),
      scroll_(new QScrollArea(this)),
      canvas_(new Canvas(scroll_)),
      statusLine_(*statusBar()),
      pointer_(*canvas_, [this](const CommandGate::Action& command) { Act(command); }),
      live_(
          *this, *canvas_,
          [this](const CommandGate::Action& command) {
            pointer_.LeaveView();
            Act(command);
          },
          [this] { Refresh(); }),
      undoKeys_([this](bool redo) {
        auto& form = session_->form1;
        Act([&] { UserClicks(*session_, redo ? form.mnuRedo : form.mnuUndo); });
      }) {
  setWindowTitle("Lumivex");
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidget(canvas_);
  setCentralWidget(scroll_);
  setAcceptDrops(true);
  canvas_->resized = [this] { Resized(); };
  canvas_->inWords = [this] { return session_ ? PageInWords(ShownPage(*session_)) : std::string(); };
  canvas_->tip = [this](double x, double y) {
    return session_ ? MeaningOfReadingAt(canvas_->Surface(), session_->page, x, y) : std::string();
  };
  canvas_->mouse.press = [this](double x, double y) {
    // A press on a picture of times may begin a drag: it counts when it has ended as a click.
    if (!pointer_.IsOnTimes({x, y}) && !pointer_.IsOnKey({x, y}))
      Act([this, x, y] { Form_MouseDown(*session_, x, y); });
    pointer_.Press({x, y});
  };
  pointer_.clicked = [this](double x, double y) {
    if (pointer_.IsOnTimes({x, y})) Act([this, x, y] { Form_MouseDown(*session_, x, y); });
    if (session_->form1.mnuMarkPoints.Checked) Act([this, x, y] { MarkPoint(*session_, x, y); });
  };
  canvas_->key = [this](const QKeyEvent& event) { return pointer_.Key(event); };
  statusLine_.spectrumWanted = [this] {
    Act([this] { UserChooses(*session_, session_->form1.cboWave, std::to_string(wavelengthsOfSun)); });
  };
  pointer_.readingChanged = [this] { statusLine_.ShowReading(pointer_.Text()); };
  gate_.refresh = [this] { Refresh(); };
  gate_.whenFree = [this] {
    if (lookIsStale_) TakeNewLook();
    if (canvas_->IsStale()) Resized();
    // Last: a resize is a command too.
    if (!gate_.Running() && live_.Follow()) Refresh();
  };
  gate_.begins = [this] { live_.Pause(); };
  live_.savePicture = [this](const std::string& path) { return SavePage(ShownPage(*session_), Page(), path); };
  gate_.stop = [this] {
    if (session_->forms.form2.cmdStopSim.Enabled) UserClicks(*session_, session_->forms.form2.cmdStopSim);
    UserClicks(*session_, session_->form1.cmdStop);
    // Enter was meant for the run that is not wanted any more.
    if (session_->state.StopAnswer != 0) gate_.DropEnter();
    Refresh();
  };
  AddKeys();
  resize(QSize(startWidthPx, startHeightPx).boundedTo(RoomOnScreen(*this)));
}

void MainWindow::AddKeys() {
  const auto add = [this](const QKeySequence& keys, auto action) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
  };
  add(Qt::CTRL | Qt::Key_N, [this] { NewPlot(); });
  add(Qt::Key_F5, [this] {
    auto& replot = session_->form1.cmdReplot;
    if (!replot.Enabled || !replot.Visible) return NewPlot();
    Act([this, &replot] { UserClicks(*session_, replot); });
  });
  add(Qt::CTRL | Qt::Key_E, [this] { Act([this] { UserClicks(*session_, session_->form1.mnuSavePicture); }); });
  add(Qt::CTRL | Qt::Key_0, [this] { pointer_.Key(QKeyEvent(QEvent::KeyPress, Qt::Key_Home, Qt::NoModifier)); });
}

MainWindow::~MainWindow() {
  gate_.begins = gate_.refresh = gate_.whenFree = gate_.stop = nullptr;
}

ControlActions MainWindow::Actions() {
  return {[this](Control& control, const std::string& text) {
            pointer_.LeaveView();
            Act([this, &control, &text] { UserTypes(*session_, control, text); });
          },
          [this](SelectionList& list, const std::string& item) {
            pointer_.LeaveView();
            Act([this, &list, &item] { UserChooses(*session_, list, item); });
          },
          [this](Control& control) {
            // Stop acts inside the run; the gate lets nothing else through.
            if (gate_.Running() && &control == &session_->form1.cmdStop) {
              gate_.stop();
            } else {
              Act([this, &control] { UserClicks(*session_, control); });
            }
          }};
}

void MainWindow::Attach(Session& session) {
  session_ = &session;
  pointer_.Attach(session);
  menuBar()->clear();
  menu_ = std::make_unique<MenuView>(*menuBar(), session.form1, OfferedMenu(),
                                     [this](Control& entry) { Act([this, &entry] { UserClicks(*session_, entry); }); });
  for (const auto& window : std::exchange(windows_, {})) delete window;
  delete std::exchange(photograph_, nullptr);
  delete std::exchange(impulse_, nullptr);
  delete std::exchange(curves_, nullptr);
  delete std::exchange(panel_, nullptr);
  live_.Attach(session, *menu_);
  RenewInfo();
  FitPanel();
  // The first thing to type is a size.
  if (auto* radius = qobject_cast<QLineEdit*>(WidgetOf(session.form1.txtRadius))) {
    radius->setFocus();
    radius->selectAll();
  }
  RenewDrawing();
}

void MainWindow::RenewDrawing() {
  // The scroll area hands its size on later, and before the window is shown not at all.
  canvas_->resize(scroll_->maximumViewportSize().expandedTo(canvas_->minimumSize()));
  canvas_->Renew();
}

void MainWindow::FitPanel() {
  units_.resize(PanelDensities().size());
  if (!panel_) BuildPanel(density_);
  if (!isVisible()) {
    const QSize frame(0, menuBar()->sizeHint().height() + statusBar()->sizeHint().height());
    resize(size().expandedTo(canvas_->minimumSize() + frame).boundedTo(RoomOnScreen(*this)));
    layout()->activate();
  }
  // In a narrow window the panel takes a smaller font, down to what can still be read, rather than push the readings
  // out. Fonts come in steps and the frames around the text do not shrink with it, so one guess is not enough.
  const double room = scroll_->maximumViewportSize().width();
  const MenuEntry& shown = session_->form1.mnuDataVisible;
  const bool readings = shown.Visible && shown.Checked;
  const PanelFit fit = FitInto(room, readings, [this](std::size_t density) { return UnitOf(density); });
  leastUnits_ = fit.leastUnits;
  if (fit.density != density_) BuildPanel(fit.density);
  ReserveRoom();
}

double MainWindow::UnitOf(std::size_t density) {
  // The frames around the text do not shrink with it, so that a width has to be tried to be known.
  if (!(units_[density] > 0)) BuildPanel(density);
  return units_[density];
}

void MainWindow::BuildPanel(std::size_t density) {
  const QString focused =
      focusWidget() && panel_ && panel_->isAncestorOf(focusWidget()) ? focusWidget()->objectName() : "";
  delete panel_;
  density_ = density;
  const PanelDensity& dense = PanelDensities()[density];
  QFont font = QApplication::font();
  if (font.pointSizeF() > 0) font.setPointSizeF(font.pointSizeF() * dense.fontShare);
  if (dense.stretch != 100) font.setStretch(dense.stretch);
  canvas_->setFont(font);
  canvas_->setPalette(PanelPalette(QApplication::palette()));
  panel_ = new PanelView(session_->form1, MainPanel(), Actions(), dense.tight, canvas_);

  const QSize needed = panel_->Needed();
  const double unit = std::max(needed.width() / panelUnits, needed.height() / panelHeight);
  canvas_->SetUnit(unit);
  units_[density] = unit;
  panel_->setGeometry(0, 0, static_cast<int>(panelUnits * unit), static_cast<int>(panelHeight * unit));
  gate_.stopButton = panel_->WidgetOf(session_->form1.cmdStop);
  WatchInputs();
  AddMaterialMenus();
  panel_->Sync();
  AssignAccessKeys(*panel_, KeysOfMenus(*menuBar()));
  panel_->show();
  info_->raise();
  if (auto* widget = focused.isEmpty() ? nullptr : panel_->findChild<QWidget*>(focused)) widget->setFocus();
  ReserveRoom();
}

void MainWindow::AddMaterialMenus() {
  const auto add = [this](const Label& control, const char* path, const QString& name) {
    auto* label = qobject_cast<QLabel*>(panel_->WidgetOf(control));
    QMenu* menu = menu_->MenuAt(path);
    if (label && menu) new MenuButton(*label, *menu, name);
  };
  add(session_->form1.lblSphere, "Advanced/Refractive index/Sphere", "Material of the sphere");
  add(session_->form1.lblRI_Medium, "Advanced/Refractive index/Medium", "Material of the medium");
}

void MainWindow::ReserveRoom() {
  double width = std::max(leastUnits_, panelUnits), height = leastHeight;
  const bool isLoaded = HasResults(session_->state);
  if (isLoaded && !session_->form1.mnuVLarge.Checked) {
    // A graph of fixed size keeps it in a smaller window, which is then scrolled.
    width = std::max(width, session_->state.GraphRight + marginRight);
    // The panels of a map make themselves lower before their lines below are out of sight.
    if (!session_->page.map) height = std::max(height, session_->state.GraphBottom + marginBottom);
  }
  const QSize size(static_cast<int>(width * canvas_->Unit()), static_cast<int>(height * canvas_->Unit()));
  if (canvas_->minimumSize() != size) canvas_->setMinimumSize(size);
}

void MainWindow::WatchInputs() {
  for (auto* box : panel_->findChildren<QComboBox*>()) box->installEventFilter(this);
  for (auto* edit : panel_->findChildren<QLineEdit*>()) edit->installEventFilter(this);
  undoKeys_.Watch(*panel_);
  live_.Watch(*panel_);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (IsReturn(event)) {
    if (!pointer_.Enter()) NewPlot();
    return true;
  }
  // Fields take some letters with Ctrl for editing, as to empty themselves, which the window has other uses for.
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    constexpr std::array ofWindow = {Qt::Key_E, Qt::Key_U, Qt::Key_K};
    if (key->modifiers() == Qt::ControlModifier && std::ranges::find(ofWindow, key->key()) != ofWindow.end()) {
      event->ignore();
      return true;
    }
  }
  // A file is for the window: an input would take its path as text.
  if (event->type() == QEvent::DragEnter && static_cast<QDragEnterEvent*>(event)->mimeData()->hasUrls()) {
    event->ignore();
    return true;
  }
  // A list that is only passed over keeps its choice; the wheel chooses in the one that has the focus.
  if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
    event->ignore();
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::ShiftModifier) {
    ShowHelpOfInput();
    return;
  }
  if (event->key() == Qt::Key_Escape && live_.Escape()) {
    Refresh();
    return;
  }
  if (!IsReturn(event)) {
    QMainWindow::keyPressEvent(event);
    return;
  }
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (pointer_.Enter()) return;
  if (button) {
    button->click();
  } else {
    NewPlot();
  }
}

void MainWindow::ShowHelpOfInput() {
  // The one that the pointer is over, whose tip may be on show, before the one that has the focus.
  for (QWidget* widget : {QApplication::widgetAt(QCursor::pos()), focusWidget()}) {
    const Control* control = widget ? session_->form1.Find(FromQString(widget->objectName())) : nullptr;
    if (control == nullptr) continue;
    session_->platform.Help(HelpNameOf(*control));
    return;
  }
  session_->platform.Help("");
}

void MainWindow::ShowSlider() {
  live_.ShowSlider(focusWidget() ? session_->form1.Find(FromQString(focusWidget()->objectName())) : nullptr);
}

void MainWindow::NewPlot() {
  Act([this] { UserClicks(*session_, session_->form1.cmdNewPlot); });
}

void MainWindow::Act(const CommandGate::Action& command) {
  if (!session_) return;
  const QPointer<QWidget> before = focusWidget();
  if (!gate_.Do(command)) {
    Refresh();
    return;
  }
  // A run disables inputs, and a disabled one loses the focus.
  if (before && before != focusWidget() && before->isEnabled() && before->isVisible()) before->setFocus();
}

void MainWindow::Resized() {
  if (!session_ || gate_.Running()) return;
  gate_.Do([this] {
    FitPanel();
    RenewDrawing();
    Form_Resize(*session_);
    canvas_->update();
  });
}

std::string MainWindow::Place() const {
  return saveGeometry().toBase64().toStdString();
}

void MainWindow::TakePlace(const std::string& place) {
  const QByteArray bytes = QByteArray::fromBase64(QByteArray::fromStdString(place));
  // One that was cut off is taken as far as it goes, for a window of hardly any size.
  if (bytes.size() != saveGeometry().size() || !restoreGeometry(bytes)) return;
  layout()->activate();
  FitPanel();
  RenewDrawing();
}

void MainWindow::Settle() {
  // Twice: a panel of another size changes the room that the scroll area needs.
  for (int pass = 0; pass < 2; ++pass) {
    QCoreApplication::sendPostedEvents();
    layout()->activate();
    if (canvas_->IsStale()) Resized();
  }
}

void MainWindow::Refresh() {
  if (!session_) return;
  // On a dark desktop the page is dark too, unless the user has chosen its background.
  const bool night = IsDark(QApplication::palette()) && session_->form1.mnuDefault.Checked;
  if (night != canvas_->IsNight() && !gate_.Running()) {
    canvas_->SetNight(night);
    DrawPage(*session_);
  }
  panel_->Sync();
  menu_->Sync();
  // It stands where the kept page leaves room for it, and does not wander while a sweep goes on.
  info_->Sync(session_->page, canvas_->Unit(), scroll_->maximumViewportSize().width());
  statusLine_.Show(*session_, pointer_.Offer(), live_.Words());
  live_.Sync();
  for (DialogView* dialog : dialogs_) dialog->Sync();
  for (const auto& window : windows_)
    if (window) window->Sync();
  if (photograph_) photograph_->Refresh();
  if (impulse_) impulse_->Refresh();
  if (curves_) curves_->Refresh();
  pointer_.Renew();
  statusLine_.ShowReading(pointer_.Text());
  ReserveRoom();
  canvas_->ShowChanges();
}

DialogView::Hooks MainWindow::DialogHooks() {
  const auto draw = [this](const Form& form, DrawingSurface& on) {
    for (const Window& window : session_->windows)
      if (window.form == &form) Paint(window.page, on);
  };
  return {Actions(), [this](std::string_view event) { Act([&] { session_->events.Raise(event); }); }, draw};
}

bool MainWindow::ShowDialog(Form& form) {
  DialogView dialog(form, DialogHooks(), this);
  dialogs_.push_back(&dialog);
  const DialogScope open(*session_, form);
  form.Visible = true;
  const bool ok = dialog.exec() == QDialog::Accepted;
  form.Visible = false;
  dialogs_.pop_back();
  return ok;
}

void MainWindow::BringToFront(const Form& form) {
  QWidget* window = this;
  if (photograph_ && &form == &session_->forms.form2) window = photograph_;
  if (impulse_ && &form == &session_->forms.impulsePlot) window = impulse_;
  window->raise();
  window->activateWindow();
}

void MainWindow::ShowPhotograph() {
  if (!photograph_) photograph_ = new PhotographWindow(gate_, *session_, this);
  photograph_->Refresh();
  photograph_->Settle();
  BringToFront(session_->forms.form2);
}

void MainWindow::ShowImpulse() {
  if (!impulse_) impulse_ = new ImpulseWindowView(gate_, *session_, this);
  session_->forms.impulsePlot.Visible = true;
  impulse_->Refresh();
  impulse_->Settle();
  BringToFront(session_->forms.impulsePlot);
}

void MainWindow::ShowCurves() {
  if (!curves_) curves_ = new CurvesWindow(gate_, *session_, this);
  curves_->Refresh();
  curves_->raise();
  curves_->activateWindow();
}

void MainWindow::Show(Form& form) {
  if (&form == &session_->forms.curves) return ShowCurves();
  if (&form == &session_->forms.form2) return ShowPhotograph();
  if (&form == &session_->forms.impulsePlot) return ShowImpulse();
  const auto open =
      std::ranges::find_if(windows_, [&](const QPointer<DialogView>& view) { return view && &view->Of() == &form; });
  if (open != windows_.end()) {
    (*open)->show();
    (*open)->raise();
    (*open)->activateWindow();
    return;
  }
  std::erase_if(windows_, [](const QPointer<DialogView>& view) { return view.isNull(); });
  auto* view = new DialogView(form, DialogHooks(), this);
  view->setAttribute(Qt::WA_DeleteOnClose);
  form.Visible = true;
  connect(view, &QDialog::finished, this, [&form] { form.Visible = false; });
  windows_.emplace_back(view);
  view->show();
}

PageFormat MainWindow::Page() const {
  return {static_cast<double>(canvas_->width()), static_cast<double>(canvas_->height()), canvas_->Unit()};
}

std::string MainWindow::SavePicture(std::string_view path, int widthPx, int heightPx) {
  const PageFormat format = ScaledFormat(Page(), widthPx, heightPx);
  const std::string failure =
      path.empty() ? CopyPage(session_->page, format, devicePixelRatioF()) : SavePage(session_->page, format, path);
  canvas_->ShowChanges();
  return failure;
}

std::string MainWindow::SaveDrawingOf(const Form& form, std::string_view path) const {
  for (const Window& window : session_->windows)
    if (window.form == &form) return SaveDrawing(window.page, path);
  return "There is no drawing in that window.";
}

std::string MainWindow::SaveScreenshot(std::string_view path, QWidget* window) {
  Refresh();
  // What has just been shown or hidden finds its place when the event loop runs, which a script does not wait for.
  Settle();
  if (photograph_ && window == photograph_) photograph_->Settle();
  if (impulse_ && window == impulse_) impulse_->Settle();
  const QByteArray kind = QFileInfo(ToQString(path)).suffix().toLatin1();
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!(window ? window : this)->grab().save(&buffer, kind.isEmpty() ? "PNG" : kind.constData())) {
    return "The name of a screenshot ends in .png, .jpg or .bmp.";
  }
  return WriteWholeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

QWidget* MainWindow::WidgetOf(const Control& control) const {
  return panel_->WidgetOf(control);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (gate_.Running()) {
    event->ignore();
    return;
  }
  event->accept();
  if (session_) gate_.Do([this] { Form_Unload(*session_); });
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (session_ && !gate_.Running() && !LocalFiles(*event->mimeData()).empty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  auto paths = LocalFiles(*event->mimeData());
  if (!session_ || gate_.Running() || paths.empty()) {
    event->ignore();
    return;
  }
  event->acceptProposedAction();
  // Not here: a message would hold the program that the file came from.
  QTimer::singleShot(0, this, [this, paths = std::move(paths)] { Act([&] { OpenDroppedFiles(*session_, paths); }); });
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (!panel_ || !IsNewLook(*event)) return;
  // Not here: the application is going through its widgets, and the panel's are replaced.
  lookIsStale_ = true;
  QTimer::singleShot(0, this, [this] { TakeNewLook(); });
}

void MainWindow::TakeNewLook() {
  if (!lookIsStale_ || gate_.Running()) return;
  lookIsStale_ = false;
  statusLine_.Measure();
  RenewInfo();
  units_.assign(units_.size(), 0);
  BuildPanel(0);
  Resized();
}

void MainWindow::RenewInfo() {
  delete info_;
  info_ = new InfoOverlay(session_->form1.Frame6, canvas_);
}

}  // namespace lumivex
