#include "cli/data_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "cli/temp_folder_for_test.h"

namespace fs = std::filesystem;

namespace {
EnvLookup Env(std::map<std::string, std::string> vars) {
  return [vars](const char* name) -> const char* {
    auto it = vars.find(name);
    return it == vars.end() ? nullptr : it->second.c_str();
  };
}
}  // namespace

TEST(DataFolder, OptionThenDicemillHomeThenXdgThenHome) {
  const auto all = Env({{"DICEMILL_HOME", "/d"}, {"XDG_DATA_HOME", "/x"}, {"HOME", "/h"}});
  EXPECT_EQ(ChooseDataFolder("/opt", all), fs::path("/opt"));
  EXPECT_EQ(ChooseDataFolder("", all), fs::path("/d"));
  EXPECT_EQ(ChooseDataFolder("", Env({{"DICEMILL_HOME", ""}, {"XDG_DATA_HOME", "/x"}, {"HOME", "/h"}})),
            fs::path("/x/dicemill"));
  EXPECT_EQ(ChooseDataFolder("", Env({{"HOME", "/h"}})), fs::path("/h/.local/share/dicemill"));
}

TEST(DataFolder, CreatesMissingFoldersAndRefusesFiles) {
  TempFolder temp;
  const fs::path root = temp.path();
  std::string error;
  EXPECT_TRUE(EnsureFolder(root / "a" / "b", error)) << error;
  EXPECT_TRUE(fs::is_directory(root / "a" / "b"));
  EXPECT_TRUE(EnsureFolder(root / "a" / "b", error));
  std::ofstream(root / "file") << "x";
  EXPECT_FALSE(EnsureFolder(root / "file", error));
  EXPECT_NE(error.find("cannot use the data folder"), std::string::npos);
}
