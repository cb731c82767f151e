#include <gtest/gtest.h>

#include <CLI/CLI.hpp>

#include <fstream>

#include "cli/cli_for_test.h"
#include <sstream>

#include "cli/dice_tool.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "cli/session_for_test.h"
#include "engine/dice_roll_files.h"
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
  const std::string lines = Slurp(s.Path("a.txt"));
  EXPECT_TRUE(lines == "(1-2)\n(5-6)\n(6-6)\n" || lines == "(1-2)\n(6-5)\n(6-6)\n") << lines;
  EXPECT_EQ(s.Run("pad 1")[0]["error"], "pad: TOTAL 1 is out of range (2..12)");
}

TEST(DiceTool, TextToRollsStrictlyAndASummary) {
  TempFolder work;
  const struct {
    const char* text;
    int status;
    std::string says;  // the JSON line, or the refusal
  } cases[] = {
      {"1 2 x 3 4", 2, "in.txt: line 1, column 5: \"x\" is neither a die face nor a separator"},
      {"12\n34\n57\n", 2, "in.txt: line 3, column 2: \"7\" is no die face (1 to 6)"},
      {"12\n3\n", 2, "in.txt: line 2, column 1: the last roll has one die only"},
      {"12 34\n(6-6)\n5,1\n", 0, "{\"rolls\":4}\n"},  // last: its in.rol is read below
  };
  for (const auto& c : cases) {
    std::ofstream(work.path() / "in.txt") << c.text;
    std::filesystem::remove(work.path() / "in.rol");
    const Ran r = Cli(work, "dice to-rol in.txt in.rol");
    EXPECT_EQ(r.status, c.status) << c.text;
    EXPECT_NE((c.status == 0 ? r.out : r.err).find(c.says), std::string::npos) << c.text << r.err;
    EXPECT_EQ(std::filesystem::exists(work.path() / "in.rol"), c.status == 0) << c.text;
  }
  // What to-text writes reads back.
  ASSERT_EQ(Cli(work, "dice to-text in.rol back.txt").status, 0);
  EXPECT_EQ(Cli(work, "dice to-rol back.txt again.rol").out, "{\"rolls\":4}\n");

  Ran r = Cli(work, "dice info in.rol");
  EXPECT_EQ(r.out,
            "{\"rolls\":4,\"totals\":{\"2\":0,\"3\":1,\"4\":0,\"5\":0,\"6\":1,\"7\":1,\"8\":0,\"9\":0,\"10\":0,\"11\":0,"
            "\"12\":1},\"firstOutOfLimits\":0}\n");
  std::ofstream(work.path() / "bad.rol", std::ios::binary) << std::string(1, static_cast<char>(RollByte(1, 2))) << '\xff';
  r = Cli(work, "dice info bad.rol");
  EXPECT_NE(r.err.find("bad.rol: roll #2 is out of limits"), std::string::npos) << r.err;
  r = Cli(work, "run --quiet --dice bad.rol");
  EXPECT_NE(r.out.find("out of limits. Roll #2 of bad.rol is the byte 255"), std::string::npos) << r.out;
  r = Cli(work, "dice info none.rol");
  EXPECT_EQ(r.status, 2);
  EXPECT_NE(r.err.find("none.rol was not found."), std::string::npos) << r.err;
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
