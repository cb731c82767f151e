#include "stats/games_log.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "cli/temp_folder_for_test.h"
#include "engine/table_for_test.h"
#include "store/games_log_file.h"

namespace {

// Games whose chosen measure (the net, field 8) takes these values.
std::vector<GameLogRecord> Nets(std::initializer_list<Currency> nets) {
  std::vector<GameLogRecord> games;
  for (Currency net : nets) {
    GameLogRecord r{};
    r[logfield::kNetAmountWon] = net;
    r[logfield::kRolls] = 100;
    games.push_back(r);
  }
  return games;
}

GamesStatistics Statistics(const std::vector<GameLogRecord>& games, const GamesView& view = {}) {
  GamesStatistics s;
  std::string error;
  EXPECT_TRUE(UpdateGamesPlayed(games, view, s, error)) << error;
  return s;
}

Currency Raw(int64_t raw) { return Currency::FromRaw(raw); }

TEST(GamesLog, KnownAnswers) {
  struct Case { std::vector<GameLogRecord> games; Currency mean, median; bool medianIsAverage; double variance;
                Currency stdDev, skew, kurtosis; };
  const Case cases[] = {
      // The textbook set: mean 5, variance 4; t^3 sums to 5.25 and t^4 to
      // 22.25, which over 8 are ties that go to the even digit.
      {Nets({2, 4, 4, 4, 5, 5, 7, 9}), 5, Raw(45000), true, 4.0, 2, Raw(6562), Raw(27812)},
      // Each term is rounded to four decimals before it is added.
      {Nets({1, 2, 3, 4, 10}), 4, 3, false, 10.0, Raw(31623), Raw(11384), Raw(27879)},
      // One game: no spread, so no skew or kurtosis terms.
      {Nets({-25}), -25, -25, false, 0.0, 0, 0, 0},
      {Nets({7, 7, 7}), 7, 7, false, 0.0, 0, 0, 0},
      // An even count's median is the mean of the middle two; the mean
      // and the median are rounded to four decimals, ties to even, and the
      // rest follows from the rounded mean.
      {Nets({Raw(1), Raw(2)}), Raw(2), Raw(2), true, 0.5e-8, Raw(1), Raw(-5000), Raw(5000)},
      // An empty log: no statistics and no failure.
      {Nets({}), 0, 0, false, 0.0, 0, 0, 0},
  };
  for (const Case& c : cases) {
    const GamesStatistics s = Statistics(c.games);
    SCOPED_TRACE(c.games.size());
    EXPECT_EQ(s.Total, static_cast<int64_t>(c.games.size()));
    EXPECT_EQ(s.Included, static_cast<int64_t>(c.games.size()));
    EXPECT_EQ(s.Bars.empty(), c.games.empty());
    EXPECT_EQ(s.Mean, c.mean);
    EXPECT_EQ(s.Median, c.median);
    EXPECT_EQ(s.MedianIsAverage, c.medianIsAverage);
    EXPECT_NEAR(s.Variance, c.variance, 1e-12);
    EXPECT_EQ(s.StdDev, c.stdDev);
    EXPECT_EQ(s.Skew, c.skew);
    EXPECT_EQ(s.Kurtosis, c.kurtosis);
  }
  const GamesStatistics s = Statistics(Nets({2, 4, 4, 4, 5, 5, 7, 9}));
  EXPECT_TRUE(s.HasMode);
  EXPECT_EQ(s.Mode, 4);
  EXPECT_EQ(MedianLabel(s), "   Median *");
  EXPECT_FALSE(Statistics(Nets({1, 2, 3})).HasMode);
  EXPECT_EQ(MedianLabel(Statistics(Nets({1, 2, 3}))), "Median");
}

TEST(GamesLog, OutcomeRowsAndBreakPoints) {
  const auto games = Nets({-10, -1, 0, 0, 3, 50});
  struct Case { Currency first, second; std::array<std::string, 3> names; std::array<int64_t, 3> counts; };
  const Case cases[] = {
      {0, 0, {"Won", "Broke-even", "Lost"}, {2, 2, 2}},
      {5, -5, {"> 5", "-5 - 5", "< -5"}, {1, 4, 1}},  // taken in rising order
      {3, 3, {"> 3", "3", "< 3"}, {1, 1, 4}},
      {Raw(2500), 1000, {"> 1,000", ".25 - 1,000", "< .25"}, {0, 2, 4}},
  };
  for (const Case& c : cases) {
    GamesView view;
    SetBreakPoint(view, c.first, c.second);
    EXPECT_EQ(OutcomeRowNames(view), c.names);
    EXPECT_EQ(Statistics(games, view).OutcomeCounts, c.counts) << c.names[1];
  }
  // The filters leave games out of the statistics, not out of the rows.
  GamesView view;
  view.Include = {true, false, false};
  const GamesStatistics s = Statistics(games, view);
  EXPECT_EQ(s.Total, 6);
  EXPECT_EQ(s.Included, 2);
  EXPECT_EQ(s.Mean, Raw(265000));
  EXPECT_EQ(s.OutcomeCounts, (std::array<int64_t, 3>{2, 2, 2}));

  const struct { int64_t count, total; const char* text; } shares[] = {
      {0, 6, "0 %"}, {2, 6, "33.33 %"}, {1, 2, "50.0 %"}, {1, 8, "12.5 %"}, {6, 6, "100.0 %"}, {1, 0, "0 %"},
      {1, 3000, "0.03 %"}};
  for (const auto& c : shares) EXPECT_EQ(ShareText(c.count, c.total), c.text) << c.count << "/" << c.total;
  EXPECT_EQ(GamesCountText(1), "1 game");
  EXPECT_EQ(GamesCountText(1200), "1,200 games");
}

TEST(GamesLog, HistogramBarsSpanTheStandardDeviations) {
  GamesView view;
  view.ValueCount = 4;
  view.SDCount = 1;
  const GamesStatistics s = Statistics(Nets({2, 4, 4, 4, 5, 5, 7, 9}), view);  // mean 5, sd 2
  EXPECT_EQ(s.RangeLow, 3);
  EXPECT_EQ(s.RangeHigh, 7);
  EXPECT_EQ(s.RangeMid, 5);
  ASSERT_EQ(s.Bars.size(), 4u);
  const int64_t games[] = {0, 3, 2, 1};  // the top bar takes its high edge, 7
  for (int i = 0; i < 4; ++i) EXPECT_EQ(s.Bars[i].Games, games[i]) << i;
  EXPECT_EQ(s.Bars[1].Low, 4);
  EXPECT_EQ(s.BelowRange, 1);
  EXPECT_EQ(s.AboveRange, 1);
  EXPECT_EQ(s.HighGames, 3);
  // A spread too wide for money is a failure, not a wrong answer.
  GamesView wide = view;
  wide.SDCount = 1'000'000;
  std::string error;
  GamesStatistics failed;
  const Currency far = Currency::FromRaw(4'000'000'000'000'000'000);
  EXPECT_FALSE(UpdateGamesPlayed(Nets({-far, far}), wide, failed, error));
  EXPECT_NE(error.find("Net Amount Won"), std::string::npos);
  // No spread: one bar holds every game.
  const GamesStatistics flat = Statistics(Nets({7, 7}), view);
  ASSERT_EQ(flat.Bars.size(), 1u);
  EXPECT_EQ(flat.Bars[0].Games, 2);
}

TEST(GamesLog, ASumBeyondCurrencyFailsWithTheMessage) {
  const Currency huge = Raw(INT64_MAX / 2 + 1);
  GamesStatistics s;
  std::string error;
  EXPECT_FALSE(UpdateGamesPlayed(Nets({huge, huge}), GamesView{}, s, error));
  EXPECT_EQ(error,
            "An error has occurred in calculating the statistics for Net Amount Won. This may have been due to "
            "excessive variance or corruption in your data.  You should be able to view the actual data by "
            "selecting Display Data");
  GamesView bad;
  bad.Measure = 40;
  EXPECT_FALSE(UpdateGamesPlayed(Nets({1}), bad, s, error));
}

TEST(GamesLog, AFinishedGameFillsItsRecord) {
  TestTable t;
  t.Roll(3, 4);
  t.Roll(2, 2);
  const GameLogRecord r = FinishedGameRecord(t.g);
  EXPECT_EQ(r[logfield::kRolls], 2);
  EXPECT_EQ(r[logfield::kEndingBankroll], t.g.Bankroll());
  EXPECT_EQ(r[logfield::kAmountInvested], 500);
  // No handle: the advantage is 0, not a division by zero.
  EXPECT_EQ(r[logfield::kAmountWagered], 0);
  EXPECT_EQ(r[logfield::kAdvantagePercent], 0);
  for (int f = logfield::kMeasures; f < kGameLogFields; ++f) EXPECT_EQ(r[f], 0);
}

TEST(GamesLog, ANewGameAddsTheFinishedGameToTheActiveLog) {
  TestTable t;
  TempFolder dir;
  const auto path = dir.path() / "games.glg";
  ASSERT_TRUE(OpenGamesFile(t.g, path.string()));
  NewGame(t.g, false);  // a game without a roll is not a game
  t.Roll(6, 6);
  t.Roll(1, 2);
  t.Roll(3, 3);
  NewGame(t.g, false);
  t.Roll(5, 5);
  NewGame(t.g, false);
  std::vector<GameLogRecord> games;
  const FileStatus read = ReadGamesFile(path, games);
  ASSERT_TRUE(read) << read.FirstMessage();
  ASSERT_EQ(games.size(), 2u);
  EXPECT_EQ(games[0][logfield::kRolls], 3);
  EXPECT_EQ(games[1][logfield::kRolls], 1);
}

}  // namespace
