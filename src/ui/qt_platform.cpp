#include "ui/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>

#include "ui/help/help_window.h"
#include "ui/look.h"
#include "ui/page_picture.h"
#include "ui/photograph_file.h"

namespace lumivex {

QtPlatform::QtPlatform(CommandGate& gate) : gate_(gate) {
  clock_.start();
}

QtPlatform::~QtPlatform() = default;

void QtPlatform::Tell(QMessageBox::Icon icon, std::string_view title, std::string_view text) const {
  QMessageBox box(icon, ToQString(title), ToQString(text), QMessageBox::Ok, window);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void QtPlatform::Message(std::string_view title, std::string_view text) {
  // What the message is about is marked on the screen while it is read.
  if (gate_.refresh) gate_.refresh();
  Tell(QMessageBox::Warning, title, text);
}

void QtPlatform::Note(std::string_view title, std::string_view text) {
  Tell(QMessageBox::NoIcon, title, text);
}

bool QtPlatform::Question(std::string_view title, std::string_view text) {
  QMessageBox box(QMessageBox::Question, ToQString(title), ToQString(text), QMessageBox::Yes | QMessageBox::No, window);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

QString QtPlatform::InCurrentFolder(const std::string& suggested) const {
  const QString name = ToQString(suggested);
  return folder_.isEmpty() || QFileInfo(name).isAbsolute() ? name : folder_ + '/' + name;
}

std::optional<std::string> QtPlatform::OpenFileName(const FileDialog& dialog) {
  const QString name = QFileDialog::getOpenFileName(window, ToQString(dialog.title), InCurrentFolder(dialog.suggested),
                                                    ToQString(dialog.filter));
  if (name.isEmpty()) return std::nullopt;
  folder_ = QFileInfo(name).absolutePath();
  return FromQString(name);
}

std::optional<std::string> QtPlatform::SaveFileName(const FileDialog& dialog) {
  QString chosen;
  QString name = QFileDialog::getSaveFileName(window, ToQString(dialog.title), InCurrentFolder(dialog.suggested),
                                              ToQString(dialog.filter), &chosen);
  if (name.isEmpty()) return std::nullopt;
  // A name without an ending takes that of the kind chosen: "SVG drawing (*.svg)".
  static const QRegularExpression ending(R"(\*(\.\w+))");
  if (QFileInfo(name).suffix().isEmpty()) name += ending.match(chosen).captured(1);
  folder_ = QFileInfo(name).absolutePath();
  return FromQString(name);
}

bool QtPlatform::ShowModal(Form& form) {
  const CommandGate::DialogScope open(gate_);
  return showModal && showModal(form);
}

void QtPlatform::Show(Form& form) {
  if (show) show(form);
}

void QtPlatform::Yield() {
  gate_.Yield();
}

double QtPlatform::Timer() {
  return static_cast<double>(clock_.nsecsElapsed()) * 1e-9;
}

ScreenSize QtPlatform::Screen() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  // Without a display there is no screen to be too small.
  if (!screen || QGuiApplication::platformName() == "offscreen") return {1920, 1080};
  const QSizeF dots = QSizeF(screen->size()) * screen->devicePixelRatio();
  return {qRound(dots.width()), qRound(dots.height())};
}

void QtPlatform::Beep() {
  QApplication::beep();
}

void QtPlatform::ShowSlider() {
  if (showSlider) showSlider();
}

void QtPlatform::Help(std::string_view page) {
  if (!help_) help_ = new HelpWindow(window);
  help_->ShowTopic(page);
}

void QtPlatform::BringToFront(Form& form) {
  if (bringToFront) bringToFront(form);
}

std::string QtPlatform::SaveDrawing(const Page& page, std::string_view path) {
  return lumivex::SaveDrawing(page, path);
}

OpenedPhotograph QtPlatform::OpenPhotograph(std::string_view path) {
  return ReadPhotographFile(path);
}

std::string QtPlatform::SavePhotograph(const Page& page, std::string_view notes, std::string_view path) {
  return WritePhotographFile(page, notes, path);
}

std::string QtPlatform::SavePicture(std::string_view path) {
  return savePicture ? savePicture(path) : "There is no window to make a picture of.";
}

void QtPlatform::CopyText(std::string_view text) {
  QGuiApplication::clipboard()->setText(ToQString(text));
}

void QtPlatform::Quit() {
  QCoreApplication::exit(0);
}

}  // namespace lumivex
