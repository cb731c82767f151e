#include <gtest/gtest.h>

#include <CLI/CLI.hpp>

#include <fstream>
#include <sstream>

#include "cli/dice_tool.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "cli/session_for_test.h"
#include "engine/game.h"
#include "store/file_bytes_for_test.h"
#include "test_paths.h"

TEST(DiceFileCommands, RecordEditAndPlayBackThroughTheSession) {
  Session s;
  const std::string rol = s.Path("a.rol");
  auto refused = s.Run("dicefile cut");
  ASSERT_EQ(refused.size(), 1u);
  EXPECT_EQ(refused[0]["error"], "dicefile: no Dice Roll File is open");

  s.Run("dicefile open \"" + rol + "\"\ndicefile status record\npad 1 2\npad 11\nroll 6 6");
  Json info = s.Only("dicefile info", "dicefile");
  EXPECT_EQ(info["rolls"], 3);
  EXPECT_EQ(info["status"], "record");
  EXPECT_EQ(info["last"], 3);

  // Insert a hand entry at roll 2, then cut it again.
  s.Run("dicefile status off\ndicefile insert\ndicefile position 2\ndicefile enter 4 4\ndicefile position 2 3\ndicefile cut");
  EXPECT_EQ(s.Only("dicefile info", "dicefile")["rolls"], 3);
  EXPECT_TRUE(s.Only("dicefile info", "dicefile")["clipboard"].get<bool>());

  // Play the file back: 1-2, an 11, 6-6, then the end of the file.
  auto played = s.Run("dicefile position 1\ndicefile status play\nroll\nroll\nroll\nroll");
  std::vector<int> totals;
  for (const Json& o : played)
    if (o.contains("rolled")) totals.push_back(o["rolled"]["total"]);
  EXPECT_EQ(totals, (std::vector<int>{3, 11, 12}));
  EXPECT_EQ(played.back()["message"]["text"], "Playback stopped.\rRewind for playback?");

  s.Run("dicefile selectall\ndicefile export \"" + s.Path("a.txt") + "\" dice");
  std::ifstream text(s.Path("a.txt"));
  std::stringstream lines;
  lines << text.rdbuf();
  EXPECT_TRUE(lines.str() == "(1-2)\n(5-6)\n(6-6)\n" || lines.str() == "(1-2)\n(6-5)\n(6-6)\n") << lines.str();
  EXPECT_EQ(s.Run("pad 1")[0]["error"], "pad: TOTAL 1 is out of range (2..12)");
}

TEST(DiceTool, TextToRollsAndBackWithASummary) {
  TempFolder dir;
  const std::string txt = (dir.path() / "in.txt").string(), rol = (dir.path() / "in.rol").string();
  std::ofstream(txt) << "1 2 x 3 4 6 6 5";
  CLI::App app;
  DiceToolOptions options;
  CLI::App* dice = AddDiceTool(app, options);
  std::ostringstream out, err;
  const char* toRol[] = {"dicemill-cli", "dice", "to-rol", txt.c_str(), rol.c_str()};
  app.parse(5, toRol);
  EXPECT_EQ(RunDiceTool(*dice, options, out, err), 0);
  EXPECT_EQ(out.str(), "{\"rolls\":3}\n");

  out.str("");
  ASSERT_TRUE(WriteRollFileSummary(rol, out));
  EXPECT_EQ(out.str(),
            "{\"rolls\":3,\"totals\":{\"2\":0,\"3\":1,\"4\":0,\"5\":0,\"6\":0,\"7\":1,\"8\":0,\"9\":0,\"10\":0,\"11\":0,"
            "\"12\":1},\"firstOutOfLimits\":0}\n");
  EXPECT_FALSE(WriteRollFileSummary((dir.path() / "none.rol").string(), out));
}

namespace {

TEST(DiceFileCommands, AFullDiskStopsTheRecorderAndSaysHowFarTheFileHolds) {
  Session s;
  const std::string rol = s.Path("full.rol");
  s.Run("dicefile open \"" + rol + "\"\ndicefile status record");
  std::vector<Json> printed;
  {
    const FileSizeLimitForTest fullDisk(3000);
    printed = s.Run("hyper 20000");
  }
  std::string text;
  for (const Json& o : printed)
    if (o.contains("message") && o["message"]["title"] == "Dice Roll File Error") text = o["message"]["text"];
  EXPECT_EQ(text, rol + " could not be written: file too large.\rRecording has stopped. The last roll kept is #3,000.");
  EXPECT_EQ(s.Only("dicefile info", "dicefile")["status"], "off");
  EXPECT_EQ(std::filesystem::file_size(rol), 3000u);
}

// A run killed while recording has its rolls on the disk up to a second
// before the kill.
TEST(DiceFileCommands, AKilledRecordingKeepsAllButTheLastSecond) {
  TempFolder work;
  const auto rol = work.path() / "rec.rol";
  const std::string command = "cd '" + work.path().string() + "' && { (printf 'dicefile open rec.rol\\ndicefile status record\\nhyper 100000000\\n' | timeout -s KILL 2.5 '" DICEMILL_CLI_PATH "' play --folder . > /dev/null 2>&1); } 2> /dev/null";
  std::system(command.c_str());
  ASSERT_TRUE(std::filesystem::exists(rol));
  EXPECT_GT(std::filesystem::file_size(rol), 10'000u);
}

}  // namespace
