// The modeless screens the main window opens, each made on first use and
// kept in step with the run.
#include <QDir>
#include <QFileInfo>
#include <QKeySequence>

#include "engine/game.h"
#include "sim/table.h"
#include "ui/auto_play_screen.h"
#include "ui/bankroll_graph_screen.h"
#include "ui/dice_roll_files_screen.h"
#include "ui/help_window.h"
#include "ui/hot_keys_screen.h"
#include "ui/main_window.h"
#include "ui/roll_pad.h"

namespace {

// A Hyper-Drive started from the pad with no Auto-Play roll count set.
constexpr int kPadHyperDriveRolls = 1'000'000;

}  // namespace

BankrollGraphScreen* MainWindow::Bankroll() const { return bankroll_; }

HelpWindow* MainWindow::Help() const { return help_; }

void MainWindow::OpenBankroll() {
  if (!bankroll_) {
    bankroll_ = new BankrollGraphScreen(table_, dialogs_, this);
    bankroll_->setWindowFlag(Qt::Window);
    bankroll_->setAttribute(Qt::WA_DeleteOnClose);
    connect(bankroll_, &BankrollGraphScreen::StartRequested, this, &MainWindow::StartHyperDrive);
    connect(bankroll_, &BankrollGraphScreen::StopRequested, this, [this] { table_.Stop(); });
    if (!table_.Busy()) bankroll_->SetRolls(table_.State().RollCountStop);
    bankroll_->Refresh();
    bankroll_->SetRunning(table_.Busy() && runKind_ == RunKind::HyperDrive);
  }
  bankroll_->show();
  bankroll_->raise();
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
  if (!pad_) {
    pad_ = new RollPad(this);
    pad_->setWindowFlag(Qt::Window);
    pad_->setAttribute(Qt::WA_DeleteOnClose);
    connect(pad_, &RollPad::PairChosen, this, [this](int die1, int die2) {
      if (!table_.Busy() && CommitKeyIn()) table_.PadRoll(die1, die2);
    });
    connect(pad_, &RollPad::TotalChosen, this, [this](int total) {
      if (!table_.Busy() && CommitKeyIn()) table_.PadTotal(total);
    });
    connect(pad_, &RollPad::RandomRollRequested, this, [this] { Perform(MenuCommand::RollDice); });
    connect(pad_, &RollPad::HyperDriveRequested, this, [this] {
      if (table_.Busy()) return;  // the game is the run's
      const int set = table_.State().RollCountStop;
      StartHyperDrive(set > 0 ? set : kPadHyperDriveRolls);
    });
    connect(pad_, &RollPad::StopRequested, this, [this] { table_.Stop(); });
    ShowRunState();
    UpdateStatus();
  }
  pad_->show();
  pad_->raise();
}

template <class Screen>
void MainWindow::OpenScreen(QPointer<Screen>& screen) {
  if (!screen) {
    screen = new Screen(table_, dialogs_, this);
    screen->setWindowFlag(Qt::Window);
    screen->setAttribute(Qt::WA_DeleteOnClose);
  }
  screen->Refresh();
  screen->show();
  screen->raise();
}

void MainWindow::OpenHotKeys() { OpenScreen(hotKeys_); }

void MainWindow::OpenRollFiles() { OpenScreen(rollFiles_); }

HotKeysScreen* MainWindow::HotKeys() const { return hotKeys_; }

DiceRollFilesScreen* MainWindow::RollFiles() const { return rollFiles_; }

void MainWindow::OpenAutoPlay() {
  if (!autoPlay_) {
    autoPlay_ = new AutoPlayScreen(table_, dialogs_, this);
    autoPlay_->setWindowFlag(Qt::Window);
    autoPlay_->setAttribute(Qt::WA_DeleteOnClose);
    connect(autoPlay_, &AutoPlayScreen::StartAutoRollRequested, this, [this] {
      if (!table_.Busy()) Perform(MenuCommand::AutoRoll);
    });
    connect(autoPlay_, &AutoPlayScreen::StopAutoRollRequested, this, [this] { table_.Stop(); });
    ShowRunState();
  }
  autoPlay_->show();
  autoPlay_->raise();
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

