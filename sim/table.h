#pragma once
// The one front door to a game. A screen, a script runner or the command
// line acts on the table only through these calls; each answers with a value
// (done, or the refusal the engine would show), marks the game unsaved where
// it changed it, and tells the listeners what changed. Front ends read the
// game through State() and never write it.

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "autoplay/atm.h"
#include "dice/prob_table.h"
#include "dice/money.h"
#include "engine/script_line.h"
#include "engine/payoffs.h"
#include "engine/rules.h"
#include "script/hot_key_run.h"
#include "sim/fresh_table.h"
#include "sim/hyper_drive.h"
#include "sim/run_controller.h"
#include "sim/table_result.h"
#include "sim/table_snapshot.h"
#include "stats/summary.h"

struct Game;
struct PayoffRecord;
struct RollTextOptions;
class DataFolderLock;
class FrontEnd;
class TableListener;
class TableRelay;

// The edits of the Dice Roll File screen that act on the selection.
enum class RollFileEdit { SelectAll, Copy, Cut, Paste, Delete };
// The edits that take another file.
enum class RollFileTransfer { CopyTo, PasteFrom, ImportText };

// The moves of the bankroll graph's window.
enum class GraphStep { ScaleLarger, ScaleSmaller, MoveUp, MoveDown };

class Table {
 public:
  // A fresh table with the built-in defaults, talking to `screen`.
  explicit Table(FrontEnd& screen);
  ~Table();
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;

  const Game& State() const { return *game_; }

  // --- The gate of a run --------------------------------------------------
  // While a run owns the game every command but Stop, the throttle and the
  // graph window answers kBusyText.
  bool Busy() const { return busy_; }
  void BeginRun();
  void EndRun(StopReason reason);

  void Subscribe(TableListener* listener);
  void Unsubscribe(TableListener* listener);

  // --- Start and end ---------------------------------------------------------
  // A table with no file: the built-in defaults and the first roll (as every
  // game of a batch run starts).
  void StartFresh(const FreshTable& how = {});
  // The start of a screen: claims the data folder (another Dicemill holding
  // it leaves this one reading only), then opens its default game.
  void StartUp(const std::string& folder, bool claimFolder);
  // Quit: every unsaved thing is offered for saving; Cancelled keeps the
  // table going when mayCancel.
  TableResult Quit(bool mayCancel = true);
  // The end without questions, after a failure.
  void CloseDown();

  // --- Bets ------------------------------------------------------------------
  BetResult Bet(int betId, Currency change);
  TableResult Remove(int betId);
  TableResult RemoveAll();
  TableResult Call(int betId, bool on);
  TableResult CallAll(bool on);
  BetResult Buy(int placeBetId);
  // A click with the click tool; with Shift the whole bet comes down.
  TableResult Click(int betId, bool shift);
  TableResult SetClickTool(int tool);
  // A keyed-in amount for the bet; WrongType when the text is no amount.
  TableResult Enter(int betId, const std::string& text);

  // --- Rolls and runs ----------------------------------------------------------
  RunResult Roll();
  RunResult Roll(int die1, int die2);
  // The roll-your-own pad: a pair, or a total whose pair the pad draws.
  RunResult PadRoll(int die1, int die2);
  RunResult PadTotal(int total);
  // Auto-Roll of `rolls` throws at no delay; the Auto-Roll settings stand
  // as they were afterwards.
  RunResult AutoRoll(int32_t rolls);
  // A Hyper-Drive run of `rolls`, or of the roll count set (Refused without one).
  RunResult HyperDrive(std::optional<int32_t> rolls);
  // A screen's run: Hyper-Drive or Auto-Roll on a worker thread that owns
  // the game until the run ends, so the screen stays live. `post` runs a task
  // on the screen's thread, where the run's questions are answered and where
  // the run's end is told (RunStopped). Meanwhile the screen draws from
  // LiveSnapshot(), and every command but Stop, the throttle and the graph
  // window answers kBusyText.
  TableResult StartLive(RunKind kind, PostFn post);
  RunSnapshot LiveSnapshot() const;
  // Ends a run after the roll in progress; answered even while busy.
  TableResult Stop(StopReason reason = StopReason::None);
  TableResult SetThrottle(int32_t value);

  // --- Money and payoffs -----------------------------------------------------
  // Check n (1..5) takes `value` (.01 to 100,000).
  TableResult SetChip(int n, Currency value);
  // All five at once, as the configuration screen's OK takes them: each
  // above zero, in ascending order, each a multiple of the smallest.
  TableResult SetChips(const std::array<Currency, 5>& values);
  TableResult SetPayoff(int betId, const PayoffRecord& payoff);
  TableResult SetFieldPayoff(int row, const PayoffRecord& payoff);
  AtmResult Atm(AtmAction action, Currency amount);
  TableResult Seed(Currency seed);
  TableResult SetRollRate(Currency value, RateUnit unit);

  // --- The configuration screen --------------------------------------------------
  // While the screen is open the ATM speaks up whatever the notice mask says.
  TableResult SetConfigScreenOpen(bool open);
  // The screen's closing check: one message at the first fault, which the
  // answer names (tab and control) for the screen to select.
  ConfigCheck ValidateConfiguration();
  TableResult RestoreDefaultPayoffs();
  // One of the kFieldPresetCount Field presets, in menu order.
  TableResult SetFieldPreset(int preset);
  // A cell of the payoff grid as the player types it: an amount or Per
  // (columns 0 and 2), or the "t"/"f" key on the form word (column 1).
  // Refused, with nothing changed, where the grid takes no such edit.
  TableResult EditPayoffCell(PayoffTable grid, int record, int column, Currency typed);
  TableResult EditPayoffCell(PayoffTable grid, int record, int column, char key);
  // A bare number would go to the key's overload: say Currency(8) or '8'.
  TableResult EditPayoffCell(PayoffTable grid, int record, int column, int) = delete;
  // Puts Chip-Stack `stack` (0..99) on tray tool `tool` (7..10).
  TableResult SetTrayStack(int tool, int stack);

  // --- Settings by name --------------------------------------------------------
  // "NAME" or "NAME.INDEX" of the settings table; the value as the table
  // keeps it (flags 0/1, integers whole). Unknown names, wrong kinds of
  // value and values out of range are answered, with nothing changed.
  TableResult Set(const std::string& name, Currency value);
  SettingResult Get(const std::string& name) const;

  // --- Game files ----------------------------------------------------------------
  // New asks about unsaved work first; Cancelled leaves the game as it was.
  TableResult New(bool keepChipStacks);
  TableResult Open(const std::string& path);
  TableResult SaveAs(const std::string& path);
  TableResult Save();
  TableResult OpenGamesLog(const std::string& path);
  TableResult CloseGamesLog();

  // --- The script ----------------------------------------------------------------
  // Loads and switches Auto-Bet on; NotDone carries the reason.
  TableResult LoadScript(const std::string& path);
  // Only reads the file into the table's script, for a tool that plays it
  // elsewhere: no working copy is written and Auto-Bet is not switched.
  TableResult ReadScript(const std::string& path);
  TableResult ActivateScript(bool on);
  TableResult ShowSteps(bool on);
  TableResult RunScriptPass();
  // A Hot-Key: one pass of its bound file.
  HotKeyOutcome RunHotKey(char key);
  TableResult DefineHotKey(char key, const std::string& file, const std::string& label);
  TableResult ClearHotKey(char key);

  // --- The Auto-Bet editor ----------------------------------------------------------
  // The editor's lines become the script as they are edited: unsaved, Flags
  // rebuilt. Its first cycle waits until the editor closes.
  TableResult ReplaceScript(const std::vector<ScriptLine>& lines);
  // The editor closes: a changed script is written to the working copy and
  // offers its first cycle before the next roll; Auto-Bet is left as the
  // editor's switch says.
  TableResult CloseScriptEditor(bool changed, bool activated);
  // New and Open in the editor ask about unsaved lines first; Cancelled keeps them.
  TableResult NewScriptInEditor();
  TableResult OpenScriptInEditor(const std::string& path);
  // Save and Save As: a ".bet" path gets records, any other the text form.
  TableResult SaveScriptAs(const std::string& path);
  // "Copy To Auto-Bet File": these lines only; the script keeps its name.
  TableResult WriteScriptLines(const std::string& path, const std::vector<ScriptLine>& lines);
  // --- Dice Roll File --------------------------------------------------------------
  TableResult OpenRollFile(const std::string& path);
  TableResult CloseRollFile();
  TableResult SetRecorder(int status);
  TableResult SetRollPosition(int64_t next, int64_t anchor = -1);
  TableResult SetRollInsert(bool insert);
  TableResult EnterRoll(int die1, int die2);
  TableResult EnterRandomRoll();
  TableResult EditRolls(RollFileEdit edit);
  TableResult TransferRolls(RollFileTransfer transfer, const std::string& path);
  TableResult ExportRolls(const std::string& path, const RollTextOptions& options);
  int64_t RollFileRolls() const;

  // --- Percentage dice -------------------------------------------------------------
  TableResult ResetProbabilities();
  TableResult OpenProbabilities(const std::string& path);
  TableResult SaveProbabilities(const std::string& path);
  // A typed value into a cell of the table, read in the display mode given.
  TableResult SetProbabilityCell(int row, int column, double typed, int32_t displayMode);
  TableResult LockProbabilityCell(int row, int column, bool locked);
  TableResult UnlockAllProbabilities();
  TableResult ComputeProbabilityAxis(DieAxis axis1, double se1, DieAxis axis2, double se2);

  // --- Statistics ----------------------------------------------------------------
  // The summary screen's figures; it fills the totals of the actual results
  // first, which changes no figure of the game.
  std::vector<SummaryRow> Summary();

  // --- Bankroll graph -----------------------------------------------------------------
  TableResult SetGraphAverage(int32_t rolls);
  TableResult StepGraph(GraphStep step);  // the window: answered even while busy
  TableResult SetGraphAdjust(int32_t type);
  TableResult SetReferenceLines(int32_t first, int32_t second);
  TableResult ClearReferenceLines();

 private:
  friend struct TableForTest;
  // Runs a command through the gate, then tells the listeners.
  template <class R = TableResult, class F>
  R Command(F&& change);
  // Tells the listeners what changed since the last time they were told.
  void Publish();
  RunResult Throw();
  RunResult Run(bool hyperDrive);
  bool LiveRunning() const { return live_ && live_->Running(); }
  // A changed script offers its first cycle before the table's next roll.
  void GoToTable();
  TableResult MarkUnsavedIf(bool changed);

  // The relay outlives the game, whose files may still speak as they close.
  std::unique_ptr<TableRelay> relay_;
  std::unique_ptr<Game> game_;
  std::unique_ptr<DataFolderLock> folderLock_;
  std::vector<TableListener*> listeners_;
  TableSnapshot told_;  // what the listeners were last told
  bool busy_ = false;
  // Last, so that a run still on is stopped before the game goes.
  std::unique_ptr<RunController> live_;
};
