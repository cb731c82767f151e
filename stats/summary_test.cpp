// The summary's figures and formats, and the trends rows.

#include "stats/summary.h"

#include <gtest/gtest.h>

#include "engine/table_for_test.h"
#include "stats/bet_results.h"
#include "stats/number_formats.h"

using namespace results;

namespace {

std::string ValueOf(const std::vector<SummaryRow>& rows, const std::string& label, int occurrence = 0) {
  for (const SummaryRow& row : rows)
    if (row.Label == label && occurrence-- == 0) return row.Value;
  return "(missing)";
}

const SummaryRow* NetRow(const std::vector<SummaryRow>& rows) {
  for (const SummaryRow& row : rows)
    if (row.Label == "Net win:" || row.Label == "Net loss:") return &row;
  return nullptr;
}

}  // namespace

TEST(Summary, NumberPatterns) {
  const struct { double v; const char* upToTwo; const char* percent; const char* two; } cases[] = {
      {0, "0", "0%", "0"}, {0.5, ".5", "50.00%", ".50"}, {3, "3.", "300.00%", "3.00"},
      {2.375, "2.38", "237.50%", "2.38"}, {-1234.5, "-1,234.5", "-123,450.00%", "-1,234.50"},
      {0.035, ".04", "3.50%", ".04"}};
  for (const auto& c : cases) {
    EXPECT_EQ(FormatUpToTwoDecimals(c.v), c.upToTwo) << c.v;
    EXPECT_EQ(FormatPercent(c.v), c.percent) << c.v;
    EXPECT_EQ(FormatTwoDecimals(c.v), c.two) << c.v;
  }
}

TEST(Summary, LabelsInOrderAndAveragesOfZeroBeforeAHandEnds) {
  TestTable t;
  const std::vector<SummaryRow> rows = ShowSummary(t.g);
  std::vector<std::string> labels;
  for (const SummaryRow& row : rows) labels.push_back(row.Label);
  EXPECT_EQ(labels, (std::vector<std::string>{
                        "Total rolls:", "Total comp value:", "Rolls/hr:", "Sim hrs:", "Bankroll:", "High:",
                        "Current:", "Low:", "Average:", "Total number of:", "Bets decided:", "Bets won:",
                        "Bets lost:", "Total $ amount of:", "Bets decided:", "Bets won:", "Bets lost:", "Net win:",
                        "Hands:", "# of rolls (current Hand):", "# of Passes (current Hand):", "Total completed:",
                        "Longest # of rolls:", "Average # of rolls:", "Most Passes:", "Average # of Passes:",
                        "# of Come-out rolls:", "# that Passed (7, 11):", "# that Missed (2, 3, 12):",
                        "# of Points established:", "# that Passed (rolled point):", "# that Missed (Seven-out):",
                        "Total Passes:", "Total Misses:"}));
  EXPECT_EQ(NetRow(rows)->Share, "0%");

  // Rolls in a hand not yet finished: the averages stay 0.
  t.g.HandStats[hand::kRolls] = 7;
  t.g.HandStats[hand::kRollsOfHands] = 7;
  t.g.HandStats[hand::kWinsOfHands] = 2;
  EXPECT_EQ(ValueOf(ShowSummary(t.g), "Average # of rolls:"), "0");
  EXPECT_EQ(ValueOf(ShowSummary(t.g), "Average # of Passes:"), "0");
  t.g.HandStats[hand::kHands] = 3;
  t.g.HandStats[hand::kRollsOfHands] = 10;
  t.g.HandStats[hand::kWinsOfHands] = 3;
  EXPECT_EQ(ValueOf(ShowSummary(t.g), "Average # of rolls:"), "3.33");
  EXPECT_EQ(ValueOf(ShowSummary(t.g), "Average # of Passes:"), "1.");
}

TEST(Summary, FiguresOfAPlayedGame) {
  TestTable t;
  t.g.SimRollRate = 100;
  t.Place(bet::kField, 5);
  t.Roll(1, 2);  // a 3: the field wins 5
  t.Roll(3, 4);  // a natural: the field loses 5 and comes down
  t.Place(bet::kField, 5);
  t.Roll(2, 2);  // a point of 4: the field wins 5
  t.Roll(6, 6);  // the field wins 10
  t.g.HandStats[hand::kHands] = 1;  // as if a hand had ended
  const std::vector<SummaryRow> rows = ShowSummary(t.g);
  // The second of a label is the money row; the average is (505 + 500 + 505 + 515) / 4;
  // the comps are 40% of $20 x 1/18 decided on the Field.
  const struct { const char* label; int occurrence; const char* value; } figures[] = {
      {"Total rolls:", 0, "4"}, {"Total comp value:", 0, "$.44"}, {"Rolls/hr:", 0, "100"}, {"Sim hrs:", 0, ".04"},
      {"High:", 0, "$515"}, {"Low:", 0, "$500"}, {"Current:", 0, "$515"}, {"Average:", 0, "$506.25"},
      {"Bets decided:", 0, "4"}, {"Bets won:", 0, "3"}, {"Bets lost:", 0, "1"}, {"Bets decided:", 1, "$20"},
      {"Bets won:", 1, "$20"}, {"Bets lost:", 1, "$5"}, {"# of Come-out rolls:", 0, "3"},
      {"# of Points established:", 0, "1"}, {"Total Passes:", 0, "1"}, {"Total Misses:", 0, "1"},
      {"Average # of rolls:", 0, "0"}};  // counter 5 grows only as a hand ends
  for (const auto& f : figures) EXPECT_EQ(ValueOf(rows, f.label, f.occurrence), f.value) << f.label << f.occurrence;
  EXPECT_EQ(NetRow(rows)->Label, "Net win:");
  EXPECT_EQ(NetRow(rows)->Value, "$15");
  EXPECT_EQ(NetRow(rows)->Share, "75.00%");
  EXPECT_EQ(t.g.BetWagers[kActual][0][kCount], 4);  // the totals cell was filled

  const std::vector<BetTrendRow> trends = BetTrendRows(t.g);
  ASSERT_EQ(trends.size(), 1u);
  EXPECT_EQ(trends[0].Name, "Field");
  EXPECT_EQ(trends[0].Results, "5|-5|5|10");
  EXPECT_EQ(trends[0].Span, "4 rolls");

  // A loss reads "Net loss:".
  BookBetResult(t.g, kActual, bet::kSeven, 100, -100);
  EXPECT_EQ(NetRow(ShowSummary(t.g))->Label, "Net loss:");
  EXPECT_EQ(NetRow(ShowSummary(t.g))->Share, "-70.83%");
}
