#include "cli/dice_tool.h"

#include <CLI/CLI.hpp>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <vector>

#include "cli/exit_codes.h"
#include "cli/json_lines.h"
#include "cli/roll_text.h"
#include "sim/terminal_text.h"
#include "engine/dice_roll_files.h"
#include "engine/file_errors.h"

namespace {

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};

}  // namespace

CLI::App* AddDiceTool(CLI::App& app, DiceToolOptions& options) {
  CLI::App* dice = app.add_subcommand("dice", "Dice Roll Files without a game");
  dice->require_subcommand(1);
  CLI::App* toRol = dice->add_subcommand(
      "to-rol", "Convert a text of rolls, each two digits 1..6 (\"34\", \"3 4\", \"(3-4)\"), to a .rol file");
  toRol->add_option("TEXT", options.from, "Text file")->required();
  toRol->add_option("ROL", options.to, ".rol file to write")->required();
  CLI::App* toText = dice->add_subcommand("to-text", "Write a .rol file as text, one roll a line");
  toText->add_option("ROL", options.from, ".rol file")->required();
  toText->add_option("TEXT", options.to, "Text file to write")->required();
  toText->add_flag("--roll-numbers", options.rollNumbers, "Begin each line with the roll number");
  toText->add_flag("--numbers-called", options.numbersCalled, "End each line with the total");
  toText->add_flag("--no-dice", options.noDice, "Leave out the (Die1-Die2) pair");
  CLI::App* info = dice->add_subcommand("info", "Summarise a .rol file: rolls and a histogram of totals");
  info->add_option("ROL", options.from, ".rol file")->required();
  return dice;
}

bool WriteRollFileSummary(const std::string& rolPath, std::ostream& out, int64_t* firstOutOfLimits) {
  std::unique_ptr<std::FILE, FileCloser> in(std::fopen(rolPath.c_str(), "rb"));
  if (!in) return false;
  std::array<int64_t, 13> totals{};
  int64_t rolls = 0, firstBad = 0;
  std::vector<uint8_t> buffer(kBlockBytes);
  for (size_t got; (got = std::fread(buffer.data(), 1, buffer.size(), in.get())) > 0;) {
    for (size_t i = 0; i < got; ++i) {
      ++rolls;
      if (CheckRollValue(buffer[i]))
        ++totals[Die1Of(buffer[i]) + Die2Of(buffer[i])];
      else if (firstBad == 0)
        firstBad = rolls;
    }
  }
  if (std::ferror(in.get())) return false;
  Json histogram = Json::object();
  for (int t = 2; t <= 12; ++t) histogram[std::to_string(t)] = totals[t];
  WriteJsonLine(out, {{"rolls", rolls}, {"totals", histogram}, {"firstOutOfLimits", firstBad}});
  if (firstOutOfLimits) *firstOutOfLimits = firstBad;
  return true;
}

int RunDiceTool(const CLI::App& dice, const DiceToolOptions& o, std::ostream& out, std::ostream& err) {
  const std::string fileError = "dicemill-cli dice: " + FileProblem(o.from, FileNameErrorText());
  if (const std::string reason = NotARegularFileReason(o.from); !reason.empty()) {
    err << "dicemill-cli dice: " << PrintableName(o.from) << " " << reason << ".\n";
    return kExitUsage;
  }
  if (dice.got_subcommand("to-rol")) {
    std::string error;
    const int64_t rolls = ConvertRollText(o.from, o.to, error);
    if (rolls < 0) {
      err << "dicemill-cli dice: " << error << "; nothing was written\n";
      return kExitUsage;
    }
    WriteJsonLine(out, {{"rolls", rolls}});
    return 0;
  }
  if (dice.got_subcommand("to-text")) {
    std::error_code ec;
    const auto size = std::filesystem::file_size(o.from, ec);
    if (ec) {
      err << fileError << "\n";
      return kExitUsage;
    }
    const RollTextOptions options{o.rollNumbers, !o.noDice, o.numbersCalled};
    if (!options.dieNums && !options.numbersCalled) {
      err << "dicemill-cli dice: --no-dice needs --numbers-called: a line must show the dice or the number called\n";
      return kExitUsage;
    }
    int64_t badRoll = 0;
    const int64_t written = WriteRollsAsText(o.from, 1, static_cast<int64_t>(size), 1, options, o.to, &badRoll);
    if (written < 0) {
      if (badRoll > 0)
        err << "dicemill-cli dice: " << o.from << ": roll #" << badRoll << " is out of limits; nothing was written\n";
      else
        err << "dicemill-cli dice: " << o.to << ": " << TerminalText(FileNameErrorText()) << "\n";
      return kExitFailed;
    }
    WriteJsonLine(out, {{"rolls", written}});
    return 0;
  }
  int64_t firstBad = 0;
  if (!WriteRollFileSummary(o.from, out, &firstBad)) {
    err << fileError << "\n";
    return kExitUsage;
  }
  if (firstBad > 0)
    err << "dicemill-cli dice: " << o.from << ": roll #" << FormatWithCommas(firstBad)
        << " is out of limits (no pair of dice); playback would stop there\n";
  return 0;
}
