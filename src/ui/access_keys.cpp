#include "ui/access_keys.h"

#include <QMenuBar>
#include <QPushButton>
#include <QShortcutEvent>
#include <QVariant>

namespace lumivex {

namespace {

constexpr const char* keyProperty = "accessKey";

/// Presses a button at once where its letter is pressed: by itself it would wait for a moment, and take what is typed
/// meanwhile.
class PressAtOnce final : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* shortcut = event->type() == QEvent::Shortcut ? static_cast<QShortcutEvent*>(event) : nullptr;
    if (shortcut == nullptr || shortcut->isAmbiguous()) return false;
    static_cast<QPushButton*>(watched)->click();
    return true;
  }
};

/// The place of the first letter that can be a button's key; -1 where there is none.
qsizetype FreeLetter(const QString& text, const QString& taken) {
  for (qsizetype i = 0; i < text.size(); ++i)
    if (text[i].isLetter() && !taken.contains(text[i], Qt::CaseInsensitive)) return i;
  return -1;
}

}  // namespace

QString AssignAccessKeys(QWidget& window, QString taken) {
  for (auto* button : window.findChildren<QPushButton*>()) {
    QString text = button->text();
    text.remove('&');
    const auto at = FreeLetter(text, taken);
    if (at < 0) continue;
    taken += text[at].toLower();
    if (!button->property(keyProperty).isValid()) button->installEventFilter(new PressAtOnce(button));
    button->setProperty(keyProperty, text[at].toLower());
    button->setText(WithAccessKey(*button, text));
  }
  return taken;
}

QString KeysOfMenus(const QWidget& window) {
  QString keys;
  for (const auto* bar : window.findChildren<QMenuBar*>())
    for (const QAction* menu : bar->actions())
      if (const auto at = menu->text().indexOf('&'); at >= 0 && at + 1 < menu->text().size())
        keys += menu->text()[at + 1].toLower();
  return keys;
}

QString WithAccessKey(const QPushButton& button, QString text) {
  const QChar key = button.property(keyProperty).toChar();
  if (key.isNull()) return text;
  const auto at = text.indexOf(key, 0, Qt::CaseInsensitive);
  return at < 0 ? text : text.insert(at, '&');
}

}  // namespace lumivex
