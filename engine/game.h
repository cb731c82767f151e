#pragma once
// All state of one game: the table, the settings, the generators and the
// counters. Engine routines take a Game by reference; there are no globals,
// so many games can run side by side on different threads.

#include <array>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "dice/dice_roll_file.h"
#include "dice/dice_state.h"
#include "dice/money.h"
#include "engine/bet_amounts.h"
#include "engine/bet_maximum_memo.h"
#include "engine/bet_status_table.h"
#include "engine/bet_trend.h"
#include "engine/catalogue.h"
#include "engine/hand_counters.h"
#include "engine/frontend.h"
#include "engine/game_file_extras.h"
#include "engine/game_hooks.h"
#include "engine/hot_key_binding.h"
#include "engine/notices.h"
#include "engine/payoff_rows.h"
#include "engine/script.h"
#include "engine/settlement_log.h"
#include "engine/sound_sets.h"
#include "engine/statistics_ledger.h"
#include "engine/stop_reason.h"
#include "engine/whole_payoff_memo.h"


constexpr int32_t kTrue = -1;

// The roll count of the game is element 0 of the dice events: the table keeps
// it itself, since its ceiling and the generators that alternate by roll
// depend on it; the other selections are the statistics' to count.
namespace event {
constexpr int kAllRolls = 0;
}  // namespace event  // booleans stored as 32-bit integers use -1

constexpr int64_t MaxRolls = 100'000'000;
constexpr int BankLimit = 9'999'999;

// The dice part (DiceState: the generators, the percentage table, Die1 and
// Die2) comes first.
struct Game : DiceState {
  // --- Money slots and per-bet arrays -------------------------------------
  BetAmounts BetAmount;
  std::array<std::string, bet::kSlots> BetName{};
  BetStatusTable BetStatus;
  std::array<int32_t, 101> WorkOnComeOut{};  // status while no point is on
  std::array<std::array<int32_t, 101>, 2> BetStreak{};  // [1] now, [0] at the top of the roll
  // The bets whose streak [0] is behind [1]: a roll brings just those up to
  // date as it starts, rather than copying every bet's.
  SlotBits<2> StreaksMoved{{~uint64_t{0}, ~uint64_t{0}}};
  // The contract baseline of bets 0..46 (Committed): their amounts as the
  // dice went out, which is the roll's start snapshot, except where a bet
  // was decided or moved onto its number since. A roll starts it by
  // dropping those changes rather than copying the layout.
  static constexpr int kCommittedSlots = bet::kDontPass + 1;
  using CommittedTable = std::array<Currency, kCommittedSlots>;
  CommittedTable CommittedSince{};
  uint64_t CommittedChanged = ~uint64_t{0};
  // The amounts as the dice went out (BetAtRollStart) and as the last
  // script pass left them (BetAfterRoll). Two buffers: when nothing moved a
  // bet between a pass and the next throw, both name one buffer and a roll
  // copies the layout once rather than twice.
  // BetAmount brings each buffer up to date with the slots that moved.
  using Amounts = BetAmounts::Amounts;
  std::array<Amounts, BetAmounts::kCopies> BetSnapshots{};
  uint8_t AtRollStartIndex = 0, AfterRollIndex = 1;
  bool BetsMovedSincePass = true;  // anything may have changed since the last pass
  std::array<float, bet::kSlots> BetX{};
  std::array<float, bet::kSlots> BetY{};
  std::array<Currency, 6> BuyVigOnBet{};     // index BetId-37
  std::array<Currency, 6> LayVigOnBet{};     // index BetId-1
  PayoffRows<101> Payoff;      // row 0: the bet being settled
  PayoffRows<22> FieldPayoff;  // rows 1..21 by dice pair

  // --- Scalars of the table -----------------------------------------------
  int32_t DiceTotal = 7;
  int32_t Point = 0;            // after this roll; 0 is the come-out
  int32_t PointBeforeRoll = 0;  // what every decision of this roll reads
  int32_t PointTwoRollsAgo = 0;
  Currency TotalOnTable;        // bets 1..83 plus vig charged up front
  Currency BankrollSum;
  Currency HighBankroll, LowBankroll;
  Currency RawPayoff, NetPayoff;
  int32_t SettlingBetId = 0;
  bool BetComesDown = false;
  bool RollInProgress = false;
  bool KeepRolling = false;
  bool HyperDriveOn = false;
  bool DiceAlreadySet = false;
  ::StopReason StopReason = ::StopReason::None;
  int32_t NoticeMask = kNoticeDefault;  // bits kNotice*
  bool MovingBet = false;
  bool TableDirty = false;
  bool TableUsed = false;
  bool GameChanged = false;
  Currency BetChange;          // input of PlaceBet
  Currency BetChangeAllowed;   // output of PlaceBet
  std::array<int32_t, hand::kCount> HandStats{};
  SettlementLog Settlements;  // this roll's decisions, cleared as the dice go out
  std::string MsgText, MsgTitle;  // the pending message
  std::string ErrorText;          // pending run-time error text, shown by the roll

  // What a click on a bet does: a kTool* of engine/table_commands.h.
  int32_t ClickTool = 1;
  std::array<int32_t, 5> TrayStack{0, 101, 102, 103, 104};

  // --- Rules and limits ---------------------------------------------------
  Currency TableMinimum = 1;
  Currency TableMaximum = 1000;
  Currency MaxOddsBet = 2000;
  Currency MaxPropBetPayoff = 3000;
  Currency OddsAllowed410 = 2;
  Currency OddsAllowed59 = 2;
  Currency OddsAllowed68 = Currency::FromRaw(25000);
  int32_t OddsCalcMethod = 0;
  // Maxima worked out from the limits above and the payoffs; a cache that
  // checks its own inputs, so asking for a maximum still reads as a query.
  mutable BetMaximumMemo MaximumMemo;
  WholePayoffMemo WholePayoffs;  // the same kind of cache, for the automatic adjustment
  int32_t BarNumber = 12;
  bool AllowPutBets = false;
  Currency LayVigRate = Currency::FromRaw(500);
  bool ChargeAllLay = true;
  int32_t RoundLayVig = 0;  // 0 normally, 1 down, 2 up
  Currency BuyVigRate = Currency::FromRaw(500);
  bool ChargeAllBuy = true;
  int32_t RoundBuyVig = 0;
  int32_t BankrollInitType = 0;  // 0 amount, 1 prompt, 2 carry, 3 carry with net
  Currency BankrollInitAmount = 500;
  bool AllowNegativeBankroll = true;
  Currency AtmAmount = 500;
  Currency AmountInvested;
  bool ConfigScreenActive = false;  // the ATM speaks up whatever the notice mask

  // --- The configuration screen's own choices -------------------------------
  // Kept with the game so that a table opens looking and sounding as it was
  // left. Sound choices index the sorted lists of SoundSets; comps are the
  // casino's reward for play, a share of the theoretical loss.
  int32_t ConfigTab = 0;  // the tab last shown, 0..9
  int32_t ChipSet = 0, ChipStyle = 0, DiceStyle = 0, DiceAction = 0;
  bool UseCentsSymbol = false;
  bool SnapMouse = false;  // stored only: the pointer is never moved for the player
  int32_t StickPersonSound = 0, DiceSound = 0, ChipSound = 0, WinSound = 0;
  bool DisableAutoBetSounds = false;
  std::array<int32_t, 4> CompBetsMask{0, 1, 1, 0};  // 1..3: the bet families that earn comps
  int32_t CompBase = 0;                              // 0 per decision, 1 per roll
  bool CompsUseTrueProbs = true;
  Currency CompRate = Currency::FromRaw(4000);  // of the theoretical loss: 40%
  std::array<int32_t, 3> PrintColors{0, 9, 12};  // text, won, lost: indexes of the 16-colour table
  int32_t TableScheme = 0;
  bool ShowMiscData = false;
  int32_t AdvantageScrollTop = 0, PayoffScrollTop = 0;

  // --- Auto-Play ------------------------------------------------------------
  bool AutoTakeFullOdds = false;
  bool AutoLayFullOdds = false;
  bool AutoRemovePlaceBets = false;
  bool AutoArrangeChips = true;
  bool AutoRollOn = false;
  int32_t RollCountStop = 0;
  int32_t RollCountLeft = 0;
  int32_t AutoRollDelay = 0;  // whole seconds
  std::array<bool, 17> StopOnRoll{};
  int32_t WonBetAction = 0;
  int32_t HandleLosingBets = 1;
  int32_t AutoAdjustMode = 2;  // 0 manual, 1 minor correction, 2 colour correction
  // Which way an adjustment goes: 0 nearest (a tie goes down), 1 up, 2 down.
  int32_t LayBias = 0;
  int32_t PlaceBias = 1;
  int32_t DoBias = 0;
  int32_t DontBias = 0;
  bool AdjustDownOnly = false;  // set while a parlay places: every family rounds down
  // The "Same Bet:" and "Bet:" amounts, each form its own entry (kModify*):
  // operator 0 "+", 1 "-", 2 "x", 3 "/"; units -1 "$", 0 "%", 2..6 checks 95..99.
  std::array<int32_t, 6> ModifyOperator{};
  std::array<Currency, 6> ModifyAmount{};
  std::array<int32_t, 6> ModifyUnits{-1, -1, -1, -1, -1, -1};

  // --- Dice (beyond DiceState) ---------------------------------------------
  bool UserSeedMode = false;
  bool ReSeedNewGames = true;
  int32_t LastSeed = 0;
  Currency SeedRequest;
  int32_t DiceFileMode = 0;  // 0 none, 1 recording, 2 playing

  // --- Percentage dice: the editor of DiceState's table ------------------------
  int32_t ProbDisplayMode = 0;  // 0 percent, 1 +/- true %, 2 rolls out of, 3 +/- true rolls
  int32_t ProbRollsOutOf = 36;  // the "rolls out of" count of modes 2 and 3
  bool ProbModified = false;
  std::string ProbFileName = "untitled";

  // --- Simulation and sound -------------------------------------------------
  bool DisableAllSound = false;
  int32_t ThrottleValue = 0;
  int32_t SpeedUnit = 0;

  // --- Statistics -----------------------------------------------------------
  // The dice events by selection (index = event code - 2000): element 0 all
  // rolls of the game, 1 "all the numbers", 2..89 the selections. The
  // Previous copies are the values before this roll, for the script's
  // "just now" tests.
  std::array<int32_t, 91> RollCounts{};
  std::array<int32_t, 91> RollsSinceLast{};
  std::array<int32_t, 91> PreviousRollCounts{};
  std::array<int32_t, 91> PreviousRollsSinceLast{};
  // The rolls and phantom units counted in bulk since the figures above and
  // the result cells below were last written (stats/statistics_sync.h).
  RollTally Tally;
  PhantomLedger Phantoms;
  // This throw's phantom units are counted whole by the statistics; false:
  // the settling books each one itself.
  bool PhantomsDeferred = false;
  // Book every roll in full as it comes, never in bulk: slower, and the
  // measure that the bulk counting is checked against.
  bool StatisticsInFull = false;
  Currency SimRollRate = 100;  // simulated rolls per hour
  bool IncludeZeroOutcomes = false;  // the advantage table counts a push as a decision

  // --- Bet results -------------------------------------------------------------
  // BetWagers, BetWins, BetLosses [kind: 0 phantom, 1 actual][BetId 0..100]
  // [measure 0..7]; see stats/bet_results.h. BetId 0 is the totals cell.
  using BetResultTable = std::array<std::array<std::array<Currency, 8>, 101>, 2>;
  // Aligned so that a cell is one cache line: every decision touches them.
  alignas(64) BetResultTable BetWagers{};
  alignas(64) BetResultTable BetWins{};
  alignas(64) BetResultTable BetLosses{};
  // The cells booked since the top of the roll (kind x 128 + BetId), so that
  // clearing the last-roll measures costs only what was booked.
  std::array<int16_t, 256> BookedThisRoll{};
  std::array<uint8_t, 256> BookedListed{};
  int32_t BookedThisRollCount = 0;
  static constexpr int kTrendCells = BetTrend::kCells;
  std::array<BetTrend, 84> BetTrends{};

  // --- Bankroll graph and games log ---------------------------------------------
  // GraphBankroll[0] is the roll count at the window's left edge, 1..525 the
  // window being drawn, 526..1050 the window before it. The scales are money
  // per pixel row; a window is 300 rows high.
  std::array<Currency, 1051> GraphBankroll{};
  std::array<Currency, 526> GraphAverage{};
  int32_t GraphCount = 0;
  int32_t MovingAverageRolls = 0;  // 0: every roll of the game
  bool DisplayAverage = false;
  Currency GraphHigh, GraphLow;
  int32_t AutoAdjustType = 1;  // 0 manual, 1 expanding scale, 2 snap-back scale
  Currency GraphScale = 1;
  Currency ManualScale = 1;
  Currency GraphTop;
  bool DisplayGridLines = true;
  bool DisplayRefLines = false;
  std::array<int32_t, 2> RefLinePosition{};  // window points of the two lines, 0 none
  int32_t GraphStyle = 0;
  int32_t GraphColor = 0;
  bool AutoPrint = false;
  std::string GamesLogFile;  // the games log a finished game is added to; empty: none

  // --- Dice Roll File ---------------------------------------------------------
  // The open file, its positions and its handle (closed with the game).
  // DiceFileMode above is the recorder status.
  DiceFileState DiceFile;

  // --- Auto-Bet script -------------------------------------------------------
  // The lines, Flags and Chip-Stack names; the script belongs to the game.
  Script AutoBet;
  bool AutoBetActivated = false;  // the Auto-Bet switch: run the script after each roll
  bool AutoBetRunning = false;    // a pass is under way; clearing it stops the pass
  bool ShowingSteps = false;      // every step of a pass waits on the steps viewer
  bool HotKeyRun = false;         // this pass was started by a Hot-Key
  bool InitPending = false;       // the script changed: its first cycle is due
  Answer LastAnswer = Answer::None;  // to the script's last question
  int32_t RollCountAfterPass = 0; // the roll count as the last pass ended
  std::string MessageBuffer;      // a run of message lines being built
  std::ofstream ScriptOutput;     // the script's output file, kept between passes

  // --- Files ----------------------------------------------------------------
  std::string DataFolder;  // where "default.crp" and the other files live
  // Another Dicemill has the data folder: its files are read but never
  // written or removed by this one.
  bool DataFolderInUse = false;

  // --- Unsaved work, game file, Hot-Keys and sound sets ---------------------
  // GameChanged (above) and ProbModified are the game's and the probability
  // table's dirty flags; ScriptDirty is the script's.
  bool ScriptDirty = false;
  std::string GameFileName;       // the game's own file; empty for the default game
  std::string TableCaption = "Dicemill";
  Answer MsgReply = Answer::None;  // the last save prompt's answer; None: nothing asked
  std::vector<HotKeyBinding> HotKeys;
  SoundSets Sounds;
  GameFileExtras FileExtras;      // what a game file holds that this program does not use

  // --- Screen and what hangs on the table ---------------------------------------
  FrontEnd* Ui = &silentUi;
  GameHooks Hooks;  // set by whoever puts the game together

  const Amounts& BetAtRollStart() const { return BetSnapshots[AtRollStartIndex]; }
  const Amounts& BetAfterRoll() const { return BetSnapshots[AfterRollIndex]; }
  Amounts& EditAtRollStart() {
    Unshare();
    return EditSnapshot(AtRollStartIndex);
  }
  Amounts& EditAfterRoll() {
    Unshare();
    return EditSnapshot(AfterRollIndex);
  }
  // One slot of both snapshots.
  void SetSnapshotSlot(int slot, Currency amount) {
    for (int copy = 0; copy < BetAmounts::kCopies; ++copy) EditSnapshot(copy)[slot] = amount;
  }

  Currency Committed(int id) const {
    return (CommittedChanged >> id) & 1 ? CommittedSince[id] : BetAtRollStart()[id];
  }
  void SetCommitted(int id, Currency amount) {
    if (id >= kCommittedSlots) return;
    CommittedSince[id] = amount;
    CommittedChanged |= uint64_t{1} << id;
  }
  CommittedTable CommittedAmounts() const {
    CommittedTable all;
    for (int id = 0; id < kCommittedSlots; ++id) all[id] = Committed(id);
    return all;
  }
  void SetAllCommitted(const CommittedTable& all) {
    CommittedSince = all;
    CommittedChanged = ~uint64_t{0};
  }
  // The dice go out: the baseline is the layout as it stands.
  void CommitLayout() { CommittedChanged = 0; }

  Currency& Bankroll() { return BetAmount.Bankroll(); }
  Currency Bankroll() const { return BetAmount[bet::kBankroll]; }
  Currency SmallestChip() const { return BetAmount[bet::kFirstChip]; }
  // Notices are never shown under Hyper-Drive.
  bool Visible() const { return !HyperDriveOn; }

  Game() = default;
  Game(const Game&) = delete;
  Game& operator=(const Game&) = delete;

 private:
  void Unshare() {
    if (AtRollStartIndex != AfterRollIndex) return;
    AtRollStartIndex ^= 1;
    BetSnapshots[AtRollStartIndex] = BetSnapshots[AfterRollIndex];
    BetAmount.CopyEdited(AtRollStartIndex);
  }
  Amounts& EditSnapshot(int copy) {
    BetAmount.CopyEdited(copy);
    return BetSnapshots[static_cast<size_t>(copy)];
  }

  SilentFrontEnd silentUi;
};
