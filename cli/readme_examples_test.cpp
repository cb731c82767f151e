// The README's examples, run as written, so that they cannot drift from what
// the program does.

#include <gtest/gtest.h>

#include <regex>
#include <vector>

#include "cli/cli_for_test.h"
#include "cli/json_lines.h"

namespace {

struct Block {
  std::string language, text, before;  // `before`: the prose line just above
};

std::vector<Block> FencedBlocks(const std::string& markdown) {
  std::vector<Block> blocks;
  std::istringstream in(markdown);
  std::string line, lastProse;
  Block* open = nullptr;
  while (std::getline(in, line)) {
    if (line.rfind("```", 0) == 0) {
      if (open) {
        open = nullptr;
      } else {
        blocks.push_back({line.substr(3), "", lastProse});
        open = &blocks.back();
      }
    } else if (open) {
      open->text += line + "\n";
    } else if (!line.empty()) {
      lastProse = line;
    }
  }
  return blocks;
}

// A shell block with the program's path, a folder of its own for /tmp/dm,
// and runs cut short (a later --rolls wins).
std::string Runnable(std::string block) {
  block = std::regex_replace(block, std::regex("build/dicemill-cli"), kCliPath);
  block = std::regex_replace(block, std::regex("/tmp/dm"), "dm");
  return std::regex_replace(block, std::regex("( run [^>\\n]*?)( > [^\\n]*)?\\n"), "$1 --rolls 2,000 --quiet$2\n");
}

const std::string kReadme = Slurp(DICEMILL_SOURCE_DIR "/README.md");

}  // namespace

TEST(Readme, EveryCommandExampleRuns) {
  TempFolder work;
  std::filesystem::create_directory_symlink(DICEMILL_SOURCE_DIR "/samples", work.path() / "samples");
  std::ofstream(work.path() / "rolls.txt") << "1 2\n3 4\n6 6\n";
  int ran = 0;
  for (const Block& b : FencedBlocks(kReadme)) {
    if (b.before.ends_with("For example:")) std::ofstream(work.path() / "my-strategy.txt") << b.text;
    if (b.language != "sh" || b.text.find("build/dicemill-cli") == std::string::npos) continue;
    const Ran r = Shell(work, "set -e\n" + Runnable(b.text));
    EXPECT_EQ(r.status, 0) << b.text << r.err;
    ++ran;
  }
  EXPECT_GE(ran, 3);
  EXPECT_TRUE(Json::parse(Slurp(work.path() / "report.json"))["games"].size() == 100);
}

TEST(Readme, TheMainJobPrintsTheReportShown) {
  TempFolder work;
  std::string shown;
  for (const Block& b : FencedBlocks(kReadme))
    if (b.text.rfind("Dicemill run: samples/place-6-8-press.txt", 0) == 0) shown = b.text;
  ASSERT_FALSE(shown.empty());
  // The time taken differs from run to run.
  const std::regex times("  time [^\\n]*\\n");
  const Ran r = Shell(work, "cd '" DICEMILL_SOURCE_DIR "' && DICEMILL_BUILD_DIR='" DICEMILL_BINARY_DIR
                            "' scripts/run.sh --quiet");
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(std::regex_replace(r.out, times, ""), std::regex_replace(shown, times, ""));

  // Its arguments reach the run, and only the report reaches standard output.
  const Ran json = Shell(work, "cd '" DICEMILL_SOURCE_DIR "' && DICEMILL_BUILD_DIR='" DICEMILL_BINARY_DIR
                               "' scripts/run.sh --rolls 1000 --json");
  ASSERT_EQ(json.status, 0) << json.err;
  EXPECT_EQ(Json::parse(json.out)["games"][0]["rolls"], 1000);
}

TEST(Readme, TheWordListsOfTheDocsAreThoseOfTheProgram) {
  TempFolder work;
  const std::vector<Block> blocks = FencedBlocks(Slurp(DICEMILL_SOURCE_DIR "/docs/script-words.md"));
  ASSERT_EQ(blocks.size(), 1u);
  EXPECT_TRUE(blocks[0].text == Cli(work, "script words").out);
}
