#include "cli/data_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "cli/temp_folder_for_test.h"

namespace fs = std::filesystem;

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

TEST(DataFolder, CreatesMissingFoldersAndRefusesFiles) {
  TempFolder temp;
  std::string error;
  EXPECT_TRUE(EnsureFolder(temp.path() / "a" / "b", error)) << error;
  EXPECT_TRUE(EnsureFolder(temp.path() / "a" / "b", error));
  std::ofstream(temp.path() / "file") << "x";
  EXPECT_FALSE(EnsureFolder(temp.path() / "file", error));
  EXPECT_NE(error.find("cannot use the data folder"), std::string::npos);
}
