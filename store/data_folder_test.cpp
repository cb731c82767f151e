#include "store/data_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>

#include "cli/temp_folder_for_test.h"
#include "store/sound_sets.h"
#include "test_paths.h"

namespace fs = std::filesystem;

namespace {

void Write(const fs::path& file, const std::string& text) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

// The folder's files, name to contents, hidden ones included.
std::map<std::string, std::string> Files(const fs::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    std::ifstream in(entry.path(), std::ios::binary);
    if (entry.is_regular_file()) files[entry.path().filename().string()] = {std::istreambuf_iterator<char>(in), {}};
  }
  return files;
}

}  // namespace

TEST(DataFolder, OptionThenDicemillHomeThenXdgThenHome) {
  auto env = [](std::map<std::string, std::string> vars) -> EnvLookup {
    return [vars](const char* name) -> const char* {
      auto it = vars.find(name);
      return it == vars.end() ? nullptr : it->second.c_str();
    };
  };
  const auto all = env({{"DICEMILL_HOME", "/d"}, {"XDG_DATA_HOME", "/x"}, {"HOME", "/h"}});
  EXPECT_EQ(ChooseDataFolder("/opt", all), fs::path("/opt"));
  EXPECT_EQ(ChooseDataFolder("", all), fs::path("/d"));
  EXPECT_EQ(ChooseDataFolder("", env({{"DICEMILL_HOME", ""}, {"XDG_DATA_HOME", "/x"}, {"HOME", "/h"}})),
            fs::path("/x/dicemill"));
  EXPECT_EQ(ChooseDataFolder("", env({{"HOME", "/h"}})), fs::path("/h/.local/share/dicemill"));
}

TEST(DataFolder, FindsTheShareFolderBesideTheExecutablesFolder) {
  TempFolder temp;
  fs::create_directories(temp.path() / "usr" / "share" / "dicemill");
  fs::create_directories(temp.path() / "build");
  const struct {
    fs::path exe;
    fs::path expected;
  } cases[] = {
      {temp.path() / "usr" / "bin" / "dicemill", temp.path() / "usr" / "share" / "dicemill"},
      {temp.path() / "build" / "dicemill", {}},
      {{}, {}},
  };
  for (const auto& c : cases) EXPECT_EQ(FindShareDir(c.exe), c.expected) << c.exe;
}

TEST(DataFolder, SeedingCopiesOnlyWhatTheFolderLacks) {
  const struct {
    const char* name;
    std::map<std::string, std::string> before;  // the user's files
    std::map<std::string, std::string> after;
  } cases[] = {
      {"new folder gets everything",
       {},
       {{"a.txt", "sample a"}, {"b.bet", "sample b"}, {"Dice.dce", "rattle"}}},
      {"user's files are kept as they are",
       {{"a.txt", "mine"}, {"Dice.dce", ""}, {"notes", "n"}},
       {{"a.txt", "mine"}, {"b.bet", "sample b"}, {"Dice.dce", ""}, {"notes", "n"}}},
  };
  for (const auto& c : cases) {
    TempFolder temp;
    const ShippedFolders shipped{temp.path() / "samples", temp.path() / "sounds"};
    Write(shipped.samples / "a.txt", "sample a");
    Write(shipped.samples / "b.bet", "sample b");
    Write(shipped.samples / "nested" / "c.txt", "not copied");
    Write(shipped.sounds / "Dice.dce", "rattle");
    const fs::path folder = temp.path() / "home" / "dicemill";
    for (const auto& [name, text] : c.before) Write(folder / name, text);
    std::string error;
    for (int start = 1; start <= 2; ++start) {  // a second start changes nothing
      EXPECT_TRUE(SeedDataFolder(folder, shipped, error)) << c.name << ": " << error;
      EXPECT_EQ(Files(folder), c.after) << c.name << ", start " << start;
    }
  }
}

TEST(DataFolder, SeedingReportsWhatItCannotDo) {
  TempFolder temp;
  Write(temp.path() / "samples" / "a.txt", "sample");
  Write(temp.path() / "file", "x");
  // A folder in the way of the copy's hidden name makes the copy fail, even for root.
  fs::create_directories(temp.path() / "blocked" / ".a.txt.seeding");
  const ShippedFolders shipped{temp.path() / "samples", temp.path() / "missing"};
  const struct {
    fs::path folder;
    const char* error;  // nullptr: seeds fine
  } cases[] = {
      {temp.path() / "file", "cannot use the data folder"},          // a file, not a folder
      {temp.path() / "file" / "sub", "cannot use the data folder"},  // cannot be made
      {temp.path() / "blocked", "cannot copy"},
      {temp.path() / "fine", nullptr},  // a missing shipped folder gives nothing
  };
  for (const auto& c : cases) {
    std::string error;
    EXPECT_EQ(SeedDataFolder(c.folder, shipped, error), c.error == nullptr) << c.folder << ": " << error;
    if (c.error) {
      EXPECT_NE(error.find(c.error), std::string::npos) << error;
    } else {
      EXPECT_EQ(error, "");
    }
  }
}

TEST(DataFolder, ShippedSoundsAreOneWholeSetOfEachKind) {
  const fs::path sounds = SourceTreeFolders(DICEMILL_SOURCE_DIR).sounds;
  const SoundSets sets = ListSoundSets(sounds.string());
  EXPECT_EQ(sets.Stickman, std::vector<std::string>{"Stickman"});
  EXPECT_EQ(sets.Dice, std::vector<std::string>{"Dice"});
  EXPECT_EQ(sets.Win, std::vector<std::string>{"Win"});
  EXPECT_EQ(sets.Chips, std::vector<std::string>{"Chips"});
  std::vector<std::string> names{"Chips.wav"};
  for (int slot = 1; slot <= 18; ++slot) {
    names.push_back((slot < 10 ? "Stickman0" : "Stickman") + std::to_string(slot) + ".stk");
  }
  for (const auto& [name, bytes] : Files(sounds)) {
    // Played as WAV whatever the extension says.
    EXPECT_TRUE(bytes.starts_with("RIFF") && bytes.substr(8, 4) == "WAVE") << name;
    std::erase(names, name);
  }
  EXPECT_TRUE(names.empty()) << "missing: " << names.front();
}
