#pragma once
// The `dicemill-cli play` session: commands in, one per line; JSON Lines out.
// It is a screen without pixels and drives the table only through its Table,
// the same front door a window's clicks and keys go through.

#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "cli/headless_frontend.h"

struct Game;
struct RunResult;
class Table;

struct PlayOptions {
  std::string folder;    // empty: chosen from the environment
  std::string gameFile;  // empty: none
  bool strict = false;   // stop with status 2 at the first error
};

class PlaySession {
 public:
  // Runs the headless start-up. Errors of the start (a folder that cannot be
  // made, a game file) are printed like any other.
  PlaySession(std::ostream& out, const PlayOptions& options);
  ~PlaySession();
  PlaySession(const PlaySession&) = delete;
  PlaySession& operator=(const PlaySession&) = delete;

  // Runs one input line. False once the session is over: `quit`, or an error
  // under --strict.
  bool RunLine(const std::string& line);
  // 0, or 2 once an error was printed under --strict.
  int ExitStatus() const { return strict_ && failed_ ? 2 : 0; }
  bool Over() const { return quit_ || ExitStatus() != 0; }
  // The stop of a session that ends without `quit`: the save questions are
  // asked, but a Cancel can't keep it going. Runs once.
  void EndOfInput();

  const Game& game() const;
  Table& table() { return *table_; }
  HeadlessFrontEnd& frontEnd() { return ui_; }

 private:
  using Args = std::vector<std::string>;
  struct Command;
  static const std::vector<Command>& Commands();

  void Start(const PlayOptions& options);
  void Error(const std::string& text);

  void Bet(const Args& a);
  void Remove(const Args& a);
  void Call(const Args& a);
  void Buy(const Args& a);
  void Roll(const Args& a);
  void Hyper(const Args& a);
  void AutoRoll(const Args& a);
  void Set(const Args& a);
  void Get(const Args& a);
  void Chip(const Args& a);
  void PayoffRow(const Args& a);
  void FieldRow(const Args& a);
  void Seed(const Args& a);
  void Atm(const Args& a);
  void New(const Args& a);
  void Answer(const Args& a);
  void State(const Args& a);
  void Quit(const Args& a);
  void Prob(const Args& a);  // cli/prob_commands.cpp
  void DiceFile(const Args& a);  // cli/dicefile_commands.cpp
  void Pad(const Args& a);
  void Click(const Args& a);  // cli/table_click_commands.cpp
  void Enter(const Args& a);
  void Rate(const Args& a);
  void ScriptFile(const Args& a);  // cli/script_commands.cpp
  void AutoBet(const Args& a);
  void Flags(const Args& a);
  void Advantage(const Args& a);  // cli/advantage_commands.cpp
  void HotKey(const Args& a);  // cli/prompt_commands.cpp
  void Results(const Args& a);  // cli/stats_commands.cpp
  void Summary(const Args& a);
  void Trends(const Args& a);
  void OpenGameFile(const Args& a);  // cli/game_commands.cpp
  void SaveGameFile(const Args& a);
  void Stats(const Args& a);     // cli/roll_stats_commands.cpp
  void Graph(const Args& a);
  void GamesLog(const Args& a);
  // Prints the `stopped` object of a run.
  void ReportRun(const RunResult& run);

  std::ostream& out_;
  HeadlessFrontEnd ui_;
  std::unique_ptr<Table> table_;  // holds the data folder from the start to the end of the session
  bool strict_ = false;
  bool failed_ = false;
  bool quit_ = false;
  bool stopped_ = false;  // the stop has run: questions, default game, work files
};

// Reads commands until end of input or `quit`; returns the exit status.
int RunPlay(std::istream& in, std::ostream& out, const PlayOptions& options);
