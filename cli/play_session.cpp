#include "cli/play_session.h"

#include <cstdlib>
#include <exception>
#include <iostream>

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/interrupt.h"
#include "cli/json_lines.h"
#include "cli/settings_registry.h"
#include "cli/table_answer.h"
#include "sim/table_state_json.h"
#include "engine/game.h"
#include "sim/table.h"
#include "sim/table_limits.h"
#include "store/data_folder.h"

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

using table_limits::kLeastUnit;
using table_limits::kMostChip;
using table_limits::kMostPer;
using table_limits::kMostRatio;

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
    : out_(out), ui_(out), table_(std::make_unique<Table>(ui_)), strict_(options.strict) {
  ui_.StopWhen(table_.get(), Interrupted);
  Start(options);
  out_.flush();
}

PlaySession::~PlaySession() = default;

const Game& PlaySession::game() const { return table_->State(); }

void PlaySession::Start(const PlayOptions& options) {
  const auto folder = ChooseDataFolder(options.folder, [](const char* name) { return std::getenv(name); });
  std::string error;
  const bool made = EnsureFolder(folder, error);
  if (!made) Error(error + "; the built-in defaults stand");
  table_->StartUp(folder.string(), made);
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
  NotBusy(table_->Bet(id, ReadAmount(a[1], "AMOUNT")));
}

void PlaySession::Remove(const Args& a) {
  if (ToLower(a[0]) == "all") return NotBusy(table_->RemoveAll());
  NotBusy(table_->Remove(ReadBetId(a[0])));
}

void PlaySession::Call(const Args& a) {
  const std::string way = ToLower(a[0]);
  if (way != "on" && way != "off") throw CommandError("'" + a[0] + "' is neither on nor off");
  const bool on = way == "on";
  if (ToLower(a[1]) == "all") return NotBusy(table_->CallAll(on));
  NotBusy(table_->Call(ReadBetId(a[1]), on));
}

void PlaySession::Buy(const Args& a) { NotBusy(table_->Buy(ReadBetId(a[0]))); }

// --- Rolling -----------------------------------------------------------------

void PlaySession::Roll(const Args& a) {
  if (a.size() == 1) throw CommandError("expected: roll [D1 D2]");
  if (a.size() == 2) {
    const int d1 = static_cast<int>(ReadInteger(a[0], 1, 6, "D1"));
    const int d2 = static_cast<int>(ReadInteger(a[1], 1, 6, "D2"));
    return NotBusy(table_->Roll(d1, d2));
  }
  NotBusy(table_->Roll());
}

void PlaySession::Hyper(const Args& a) {
  std::optional<int32_t> rolls;
  if (!a.empty()) rolls = static_cast<int32_t>(ReadInteger(a[0], 1, MaxRolls, "N"));
  ReportRun(table_->HyperDrive(rolls));
}

void PlaySession::AutoRoll(const Args& a) {
  ReportRun(table_->AutoRoll(static_cast<int32_t>(ReadInteger(a[0], 1, MaxRolls, "N"))));
}

void PlaySession::ReportRun(const RunResult& run) {
  Require(run);
  WriteJsonLine(out_, {{"stopped", {{"reason", StopReasonText(run.reason)}, {"rolls", run.rolls}}}});
}

// --- Settings ----------------------------------------------------------------

void PlaySession::Set(const Args& a) { ApplySetting(*table_, a[0], a[1]); }

void PlaySession::Get(const Args& a) {
  WriteJsonLine(out_, {{"setting", {{"name", a[0]}, {"value", ReadSetting(table_->State(), a[0])}}}});
}

void PlaySession::Chip(const Args& a) {
  const int n = static_cast<int>(ReadInteger(a[0], 1, bet::kChipColours, "N"));
  const Currency value = ReadAmount(a[1], "VALUE");
  if (value < kLeastUnit || value > kMostChip) throw CommandError("VALUE " + a[1] + " must be from .01 to 100,000");
  Require(table_->SetChip(n, value));
}

void PlaySession::PayoffRow(const Args& a) {
  const int id = static_cast<int>(ReadInteger(a[0], bet::kFirstTableBet, bet::kLastTableBet, "ID"));
  Require(table_->SetPayoff(id, ReadPayoff(a)));
}

void PlaySession::FieldRow(const Args& a) {
  const int row = static_cast<int>(ReadInteger(a[0], 1, table_limits::kFieldRows, "ROW"));
  Require(table_->SetFieldPayoff(row, ReadPayoff(a)));
}

void PlaySession::Seed(const Args& a) { Require(table_->Seed(ReadAmount(a[0], "N"))); }

// --- Game --------------------------------------------------------------------

void PlaySession::Atm(const Args& a) {
  const std::string word = ToLower(a[0]);
  if (word != "withdraw" && word != "deposit") throw CommandError("expected: atm withdraw|deposit AMOUNT");
  const Currency requested = ReadAmount(a[1], "AMOUNT");
  if (requested < 0) throw CommandError("AMOUNT " + a[1] + " must not be negative");
  const AtmResult r = table_->Atm(word == "withdraw" ? kAtmWithdraw : kAtmDeposit, requested);
  NotBusy(r);
  const Game& g = table_->State();
  WriteJsonLine(out_, {{"atm", {{"action", word},
                                {"requested", MoneyJson(requested)},
                                {"allowed", MoneyJson(r.allowed)},
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
  NotBusy(table_->New(keep));  // a Cancel keeps the game as it is
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

void PlaySession::State(const Args&) { WriteJsonLine(out_, {{"state", TableStateJson(table_->State())}}); }

void PlaySession::Quit(const Args&) {
  const TableResult r = table_->Quit();
  NotBusy(r);
  if (r.code == TableCode::Cancelled) return;  // a Cancel keeps the session going
  stopped_ = quit_ = true;
}

void PlaySession::EndOfInput() {
  if (stopped_) return;
  stopped_ = true;
  // After a --strict failure nothing more is printed.
  if (ExitStatus() != 0)
    table_->CloseDown();
  else
    table_->Quit(false);
  out_.flush();
}

int RunPlay(std::istream& in, std::ostream& out, const PlayOptions& options) {
  PlaySession session(out, options);
  std::string line;
  while (!session.Over() && std::getline(in, line)) session.RunLine(line);
  session.EndOfInput();
  return session.ExitStatus();
}
