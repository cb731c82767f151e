#pragma once
// The games log: the record a finished game leaves, and the statistics of
// frmGames over all the records of a log.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "dice/money.h"

struct Game;

// A game of the log: a fixed row of values, the fields below.
constexpr int kGameLogFields = 32;
using GameLogRecord = std::array<Currency, kGameLogFields>;

// Fields of a record (cmbView lists them in this order).
namespace logfield {
constexpr int kRolls = 0;
constexpr int kBetsDecided = 1, kBetsWon = 2, kBetsLost = 3, kNetBetsWon = 4;
constexpr int kAmountWagered = 5, kAmountWon = 6, kAmountLost = 7, kNetAmountWon = 8;
constexpr int kAdvantagePercent = 9;
constexpr int kAmountInvested = 10;
constexpr int kEndingBankroll = 11;
constexpr int kHands = 12, kHighBankroll = 13, kLowBankroll = 14, kAverageBankroll = 15;
constexpr int kNetResult = 16, kSimHours = 17;
constexpr int kMeasures = 18;  // 18..31 are carried as zeros
}  // namespace logfield

// The cmbView entry of a field; "" past the list.
const char* MeasureName(int field);

// The record of the game now on the table.
GameLogRecord FinishedGameRecord(const Game& g);

// What frmGames is set to show.
struct GamesView {
  int Measure = logfield::kNetAmountWon;
  std::array<bool, 3> Include{true, true, true};  // Won, Broke-even, Lost
  Currency BreakLow, BreakHigh;
  int32_t ValueCount = 20;  // bars of the histogram
  Currency SDCount = 3;     // the histogram spans this many standard deviations each side
};

// mnuSetBreakPoint: the two values taken in rising order.
void SetBreakPoint(GamesView& view, Currency first, Currency second);
// The names of the three outcome rows.
std::array<std::string, 3> OutcomeRowNames(const GamesView& view);
// The row (0, 1, 2) a game's net falls in.
int OutcomeRow(const GamesView& view, Currency net);
// A share in "#,##0.0# %;-#,##0.0# %;0 %" form.
std::string ShareText(int64_t count, int64_t total);

struct HistogramBar {
  Currency Low, High;
  int64_t Games = 0;
};

struct GamesStatistics {
  int64_t Total = 0;     // games in the log
  int64_t Included = 0;  // games the outcome filters let in
  std::array<int64_t, 3> OutcomeCounts{};
  // Of the included games, for the chosen measure; all 0 with none.
  Currency Mean, Median, StdDev, Skew, Kurtosis, Lowest, Highest;
  bool MedianIsAverage = false;  // an even count: the mean of the two middle values ("   Median *")
  double Variance = 0;
  bool HasMode = false;
  Currency Mode;
  // The histogram: Mean +/- SDCount standard deviations in ValueCount bars.
  Currency RangeLow, RangeHigh, RangeMid;
  std::vector<HistogramBar> Bars;
  int64_t BelowRange = 0, AboveRange = 0;
  int64_t HighGames = 0;  // the tallest bar
};

// The statistics of `games` as `view` asks. False, with the message of the
// failure in `error` (titled "Games Log Error"), when a sum leaves the range
// of Currency.
bool UpdateGamesPlayed(const std::vector<GameLogRecord>& games, const GamesView& view, GamesStatistics& stats,
                       std::string& error);
std::string MedianLabel(const GamesStatistics& stats);
// lblHighGames: "1 game", "12 games".
std::string GamesCountText(int64_t games);
