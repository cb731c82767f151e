// dicemill: the desktop table. `dicemill --screenshot DIR` draws every
// screen into pictures instead, without a display.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <cstdlib>

#include "sim/table.h"
#include "store/data_folder.h"
#include "ui/desktop_front_end.h"
#include "ui/main_window.h"
#include "ui/modal_dialogs.h"
#include "ui/screenshots.h"
#include "ui/sound_board.h"

namespace {

// The samples and sounds that ship with the program, and its guide: in the
// install prefix, or the source tree's when run from a build.
struct Shipped {
  ShippedFolders files;
  QString docs;
};

Shipped FindShipped() {
  const std::filesystem::path share = FindShareDir(QCoreApplication::applicationFilePath().toStdString());
  if (!share.empty()) return {InstalledFolders(share), QString::fromStdString((share / "docs").string())};
  const std::filesystem::path tree = DICEMILL_SOURCE_DIR;
  return {SourceTreeFolders(tree), QString::fromStdString((tree / "docs").string())};
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Dicemill"));
  QApplication::setOrganizationName(QStringLiteral("Dicemill"));
  QApplication::setApplicationVersion(QStringLiteral(DICEMILL_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("org.dicemill.Dicemill"));

  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Dicemill, the craps table"));
  parser.addHelpOption();
  parser.addVersionOption();
  QCommandLineOption screenshot(QStringLiteral("screenshot"), QStringLiteral("Draw every screen into PNG files in DIR and quit."),
                                QStringLiteral("DIR"));
  QCommandLineOption folderOption(QStringLiteral("folder"), QStringLiteral("Keep games and scripts in DIR."),
                                  QStringLiteral("DIR"));
  parser.addOption(screenshot);
  parser.addOption(folderOption);
  parser.process(app);

  const Shipped shipped = FindShipped();
  const std::filesystem::path folder =
      ChooseDataFolder(parser.value(folderOption).toStdString(), [](const char* name) { return std::getenv(name); });
  std::string error;
  if (!SeedDataFolder(folder, shipped.files, error)) {
    QTextStream(stderr) << "dicemill: " << QString::fromStdString(error) << '\n';
    return 1;
  }
  const DesktopPaths paths{QString::fromStdString(folder.string()), shipped.docs};
  if (parser.isSet(screenshot)) {
    // The pictures show the screens as they first open, and drawing them
    // (views turned on and off, the pad turned) leaves the player's own
    // settings as they were.
    QTemporaryDir settings;
    if (!settings.isValid()) {
      QTextStream(stderr) << "dicemill: no folder for the screenshots' settings: " << settings.errorString() << '\n';
      return 1;
    }
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    return WriteScreenshots(parser.value(screenshot), paths);
  }

  EffectSink sink;
  SoundBoard sounds(sink);
  sounds.UseFolder(paths.dataFolder);
  sounds.SetVolume(QSettings().value(QStringLiteral("sound/volume"), sounds.Volume()).toInt());
  ModalDialogs dialogs(paths.dataFolder);
  DesktopFrontEnd frontEnd(dialogs, sounds);
  Table table(frontEnd);
  MainWindow window(table, frontEnd, dialogs, sounds, paths);
  dialogs.SetParent(&window);
  // The steps viewer's menus open the screens the main menu's entries do.
  dialogs.SetStepScreens([&window](MenuCommand command) { window.Action(command)->trigger(); });
  window.show();
  table.StartUp(folder.string(), true);
  return app.exec();
}
