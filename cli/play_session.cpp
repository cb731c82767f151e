#include "cli/play_session.h"

#include <cstdlib>
#include <exception>
#include <iostream>

#include "autoplay/atm.h"
#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/data_folder.h"
#include "cli/interrupt.h"
#include "cli/json_lines.h"
#include "cli/settings_registry.h"
#include "cli/table_state_json.h"
#include "config/payoffs.h"
#include "dice/rng.h"
#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/place_bet.h"
#include "engine/roll.h"
#include "engine/table_commands.h"
#include "store/folder_lock.h"
#include "store/save_prompts.h"

struct PlaySession::Command {
  const char* word;
  size_t minArgs, maxArgs;
  const char* usage;
  void (PlaySession::*run)(const Args&);
};

namespace {

// A Form word: "to" (-1) or "for" (0).
Currency ReadForm(const std::string& word) {
  const std::string w = ToLower(word);
  if (w == "to") return -1;
  if (w == "for") return 0;
  throw CommandError("'" + word + "' is neither to nor for");
}

// Payoffs and checks within these bounds keep every figure of a game of
// 100,000,000 rolls inside the money's 64 bits; a game file is held to them too.
constexpr Currency kLeastUnit = Currency::FromRaw(100);  // a cent
constexpr Currency kMostPer = 1'000;
constexpr int64_t kMostRatio = 1'000;
constexpr Currency kMostChip = 100'000;

PayoffRecord ReadPayoff(const std::vector<std::string>& a) {
  PayoffRecord p;
  p.Win = ReadAmount(a[1], "WIN");
  p.Per = ReadAmount(a[2], "PER");
  if (p.Per < kLeastUnit || p.Per > kMostPer) throw CommandError("PER " + a[2] + " must be from .01 to 1,000");
  if (Abs(p.Win) > p.Per * kMostRatio) throw CommandError("WIN " + a[1] + " is more than 1,000 times PER");
  p.Form = a.size() > 3 ? ReadForm(a[3]) : Currency(-1);
  return p;
}

}  // namespace

const std::vector<PlaySession::Command>& PlaySession::Commands() {
  static const std::vector<Command> commands = {
      {"bet", 2, 2, "bet ID AMOUNT", &PlaySession::Bet},
      {"remove", 1, 1, "remove ID|all", &PlaySession::Remove},
      {"call", 2, 2, "call on|off ID|all", &PlaySession::Call},
      {"buy", 1, 1, "buy ID", &PlaySession::Buy},
      {"click", 1, 2, "click ID [shift]", &PlaySession::Click},
      {"enter", 2, 2, "enter ID AMOUNT", &PlaySession::Enter},
      {"rate", 2, 2, "rate VALUE UNIT", &PlaySession::Rate},
      {"roll", 0, 2, "roll [D1 D2]", &PlaySession::Roll},
      {"hyper", 0, 1, "hyper [N]", &PlaySession::Hyper},
      {"autoroll", 1, 1, "autoroll N", &PlaySession::AutoRoll},
      {"set", 2, 2, "set NAME VALUE", &PlaySession::Set},
      {"get", 1, 1, "get NAME", &PlaySession::Get},
      {"chip", 2, 2, "chip N VALUE", &PlaySession::Chip},
      {"payoff", 3, 4, "payoff ID WIN PER [to|for]", &PlaySession::PayoffRow},
      {"field", 3, 4, "field ROW WIN PER [to|for]", &PlaySession::FieldRow},
      {"seed", 1, 1, "seed N", &PlaySession::Seed},
      {"atm", 2, 2, "atm withdraw|deposit AMOUNT", &PlaySession::Atm},
      {"new", 0, 1, "new [keep]", &PlaySession::New},
      {"answer", 1, 99, "answer yes|no|cancel|WORD|VALUE ...", &PlaySession::Answer},
      {"state", 0, 0, "state", &PlaySession::State},
      {"quit", 0, 0, "quit", &PlaySession::Quit},
      {"prob", 1, 6, "prob show|reset|open|save|set|lock|unlock|axis ...", &PlaySession::Prob},
      {"dicefile", 1, 99, "dicefile SUBCOMMAND ...", &PlaySession::DiceFile},
      {"pad", 1, 2, "pad D1 D2|TOTAL", &PlaySession::Pad},
      {"script", 1, 1, "script FILE", &PlaySession::ScriptFile},
      {"autobet", 1, 2, "autobet on|off|steps on|off|run", &PlaySession::AutoBet},
      {"flags", 0, 0, "flags", &PlaySession::Flags},
      {"advantage", 0, 1, "advantage [ID]", &PlaySession::Advantage},
      {"hotkey", 1, 4, "hotkey K|list|set K FILE [LABEL]|clear K", &PlaySession::HotKey},
      {"results", 1, 2, "results IDS|all [actual|phantom]", &PlaySession::Results},
      {"summary", 0, 0, "summary", &PlaySession::Summary},
      {"trends", 0, 0, "trends", &PlaySession::Trends},
      {"open", 1, 1, "open FILE", &PlaySession::OpenGameFile},
      {"save", 1, 1, "save FILE", &PlaySession::SaveGameFile},
      {"stats", 0, 3, "stats [VIEW] [true|skewed] | stats freq N [true|skewed] | stats selections", &PlaySession::Stats},
      {"graph", 0, 3, "graph [average N|scale larger|smaller|move up|down|adjust 0|1|2|reflines P1 P2|off]", &PlaySession::Graph},
      {"gameslog", 1, 1, "gameslog FILE|off", &PlaySession::GamesLog},
  };
  return commands;
}

PlaySession::PlaySession(std::ostream& out, const PlayOptions& options)
    : out_(out),
      ui_(out),
      game_(std::make_unique<Game>()),
      folderLock_(std::make_unique<DataFolderLock>()),
      strict_(options.strict) {
  game_->Ui = &ui_;
  ui_.StopWhen(game_.get(), Interrupted);
  Start(options);
  out_.flush();
}

PlaySession::~PlaySession() = default;

void PlaySession::Start(const PlayOptions& options) {
  const auto folder = ChooseDataFolder(options.folder, [](const char* name) { return std::getenv(name); });
  std::string error;
  if (!EnsureFolder(folder, error))
    Error(error + "; the built-in defaults stand");
  else
    ClaimDataFolder(*game_, *folderLock_, folder);
  StartUp(*game_, folder.string());
  if (!options.gameFile.empty()) RunLine("open \"" + options.gameFile + "\"");
}

void PlaySession::Error(const std::string& text) {
  failed_ = true;
  WriteJsonLine(out_, {{"error", text}});
}

bool PlaySession::RunLine(const std::string& line) {
  if (Over()) return false;
  if (IsBlankOrComment(line)) return true;
  try {
    const Args words = SplitCommandLine(line);
    if (words.empty()) return true;
    const std::string verb = ToLower(words[0]);
    const Command* command = nullptr;
    for (const Command& c : Commands())
      if (verb == c.word) command = &c;
    if (!command) throw CommandError("unknown command '" + words[0] + "'");
    const Args args(words.begin() + 1, words.end());
    const InterruptWhileRunning interrupt;
    try {
      if (args.size() < command->minArgs || args.size() > command->maxArgs)
        throw CommandError(std::string("expected: ") + command->usage);
      (this->*command->run)(args);
    } catch (const CommandError& e) {
      throw CommandError(std::string(command->word) + ": " + e.what());
    }
  } catch (const CommandError& e) {
    Error(e.what());
  } catch (const std::exception& e) {
    Error(std::string("internal error: ") + e.what());
  }
  out_.flush();
  return !Over();
}

// --- Bets --------------------------------------------------------------------

void PlaySession::Bet(const Args& a) {
  const int id = ReadBetId(a[0]);
  const Currency amount = ReadAmount(a[1], "AMOUNT");
  game_->BetChange = amount;
  PlaceBetOnTable(*game_, id);
}

void PlaySession::Remove(const Args& a) {
  if (ToLower(a[0]) == "all") return RemoveAllBets(*game_);
  RemoveBet(*game_, ReadBetId(a[0]));
}

void PlaySession::Call(const Args& a) {
  const std::string way = ToLower(a[0]);
  if (way != "on" && way != "off") throw CommandError("'" + a[0] + "' is neither on nor off");
  const bool on = way == "on";
  if (ToLower(a[1]) == "all") return CallAllBets(*game_, on);
  CallBet(*game_, ReadBetId(a[1]), on ? kToolCallOn : kToolCallOff);
}

void PlaySession::Buy(const Args& a) {
  int id = ReadBetId(a[0]);
  BuyPlaceBet(*game_, id);
}

// --- Rolling -----------------------------------------------------------------

void PlaySession::Roll(const Args& a) {
  if (a.size() == 1) throw CommandError("expected: roll [D1 D2]");
  Game& g = *game_;
  if (a.size() == 2) {
    const int d1 = static_cast<int>(ReadInteger(a[0], 1, 6, "D1"));
    const int d2 = static_cast<int>(ReadInteger(a[1], 1, 6, "D2"));
    g.Die1 = d1;
    g.Die2 = d2;
    g.DiceAlreadySet = true;
  }
  GoToTable();
  g.KeepRolling = false;
  RollDice(g);
}

void PlaySession::Hyper(const Args& a) {
  Game& g = *game_;
  if (!a.empty()) {
    const auto n = static_cast<int32_t>(ReadInteger(a[0], 1, MaxRolls, "N"));
    g.RollCountStop = g.RollCountLeft = n;
  } else if (g.RollCountLeft <= 0) {
    throw CommandError("no roll count is set (RollCountLeft is 0), so the run would not end: give N");
  }
  g.HyperDriveOn = true;
  RunAndReport();
}

void PlaySession::AutoRoll(const Args& a) {
  Game& g = *game_;
  const auto n = static_cast<int32_t>(ReadInteger(a[0], 1, MaxRolls, "N"));
  const bool savedOn = g.AutoRollOn;
  const int32_t savedDelay = g.AutoRollDelay;
  const int32_t savedLeft = g.RollCountLeft;
  g.AutoRollOn = true;
  g.AutoRollDelay = 0;
  g.RollCountLeft = n;
  RunAndReport();
  g.AutoRollOn = savedOn;
  g.AutoRollDelay = savedDelay;
  g.RollCountLeft = savedLeft;
}

void PlaySession::RunAndReport() {
  Game& g = *game_;
  GoToTable();
  const int32_t rollsBefore = g.RollCounts[0];
  ui_.ClearStopReason();
  g.KeepRolling = true;
  RollDice(g);
  // The run is over once RollDice returns, whatever it left behind.
  g.KeepRolling = false;
  g.HyperDriveOn = false;
  const StopReason reason = ui_.LastStop() == StopReason::None ? g.StopReason : ui_.LastStop();
  WriteJsonLine(out_, {{"stopped", {{"reason", StopReasonText(reason)}, {"rolls", g.RollCounts[0] - rollsBefore}}}});
}

// --- Settings ----------------------------------------------------------------

void PlaySession::Set(const Args& a) {
  const Json before = ReadSetting(*game_, a[0]);
  ApplySetting(*game_, a[0], a[1]);
  if (ReadSetting(*game_, a[0]) != before) game_->GameChanged = true;
}

void PlaySession::Get(const Args& a) {
  WriteJsonLine(out_, {{"setting", {{"name", a[0]}, {"value", ReadSetting(*game_, a[0])}}}});
}

void PlaySession::Chip(const Args& a) {
  const int n = static_cast<int>(ReadInteger(a[0], 1, bet::kChipColours, "N"));
  const Currency value = ReadAmount(a[1], "VALUE");
  if (value < kLeastUnit || value > kMostChip) throw CommandError("VALUE " + a[1] + " must be from .01 to 100,000");
  game_->BetAmount[bet::ChipSlot(n)] = value;
  game_->GameChanged = true;
}

void PlaySession::PayoffRow(const Args& a) {
  const int id = static_cast<int>(ReadInteger(a[0], bet::kFirstTableBet, bet::kLastTableBet, "ID"));
  const PayoffRecord p = ReadPayoff(a);
  Game& g = *game_;
  g.Payoff[id] = p;
  g.GameChanged = true;
  // The line odds records follow the odds rows of the point.
  if ((bet::IsComeOdds(id) || bet::IsDontComeOdds(id)) && g.Point != 0) SyncOddsPayoffs(g);
}

void PlaySession::FieldRow(const Args& a) {
  const int row = static_cast<int>(ReadInteger(a[0], 1, 21, "ROW"));
  game_->FieldPayoff[row] = ReadPayoff(a);
  game_->GameChanged = true;
}

void PlaySession::Seed(const Args& a) {
  game_->SeedRequest = ReadAmount(a[0], "N");
  SeedRNG(*game_, true);
  game_->GameChanged = true;
}

// --- Game --------------------------------------------------------------------

void PlaySession::Atm(const Args& a) {
  const std::string word = ToLower(a[0]);
  if (word != "withdraw" && word != "deposit") throw CommandError("expected: atm withdraw|deposit AMOUNT");
  const Currency requested = ReadAmount(a[1], "AMOUNT");
  if (requested < 0) throw CommandError("AMOUNT " + a[1] + " must not be negative");
  Game& g = *game_;
  const Currency allowed = ::Atm(g, word == "withdraw" ? kAtmWithdraw : kAtmDeposit, requested);
  WriteJsonLine(out_, {{"atm", {{"action", word},
                                {"requested", MoneyJson(requested)},
                                {"allowed", MoneyJson(allowed)},
                                {"bankroll", MoneyJson(g.Bankroll())},
                                {"amountInvested", MoneyJson(g.AmountInvested)},
                                {"net", MoneyJson(NetResult(g))}}}});
}

void PlaySession::New(const Args& a) {
  bool keep = false;
  if (!a.empty()) {
    if (ToLower(a[0]) != "keep") throw CommandError("expected: new [keep]");
    keep = true;
  }
  // As the New menu: unsaved work is offered for saving first; Cancel keeps
  // the game as it is.
  QuerySaveGame(*game_);
  if (game_->MsgReply == ::Answer::Cancel) return;
  NewGame(*game_, keep);
}

void PlaySession::Answer(const Args& a) {
  Args words;
  for (const std::string& w : a) {
    // A file dialog's reply keeps its path as typed.
    words.push_back(HeadlessFrontEnd::IsFileAnswer(ToLower(w)) ? "file:" + w.substr(5) : ToLower(w));
    if (!HeadlessFrontEnd::IsAnswerWord(words.back()))
      throw CommandError("'" + w +
                         "' is not a reply: yes, no, cancel, an amount, take, same, press, double, parlay, samebet, "
                         "bet, none, remainder or file:PATH");
  }
  for (const std::string& w : words) ui_.QueueAnswer(w);
}

void PlaySession::State(const Args&) { WriteJsonLine(out_, {{"state", TableStateJson(*game_)}}); }

void PlaySession::Quit(const Args&) {
  if (!StopProgram(*game_)) return;  // a Cancel keeps the session going
  stopped_ = quit_ = true;
}

void PlaySession::EndOfInput() {
  if (stopped_) return;
  stopped_ = true;
  // After a --strict failure nothing more is printed.
  if (ExitStatus() != 0)
    CloseDown(*game_);
  else
    StopProgram(*game_, false);
  out_.flush();
}

int RunPlay(std::istream& in, std::ostream& out, const PlayOptions& options) {
  PlaySession session(out, options);
  std::string line;
  while (!session.Over() && std::getline(in, line)) session.RunLine(line);
  session.EndOfInput();
  return session.ExitStatus();
}
