#pragma once

#include <QString>

class QPushButton;
class QWidget;

namespace lumivex {

/// Gives every button of a window a key of its own, pressed with Alt: the first letter of its text that no button
/// before it has. Forms know nothing of keys, so that captions stay what scripts and files call them.
/// @param taken  letters that are not to be used, as those of a menu bar.
/// @return the letters that are taken now.
QString AssignAccessKeys(QWidget& window, QString taken = {});

/// The letters of a menu bar's titles.
QString KeysOfMenus(const QWidget& window);

/// A text as the button shows it, with its key underlined.
QString WithAccessKey(const QPushButton& button, QString text);

}  // namespace lumivex
