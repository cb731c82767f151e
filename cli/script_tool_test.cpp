#include "cli/script_tool.h"

#include <gtest/gtest.h>

#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/temp_folder_for_test.h"

namespace {

struct Outcome {
  int status;
  std::string out, err;
};

Outcome RunTool(std::vector<std::string> args) {
  CLI::App app;
  ScriptToolOptions options;
  CLI::App* script = AddScriptTool(app, options);
  args.insert(args.begin(), "script");
  std::reverse(args.begin(), args.end());  // CLI11 takes the arguments last first
  app.parse(args);
  std::ostringstream out, err;
  const int status = RunScriptTool(*script, options, out, err);
  return {status, out.str(), err.str()};
}

TEST(ScriptTool, CheckConvertAndShow) {
  TempFolder folder;
  const std::filesystem::path dir = folder.path();
  std::ofstream(dir / "good.txt") << "When\n  On each roll\nthen\n  Bet $5 on Field\n";
  std::ofstream(dir / "fault.txt") << "When\n  On each roll\n  Bet $5 on Field\n";
  std::ofstream(dir / "bad.txt") << "When\n  On each rol\n";
  const std::string good = (dir / "good.txt").string(), bet = (dir / "good.bet").string();

  Outcome r = RunTool({"check", good});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "Your script is properly structured.\n");

  r = RunTool({"check", (dir / "fault.txt").string()});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out.rfind((dir / "fault.txt").string() + ":3: Missing Start Action\n  Bet $5 on Field\nThe Action line shown", 0), 0u) << r.out;

  r = RunTool({"check", (dir / "bad.txt").string()});
  EXPECT_EQ(r.status, 2);
  EXPECT_NE(r.err.find("line 2, column 11: unknown word \"rol\"; expected one of \"On each roll\""), std::string::npos) << r.err;

  r = RunTool({"convert", good, bet});
  EXPECT_EQ(r.status, 0);
  r = RunTool({"convert", bet, (dir / "back.txt").string()});
  EXPECT_EQ(r.status, 0);
  std::ifstream back(dir / "back.txt");
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(back), {}), "When\n  On each roll\nthen\n  Bet $5 on Field\n");
  EXPECT_EQ(RunTool({"convert", good, (dir / "x.doc").string()}).status, 2);

  r = RunTool({"show", bet});
  EXPECT_EQ(r.out, "1  When\n2    On each roll\n3  then\n4    Bet $5 on Field\n");
  r = RunTool({"show", "--texts", bet});
  EXPECT_EQ(r.out, "1  When . . .\n2  On each roll\n3  then . . .\n4  Bet $5 on Field\n");
}

TEST(ScriptTool, WordsListTheVocabularyByPrefix) {
  const struct {
    std::string prefix;
    int status;
    std::vector<std::string> shown, notShown;
  } cases[] = {
      {"", 0, {"Start lines:\n  When\n", "Action verbs:\n", "  Bet $\n"}, {}},
      {"place 6", 0, {"Condition subjects:\n  Place 6\n"}, {"Place 8", "When"}},
      {"Zzz", 1, {}, {"Start lines"}},
  };
  for (const auto& c : cases) {
    const Outcome r = RunTool(c.prefix.empty() ? std::vector<std::string>{"words"} : std::vector<std::string>{"words", c.prefix});
    EXPECT_EQ(r.status, c.status) << c.prefix;
    for (const std::string& s : c.shown) EXPECT_NE(r.out.find(s), std::string::npos) << c.prefix << ": " << s;
    for (const std::string& s : c.notShown) EXPECT_EQ(r.out.find(s), std::string::npos) << c.prefix << ": " << s;
  }
}

}  // namespace
