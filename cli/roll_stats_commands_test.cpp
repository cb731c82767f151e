#include <gtest/gtest.h>

#include <fstream>

#include "cli/session_for_test.h"
#include "store/games_log_file.h"

namespace {

TEST(RollStatsCommands, StatsShowTheViewsAndOneSelection) {
  Session s;
  const Json empty = s.Only("stats", "stats");
  EXPECT_EQ(empty["view"], "11 Standard Numbers");
  EXPECT_EQ(empty["rows"].size(), 11u);
  EXPECT_EQ(empty["rows"][5]["actualPercent"], 0.0);

  s.Run("roll 3 4\nroll 2 2\nroll 4 3");
  const Json totals = s.Only("stats", "stats");
  EXPECT_EQ(totals["totalRolls"], 3);
  EXPECT_EQ(totals["rows"][5]["label"], "7");
  EXPECT_EQ(totals["rows"][5]["rolls"], 2);
  EXPECT_EQ(totals["rows"][5]["sinceLast"], 0);
  EXPECT_EQ(totals["rows"][10]["sinceLast"], 3);  // 12 never came

  const struct {
    const char* command;
    const char* view;
    size_t rows;
  } views[] = {{"stats 1", "21 Distinguishable Combos", 21}, {"stats unique", "36 Unique Combos", 36},
               {"stats faces skewed", "Dice Faces", 12}, {"stats skewed", "11 Standard Numbers", 11}};
  for (const auto& v : views) {
    const Json j = s.Only(v.command, "stats");
    EXPECT_EQ(j["view"], v.view) << v.command;
    EXPECT_EQ(j["rows"].size(), v.rows) << v.command;
  }

  const Json any7 = s.Only("stats freq 34", "freq");
  EXPECT_EQ(any7["selection"], "Any 7");
  EXPECT_EQ(any7["selectionRolls"], 2);
  EXPECT_EQ(any7["probableCaption"], "True probable %:");
  EXPECT_DOUBLE_EQ(any7["averageRollsToAchieve"].get<double>(), 6.0);
  EXPECT_EQ(s.Only("stats freq 34 skewed", "freq")["probableCaption"], "Skewed probable %:");
  EXPECT_EQ(s.Only("stats selections", "selections").size(), 88u);

  for (const char* bad : {"stats freq 89", "stats freq 0", "stats sideways", "stats 1 crooked", "stats 1 true x"})
    EXPECT_NE(s.Error(bad), "(none)") << bad;
}

TEST(RollStatsCommands, GraphShowsThePointsAndTakesTheManualControls) {
  Session s;
  s.Run("bet 1 10\nroll 3 4\nroll 2 2");
  Json g = s.Only("graph", "graph");
  EXPECT_EQ(g["count"], 2);
  EXPECT_EQ(g["points"].size(), 2u);
  EXPECT_EQ(g["points"][1], s.State()["bankroll"]);
  EXPECT_EQ(g["averageCaption"], "All rolls moving average");
  EXPECT_TRUE(g["refLines"].is_null());

  g = s.Only("graph average 1", "graph");
  EXPECT_EQ(g["average"][0], g["points"][0]);
  EXPECT_EQ(g["averageCaption"], "1 roll moving average");
  g = s.Only("graph adjust 0", "graph");
  const double scale = g["scale"].get<double>();
  EXPECT_EQ(s.Only("graph scale larger", "graph")["scale"].get<double>(), scale * 2);
  const double top = s.Only("graph", "graph")["top"].get<double>();
  EXPECT_EQ(s.Only("graph move up", "graph")["top"].get<double>(), top + 100 * scale);
  g = s.Only("graph reflines 1 2", "graph");
  EXPECT_EQ(g["refLines"]["rolls"], 1);
  EXPECT_TRUE(s.Only("graph reflines off", "graph")["refLines"].is_null());
  for (const char* bad : {"graph scale huge", "graph adjust 3", "graph reflines 0 2", "graph sideways"})
    EXPECT_NE(s.Error(bad), "(none)") << bad;
}

TEST(RollStatsCommands, GamesLogTakesEachFinishedGame) {
  Session s;
  const std::string log = s.Path("play.glg");
  EXPECT_EQ(s.Only("gameslog \"" + log + "\"", "gameslog"), log);
  s.Run("roll 3 4\nroll 5 5\nanswer no\nnew\nroll 1 1\nanswer no\nnew");
  std::vector<GameLogRecord> games;
  ASSERT_TRUE(ReadGamesFile(log, games));
  ASSERT_EQ(games.size(), 2u);
  EXPECT_EQ(games[0][0], 2);
  EXPECT_EQ(games[1][0], 1);
  EXPECT_TRUE(s.Only("gameslog off", "gameslog").is_null());

  std::ofstream(s.Path("bad.glg")) << "not a log";
  const auto out = s.Run("gameslog \"" + s.Path("bad.glg") + "\"");
  ASSERT_EQ(out.size(), 2u);
  EXPECT_EQ(out[0]["message"]["title"], "Unable to Open Dicemill Games File");
  EXPECT_TRUE(out[1].contains("error"));
}

}  // namespace
