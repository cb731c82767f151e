// The combined figures of a selection and the printed report's wording.

#include "stats/bet_results_view.h"

#include <gtest/gtest.h>

#include <cmath>

#include "engine/table_for_test.h"
#include "stats/bet_results.h"

using namespace results;

namespace {

std::vector<int> AllBets() {
  std::vector<int> ids;
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) ids.push_back(id);
  return ids;
}

const BetResultRow& RowOf(const BetResultsView& view, const std::string& label) {
  for (const BetResultRow& row : view.Rows)
    if (row.Label == label) return row;
  throw std::runtime_error("no row " + label);
}

}  // namespace

TEST(BetResultsView, NoRollsNoSelectionNoRateDivideByNothing) {
  const std::vector<std::string> labels = {"Total #",     "Total $",     "High $",        "Low $",
                                           "Average $",   "Last $",      "Last roll #",   "Last roll $",
                                           "Avg. # / hour", "Avg. $ / hour", "Expctd value $"};
  for (const Currency rate : {Currency(100), Currency(0)}) {
    for (const auto& ids : {AllBets(), std::vector<int>{}}) {
      for (int kind : {kPhantom, kActual}) {
        TestTable t;
        t.g.SimRollRate = rate;
        const BetResultsView view = CombinedBetResults(t.g, ids, kind);
        std::vector<std::string> seen;
        for (const BetResultRow& row : view.Rows) {
          seen.push_back(row.Label);
          for (double v : {row.Wagers, row.Wins, row.Losses, row.Net, row.NetPercent}) EXPECT_EQ(v, 0) << row.Label;
          for (const std::string& cell : RowCells(row)) EXPECT_TRUE(cell == "0" || cell == "0%" || cell.empty());
        }
        EXPECT_EQ(seen, labels);
        EXPECT_EQ(view.SimHours, 0);
      }
    }
  }
}

TEST(BetResultsView, CombinedRowsAddTheSelectedBets) {
  TestTable t;
  const int place6 = bet::Place(6), place8 = bet::Place(8);
  BookBetResult(t.g, kActual, place6, 6, 7);
  BookBetResult(t.g, kActual, place6, 12, -12);
  BookBetResult(t.g, kActual, place8, 6, 7);
  BookBetResult(t.g, kActual, bet::kField, 100, 100);  // not selected
  t.g.RollCounts[0] = 50;
  t.g.SimRollRate = 100;  // half an hour
  t.g.BetAmount.Set(place6, 18);
  t.g.EditAtRollStart()[place8] = 6;

  const BetResultsView view = CombinedBetResults(t.g, {place6, place8}, kActual);
  const struct { const char* label; double wagers, wins, losses, net, percent; } rows[] = {
      {"Total #", 3, 2, 1, 1, 100.0 / 3},
      {"Total $", 24, 14, 12, 2, 100.0 * 2 / 24},
      {"High $", 18, 14, 12, 2, 100.0 * 2 / 18},
      {"Low $", 12, 14, 12, 2, 100.0 * 2 / 12},
      {"Average $", 8, 7, 12, -5, -62.5},
      {"Last roll #", 2, 2, 1, 1, 50},
      {"Avg. # / hour", 6, 4, 2, 2, 100.0 / 3},
      {"Avg. $ / hour", 48, 28, 24, 4, 100.0 * 4 / 48},
  };
  for (const auto& r : rows) {
    const BetResultRow& row = RowOf(view, r.label);
    EXPECT_DOUBLE_EQ(row.Wagers, r.wagers) << r.label;
    EXPECT_DOUBLE_EQ(row.Wins, r.wins) << r.label;
    EXPECT_DOUBLE_EQ(row.Losses, r.losses) << r.label;
    EXPECT_DOUBLE_EQ(row.Net, r.net) << r.label;
    EXPECT_NEAR(row.NetPercent, r.percent, 1e-9) << r.label;
  }
  EXPECT_EQ(RowCells(RowOf(view, "Total $")), (std::vector<std::string>{"24", "14", "12", "2", "8.33%"}));
  EXPECT_EQ(RowCells(RowOf(view, "Average $")), (std::vector<std::string>{"8", "7", "12", "-5", "-62.50%"}));
  EXPECT_EQ(RowCells(RowOf(view, "Avg. # / hour")), (std::vector<std::string>{"6.00", "4.00", "2.00", "2.00", "33.33%"}));
  EXPECT_EQ(RowCells(RowOf(view, "Expctd value $"))[0], "");
  EXPECT_EQ(view.CurrentWagered, 18);
  EXPECT_EQ(view.WageredLastRoll, 6);
  EXPECT_DOUBLE_EQ(view.SimHours, 0.5);

  // The phantom kind reads its own cells.
  EXPECT_EQ(RowOf(CombinedBetResults(t.g, {place6, place8}, kPhantom), "Total #").Wagers, 0);
}

TEST(BetResultsView, ReportWording) {
  TestTable t;
  const std::vector<std::string> one = BetResultsReport(t.g, {bet::Place(6)}, kActual);
  ASSERT_GE(one.size(), 2u);
  EXPECT_EQ(one[0], "Results of actual decided wagers for this bet:");
  EXPECT_EQ(one[1], "Place 6");
  const std::vector<std::string> two = BetResultsReport(t.g, {bet::Place(6), bet::kField}, kPhantom);
  EXPECT_EQ(two[0], "Combined results of continuous phantom $1 wagers for these 2 bets:");
  EXPECT_EQ(std::vector<std::string>(two.begin() + 1, two.begin() + 3), (std::vector<std::string>{"Place 6", "Field"}));
  EXPECT_EQ(two[3], "Current $ amount wagered:\t$0");
  EXPECT_EQ(two[4], "$ amount wagered on last roll:\t$0");
  EXPECT_EQ(two[5], "Total rolls:\t0");
  EXPECT_EQ(two[6], "Rolls / hour:\t100");
  EXPECT_EQ(two[7], "Sim hours:\t0");
  EXPECT_TRUE(t.ui.messages.empty());

  EXPECT_TRUE(BetResultsReport(t.g, {}, kActual).empty());
  ASSERT_EQ(t.ui.messages.size(), 1u);
  EXPECT_EQ(t.Last(), (RecordedMessage{"Print Bet Results", "You need to select one or more bets to print."}));
}

TEST(BetResultsView, ActualBetLinesListDecidedBets) {
  TestTable t;
  BookBetResult(t.g, kActual, bet::kPassLine, 10, 10);
  BookBetResult(t.g, kActual, bet::kPassLine, 10, -10);
  BookBetResult(t.g, kActual, bet::kPassLine, 10, -10);
  BookBetResult(t.g, kPhantom, bet::kField, 1, 1);  // phantom only: not listed
  const std::vector<ActualBetLine> lines = ActualBetLines(t.g);
  ASSERT_EQ(lines.size(), 1u);
  const ActualBetLine& l = lines[0];
  EXPECT_EQ(l.BetId, bet::kPassLine);
  EXPECT_EQ(l.Name, "Pass Line");
  EXPECT_EQ(l.Decided, 3);
  EXPECT_EQ(l.Won, 1);
  EXPECT_EQ(l.Lost, 2);
  EXPECT_EQ(l.Wagered, 30);
  EXPECT_EQ(l.Net, -10);
  EXPECT_TRUE(std::isfinite(l.ExpectedValue));
}
