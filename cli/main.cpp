#include <iostream>

#include <CLI/CLI.hpp>

#include "cli/advantage_tool.h"
#include "cli/dice_tool.h"
#include "cli/games_tool.h"
#include "cli/play_session.h"
#include "cli/run_tool.h"
#include "cli/script_tool.h"

int main(int argc, char** argv) {
  CLI::App app{"Dicemill, a craps table for measuring betting strategies"};
  app.require_subcommand(1);

  PlayOptions options;
  CLI::App* play = app.add_subcommand("play", "Play the table headless: commands on stdin, JSON Lines on stdout");
  play->add_option("--folder", options.folder, "Data folder (default: $DICEMILL_HOME, else the XDG data folder)");
  play->add_option("--game", options.gameFile, "Game file to open after start-up");
  play->add_flag("--strict", options.strict, "Exit with status 2 at the first error");

  DiceToolOptions diceOptions;
  CLI::App* dice = AddDiceTool(app, diceOptions);

  RunToolOptions runOptions;
  CLI::App* run = AddRunTool(app, runOptions);
  ScriptToolOptions scriptOptions;
  CLI::App* script = AddScriptTool(app, scriptOptions);
  AdvantageToolOptions advantageOptions;
  CLI::App* advantage = AddAdvantageTool(app, advantageOptions);

  GamesToolOptions gamesOptions;
  CLI::App* games = AddGamesTool(app, gamesOptions);

  CLI11_PARSE(app, argc, argv);

  std::ios::sync_with_stdio(false);
  if (play->parsed()) return RunPlay(std::cin, std::cout, options);
  if (dice->parsed()) return RunDiceTool(*dice, diceOptions, std::cout, std::cerr);
  if (run->parsed()) return RunRunTool(runOptions, std::cout, std::cerr);
  if (games->parsed()) return RunGamesTool(gamesOptions, std::cout, std::cerr);
  if (script->parsed()) return RunScriptTool(*script, scriptOptions, std::cout, std::cerr);
  if (advantage->parsed()) return RunAdvantageTool(advantageOptions, std::cout, std::cerr);
  return 0;
}
