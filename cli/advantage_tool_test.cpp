#include "cli/advantage_tool.h"

#include <gtest/gtest.h>

#include "cli/temp_folder_for_test.h"
#include "engine/new_game.h"
#include "store/game_file.h"

#include <sstream>

#include "cli/session_for_test.h"

namespace {

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

TEST(AdvantageTool, TextJsonAndRefusals) {
  std::ostringstream out, err;
  ASSERT_EQ(RunAdvantageTool({}, out, err), 0);
  auto lines = Lines(out.str());
  ASSERT_EQ(lines.size(), 2u + 83);
  EXPECT_EQ(lines[0], "All figures shown in percentage");
  EXPECT_EQ(lines[1], "Id  Bet                     EV/Roll StDev/Roll     EV/Dec  StDev/Dec    EV/Hour");
  // Pass Line: -7/495 a decision, -7/1671 a roll, at 100 rolls an hour.
  EXPECT_EQ(lines[1 + 43], "43  Pass Line                -0.419     54.424     -1.414     99.990    -41.891");
  EXPECT_EQ(lines[1 + 25].substr(24, 11), "      0.000");  // odds are fair, never "-0.000"

  out.str("");
  AdvantageToolOptions misc;
  misc.misc = misc.zeroOutcomes = true;
  ASSERT_EQ(RunAdvantageTool(misc, out, err), 0);
  lines = Lines(out.str());
  EXPECT_NE(lines[1].find("  Rolls/Dec    Min/Dec"), std::string::npos);
  // Counting the barred 12 as a decision: -3/220; 557/165 rolls, 2.025 minutes.
  EXPECT_EQ(lines[1 + 46].substr(24 + 22, 11), "     -1.364");
  EXPECT_EQ(lines[1 + 46].substr(24 + 55), "      3.376      2.025");

  out.str("");
  AdvantageToolOptions json;
  json.json = true;
  ASSERT_EQ(RunAdvantageTool(json, out, err), 0);
  const Json rows = Json::parse(out.str())["advantage"];
  ASSERT_EQ(rows.size(), 83u);
  EXPECT_EQ(rows[42]["bet"], "Pass Line");
  EXPECT_NEAR(rows[42]["evPerDecision"].get<double>(), -700.0 / 495, 1e-9);
  EXPECT_NEAR(rows[42]["rollsPerDecision"].get<double>(), 557.0 / 165, 1e-9);

  // A saved game's payoffs: Place 6 at 8 to 6 is in the player's favour.
  TempFolder folder;
  const std::string saved = (folder.path() / "rich.crp").string();
  {
    Game g;
    FillDefaults(g);
    NewGame(g, false);
    g.Payoff.Set(bet::Place(6), {8, -1, 6});
    ASSERT_TRUE(SaveGame(g, saved));
  }
  AdvantageToolOptions game;
  game.gameFile = saved;
  game.json = true;
  out.str("");
  ASSERT_EQ(RunAdvantageTool(game, out, err), 0);
  EXPECT_GT(Json::parse(out.str())["advantage"][bet::Place(6) - 1]["evPerDecision"].get<double>(), 0);
  game.gameFile = (folder.path() / "none.crp").string();
  out.str("");
  err.str("");
  EXPECT_EQ(RunAdvantageTool(game, out, err), 2);
  EXPECT_TRUE(out.str().empty());
  EXPECT_NE(err.str().find("File name error"), std::string::npos);
}

TEST(AdvantageTool, PlayCommandFollowsTheGame) {
  Session s;
  EXPECT_EQ(s.Only("advantage", "advantage").size(), 83u);
  Json row = s.Only("advantage 46", "advantage").at(0);
  EXPECT_NEAR(row["evPerDecision"].get<double>(), -2700.0 / 1925, 1e-9);
  s.Run("set IncludeZeroOutcomes true\npayoff 33 13 10");
  EXPECT_NEAR(s.Only("advantage 46", "advantage")[0]["evPerDecision"].get<double>(), -300.0 / 220, 1e-9);
  EXPECT_GT(s.Only("advantage 33", "advantage")[0]["evPerRoll"].get<double>(), 0);  // Place 6 at 13 to 10
  EXPECT_EQ(s.Error("advantage 101"), "advantage: BetId 101 is no table bet (1..83)");
  EXPECT_EQ(s.Error("advantage 84").substr(0, 21), "advantage: BetId 84 i");
}

}  // namespace
