#pragma once
// The bankroll graph and Hyper-Drive screen: the window of the last 525
// rolls with its scale, average and reference lines, the run's figures, the
// throttle and the button that starts and stops Hyper-Drive. Runs are
// started and stopped through its signals by the window that owns the table;
// everything else goes through the table's commands.

#include <QElapsedTimer>
#include <QWidget>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "sim/table_listener.h"
#include "ui/bankroll_graph_print.h"
#include "ui/bankroll_graph_view.h"

class Dialogs;
class QAction;
class QLabel;
class QMenuBar;
class QPrinter;
class QPushButton;
class QScrollBar;
class QSlider;
class QSpinBox;
class Table;
struct Game;
struct RunSnapshot;

class BankrollGraphScreen : public QWidget, public TableListener {
  Q_OBJECT
 public:
  BankrollGraphScreen(Table& table, Dialogs& dialogs, QWidget* parent = nullptr);
  ~BankrollGraphScreen() override;

  // Redraws from the run's snapshot while one is under way, from the game otherwise.
  void Refresh();
  // As Refresh, from a snapshot the caller took; the speed is measured here.
  void ShowFigures(const RunSnapshot& shot, double rollsPerSecond);
  void SetRunning(bool running);
  void SetRolls(int rolls);
  int Rolls() const;

  BankrollGraphView* View() const { return view_; }

  // --- TableListener ---
  void RunStarted() override;
  void RunStopped(StopReason reason) override;
  void RollFinished(std::span<const Settlement> settlements) override;
  void SettingChanged(const std::string& name) override;

 signals:
  void StartRequested(int rolls);
  void StopRequested();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void BuildMenus(QMenuBar* bar);
  QWidget* BuildControls();
  void ShowGame(const Game& g);
  void ShowRun(const RunSnapshot& shot, double rollsPerSecond);
  void ShowWindowFigures(Currency high, Currency low, Currency current, int64_t rolls);
  void Redraw();
  void StepGraph(int step);
  void ChooseAdjust(int type);
  void ChooseAverage();
  void ToggleReferenceLines(bool on);
  void MoveReferenceLine(int line, int point, bool commit);
  void CommitReferenceLines();
  void ShowReferenceDifferences();
  void PrintNow();
  void ToggleAutoPrint(bool on);
  void AutoPrintFullWindow();
  // Asks for the Auto-Print printer and opens its job; false when the player cancels.
  bool StartAutoPrintJob();
  PrintedGraph CurrentGraph() const;
  void SyncMenus();

  // The display switches the game keeps. A run answers busy to their
  // setting: the choice is drawn at once and told to the table after it.
  enum class Switch { Average, Grid, Style, Colour, AutoPrint, Count };
  void Choose(Switch which, int32_t value);
  bool Tell(Switch which, int32_t value);
  void TellPending();
  int32_t Value(Switch which) const;
  bool ShowsAverage() const { return Value(Switch::Average) != 0; }
  bool AutoPrinting() const { return Value(Switch::AutoPrint) != 0; }
  void ApplyLook();

  Table& table_;
  Dialogs& dialogs_;
  BankrollGraphView* view_ = nullptr;
  GraphPicture picture_;
  GraphLook look_;
  static constexpr size_t kSwitches = static_cast<size_t>(Switch::Count);
  std::array<int32_t, kSwitches> fromGame_{};  // as last read while the game was free
  std::array<std::optional<int32_t>, kSwitches> pending_{};
  int32_t averageRolls_ = 0;
  int32_t adjustType_ = 0;
  bool running_ = false;
  bool linesPending_ = false;  // lines moved during a run, told to the table after it
  Currency rate_ = 100;        // simulated rolls per hour; fixed while a run owns the game
  QStringList files_;          // the header's file lines, read while the game is free
  Currency high_, low_, current_;
  int64_t rolls_ = 0;
  QElapsedTimer runClock_;
  int64_t rollsAtStart_ = 0;

  // Print Now fills a page; Auto-Print keeps its own job open while it is on
  // (the job goes before its printer), asked for when it is switched on, or at
  // its first page when the game came with it on.
  PrintedPage page_;
  std::unique_ptr<QPrinter> autoPrinter_;
  std::unique_ptr<GraphPrintJob> autoJob_;
  int64_t lastAutoPrinted_ = -1;  // the first roll of the last window printed

  QLabel *highLabel_, *lowLabel_, *currentLabel_, *rollsLabel_, *hoursLabel_, *rateLabel_, *speedLabel_;
  QLabel *averageLabel_, *leftLabel_, *rightLabel_, *refRolls_, *refBankroll_, *autoPrintLabel_, *reasonLabel_;
  QWidget* refPanel_ = nullptr;
  QScrollBar* refBars_[2] = {};
  QSpinBox* count_ = nullptr;
  QPushButton* button_ = nullptr;
  QSlider* throttle_ = nullptr;
  QAction *displayAverage_, *setAverage_, *grid_, *refLines_, *autoPrintAction_;
  std::vector<QAction*> adjust_, styles_, colours_;
};

// Plays a fresh game of `rolls` Hyper-Drive rolls with a line bet and odds,
// so that the screen has a realistic window to show in the manual.
void PlayForGraphPicture(Table& table, int rolls);
