#include <cerrno>
#include <cstring>
#include <iostream>

#include <CLI/CLI.hpp>

#include "cli/advantage_tool.h"
#include "cli/dice_tool.h"
#include "cli/exit_codes.h"
#include "cli/games_tool.h"
#include "cli/play_session.h"
#include "cli/run_merge.h"
#include "cli/run_tool.h"
#include "cli/script_tool.h"

namespace {

// Help and version are answers, not errors; every other parse failure is a
// usage error with CLI11's own message (which names the option).
int ParseFailure(CLI::App& app, const CLI::ParseError& e) {
  if (dynamic_cast<const CLI::CallForHelp*>(&e) || dynamic_cast<const CLI::CallForAllHelp*>(&e) ||
      dynamic_cast<const CLI::CallForVersion*>(&e)) {
    app.exit(e);
    return kExitDone;
  }
  std::cerr << "dicemill-cli: " << e.what() << "\nRun with --help for the options.\n";
  return kExitUsage;
}

int Dispatch(CLI::App& app, int argc, char** argv);

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"Dicemill, a craps table for measuring betting strategies"};
  const int status = Dispatch(app, argc, argv);
  // A report that never reached its file (a full disk) is a failure.
  if (!(std::cout << std::flush)) {
    std::cerr << "dicemill-cli: standard output could not be written: " << std::strerror(errno ? errno : EIO) << "\n";
    return status == kExitDone ? kExitFailed : status;
  }
  return status;
}

namespace {

int Dispatch(CLI::App& app, int argc, char** argv) {
  app.require_subcommand(1);
  app.set_version_flag("--version", "dicemill-cli " DICEMILL_VERSION);

  PlayOptions options;
  CLI::App* play = app.add_subcommand("play", "Play the table headless: commands on stdin, JSON Lines on stdout");
  play->add_option("--folder", options.folder, "Data folder (default: $DICEMILL_HOME, else the XDG data folder)");
  play->add_option("--game", options.gameFile, "Game file to open after start-up");
  play->add_flag("--strict", options.strict, "Exit with status 2 at the first error");

  DiceToolOptions diceOptions;
  CLI::App* dice = AddDiceTool(app, diceOptions);
  RunToolOptions runOptions;
  CLI::App* run = AddRunTool(app, runOptions);
  std::vector<std::string> mergeFiles;
  CLI::App* merge = AddMergeTool(app, mergeFiles);
  ScriptToolOptions scriptOptions;
  CLI::App* script = AddScriptTool(app, scriptOptions);
  AdvantageToolOptions advantageOptions;
  CLI::App* advantage = AddAdvantageTool(app, advantageOptions);
  GamesToolOptions gamesOptions;
  CLI::App* games = AddGamesTool(app, gamesOptions);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return ParseFailure(app, e);
  }

  std::ios::sync_with_stdio(false);
  if (play->parsed()) return RunPlay(std::cin, std::cout, options);
  if (dice->parsed()) return RunDiceTool(*dice, diceOptions, std::cout, std::cerr);
  if (run->parsed()) return RunRunTool(runOptions, std::cout, std::cerr);
  if (merge->parsed()) return RunMergeTool(mergeFiles, std::cout, std::cerr);
  if (games->parsed()) return RunGamesTool(gamesOptions, std::cout, std::cerr);
  if (script->parsed()) return RunScriptTool(*script, scriptOptions, std::cout, std::cerr);
  if (advantage->parsed()) return RunAdvantageTool(advantageOptions, std::cout, std::cerr);
  return kExitDone;
}

}  // namespace
