// The desktop tests run without a display, on Qt's offscreen platform, and
// need one application object for all of them.
#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Settings the screens keep go to a folder of this process's own, never
  // the player's: ctest runs the tests in processes side by side, and one
  // shared test folder let a test read what another had just written.
  QTemporaryDir home;
  if (!home.isValid()) return 1;
  for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})
    qputenv(folder, (home.path() + QLatin1Char('/') + QLatin1String(folder)).toLocal8Bit());
  QApplication app(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
