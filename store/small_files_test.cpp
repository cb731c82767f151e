#include "store/small_files.h"

#include <gtest/gtest.h>

#include <fstream>

#include "cli/temp_folder_for_test.h"
#include "store/file_bytes_for_test.h"
#include "engine/dice_roll_files.h"
#include "engine/table_for_test.h"
#include "store/bet_file.h"
#include "store/hot_keys_file.h"
#include "store/sound_sets.h"
#include "store/start_up.h"

namespace fs = std::filesystem;

namespace {

ScriptLine Comment(const std::string& text) {
  ScriptLine l;
  l.Kind = line_kind::kComment;
  l.Text = text;
  l.Spare1 = -7;
  return l;
}

}  // namespace

TEST(SmallFiles, ActiveScriptLifecycle) {
  TempFolder folder;
  const fs::path active = folder.path() / kActiveScriptName;
  {  // Start-up writes the working copy from the script the game came with.
    Game g;
    StartUp(g, folder.path().string());
    ASSERT_TRUE(fs::exists(active));
    EXPECT_EQ(ReadBytes(active), EncodeBetFile(g.AutoBet, false));
  }
  TestTable t;
  t.g.DataFolder = folder.path().string();
  t.g.AutoBet.Lines = {Comment("'one"), Comment("'two")};
  ScriptEditorClosed(t.g, false);  // no changes: nothing moves
  EXPECT_FALSE(t.g.ScriptDirty);
  EXPECT_NE(ReadBytes(active), EncodeBetFile(t.g.AutoBet, false));

  ScriptEditorClosed(t.g, true);
  EXPECT_TRUE(t.g.ScriptDirty);
  EXPECT_TRUE(t.g.InitPending);
  EXPECT_EQ(ReadBytes(active), EncodeBetFile(t.g.AutoBet, false));
  auto lines = ReadActiveScript(t.g);
  ASSERT_TRUE(lines);
  EXPECT_EQ(*lines, t.g.AutoBet.Lines);

  t.g.GameChanged = false;
  ScriptOpened(t.g);  // a script fresh from its file is saved, but the game links it now
  EXPECT_FALSE(t.g.ScriptDirty);
  EXPECT_TRUE(t.g.GameChanged);

  // A line too wide for a record keeps the old copy.
  const std::string before = ReadBytes(active);
  t.g.AutoBet.Lines[0].Spare1 = 70000;
  EXPECT_FALSE(WriteActiveScript(t.g));
  EXPECT_EQ(ReadBytes(active), before);

  std::ofstream(folder.path() / kClipboardName) << "rolls";
  RemoveWorkFiles(t.g);
  EXPECT_FALSE(fs::exists(active));
  EXPECT_FALSE(fs::exists(folder.path() / kClipboardName));
  EXPECT_FALSE(ReadActiveScript(t.g));
  RemoveWorkFiles(t.g);  // nothing there: nothing to do

  t.g.DataFolder.clear();  // no folder: no copy, and no complaint
  EXPECT_FALSE(WriteActiveScript(t.g));
  EXPECT_TRUE(t.ui.messages.empty());
}

TEST(SmallFiles, SoundSetsAndHotKeysAtStartUp) {
  TempFolder folder;
  for (const char* name : {"vegas01.stk", "vegas02.stk", "Vegas18.STK", "calm01.stk", "felt.dce", "bell.win",
                           "clack.chp", "x.stk", "notes.txt"})
    std::ofstream(folder.path() / name) << "x";
  fs::create_directory(folder.path() / "folder.dce");
  Game g;
  g.HotKeys = {{'Q', "q.bet", ""}};
  g.DataFolder = folder.path().string();
  std::ofstream(folder.path() / kHotKeysFileName, std::ios::binary) << EncodeHotKeys({{'K', "k.bet", "keep"}});
  ListSoundSetsAndHotKeys(g);
  EXPECT_EQ(g.Sounds.Stickman, (std::vector<std::string>{"Vegas", "calm", "vegas"}));
  EXPECT_EQ(g.Sounds.Dice, std::vector<std::string>{"felt"});
  EXPECT_EQ(g.Sounds.Win, std::vector<std::string>{"bell"});
  EXPECT_EQ(g.Sounds.Chips, std::vector<std::string>{"clack"});
  ASSERT_EQ(g.HotKeys.size(), 1u);
  EXPECT_EQ(g.HotKeys[0].File, "k.bet");

  const SoundSets none = ListSoundSets((folder.path() / "missing").string());
  EXPECT_TRUE(none.Stickman.empty() && none.Dice.empty() && none.Win.empty() && none.Chips.empty());
}
