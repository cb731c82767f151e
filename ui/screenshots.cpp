#include "ui/screenshots.h"

#include <QDir>
#include <QTextStream>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "engine/catalogue.h"
#include "sim/table.h"
#include "ui/desktop_front_end.h"
#include "ui/main_window.h"
#include "ui/picture_dialogs.h"
#include "ui/sound_board.h"

namespace {

class SilentSink : public SoundSink {
 public:
  void Play(const QString&, double) override {}
};

bool Save(QWidget& widget, const QString& folder, const QString& name) {
  widget.show();
  widget.repaint();
  const bool saved = widget.grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
  widget.hide();
  if (!saved) QTextStream(stderr) << "dicemill: could not write " << name << ".png in " << folder << '\n';
  return saved;
}

// A table in play: a point on, a line bet with odds and two place bets.
bool SaveMainWindow(const QString& folder, const DesktopPaths& paths) {
  PictureDialogs dialogs;
  SilentSink sink;
  SoundBoard sounds(sink);
  DesktopFrontEnd frontEnd(dialogs, sounds);
  Table table(frontEnd);
  table.StartFresh();
  MainWindow window(table, frontEnd, dialogs, sounds, paths);
  table.Bet(bet::kPassLine, Currency(10));
  table.Roll(4, 2);
  table.Bet(bet::kPassOdds, Currency(20));
  table.Bet(bet::Place(8), Currency(12));
  window.resize(1100, 720);
  return Save(window, folder, QStringLiteral("main-window"));
}

}  // namespace

int WriteScreenshots(const QString& folder, const DesktopPaths& paths) {
  if (!QDir().mkpath(folder)) {
    QTextStream(stderr) << "dicemill: cannot make the folder " << folder << '\n';
    return 1;
  }
  bool all = SaveMainWindow(folder, paths);
  return all ? 0 : 1;
}
