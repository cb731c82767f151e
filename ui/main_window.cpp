#include "ui/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "engine/game.h"
#include "engine/table_commands.h"
#include "sim/run_snapshot.h"
#include "sim/table.h"
#include "ui/about_dialog.h"
#include "ui/auto_play_screen.h"
#include "ui/bankroll_graph_screen.h"
#include "ui/dice_roll_files_screen.h"
#include "ui/dialogs.h"
#include "ui/games_log_choice.h"
#include "ui/quick_stats.h"
#include "ui/roll_pad.h"
#include "ui/sound_board.h"
#include "ui/sound_page.h"
#include "ui/status_panel.h"
#include "ui/layout_geometry.h"
#include "ui/table_look.h"
#include "ui/table_view.h"

namespace {

constexpr int kLiveRedrawMs = 50;
const QString kAppName = QStringLiteral("Dicemill");

// The view switches are the player's, not the game's: kept in the user's settings.
const char* ViewSetting(MenuCommand command) {
  switch (command) {
    case MenuCommand::KeyIn: return "view/keyInBetAmounts";
    case MenuCommand::BetsAsNumbers: return "view/betsAsNumbers";
    case MenuCommand::HopBets: return "view/hopBets";
    default: return nullptr;
  }
}

}  // namespace

MainWindow::MainWindow(Table& table, DesktopFrontEnd& frontEnd, Dialogs& dialogs, SoundBoard& sounds,
                       DesktopPaths paths)
    : table_(table), frontEnd_(frontEnd), dialogs_(dialogs), sounds_(sounds), paths_(std::move(paths)) {
  setObjectName(QStringLiteral("frmCrapTable"));
  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(6, 6, 6, 6);
  view_ = new TableView(centre);
  keyIn_ = new QLineEdit(view_);
  keyIn_->setObjectName(QStringLiteral("txtEnterBet"));
  keyIn_->setAlignment(Qt::AlignRight);
  keyIn_->setFixedWidth(96);
  keyIn_->hide();
  connect(keyIn_, &QLineEdit::returnPressed, this, [this] { CommitKeyIn(); });
  status_ = new StatusPanel(centre);
  column->addWidget(view_, 1);
  column->addWidget(status_);
  setCentralWidget(centre);
  connect(view_, &TableView::RollRequested, this, [this] { Perform(MenuCommand::RollDice); });
  connect(view_, &TableView::BetClicked, this, &MainWindow::ClickBet);
  connect(view_, &TableView::ToolClicked, this, &MainWindow::PickTool);

  BuildMenus();
  liveTimer_.setInterval(kLiveRedrawMs);
  connect(&liveTimer_, &QTimer::timeout, this, &MainWindow::ShowLiveFigures);

  frontEnd_.Attach(this);
  table_.Subscribe(this);
  UpdateCaption();
  UpdateMenus();
  UpdateStatus();
  resize(1120, 800);
  // The window opens where the player left it.
  restoreGeometry(QSettings().value(QStringLiteral("window/geometry")).toByteArray());
}

MainWindow::~MainWindow() {
  table_.Unsubscribe(this);
  frontEnd_.Attach(nullptr);
}

bool MainWindow::RunUnderWay() const { return table_.Busy(); }

void MainWindow::BuildMenus() {
  QHash<QString, QMenu*> menus;
  for (const MenuEntry& entry : MainMenus()) {
    QMenu* menu = menuBar()->addMenu(tr(entry.caption));
    menu->setObjectName(QString::fromLatin1(entry.objectName));
    menus.insert(QString::fromLatin1(entry.objectName), menu);
  }
  QSettings settings;
  for (const MenuItemEntry& entry : MainMenuItems()) {
    QAction* action = menus.value(QString::fromLatin1(entry.menu))->addAction(tr(entry.caption));
    action->setObjectName(QString::fromLatin1(entry.objectName));
    if (*entry.shortcut) action->setShortcut(QKeySequence(QString::fromLatin1(entry.shortcut)));
    action->setCheckable(entry.checkable);
    if (const char* key = ViewSetting(entry.command)) action->setChecked(settings.value(key, false).toBool());
    const MenuCommand command = entry.command;
    connect(action, &QAction::triggered, this, [this, command] { Perform(command); });
    actions_.insert(static_cast<int>(command), action);
  }
}

void MainWindow::Perform(MenuCommand command) {
  using enum MenuCommand;
  if (table_.Busy() && command != AutoRoll && command != Exit && command != Bankroll && command != ShowPath &&
      !ViewSetting(command))
    return;  // disabled during a run; a shortcut may still arrive
  switch (command) {
    case New:
      table_.New(false);
      if (autoPlay_) autoPlay_->Refresh();
      break;
    case Open: OpenGame(); break;
    case Save: table_.Save(); break;
    case SaveAs: SaveGameAs(); break;
    case ShowPath: this->ShowPath(); break;
    case Exit: close(); break;
    case RollDice: StartRun(RunKind::AutoRoll); break;
    case AutoRoll:
      if (table_.Busy()) {
        table_.Stop();
      } else if (table_.Set("AutoRollOn", 1).Done()) {
        StartRun(RunKind::AutoRoll);
      }
      break;
    case BuyTool: ChooseTool(kToolBuy, tr("Click on bet to buy")); break;
    case CallOnTool: ChooseTool(kToolCallOn, tr("Click on bet to call it \"ON\"")); break;
    case CallOffTool: ChooseTool(kToolCallOff, tr("Click on bet to call it \"OFF\"")); break;
    case RemoveTool: PickTool(layout::kToolRemove); break;
    case CallAllOn: table_.CallAll(true); break;
    case CallAllOff: table_.CallAll(false); break;
    case RemoveAll: table_.RemoveAll(); break;
    case KeyIn:
    case BetsAsNumbers:
    case HopBets:
      QSettings().setValue(ViewSetting(command), Action(command)->isChecked());
      UpdateStatus();
      break;
    case Bankroll: OpenBankroll(); break;
    case RollYourOwn: OpenPad(); break;
    case AutoPlay: OpenAutoPlay(); break;
    case HotKeys: OpenHotKeys(); break;
    case Configure: OpenConfigure(); break;
    case AutoBet: OpenAutoBet(); break;
    case GamesLogFile: ChooseGamesLog(table_, dialogs_); break;
    case DiceRollFiles: OpenRollFiles(); break;
    case Contents: OpenHelp(false); break;
    case Search: OpenHelp(true); break;
    case About: AboutDialog(QApplication::applicationVersion(), this).exec(); break;
    default: OpenStatistics(command); break;
  }
}

void MainWindow::OpenGame() {
  auto path = dialogs_.FileName("Open Game File", "*.crp", FileMode::Open);
  if (path) table_.Open(*path);
  if (autoPlay_) autoPlay_->Refresh();
  UpdateCaption();
}

void MainWindow::SaveGameAs() {
  auto path = dialogs_.FileName("Save Game File As", "*.crp", FileMode::Save);
  if (path) table_.SaveAs(*path);
  UpdateCaption();
}

void MainWindow::ShowPath() {
  const Game& g = table_.State();
  auto name = [](const std::string& path, const char* none) {
    return path.empty() ? std::string(none) : QFileInfo(QString::fromStdString(path)).fileName().toStdString();
  };
  std::string text = "Folder: " + QDir::toNativeSeparators(paths_.dataFolder).toStdString() + "\r\r";
  text += "Game: " + name(g.GameFileName, "default.crp") + "\r";
  text += "Auto-Bet file: " + name(g.AutoBet.FileName, "(none)") + "\r";
  text += "Dice Roll File: " + name(g.DiceFile.RollFileName, "(none)") + "\r";
  text += "Probability file: " + g.ProbFileName + "\r";
  text += "Games log: " + name(g.GamesLogFile, "(none)");
  dialogs_.Message({"Show Path", text, Buttons::Ok, false});
}

void MainWindow::StartHyperDrive(int rolls) {
  // The run counts down the Auto-Play roll count, as it does from that screen.
  if (table_.Busy() || !table_.Set("RollCountStop", rolls).Done() || !table_.Set("RollCountLeft", rolls).Done())
    return;
  StartRun(RunKind::HyperDrive);
}

void MainWindow::StartRun(RunKind kind) {
  // An amount being keyed in goes on the table first; a refusal stops the roll.
  if (!CommitKeyIn()) return;
  runKind_ = kind;
  idleFigures_ = FiguresOf(table_.State());
  sounds_.SetSilenced(kind == RunKind::HyperDrive || table_.State().DisableAllSound);
  // The run's questions and its end come back on this thread, in order.
  auto post = [](std::function<void()> task) {
    QMetaObject::invokeMethod(qApp, [task = std::move(task)] { task(); }, Qt::QueuedConnection);
  };
  if (!table_.StartLive(kind, post).Done()) {
    UpdateStatus();
    return;
  }
  liveTimer_.start();
}

void MainWindow::ShowLiveFigures() {
  const RunSnapshot shot = table_.LiveSnapshot();
  status_->Show(FiguresOf(shot, idleFigures_));
  TableLook look = view_->Look();
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) look.amounts[id] = shot.Bets[id];
  look.point = shot.Point;
  // A visible throw shows its own dice as it lands; Hyper-Drive's go by too fast to draw.
  if (runKind_ == RunKind::HyperDrive) look.die1 = look.die2 = 0;
  view_->SetLook(look);
  if (pad_) pad_->SetRollCount(shot.Rolls);
  if (bankroll_) bankroll_->Refresh();
  if (autoPlay_) autoPlay_->ShowRollsLeft(shot.RollsLeft);
}

bool MainWindow::AskToStopRun() {
  if (runKind_ != RunKind::HyperDrive) return true;
  return dialogs_.Message({"Hyper-Drive Active", "Do you want to stop Hyper-Drive?", Buttons::YesNo, false}).reply ==
         Reply::Yes;
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (table_.Busy()) {
    event->ignore();
    if (!AskToStopRun()) return;
    // The run lets go of the game after its roll; the window closes then.
    quitAfterRun_ = true;
    table_.Stop();
    return;
  }
  if (table_.Quit(true).code == TableCode::Cancelled) {
    event->ignore();
    return;
  }
  if (bankroll_) bankroll_->close();
  QSettings().setValue(QStringLiteral("window/geometry"), saveGeometry());
  event->accept();
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
  const bool ctrl = event->modifiers() == Qt::ControlModifier;
  const int key = event->key();
  if (ctrl && ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))) {
    if (table_.Busy()) {
      dialogs_.Message({"Hot-Key", kBusyText, Buttons::Ok, false});
    } else {
      table_.RunHotKey(static_cast<char>(key >= Qt::Key_A ? 'A' + (key - Qt::Key_A) : '0' + (key - Qt::Key_0)));
    }
    return;
  }
  if (key == Qt::Key_Escape) {
    if (table_.Busy())
      table_.Stop();
    else
      LeaveToolMode();
    return;
  }
  QMainWindow::keyPressEvent(event);
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange && !isMinimized()) stoppedWhileMinimised_ = false;
  if (event->type() == QEvent::WindowStateChange) UpdateCaption();
  QMainWindow::changeEvent(event);
}

void MainWindow::UpdateCaption() {
  if (isMinimized() && table_.Busy() && runKind_ == RunKind::HyperDrive) {
    setWindowTitle(kAppName + QStringLiteral(" Hyper-Drive Active"));
    return;
  }
  if (isMinimized() && stoppedWhileMinimised_) {
    setWindowTitle(kAppName + QStringLiteral(" Hyper-Drive Stopped"));
    return;
  }
  if (table_.Busy()) return;  // the game is the run's until it ends
  const QString file = QFileInfo(QString::fromStdString(table_.State().GameFileName)).fileName();
  const bool named = !file.isEmpty() && file.compare(QStringLiteral("default.crp"), Qt::CaseInsensitive) != 0;
  setWindowTitle(named ? kAppName + QStringLiteral(" (") + file + ')' : kAppName);
}

void MainWindow::UpdateMenus() {
  const bool busy = table_.Busy();
  for (const MenuItemEntry& entry : MainMenuItems()) {
    QAction* action = Action(entry.command);
    action->setEnabled(!busy || entry.duringRun == DuringRun::Enabled);
  }
  Action(MenuCommand::AutoRoll)->setText(tr(AutoRollCaption(busy && runKind_ == RunKind::AutoRoll)));
  // A Hyper-Drive run is stopped from its own screen, Esc or Exit.
  if (busy && runKind_ == RunKind::HyperDrive) Action(MenuCommand::AutoRoll)->setEnabled(false);
  ShowRunState();
}

void MainWindow::UpdateStatus() {
  if (table_.Busy()) return;
  const Game& g = table_.State();
  sounds_.SetSilenced(g.DisableAllSound);
  sounds_.Choose(SoundChoiceOf(g));
  status_->Show(FiguresOf(g));
  if (pad_) pad_->SetRollCount(g.RollCounts[event::kAllRolls]);
  status_->ShowQuickStats(QuickStatsLine(FigureQuickStats(g)));
  TableLook look = LookOf(g);
  look.showHop = Action(MenuCommand::HopBets)->isChecked();
  look.betsAsNumbers = Action(MenuCommand::BetsAsNumbers)->isChecked();
  if (tool_ == WindowTool::Remove) look.tool = layout::kToolRemove;
  if (g.RollCounts[event::kAllRolls] == 0) look.die1 = look.die2 = 0;
  view_->SetLook(look);
  view_->SetColours(look.colours);
}

// --- TableListener -----------------------------------------------------------

void MainWindow::BetChanged(int betId, Currency before, Currency after) {
  if (table_.Busy() || betId < bet::kFirstTableBet || betId > bet::kLastTableBet) return;
  if (after > before) sounds_.PlayChips();
  UpdateStatus();
}

void MainWindow::BankrollChanged(Currency, Currency) { UpdateStatus(); }

void MainWindow::PointChanged(int) { UpdateStatus(); }

void MainWindow::DiceThrown(int, int) { UpdateStatus(); }

void MainWindow::UnsavedChanged(bool) { UpdateCaption(); }

void MainWindow::SettingChanged(const std::string&) { UpdateStatus(); }

void MainWindow::RunStarted() { UpdateMenus(); }

void MainWindow::RunStopped(StopReason) {
  liveTimer_.stop();
  if (isMinimized() && runKind_ == RunKind::HyperDrive) stoppedWhileMinimised_ = true;
  UpdateMenus();
  UpdateStatus();
  UpdateCaption();
  emit RunFinished();
  if (quitAfterRun_) {
    quitAfterRun_ = false;
    close();
  }
}

// --- TableScreen ---------------------------------------------------------------

void MainWindow::ShowDice(int die1, int die2, int pointAfter) {
  TableLook look = view_->Look();
  look.die1 = die1;
  look.die2 = die2;
  look.point = pointAfter;
  view_->SetLook(look);
  view_->AnimateThrow(die1, die2);
}

void MainWindow::RedrawBet(int) { UpdateStatus(); }

void MainWindow::GraphWindowFilled() {
  if (bankroll_) bankroll_->Refresh();
}

void MainWindow::RefreshTable() {
  UpdateStatus();
  // After a rewind of the Dice Roll File its screen shows where play resumes.
  if (rollFiles_ && !table_.Busy()) rollFiles_->Refresh();
}
