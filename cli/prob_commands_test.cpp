#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "cli/session_for_test.h"
#include "engine/game.h"

TEST(ProbCommand, EditSaveOpenAndRoll) {
  Session s;
  const std::string file = (s.folder.path() / "seven.prb").string();
  Json t = s.Only("prob show", "prob");
  EXPECT_EQ(t["file"], "untitled");
  EXPECT_EQ(t["mode"], "Percentage Dice");
  EXPECT_EQ(t["totals"][5], 16667);

  // A total in "rolls out of" mode: 36 of 36 is all the weight.
  EXPECT_TRUE(s.Run("set ProbDisplayMode 2\nprob set 6 1 36").empty());
  t = s.Only("prob show", "prob");
  EXPECT_EQ(t["totals"][5], 100000);
  EXPECT_EQ(t["mode"], "Free Form Dice");
  EXPECT_EQ(t["locked"].dump(), "[[6,1]]");
  EXPECT_EQ(t["modified"], true);

  // The roll walks the table once the flag is set.
  for (const Json& o : s.Run("set UseSkewedProbability true\nroll\nroll\nroll"))
    EXPECT_EQ(o.at("rolled").at("total"), 7);

  s.Run("prob save \"" + file + "\"");
  EXPECT_EQ(std::filesystem::file_size(file), 1280u);
  EXPECT_EQ(s.Only("prob show", "prob")["modified"], false);

  // Unsaved changes are asked about before an open; Cancel keeps them.
  s.Run("prob axis 16 100 34 100");
  auto asked = s.Run("prob open \"" + file + "\"");
  ASSERT_EQ(asked.size(), 1u);
  EXPECT_EQ(asked[0]["message"]["title"], "Save Probabilities?");
  EXPECT_EQ(s.Only("prob show", "prob")["die1"][0], 0);
  s.Run("answer no\nprob open \"" + file + "\"");
  t = s.Only("prob show", "prob");
  EXPECT_EQ(t["totals"][5], 100000);
  EXPECT_EQ(t["file"], file);

  s.Run("prob unlock all\nprob lock 12 2");
  EXPECT_EQ(s.Only("prob show", "prob")["locked"].dump(), "[[12,2]]");

  // Yes saves the changes to the table's own file before the true table loads.
  s.Run("answer yes\nprob reset");
  t = s.Only("prob show", "prob");
  EXPECT_EQ(t["totals"][5], 16667);
  EXPECT_EQ(t["file"], "untitled");
  s.Run("prob open \"" + file + "\"");
  t = s.Only("prob show", "prob");
  EXPECT_EQ(t["locked"].dump(), "[[12,2]]");
  EXPECT_EQ(t["totals"][5], 100000);

  // Bad lines are errors and change nothing.
  for (const char* line : {"prob set 1 3 5", "prob set 6 1 x", "prob axis 17 50 16 50", "prob axis 16 -1 16 5",
                           "prob lock 0 0", "prob frob", "prob set 6 1 5 4"}) {
    auto printed = s.Run(line);
    ASSERT_EQ(printed.size(), 1u) << line;
    EXPECT_TRUE(printed[0].contains("error")) << line;
  }
  EXPECT_EQ(s.Only("prob show", "prob")["totals"][5], 100000);
}
