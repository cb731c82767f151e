// The statistics and results tables of a game file, in one fixed order.
//
// Tables not kept by the game yet are appended HERE, in this order, each in
// both functions at the same place:
//   - the two further tables 0..90 after the four roll tables,
//   - the table of 200 rows by 90 before HandStats.
// Each table is packed into records of its own, so a table added here moves
// only the sections after it.

#include <algorithm>

#include "engine/game.h"
#include "stats/bet_results.h"
#include "stats/statistics_sync.h"
#include "store/game_file_sections.h"

namespace {

template <size_t N>
std::vector<int32_t> ListOf(const std::array<int32_t, N>& table) {
  return std::vector<int32_t>(table.begin(), table.end());
}

template <size_t N>
void Fill(std::array<int32_t, N>& table, const std::vector<int32_t>& values) {
  std::copy_n(values.begin(), N, table.begin());
}

// A bet results table, both kinds, BetId 1..100 by its eight measures.
std::vector<Currency> ListOf(const Game::BetResultTable& table) {
  std::vector<Currency> values;
  for (const auto& kind : table)
    for (int id = 1; id <= 100; ++id) values.insert(values.end(), kind[id].begin(), kind[id].end());
  return values;
}

void Fill(Game::BetResultTable& table, const std::vector<Currency>& values) {
  auto next = values.begin();
  for (auto& kind : table)
    for (int id = 1; id <= 100; ++id)
      for (Currency& cell : kind[id]) cell = *next++;
}

constexpr size_t kResultCells = 2 * 100 * 8;

template <size_t N>
std::vector<Currency> MoneyOf(const std::array<Currency, N>& table) {
  return std::vector<Currency>(table.begin(), table.end());
}

template <size_t N>
void FillMoney(std::array<Currency, N>& table, const std::vector<Currency>& values) {
  std::copy_n(values.begin(), N, table.begin());
}

// The graph's points and the settings that place its window.
void WriteGraph(const Game& g, RecordWriter& w) {
  w.AddCurrencies(MoneyOf(g.GraphBankroll));
  w.AddCurrencies(MoneyOf(g.GraphAverage));
  w.AddCurrencies({g.GraphHigh, g.GraphLow, g.GraphScale, g.ManualScale, g.GraphTop});
  w.AddInt32s({g.GraphCount, g.MovingAverageRolls, g.DisplayAverage, g.AutoAdjustType, g.DisplayGridLines,
               g.DisplayRefLines, g.RefLinePosition[0], g.RefLinePosition[1], g.GraphStyle, g.GraphColor,
               g.AutoPrint});
}

void ReadGraph(Game& g, RecordReader& r) {
  FillMoney(g.GraphBankroll, r.NextCurrencies(g.GraphBankroll.size()));
  FillMoney(g.GraphAverage, r.NextCurrencies(g.GraphAverage.size()));
  const std::vector<Currency> money = r.NextCurrencies(5);
  g.GraphHigh = money[0], g.GraphLow = money[1], g.GraphScale = money[2], g.ManualScale = money[3];
  g.GraphTop = money[4];
  const std::vector<int32_t> v = r.NextInt32s(11);
  g.GraphCount = v[0], g.MovingAverageRolls = v[1], g.DisplayAverage = v[2] != 0, g.AutoAdjustType = v[3];
  g.DisplayGridLines = v[4] != 0, g.DisplayRefLines = v[5] != 0;
  g.RefLinePosition = {v[6], v[7]};
  g.GraphStyle = v[8], g.GraphColor = v[9], g.AutoPrint = v[10] != 0;
}

// The latest results of each bet for the trends view.
void WriteTrends(const Game& g, RecordWriter& w) {
  for (const BetTrend& t : g.BetTrends) {
    w.AddCurrencies(MoneyOf(t.NetsOldestFirst()));
    const BetTrend::Rolls kept = t.RollsOldestFirst();
    std::vector<int32_t> rolls(kept.begin(), kept.end());
    rolls.push_back(t.Count());
    w.AddInt32s(rolls);
  }
}

void ReadTrends(Game& g, RecordReader& r) {
  for (BetTrend& t : g.BetTrends) {
    BetTrend::Nets nets{};
    BetTrend::Rolls kept{};
    FillMoney(nets, r.NextCurrencies(nets.size()));
    const std::vector<int32_t> rolls = r.NextInt32s(kept.size() + 1);
    std::copy_n(rolls.begin(), kept.size(), kept.begin());
    t.Restore(nets, kept, rolls.back());
  }
}

}  // namespace

void WriteStatisticsRecords(const Game& g, RecordWriter& w) {
  w.AddCurrencies(ListOf(g.BetWagers));
  w.AddCurrencies(ListOf(g.BetWins));
  w.AddCurrencies(ListOf(g.BetLosses));
  WriteGraph(g, w);
  WriteTrends(g, w);
  w.AddInt32s(ListOf(g.BetStreak[0]));
  w.AddInt32s(ListOf(g.BetStreak[1]));
  w.AddInt32s(ListOf(g.RollCounts));
  w.AddInt32s(ListOf(g.RollsSinceLast));
  w.AddInt32s(ListOf(g.PreviousRollCounts));
  w.AddInt32s(ListOf(g.PreviousRollsSinceLast));
  w.AddInt32s(ListOf(g.HandStats));
}

void ReadStatisticsRecords(Game& g, RecordReader& r) {
  DropBulkCounts(g);  // the file's figures replace whatever was counted
  Fill(g.BetWagers, r.NextCurrencies(kResultCells));
  Fill(g.BetWins, r.NextCurrencies(kResultCells));
  Fill(g.BetLosses, r.NextCurrencies(kResultCells));
  RelistLastRollCells(g);  // the last roll's cells are cleared at the next roll
  ReadGraph(g, r);
  ReadTrends(g, r);
  Fill(g.BetStreak[0], r.NextInt32s(g.BetStreak[0].size()));
  Fill(g.BetStreak[1], r.NextInt32s(g.BetStreak[1].size()));
  g.StreaksMoved = {{~uint64_t{0}, ~uint64_t{0}}};  // the rows may differ anywhere
  Fill(g.RollCounts, r.NextInt32s(g.RollCounts.size()));
  Fill(g.RollsSinceLast, r.NextInt32s(g.RollsSinceLast.size()));
  Fill(g.PreviousRollCounts, r.NextInt32s(g.PreviousRollCounts.size()));
  Fill(g.PreviousRollsSinceLast, r.NextInt32s(g.PreviousRollsSinceLast.size()));
  Fill(g.HandStats, r.NextInt32s(g.HandStats.size()));
}
