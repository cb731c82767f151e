#include "ui/screenshots.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <QTextStream>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "engine/catalogue.h"
#include "sim/table.h"
#include "ui/about_dialog.h"
#include "ui/auto_bet_editor.h"
#include "ui/steps_viewer.h"
#include "ui/auto_play_screen.h"
#include "ui/dice_roll_files_screen.h"
#include "ui/hot_keys_screen.h"
#include "ui/bankroll_graph_screen.h"
#include "ui/desktop_front_end.h"
#include "ui/dialog_samples.h"
#include "ui/help_window.h"
#include "ui/message_dialog.h"
#include "ui/number_prompt.h"
#include "ui/settle_notice_dialog.h"
#include "ui/main_window.h"
#include "ui/picture_dialogs.h"
#include "ui/roll_pad.h"
#include "ui/bet_results_screen.h"
#include "ui/statistics_sample.h"
#include "ui/stat_tables_samples.h"
#include "ui/bankroll_page.h"
#include "ui/config_page.h"
#include "ui/configure_window.h"
#include "ui/payoffs_page.h"
#include "ui/probability_page.h"
#include <QRadioButton>
#include <QTabWidget>
#include "ui/statistics_screen.h"
#include "ui/table_view.h"
#include "ui/sound_board.h"

namespace {

class SilentSink : public SoundSink {
 public:
  void Play(const QString&, double) override {}
};

bool Save(QWidget& widget, const QString& folder, const QString& name) {
  widget.show();
  // Labels filled since the last layout take their room before the picture.
  QCoreApplication::processEvents();
  widget.repaint();
  const bool saved = widget.grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
  widget.hide();
  if (!saved) QTextStream(stderr) << "dicemill: could not write " << name << ".png in " << folder << '\n';
  return saved;
}

// A window on a table of its own that nobody answers, for pictures.
struct PictureTable {
  PictureDialogs dialogs;
  SilentSink sink;
  SoundBoard sounds{sink};
  DesktopFrontEnd frontEnd{dialogs, sounds};
  Table table{frontEnd};
  std::unique_ptr<MainWindow> window;

  explicit PictureTable(const DesktopPaths& paths) {
    table.StartFresh();
    table.Set("AutoAdjustMode", 0);  // every amount as placed
    window = std::make_unique<MainWindow>(table, frontEnd, dialogs, sounds, paths);
  }
  bool Save(const QString& folder, const QString& name, QSize size) {
    window->resize(size);
    window->View()->SkipAnimation();
    return ::Save(*window, folder, name);
  }
};

// A point on 6 and a bet of every kind a player makes: the line with odds,
// a Come bet moved to 8 with its odds, Place bets (one called OFF), the Field,
// propositions.
void PlaceBusyBets(Table& table) {
  table.Bet(bet::kPassLine, Currency(10));
  table.Roll(4, 2);
  table.Bet(bet::kPassOdds, Currency(25));
  table.Bet(bet::kCome, Currency(10));
  table.Roll(5, 3);
  table.Bet(bet::ComeOdds(8), Currency(20));
  table.Bet(bet::kCome, Currency(10));
  table.Bet(bet::Place(5), Currency(10));
  table.Bet(bet::Place(9), Currency(10));
  table.Bet(bet::Place(10), Currency(25));
  table.Call(bet::Place(10), false);
  table.Bet(bet::kField, Currency(5));
  table.Bet(bet::kHard8, Currency(2));
  table.Bet(bet::kCraps, Currency(1));
  table.Bet(bet::kFirstHop + 3, Currency(1));
}

bool SaveTables(const QString& folder, const DesktopPaths& paths) {
  bool all = true;
  {
    PictureTable empty(paths);
    all = empty.Save(folder, QStringLiteral("table-empty"), {1100, 760}) && all;
  }
  PictureTable busy(paths);
  PlaceBusyBets(busy.table);
  all = busy.Save(folder, QStringLiteral("main-window"), {1100, 760}) && all;
  busy.window->Action(MenuCommand::HopBets)->trigger();
  all = busy.Save(folder, QStringLiteral("table-busy"), {1100, 760}) && all;
  all = busy.Save(folder, QStringLiteral("table-busy-small"), {800, 560}) && all;
  busy.window->Action(MenuCommand::HopBets)->trigger();  // the switch is the player's: leave it as it was
  {
    PictureTable hop(paths);
    hop.window->Action(MenuCommand::HopBets)->trigger();
    for (int id = bet::kFirstHop; id <= bet::kLastHop; id += 3) hop.table.Bet(id, Currency(1));
    all = hop.Save(folder, QStringLiteral("table-hop-bets"), {1100, 760}) && all;
    hop.window->Action(MenuCommand::HopBets)->trigger();
  }
  busy.window->Action(MenuCommand::RollYourOwn)->trigger();
  return ::Save(*busy.window->Pad(), folder, QStringLiteral("pad")) && all;
}

// Lets the window's event loop run for a while: a live run's figures arrive through it.
void RunEvents(int ms) {
  QEventLoop loop;
  QTimer::singleShot(ms, &loop, &QEventLoop::quit);
  loop.exec();
}

bool SaveRunScreens(const QString& folder, const DesktopPaths& paths) {
  bool all = true;
  {
    PictureTable t(paths);
    t.window->Action(MenuCommand::AutoPlay)->trigger();
    StageAutoPlayPicture(t.table, *t.window->AutoPlay());
    all = ::Save(*t.window->AutoPlay(), folder, QStringLiteral("auto-play")) && all;
  }
  {
    PictureTable t(paths);
    DefineSampleHotKeys(t.table, "/home/player/Dicemill");
    t.window->Action(MenuCommand::HotKeys)->trigger();
    t.window->HotKeys()->SelectKey('D');
    all = ::Save(*t.window->HotKeys(), folder, QStringLiteral("hot-keys")) && all;
  }
  {
    PictureTable t(paths);
    QTemporaryDir scratch;
    t.window->Action(MenuCommand::DiceRollFiles)->trigger();
    ShowSampleRollFile(*t.window->RollFiles(), t.table, scratch.path().toStdString());
    all = ::Save(*t.window->RollFiles(), folder, QStringLiteral("dice-roll-files")) && all;
  }
  {
    PictureTable t(paths);
    PlayForGraphPicture(t.table, 1000);
    t.table.SetGraphAverage(100);
    t.table.Set("DisplayAverage", 1);
    t.window->Action(MenuCommand::Bankroll)->trigger();
    BankrollGraphScreen& graph = *t.window->Bankroll();
    graph.resize(900, 600);
    graph.Refresh();
    all = ::Save(graph, folder, QStringLiteral("bankroll-graph")) && all;
  }
  {
    PictureTable t(paths);
    PlayForGraphPicture(t.table, 300);
    // Bets that stay up whatever the dice, so the line moves as the run goes.
    t.table.Set("WonBetAction", 2);
    t.table.Set("HandleLosingBets", 3);
    t.table.Bet(bet::kPassLine, Currency(10));
    t.table.Bet(bet::kField, Currency(5));
    t.window->Action(MenuCommand::Bankroll)->trigger();
    BankrollGraphScreen& graph = *t.window->Bankroll();
    graph.resize(900, 600);
    graph.show();
    emit graph.StartRequested(10'000'000);
    RunEvents(300);
    graph.Refresh();
    all = ::Save(graph, folder, QStringLiteral("bankroll-graph-running")) && all;
    t.table.Stop();
    while (t.table.Busy()) RunEvents(20);
  }
  return all;
}

// Every statistics screen over the same few hundred rolls of play.
bool SaveStatisticsScreens(const QString& folder, const DesktopPaths& paths) {
  PictureTable t(paths);
  PlayForStatisticsPictures(t.table);
  const std::pair<MenuCommand, const char*> screens[] = {
      {MenuCommand::Summary, "summary"},
      {MenuCommand::RollTotals, "roll-totals"},
      {MenuCommand::RollFrequencies, "roll-frequencies"},
      {MenuCommand::BetResults, "bet-results"},
  };
  bool all = true;
  for (const auto& [command, name] : screens) {
    t.window->Action(command)->trigger();
    StatisticsScreen* screen = t.window->Statistics(command);
    if (auto* results = qobject_cast<BetResultsScreen*>(screen))
      results->SelectBets({bet::kPassLine, bet::Place(6), bet::Place(8)});
    all = screen && ::Save(*screen, folder, QString::fromLatin1(name)) && all;
  }
  return all;
}

// The screens of the script's own figures and of finished games, over a
// session with a games log and a stop-loss script in use.
bool SaveStatTables(const QString& folder, const DesktopPaths& paths) {
  PictureTable t(paths);
  QTemporaryDir scratch;
  FillSampleStatTables(t.table, scratch.path().toStdString());
  const std::pair<MenuCommand, const char*> screens[] = {
      {MenuCommand::BetTrends, "bet-trends"},
      {MenuCommand::GamesLog, "games-log"},
      {MenuCommand::ChipStacks, "chip-stacks"},
      {MenuCommand::Flags, "flags"},
  };
  bool all = true;
  for (const auto& [command, name] : screens) {
    t.window->Action(command)->trigger();
    StatisticsScreen* screen = t.window->Statistics(command);
    all = screen && ::Save(*screen, folder, QString::fromLatin1(name)) && all;
  }
  if (StatisticsScreen* log = t.window->Statistics(MenuCommand::GamesLog)) {
    if (auto* histogram = log->findChild<QRadioButton*>(QStringLiteral("optDisplay1"))) histogram->click();
    all = ::Save(*log, folder, QStringLiteral("games-log-histogram")) && all;
  }
  return all;
}

// The Auto-Bet editor's two views of one script, and the steps viewer.
bool SaveEditors(const QString& folder, const DesktopPaths& paths) {
  PictureTable t(paths);
  t.window->Action(MenuCommand::AutoBet)->trigger();
  AutoBetEditor* editor = t.window->AutoBetEditorWindow();
  if (!editor) return false;
  FillSampleAutoBets(*editor);
  bool all = ::Save(*editor, folder, QStringLiteral("auto-bet-lines"));
  editor->ShowTextView();
  all = ::Save(*editor, folder, QStringLiteral("auto-bet-text")) && all;
  StepsViewer steps([](MenuCommand) {});
  ShowSampleStep(steps);
  return ::Save(steps, folder, QStringLiteral("steps")) && all;
}

// Every tab of the Configure window, with money on the Bankroll tab and a
// changed payoff in view on the Payoffs tab.
bool SaveConfigureTabs(const QString& folder, const DesktopPaths& paths) {
  PictureTable t(paths);
  FillSampleBankroll(t.table);
  FillSamplePayoffs(t.table);
  FillSampleProbabilities(t.table);
  (void)t.table.Seed(Currency(52817));  // a seed of its own, not the clock's
  t.window->Action(MenuCommand::Configure)->trigger();
  ConfigureWindow* window = t.window->Configure();
  if (!window) return false;
  const char* names[] = {"checks-dice", "sound", "comps",    "colors",      "misc",
                         "bankroll",    "bets",  "payoffs",  "probability", "advantage"};
  bool all = window->Tabs()->count() == 10;
  for (int i = 0; i < window->Tabs()->count(); ++i) {
    window->Tabs()->setCurrentIndex(i);
    if (auto* payoffs = qobject_cast<PayoffsPage*>(window->Page(i))) payoffs->ShowRow(PayoffTable::Bets, 40);
    all = ::Save(*window, folder, QStringLiteral("configure-") + QString::fromLatin1(names[i])) && all;
    // The skewed dice were for the Probability tab: the house's edge is shown with true dice.
    if (qobject_cast<ProbabilityPage*>(window->Page(i))) t.table.Set("UseSkewedProbability", 0);
  }
  window->Tabs()->setCurrentIndex(0);  // a picture is no reason to change the game's last tab
  return all;
}

}  // namespace

int WriteScreenshots(const QString& folder, const DesktopPaths& paths) {
  if (!QDir().mkpath(folder)) {
    QTextStream(stderr) << "dicemill: cannot make the folder " << folder << '\n';
    return 1;
  }
  bool all = SaveTables(folder, paths);
  all = SaveRunScreens(folder, paths) && all;
  all = SaveStatisticsScreens(folder, paths) && all;
  all = SaveStatTables(folder, paths) && all;
  all = SaveConfigureTabs(folder, paths) && all;
  all = SaveEditors(folder, paths) && all;
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
