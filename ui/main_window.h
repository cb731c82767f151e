#pragma once
// The main window: the table, its status lines and every menu. It holds no
// game state: it acts through the Table's commands, redraws from what the
// table tells its listeners, and while a run owns the game draws from the
// run's snapshots.

#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <map>
#include <QTimer>
#include <vector>

#include "sim/run_controller.h"
#include "sim/table_listener.h"
#include "ui/desktop_front_end.h"
#include "ui/menu_tree.h"
#include "ui/status_panel.h"

class AutoPlayScreen;
class DiceRollFilesScreen;
class HotKeysScreen;
class BankrollGraphScreen;
class HelpWindow;
class AutoBetEditor;
class ConfigureWindow;
class StatisticsScreen;
class RollPad;
struct HelpShortcut;
class Dialogs;
class QAction;
class SoundBoard;
class Table;
class TableView;
class QLineEdit;

struct DesktopPaths {
  QString dataFolder;  // the player's files: games, scripts, sounds
  QString docsFolder;  // the user guide the help window reads
};

// The window's own tools beside the table's click tools.
enum class WindowTool { TableTool, Remove };

class MainWindow : public QMainWindow, public TableListener, public TableScreen {
  Q_OBJECT
 public:
  MainWindow(Table& table, DesktopFrontEnd& frontEnd, Dialogs& dialogs, SoundBoard& sounds, DesktopPaths paths);
  ~MainWindow() override;

  QAction* Action(MenuCommand command) const { return actions_.value(static_cast<int>(command)); }
  bool RunUnderWay() const;
  BankrollGraphScreen* Bankroll() const;
  TableView* View() const { return view_; }
  HelpWindow* Help() const;
  RollPad* Pad() const;
  AutoPlayScreen* AutoPlay() const;
  HotKeysScreen* HotKeys() const;
  AutoBetEditor* AutoBetEditorWindow() const;
  void OpenAutoBet();
  // The Configure window while it is open, or nullptr.
  ConfigureWindow* Configure() const;
  void OpenConfigure();
  // The statistics screen `command` opened, or nullptr.
  StatisticsScreen* Statistics(MenuCommand command) const;
  void OpenStatistics(MenuCommand command);
  DiceRollFilesScreen* RollFiles() const;
  // The keys the window answers, for the help's keyboard page.
  std::vector<HelpShortcut> Shortcuts() const;

  // --- TableListener ---
  void BetChanged(int betId, Currency before, Currency after) override;
  void BankrollChanged(Currency bankroll, Currency rail) override;
  void PointChanged(int point) override;
  void DiceThrown(int die1, int die2) override;
  void UnsavedChanged(bool unsaved) override;
  void SettingChanged(const std::string& name) override;
  void RunStarted() override;
  void RunStopped(StopReason reason) override;

  // --- TableScreen ---
  void ShowDice(int die1, int die2, int pointAfter) override;
  void RedrawBet(int betId) override;
  void RefreshTable() override;
  bool IsMinimised() const override { return isMinimized(); }
  // Auto-Print: the graph screen prints the window the run has just filled.
  void GraphWindowFilled() override;

 signals:
  void RunFinished();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildMenus();
  void Perform(MenuCommand command);
  void UpdateCaption();
  void UpdateMenus();
  void UpdateStatus();
  void ShowLiveFigures();
  void StartRun(RunKind kind);
  void StartHyperDrive(int rolls);
  void ChooseTool(int tool, const QString& prompt);
  void PickTool(int tool);
  void ClickBet(int betId, bool shift);
  void OpenKeyIn(int betId);
  // Puts a keyed-in amount on its bet; false when the table refused it.
  bool CommitKeyIn();
  void LeaveToolMode();
  void OpenGame();
  void SaveGameAs();
  void ShowPath();
  void OpenBankroll();
  void OpenHelp(bool search);
  void OpenPad();
  void OpenAutoPlay();
  void OpenHotKeys();
  void OpenRollFiles();
  // A modeless screen of the table, made on first use.
  // Makes a modeless screen on first use with `make` (which wires it), then
  // shows it on top.
  template <class Screen, class Make>
  void Reveal(QPointer<Screen>& screen, Make&& make);
  template <class Screen>
  void OpenScreen(QPointer<Screen>& screen);
  // The run screens' buttons and the pad's choices follow the run.
  void ShowRunState();
  bool AskToStopRun();

  Table& table_;
  DesktopFrontEnd& frontEnd_;
  Dialogs& dialogs_;
  SoundBoard& sounds_;
  DesktopPaths paths_;
  TableView* view_ = nullptr;
  QLineEdit* keyIn_ = nullptr;  // the bet-entry box of Key-in mode
  int keyInBet_ = 0;
  StatusPanel* status_ = nullptr;
  QPointer<BankrollGraphScreen> bankroll_;
  QPointer<HelpWindow> help_;
  QPointer<RollPad> pad_;
  QPointer<AutoPlayScreen> autoPlay_;
  QPointer<HotKeysScreen> hotKeys_;
  QPointer<DiceRollFilesScreen> rollFiles_;
  QPointer<ConfigureWindow> configure_;
  QPointer<AutoBetEditor> autoBet_;
  std::map<MenuCommand, QPointer<StatisticsScreen>> statistics_;
  QHash<int, QAction*> actions_;
  QTimer liveTimer_;           // redraws from the run's snapshot while it runs
  StatusFigures idleFigures_;  // what a run's snapshot does not carry
  RunKind runKind_ = RunKind::AutoRoll;
  WindowTool tool_ = WindowTool::TableTool;
  bool quitAfterRun_ = false;  // Exit was asked during a run: close once it has stopped
  bool stoppedWhileMinimised_ = false;
};
