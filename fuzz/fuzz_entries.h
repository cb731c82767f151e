#pragma once
// One input for each reader of outside files. Whatever the bytes, a reader
// refuses them or reads them into something the engine can use: nothing may
// crash, hang or touch memory it does not own. Shared by the libFuzzer
// targets of this folder and the mutation test of store/.

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "engine/dice_roll_files.h"
#include "dice/skewed_draw.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/roll.h"
#include "script/text_form.h"
#include "sim/assemble_game.h"
#include "stats/games_log.h"
#include "store/bet_file.h"
#include "store/game_file.h"
#include "store/games_log_file.h"
#include "store/prob_file.h"

namespace fuzz {

// Three single rolls in Hyper-Drive: enough to settle and to run a script.
inline void RollAFewTimes(Game& g) {
  g.HyperDriveOn = true;
  for (int i = 0; i < 3; ++i) {
    g.KeepRolling = false;
    RollDice(g);
  }
}

// A game file, then a few rolls of the game it made.
inline void GameFile(const std::string& bytes) {
  Game g;
  AssembleGame(g);
  FillDefaults(g);
  if (!OpenGameBytes(g, bytes, "fuzz.crp")) return;
  if (g.DiceFile.File.IsOpen()) CloseRollFile(g);  // never write into a file a damaged link names
  RollAFewTimes(g);
}

// An Auto-Bet file, and the text of every line it holds.
inline void BetFile(const std::string& bytes) {
  const DecodedBetFile decoded = DecodeBetFile(bytes);
  if (decoded.Status != BetFileStatus::Ok) return;
  Script script;
  script.Lines = decoded.Lines;
  RebuildFlags(script);
  for (const ScriptLine& line : script.Lines) (void)LineToText(line);
}

// A probability file, and draws through the table it holds.
inline void ProbFile(const std::string& bytes) {
  const std::optional<ProbTable> table = DecodeProbFile(bytes);
  if (!table) return;
  uint32_t rnd = kRndStartState;
  for (int32_t x : {1, 2778, 50000, 100000, 100001}) (void)DrawSkewed(*table, x, rnd);
}

// The text form of a script.
inline void ScriptText(const std::string& bytes) {
  Script script;
  std::string error;
  if (ReadScriptText(bytes, script, error)) (void)ScriptToText(script);
}

// A script played for a few rolls in Hyper-Drive: the money arithmetic of
// every verb on whatever amounts a file holds, and loops cut short by the
// pass limit. Scripts that name files are left out: they would write there.
inline void PlayScript(const Script& script) {
  constexpr int kFileVerbs[] = {97, 99, 113};
  for (const ScriptLine& line : script.Lines)
    for (int code : kFileVerbs)
      if (line.Kind == line_kind::kAction && line.Code == code) return;
  Game g;
  AssembleGame(g);
  FillDefaults(g);
  NewGame(g, false);
  g.AutoBet = script;
  RebuildFlags(g.AutoBet);
  g.AutoBetActivated = true;
  RollAFewTimes(g);
}

inline void BetFileAndPlay(const std::string& bytes) {
  const DecodedBetFile decoded = DecodeBetFile(bytes);
  if (decoded.Status != BetFileStatus::Ok) return;
  Script script;
  script.Lines = decoded.Lines;
  PlayScript(script);
}

inline void ScriptTextAndPlay(const std::string& bytes) {
  Script script;
  std::string error;
  if (ReadScriptText(bytes, script, error)) PlayScript(script);
}

// A games log and the statistics of every measure over it.
inline void GamesLog(const std::string& bytes) {
  std::vector<GameLogRecord> games;
  if (!DecodeGamesFile(bytes, games)) return;
  for (int measure = 0; measure < logfield::kMeasures; ++measure) {
    GamesView view;
    view.Measure = measure;
    GamesStatistics stats;
    std::string error;
    (void)UpdateGamesPlayed(games, view, stats, error);
  }
}

// A Dice Roll File played back to its end (or its first bad byte).
inline void RollFile(const std::string& bytes) {
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() / ("dicemill_fuzz_" + std::to_string(getpid()) + ".rol");
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  {
    Game g;
    FillDefaults(g);
    NewGame(g, false);
    if (OpenRollFile(g, path.string()) && SetRecorderStatus(g, kRecorderPlayback)) {
      g.HyperDriveOn = true;
      for (size_t i = 0; i <= bytes.size() && g.DiceFileMode == kRecorderPlayback; ++i)
        if (NextRollFromFile(g) != FileRoll::Rolled) break;
    }
  }
  std::error_code ignored;
  std::filesystem::remove(path, ignored);
}

}  // namespace fuzz
