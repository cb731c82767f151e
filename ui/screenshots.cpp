#include "ui/screenshots.h"

#include <QDir>
#include <QTextStream>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "engine/catalogue.h"
#include "sim/table.h"
#include "ui/about_dialog.h"
#include "ui/desktop_front_end.h"
#include "ui/dialog_samples.h"
#include "ui/help_window.h"
#include "ui/message_dialog.h"
#include "ui/number_prompt.h"
#include "ui/settle_notice_dialog.h"
#include "ui/main_window.h"
#include "ui/picture_dialogs.h"
#include "ui/roll_pad.h"
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
  bool saved = Save(window, folder, QStringLiteral("main-window"));
  window.Action(MenuCommand::RollYourOwn)->trigger();
  return Save(*window.Pad(), folder, QStringLiteral("pad")) && saved;
}

}  // namespace

int WriteScreenshots(const QString& folder, const DesktopPaths& paths) {
  if (!QDir().mkpath(folder)) {
    QTextStream(stderr) << "dicemill: cannot make the folder " << folder << '\n';
    return 1;
  }
  bool all = SaveMainWindow(folder, paths);
  MessageDialog message(SampleMessage());
  all = Save(message, folder, QStringLiteral("message")) && all;
  SettleNoticeDialog winner(SampleWonNotice());
  all = Save(winner, folder, QStringLiteral("notice-winner")) && all;
  SettleNoticeDialog lost(SampleLostNotice());
  all = Save(lost, folder, QStringLiteral("notice-lost")) && all;
  const NumberPromptSample sample = SampleNumberPrompt();
  NumberPrompt prompt(sample.title, sample.text, sample.offered);
  all = Save(prompt, folder, QStringLiteral("prompt-number")) && all;
  AboutDialog about(QStringLiteral(DICEMILL_VERSION));
  all = Save(about, folder, QStringLiteral("about")) && all;
  HelpWindow help(paths.docsFolder, QDir(paths.docsFolder).filePath(QStringLiteral("../README.md")));
  help.resize(960, 680);
  help.ShowContents();
  all = Save(help, folder, QStringLiteral("help")) && all;
  return all ? 0 : 1;
}
