#include "store/save_prompts.h"

#include <exception>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "engine/game.h"
#include "engine/notices.h"
#include "store/bet_file.h"
#include "store/game_file.h"
#include "store/prob_file.h"
#include "store/small_files.h"

namespace {

constexpr int kInternalError = 51;

// What one prompt guards: its words, where it saves and how.
struct SavePrompt {
  const char* routine;
  const char* title;
  std::string text;
  const char* dialogTitle;
  const char* pattern;
  const char* defaultName;  // a file of this name is asked a new name for
  bool Game::*dirty;
  std::function<std::string(const Game&)> fileName;
  std::function<bool(Game&, const std::string&)> save;
};

std::string Lines(std::initializer_list<const char*> lines) {
  std::string text;
  for (const char* line : lines) text += (text.empty() ? "" : kBreak) + std::string(line);
  return text;
}

bool NeedsNewName(const std::string& path, const char* defaultName, const char* pattern) {
  const std::filesystem::path p(path);
  const std::string extension = std::string(pattern).substr(1);  // "*.bet" -> ".bet"
  return path.empty() || p.filename() == defaultName || p.extension() != extension;
}

void Ask(Game& g, const SavePrompt& prompt) {
  g.MsgReply = Answer::None;
  if (!(g.*prompt.dirty)) return;
  try {
    const Reply reply = ShowMessage(g, prompt.title, prompt.text, Buttons::YesNoCancel);
    g.MsgReply = reply == Reply::Yes ? Answer::Yes : reply == Reply::No ? Answer::No : Answer::Cancel;
    if (g.MsgReply != Answer::Yes) return;
    std::string path = prompt.fileName(g);
    if (NeedsNewName(path, prompt.defaultName, prompt.pattern)) {
      const std::optional<std::string> chosen = g.Ui->AskFileName(prompt.dialogTitle, prompt.pattern);
      if (!chosen || chosen->empty()) {
        g.MsgReply = Answer::Cancel;
        return;
      }
      path = *chosen;
    }
    // A save that fails has said why; the work stays unsaved and whatever
    // was to follow waits, as on Cancel.
    if (!prompt.save(g, path)) {
      g.MsgReply = Answer::Cancel;
      return;
    }
    g.*prompt.dirty = false;
  } catch (const std::exception& e) {
    ShowMessage(g, "Dicemill", RunTimeErrorText(e.what(), kInternalError, prompt.routine));
    g.MsgReply = Answer::Cancel;
  }
}

bool SaveGameAs(Game& g, const std::string& path) {
  if (!ShowFileStatus(g, SaveGame(g, path))) return false;
  g.GameFileName = path;
  return true;
}

void AskAboutScript(Game& g, const std::string& text) {
  Ask(g, {"QuerySaveAutoBets", "Save Auto-Bets?", text, "Save Auto-Bet File As", "*.bet", "default.bet",
          &Game::ScriptDirty, [](const Game& game) { return game.AutoBet.FileName; },
          [](Game& game, const std::string& path) { return ShowFileStatus(game, SaveAutoBetFile(game, path)); }});
}

// The questions in order; a Cancel ends them when it may.
bool AskEach(Game& g, bool mayCancel) {
  bool cancelled = false;
  for (void (*query)(Game&) : {QuerySaveGame, QuerySaveAutoBets, QuerySaveProbability}) {
    query(g);
    cancelled = cancelled || g.MsgReply == Answer::Cancel;
    if (cancelled && mayCancel) return false;
  }
  return !cancelled;
}

// A stop in the middle of a run asks first whether to end it.
bool EndRunForStop(Game& g) {
  if (g.AutoBetRunning &&
      ShowMessage(g, "Auto-Bet Active", "Do you want to interrupt Auto-Betting? ", Buttons::YesNo) != Reply::Yes)
    return false;
  if (g.HyperDriveOn &&
      ShowMessage(g, "Hyper-Drive Active", "Do you want to stop Hyper-Drive?", Buttons::YesNo) != Reply::Yes)
    return false;
  if (g.AutoBetRunning || g.HyperDriveOn) g.KeepRolling = false;
  return true;
}

}  // namespace

void QuerySaveGame(Game& g) {
  Ask(g, {"QuerySaveGame", "Save Game?",
          std::string("Your current game has not been saved.") + kTwoBreaks + "Do you want to save it now?",
          "Save Game File As", "*.crp", "default.crp", &Game::GameChanged,
          [](const Game& game) { return game.GameFileName; }, SaveGameAs});
}

void QuerySaveAutoBets(Game& g) {
  AskAboutScript(g, Lines({"Your current logged Auto-Bets", "have not been saved.", "Do you want to save them now?"}));
}

void QuerySaveAutoBetsInEditor(Game& g) {
  AskAboutScript(g, Lines({"Your current logged bets have not been saved.", "Do you want to save them now?"}));
}

void QuerySaveProbability(Game& g) {
  Ask(g, {"QuerySaveProbability", "Save Probabilities?",
          Lines({"Your current probabilities (listed on the", "configuration screen) have not been saved.",
                 "Do you want to save them now?"}),
          "Save Probability File As", "*.prb", "default.prb", &Game::ProbModified,
          [](const Game& game) { return game.ProbFileName; },
          [](Game& game, const std::string& path) { return ShowFileStatus(game, SaveProbabilityFile(game, path)); }});
}

bool QuerySaveAll(Game& g) { return AskEach(g, true); }

void CloseDown(Game& g) {
  if (!g.DataFolder.empty() && !g.DataFolderInUse) (void)ShowFileStatus(g, SaveGame(g, DataFile(g, "default.crp").string()));
  RemoveWorkFiles(g);
}

bool StopProgram(Game& g, bool mayCancel) {
  if (mayCancel && !EndRunForStop(g)) return false;
  if (!AskEach(g, mayCancel) && mayCancel) return false;
  CloseDown(g);
  return true;
}
