#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // The tests need no display; a window on the screen of whoever runs them would take their keys.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle("Fusion");
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
