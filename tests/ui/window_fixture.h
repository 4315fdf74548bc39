#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "ui/windowed_session.h"

namespace lumivex {

/// The program in a real window, loaded and shown. Messages are put away by themselves and kept; a dialog that nobody
/// answers is closed after a while, and the test fails, so that it cannot hang the others.
class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    answerTimer_.setInterval(5);
    QObject::connect(&answerTimer_, &QTimer::timeout, [this] { Answer(); });
    answerTimer_.start();
    program.Load();
    program.Window().show();
    program.Window().activateWindow();
    QTest::qWait(20);
  }

  ~WindowTest() override {
    // A test may have closed the program; an event loop that begins and ends makes Qt forget that.
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
  }

  Session& Now() { return program.Current(); }
  Form1& Form() { return program.Current().form1; }
  template <class Widget = QWidget>
  Widget* WidgetOf(const Control& control) {
    return qobject_cast<Widget*>(program.Window().WidgetOf(control));
  }

  void Type(const Control& input, const char* text) {
    auto* edit = WidgetOf<QLineEdit>(input);
    ASSERT_NE(edit, nullptr);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
  }
  void Press(const Control& control, Qt::Key key) { QTest::keyClick(WidgetOf(control), key); }
  void Click(const Control& control) {
    QWidget* widget = WidgetOf(control);
    ASSERT_NE(widget, nullptr);
    // Options answer to a click on their mark, which stands at their left.
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(9, widget->height() / 2));
  }

  /// What is done with the next dialogs that are not messages.
  std::vector<std::function<void(QDialog&)>> dialogs;
  std::vector<std::string> messages;  ///< "title: text" of every message and question
  QMessageBox::StandardButton answer = QMessageBox::Yes;
  std::function<void()> whileMessage;  ///< looks at the window before a message is put away

  WindowedSession program;

 private:
  void Answer() {
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
      messages.push_back((box->windowTitle() + ": " + box->text()).toStdString());
      if (whileMessage) whileMessage();
      QAbstractButton* button = box->button(answer);
      (button ? button : box->button(QMessageBox::Ok))->click();
    } else if (auto* dialog = qobject_cast<QDialog*>(modal); dialog && !dialogs.empty()) {
      const auto act = dialogs.front();
      dialogs.erase(dialogs.begin());
      act(*dialog);
    } else if (modal) {
      constexpr int patienceMs = 3000;
      if (modal != unanswered_) {
        unanswered_ = modal;
        waiting_.start();
      } else if (waiting_.elapsed() > patienceMs) {
        ADD_FAILURE() << "nobody answered " << modal->windowTitle().toStdString();
        modal->close();
      }
      return;
    }
    unanswered_ = nullptr;
  }
  QPointer<QWidget> unanswered_;
  QElapsedTimer waiting_;
  QTimer answerTimer_;
};

}  // namespace lumivex
