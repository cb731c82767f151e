// What opening and saving a game do to the work files of the data folder.

#include <gtest/gtest.h>

#include <filesystem>

#include "cli/temp_folder_for_test.h"
#include "engine/new_game.h"
#include "engine/table_for_test.h"
#include "store/file_bytes_for_test.h"
#include "store/game_file.h"
#include "store/bet_file.h"
#include "script/script_file.h"
#include "store/small_files.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kScript = "'Work files\nDo this\n  Bet $5 on Field\n";

struct FolderGame {
  TempFolder data, elsewhere;
  Game g;
  RecordingFrontEnd ui;
  FolderGame() {
    AssembleGame(g);
    g.Ui = &ui;
    g.DataFolder = data.path().string();
    g.ReSeedNewGames = false;
    FillDefaults(g);
    NewGame(g, false);
    WriteBytes(data.path() / "script.txt", kScript);
    const FileStatus loaded = LoadScriptFile((data.path() / "script.txt").string(), g.AutoBet);
    EXPECT_TRUE(loaded) << loaded.FirstMessage();
  }
};

}  // namespace

TEST(GameFileWorkFiles, UnsavedWorkOfADefaultGameStaysInTheDataFolder) {
  FolderGame f;
  f.g.ScriptDirty = f.g.ProbModified = true;
  const fs::path game = f.elsewhere.path() / kDefaultGameName;
  ASSERT_TRUE(SaveGame(f.g, game.string()));
  for (const char* name : {"default.bet", "default.prb"}) {
    EXPECT_TRUE(fs::exists(f.data.path() / name)) << name;
    EXPECT_FALSE(fs::exists(f.elsewhere.path() / name)) << name;
  }
}

TEST(GameFileWorkFiles, OpeningAGameWritesItsScriptAsTheWorkingCopy) {
  FolderGame f;
  const std::string saved = (f.data.path() / "linked.bet").string();
  ASSERT_TRUE(SaveAutoBetFile(f.g, saved));
  const fs::path game = f.elsewhere.path() / "game.crp";
  ASSERT_TRUE(SaveGame(f.g, game.string()));
  f.g.AutoBet.Lines.clear();
  ASSERT_TRUE(WriteActiveScript(f.g));
  ASSERT_TRUE(OpenGame(f.g, game.string()));
  const auto copy = ReadActiveScript(f.g);
  ASSERT_TRUE(copy.has_value());
  EXPECT_EQ(copy->size(), f.g.AutoBet.Lines.size());
  EXPECT_FALSE(copy->empty());
}
