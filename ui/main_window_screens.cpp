// The modeless screens the main window opens, each made on first use and
// kept in step with the run.
#include <QDir>
#include <QFileInfo>
#include <QKeySequence>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/auto_bet_editor.h"
#include "ui/auto_play_screen.h"
#include "ui/bankroll_graph_screen.h"
#include "ui/dice_roll_files_screen.h"
#include "ui/help_window.h"
#include "ui/hot_keys_screen.h"
#include "ui/main_window.h"
#include "ui/roll_pad.h"
#include "ui/config_pages.h"
#include "ui/configure_window.h"
#include "ui/sound_page.h"
#include <QSettings>
#include "ui/statistics_screen.h"
#include "ui/statistics_screens.h"

namespace {

// A Hyper-Drive started from the pad with no Auto-Play roll count set.
constexpr int kPadHyperDriveRolls = 1'000'000;

}  // namespace

BankrollGraphScreen* MainWindow::Bankroll() const { return bankroll_; }

HelpWindow* MainWindow::Help() const { return help_; }

void MainWindow::OpenBankroll() {
  Reveal(bankroll_, [this] {
    auto* screen = new BankrollGraphScreen(table_, dialogs_, this);
    connect(screen, &BankrollGraphScreen::StartRequested, this, &MainWindow::StartHyperDrive);
    connect(screen, &BankrollGraphScreen::StopRequested, this, [this] { table_.Stop(); });
    if (!table_.Busy()) screen->SetRolls(table_.State().RollCountStop);
    screen->Refresh();
    screen->SetRunning(table_.Busy() && runKind_ == RunKind::HyperDrive);
    return screen;
  });
  bankroll_->activateWindow();
}

std::vector<HelpShortcut> MainWindow::Shortcuts() const {
  std::vector<HelpShortcut> keys;
  for (const MenuItemEntry& entry : MainMenuItems()) {
    if (!*entry.shortcut) continue;
    QString what = tr(entry.caption).remove('&');
    keys.push_back({QKeySequence(QString::fromLatin1(entry.shortcut)).toString(QKeySequence::NativeText), what});
  }
  keys.push_back({tr("Right click on the table"), tr("Roll the dice")});
  keys.push_back({tr("Esc"), tr("Stop a run; otherwise leave a tool mode")});
  keys.push_back({tr("Ctrl+A .. Ctrl+Z, Ctrl+0 .. Ctrl+9"), tr("Run the Hot-Key bound to the key")});
  return keys;
}

void MainWindow::OpenHelp(bool search) {
  if (!help_) {
    const QString readme = QDir(paths_.docsFolder).filePath(QStringLiteral("../README.md"));
    help_ = new HelpWindow(paths_.docsFolder, QFileInfo::exists(readme) ? readme : QString(), this);
    help_->setWindowFlag(Qt::Window);
    help_->setAttribute(Qt::WA_DeleteOnClose);
    help_->SetShortcuts(Shortcuts());
  }
  if (search)
    help_->ShowSearch();
  else
    help_->ShowContents();
  help_->show();
  help_->raise();
}

RollPad* MainWindow::Pad() const { return pad_; }

AutoPlayScreen* MainWindow::AutoPlay() const { return autoPlay_; }

void MainWindow::OpenPad() {
  const bool made = !pad_;
  Reveal(pad_, [this] {
    auto* pad = new RollPad(this);
    connect(pad, &RollPad::PairChosen, this, [this](int die1, int die2) {
      if (!table_.Busy() && CommitKeyIn()) table_.PadRoll(die1, die2);
    });
    connect(pad, &RollPad::TotalChosen, this, [this](int total) {
      if (!table_.Busy() && CommitKeyIn()) table_.PadTotal(total);
    });
    connect(pad, &RollPad::RandomRollRequested, this, [this] { Perform(MenuCommand::RollDice); });
    connect(pad, &RollPad::HyperDriveRequested, this, [this] {
      if (table_.Busy()) return;  // the game is the run's
      const int set = table_.State().RollCountStop;
      StartHyperDrive(set > 0 ? set : kPadHyperDriveRolls);
    });
    connect(pad, &RollPad::StopRequested, this, [this] { table_.Stop(); });
    return pad;
  });
  if (made) {
    ShowRunState();
    UpdateStatus();
  }
}

template <class Screen, class Make>
void MainWindow::Reveal(QPointer<Screen>& screen, Make&& make) {
  if (!screen) {
    screen = make();
    screen->setWindowFlag(Qt::Window);
    screen->setAttribute(Qt::WA_DeleteOnClose);
  }
  screen->show();
  screen->raise();
}

template <class Screen>
void MainWindow::OpenScreen(QPointer<Screen>& screen) {
  Reveal(screen, [this] { return new Screen(table_, dialogs_, this); });
  screen->Refresh();
}

void MainWindow::OpenHotKeys() { OpenScreen(hotKeys_); }

void MainWindow::OpenRollFiles() { OpenScreen(rollFiles_); }

HotKeysScreen* MainWindow::HotKeys() const { return hotKeys_; }

AutoBetEditor* MainWindow::AutoBetEditorWindow() const { return autoBet_; }

void MainWindow::OpenAutoBet() {
  Reveal(autoBet_, [this] { return new AutoBetEditor(table_, dialogs_, paths_.dataFolder.toStdString(), this); });
  autoBet_->Reload();
}

ConfigureWindow* MainWindow::Configure() const { return configure_; }

void MainWindow::OpenConfigure() {
  if (configure_) return;
  configure_ = new ConfigureWindow(table_, MakeConfigPages(table_, dialogs_, sounds_), this);
  configure_->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* sound = configure_->findChild<SoundPage*>())
    connect(sound, &SoundPage::VolumeChanged, this, [](int percent) { QSettings().setValue("sound/volume", percent); });
  // Modal over the table, without a loop of its own: tests drive it as the player would.
  configure_->open();
}

StatisticsScreen* MainWindow::Statistics(MenuCommand command) const {
  const auto found = statistics_.find(command);
  return found == statistics_.end() ? nullptr : found->second.data();
}

void MainWindow::OpenStatistics(MenuCommand command) {
  if (!IsStatisticsScreen(command)) return;
  Reveal(statistics_[command], [&] { return MakeStatisticsScreen(command, table_, dialogs_, this); });
}

DiceRollFilesScreen* MainWindow::RollFiles() const { return rollFiles_; }

void MainWindow::OpenAutoPlay() {
  const bool made = !autoPlay_;
  Reveal(autoPlay_, [this] {
    auto* screen = new AutoPlayScreen(table_, dialogs_, this);
    connect(screen, &AutoPlayScreen::StartAutoRollRequested, this, [this] {
      if (!table_.Busy()) Perform(MenuCommand::AutoRoll);
    });
    connect(screen, &AutoPlayScreen::StopAutoRollRequested, this, [this] { table_.Stop(); });
    return screen;
  });
  if (made) ShowRunState();
}

void MainWindow::ShowRunState() {
  const bool busy = table_.Busy();
  const bool hyper = busy && runKind_ == RunKind::HyperDrive;
  if (autoPlay_) autoPlay_->SetRunning(busy && runKind_ == RunKind::AutoRoll);
  if (bankroll_) bankroll_->SetRunning(hyper);
  if (pad_) {
    pad_->SetRunning(hyper);
    pad_->SetEnabledForRun(!busy);
  }
}

