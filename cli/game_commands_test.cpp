// A game saved by one process and taken up by others: `play` saves it and
// goes on, `run --game` and `play --game` start from the file, and all roll
// the same dice.

#include "test_paths.h"
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "cli/json_lines.h"
#include "cli/temp_folder_for_test.h"

namespace fs = std::filesystem;

namespace {

std::vector<Json> Lines(const fs::path& file) {
  std::vector<Json> objects;
  std::ifstream in(file);
  for (std::string line; std::getline(in, line);) objects.push_back(Json::parse(line));
  return objects;
}

int Shell(const std::string& command) {
  const int raw = std::system(command.c_str());
  return WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
}

// The last object of the run's output that has `key`.
Json Last(const std::vector<Json>& objects, const char* key) {
  for (auto it = objects.rbegin(); it != objects.rend(); ++it)
    if (it->contains(key)) return (*it)[key];
  return {};
}

}  // namespace

TEST(GameCommands, ASavedGameGoesOnTheSameInEveryProcess) {
  TempFolder work;
  const fs::path data = work.path() / "data", game = work.path() / "mid game.crp";
  const std::string script = std::string(DICEMILL_SOURCE_DIR) + "/samples/three-point-molly.bet";
  const std::string cli = "'" DICEMILL_CLI_PATH "'";
  const std::string folder = " --folder '" + data.string() + "'";
  std::ofstream(work.path() / "first.txt") << "set RngChoice 5\nseed 99\nscript \"" << script
                                           << "\"\nhyper 300\nsave \"" << game.string()
                                           << "\"\nstate\nhyper 2000\nstate\nquit\n";
  ASSERT_EQ(Shell(cli + " play --strict" + folder + " < '" + (work.path() / "first.txt").string() + "' > '" +
                  (work.path() / "first.json").string() + "'"),
            0);
  const std::vector<Json> first = Lines(work.path() / "first.json");
  const Json saved = Last(first, "saved");
  ASSERT_FALSE(saved.is_null());
  EXPECT_EQ(saved["caption"], "Dicemill (mid game.crp)");
  EXPECT_EQ(saved["script"], script);
  const Json goneOn = Last(first, "state");
  const Json atSave = std::find_if(first.begin(), first.end(), [](const Json& j) { return j.contains("state"); })->at("state");

  ASSERT_EQ(Shell(cli + " run --quiet --json --rolls 2000 --game '" + game.string() + "' > '" +
                  (work.path() / "run.json").string() + "'"),
            0);
  std::ifstream in(work.path() / "run.json");
  const Json report = Json::parse(in)["games"][0];
  EXPECT_EQ(report["rolls"], 2000);
  EXPECT_EQ(report["bankroll"]["end"], goneOn["bankroll"]);
  EXPECT_EQ(report["hands"], goneOn["handStats"][2].get<int>() - atSave["handStats"][2].get<int>());

  std::ofstream(work.path() / "second.txt") << "hyper 2000\nstate\n";
  ASSERT_EQ(Shell(cli + " play --strict" + folder + " --game '" + game.string() + "' < '" +
                  (work.path() / "second.txt").string() + "' > '" + (work.path() / "second.json").string() + "'"),
            0);
  const std::vector<Json> second = Lines(work.path() / "second.json");
  EXPECT_EQ(Last(second, "state"), goneOn);
}
