#include "cli/settings_registry.h"

#include <charconv>
#include <functional>
#include <limits>
#include <optional>
#include <tuple>

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "autoplay/adjust_bet.h"
#include "autoplay/auto_odds.h"
#include "config/rules.h"
#include "engine/bet_status.h"
#include "engine/game.h"

namespace {

constexpr int64_t kInt32Min = std::numeric_limits<int32_t>::min();
constexpr int64_t kInt32Max = std::numeric_limits<int32_t>::max();
constexpr int kNotArray = -1;

struct Setting {
  std::string name;
  int firstIndex = kNotArray, lastIndex = kNotArray;
  // Reads the text and stores it; throws CommandError before storing anything.
  std::function<void(Game&, int index, const std::string& text)> write;
  std::function<Json(const Game&, int index)> read;
};

Setting Money(const std::string& name, Currency Game::*field, std::optional<Currency> lo = Currency(0),
              std::optional<Currency> hi = std::nullopt) {
  return {name, kNotArray, kNotArray,
          [=](Game& g, int, const std::string& text) {
            const Currency v = ReadAmount(text, name);
            if (lo && v < *lo) throw CommandError(name + " " + text + " is below the least allowed, " + FormatNumberWithCommas(*lo));
            if (hi && v > *hi) throw CommandError(name + " " + text + " is above the most allowed, " + FormatNumberWithCommas(*hi));
            g.*field = v;
          },
          [=](const Game& g, int) { return MoneyJson(g.*field); }};
}

Setting Integer(const std::string& name, int32_t Game::*field, int64_t lo, int64_t hi) {
  return {name, kNotArray, kNotArray,
          [=](Game& g, int, const std::string& text) { g.*field = static_cast<int32_t>(ReadInteger(text, lo, hi, name)); },
          [=](const Game& g, int) { return Json(g.*field); }};
}

Setting Flag(const std::string& name, bool Game::*field) {
  return {name, kNotArray, kNotArray, [=](Game& g, int, const std::string& text) { g.*field = ReadBool(text, name); },
          [=](const Game& g, int) { return Json(g.*field); }};
}

// The vig rules change through ChangeVigRule, which refigures the vig and may
// refuse when up-front vig would overdraw a bankroll that may not go negative.
Setting VigRounding(const std::string& name, VigRule rule, int32_t Game::*field) {
  Setting s = Integer(name, field, 0, 2);
  s.write = [=](Game& g, int, const std::string& text) {
    ChangeVigRule(g, rule, static_cast<int32_t>(ReadInteger(text, 0, 2, name)));
  };
  return s;
}

Setting VigCharge(const std::string& name, VigRule rule, bool Game::*field) {
  Setting s = Flag(name, field);
  s.write = [=](Game& g, int, const std::string& text) { ChangeVigRule(g, rule, ReadBool(text, name) ? kTrue : 0); };
  return s;
}

std::vector<Setting> BuildRegistry() {
  const Currency bankLimit(BankLimit);
  std::vector<Setting> all = {
      // Rules and limits
      // Limits past the bank limit mean nothing, and bounded they keep every
      // payoff of a long game inside the money's range.
      Money("TableMinimum", &Game::TableMinimum, Currency(0), Currency(BankLimit)),
      Money("TableMaximum", &Game::TableMaximum, Currency(0), Currency(BankLimit)),
      Money("MaxOddsBet", &Game::MaxOddsBet, Currency(0), Currency(BankLimit)),
      Money("MaxPropBetPayoff", &Game::MaxPropBetPayoff, Currency(0), Currency(BankLimit)),
      Money("OddsAllowed410", &Game::OddsAllowed410),
      Money("OddsAllowed59", &Game::OddsAllowed59),
      Money("OddsAllowed68", &Game::OddsAllowed68),
      Integer("OddsCalcMethod", &Game::OddsCalcMethod, 0, 5),
      Flag("AllowPutBets", &Game::AllowPutBets),
      Money("LayVigRate", &Game::LayVigRate),
      VigCharge("ChargeAllLay", VigRule::ChargeAllLay, &Game::ChargeAllLay),
      VigRounding("RoundLayVig", VigRule::RoundLayVig, &Game::RoundLayVig),
      Money("BuyVigRate", &Game::BuyVigRate),
      VigCharge("ChargeAllBuy", VigRule::ChargeAllBuy, &Game::ChargeAllBuy),
      VigRounding("RoundBuyVig", VigRule::RoundBuyVig, &Game::RoundBuyVig),
      Integer("BankrollInitType", &Game::BankrollInitType, 0, 3),
      Money("BankrollInitAmount", &Game::BankrollInitAmount, -bankLimit, bankLimit),
      Money("AtmAmount", &Game::AtmAmount, Currency(0), bankLimit),
      Money("AmountInvested", &Game::AmountInvested, std::nullopt),
      Integer("NoticeMask", &Game::NoticeMask, 0, 31),
      // Auto-Play
      Flag("AutoRemovePlaceBets", &Game::AutoRemovePlaceBets),
      Flag("AutoArrangeChips", &Game::AutoArrangeChips),
      Flag("AutoRollOn", &Game::AutoRollOn),
      Integer("RollCountStop", &Game::RollCountStop, 0, MaxRolls),
      Integer("RollCountLeft", &Game::RollCountLeft, 0, MaxRolls),
      Integer("AutoRollDelay", &Game::AutoRollDelay, 0, kInt32Max),
      Integer("WonBetAction", &Game::WonBetAction, 0, 7),
      Integer("HandleLosingBets", &Game::HandleLosingBets, 0, 7),
      Integer("LayBias", &Game::LayBias, 0, 2),
      Integer("PlaceBias", &Game::PlaceBias, 0, 2),
      Integer("DoBias", &Game::DoBias, 0, 2),
      Integer("DontBias", &Game::DontBias, 0, 2),
      // Dice
      Integer("RngChoice", &Game::RngChoice, 0, 7),
      Flag("UserSeedMode", &Game::UserSeedMode),
      Flag("ReSeedNewGames", &Game::ReSeedNewGames),
      Integer("ModSeed", &Game::ModSeed, kInt32Min, kInt32Max),
      Integer("LastSeed", &Game::LastSeed, kInt32Min, kInt32Max),
      Money("SeedRequest", &Game::SeedRequest, std::nullopt),
      Flag("UseSkewedProbability", &Game::UseSkewedProbability),
      Integer("ProbDisplayMode", &Game::ProbDisplayMode, 0, 3),
      Integer("ProbRollsOutOf", &Game::ProbRollsOutOf, 1, kInt32Max),
      Flag("IncludeZeroOutcomes", &Game::IncludeZeroOutcomes),
      // Simulation and sound
      Flag("DisableAllSound", &Game::DisableAllSound),
      Integer("ThrottleValue", &Game::ThrottleValue, 0, 100),
      Money("SimRollRate", &Game::SimRollRate, Currency::FromRaw(1)),
      Integer("SpeedUnit", &Game::SpeedUnit, 0, kInt32Max),
      // The table's click tool: 1..5 checks, 7..10 tray Chip-Stacks, 89 buy, 90/91 call
      Integer("ClickTool", &Game::ClickTool, 1, 91),
      // Auto-Bet
      Flag("AutoBetActivated", &Game::AutoBetActivated),
      Flag("ShowingSteps", &Game::ShowingSteps),
  };

  // Turning auto-odds on offers to fill the table, and a mode above 0 adjusts it.
  Setting takeOdds = Flag("AutoTakeFullOdds", &Game::AutoTakeFullOdds);
  takeOdds.write = [](Game& g, int, const std::string& text) {
    SetAutoTakeFullOdds(g, ReadBool(text, "AutoTakeFullOdds"));
  };
  all.push_back(takeOdds);
  Setting layOdds = Flag("AutoLayFullOdds", &Game::AutoLayFullOdds);
  layOdds.write = [](Game& g, int, const std::string& text) {
    SetAutoLayFullOdds(g, ReadBool(text, "AutoLayFullOdds"));
  };
  all.push_back(layOdds);
  Setting adjust = Integer("AutoAdjustMode", &Game::AutoAdjustMode, 0, 2);
  adjust.write = [](Game& g, int, const std::string& text) {
    SetAutoAdjustMode(g, static_cast<int>(ReadInteger(text, 0, 2, "AutoAdjustMode")));
  };
  all.push_back(adjust);

  Setting bar = Integer("BarNumber", &Game::BarNumber, 2, 12);
  bar.write = [](Game& g, int, const std::string& text) {
    const auto n = static_cast<int32_t>(ReadInteger(text, 2, 12, "BarNumber"));
    if (n != 2 && n != 12) throw CommandError("BarNumber " + text + " is neither 2 nor 12");
    g.BarNumber = n;
  };
  all.push_back(bar);

  all.push_back({"AllowNegativeBankroll", kNotArray, kNotArray,
                 [](Game& g, int, const std::string& text) {
                   SetAllowNegativeBankroll(g, ReadBool(text, "AllowNegativeBankroll"));
                 },
                 [](const Game& g, int) { return Json(g.AllowNegativeBankroll); }});

  all.push_back({"StopOnRoll", 0, static_cast<int>(std::tuple_size_v<decltype(Game::StopOnRoll)>) - 1,
                 [](Game& g, int i, const std::string& text) { g.StopOnRoll[i] = ReadBool(text, "StopOnRoll"); },
                 [](const Game& g, int i) { return Json(g.StopOnRoll[i]); }});

  // The "Same Bet:" and "Bet:" forms: won option, lost option, dialog, each a
  // "Same Bet:" and a "Bet:" entry (0..5).
  const int lastForm = static_cast<int>(std::tuple_size_v<decltype(Game::ModifyOperator)>) - 1;
  all.push_back({"ModifyOperator", 0, lastForm,
                 [](Game& g, int i, const std::string& text) {
                   g.ModifyOperator[i] = static_cast<int32_t>(ReadInteger(text, 0, 3, "ModifyOperator"));
                 },
                 [](const Game& g, int i) { return Json(g.ModifyOperator[i]); }});
  all.push_back({"ModifyAmount", 0, lastForm,
                 [](Game& g, int i, const std::string& text) {
                   const Currency amount = ReadAmount(text, "ModifyAmount");
                   if (amount < 0) throw CommandError("ModifyAmount " + text + " must not be negative");
                   g.ModifyAmount[i] = amount;
                 },
                 [](const Game& g, int i) { return MoneyJson(g.ModifyAmount[i]); }});
  all.push_back({"ModifyUnits", 0, lastForm,
                 [](Game& g, int i, const std::string& text) {
                   const auto units = static_cast<int32_t>(ReadInteger(text, -1, 6, "ModifyUnits"));
                   if (units == 1) throw CommandError("ModifyUnits 1 is no unit: -1 $, 0 %, 2..6 a check");
                   g.ModifyUnits[i] = units;
                 },
                 [](const Game& g, int i) { return Json(g.ModifyUnits[i]); }});

  // A change of come-out working status shows at once on a bet that is not called.
  all.push_back({"WorkOnComeOut", bet::kFirstTableBet, bet::kLastTableBet,
                 [](Game& g, int id, const std::string& text) {
                   g.WorkOnComeOut[id] = ReadBool(text, "WorkOnComeOut") ? 1 : 0;
                   if (g.BetStatus[id] != 2 && g.BetStatus[id] != -1) SetBetStatusDefault(g, id);
                 },
                 [](const Game& g, int id) { return Json(g.WorkOnComeOut[id] != 0); }});
  return all;
}

const std::vector<Setting>& Registry() {
  static const std::vector<Setting> registry = BuildRegistry();
  return registry;
}

struct Found {
  const Setting* setting;
  int index;
};

// Names match without regard to case; arrays need ".INDEX", scalars refuse it.
Found Find(const std::string& fullName) {
  const size_t dot = fullName.find('.');
  const std::string base = ToLower(fullName.substr(0, dot));
  for (const Setting& s : Registry()) {
    if (ToLower(s.name) != base) continue;
    const bool isArray = s.firstIndex != kNotArray;
    if (!isArray && dot != std::string::npos) throw CommandError(s.name + " takes no index");
    if (!isArray) return {&s, 0};
    if (dot == std::string::npos)
      throw CommandError(s.name + " needs an index: " + s.name + "." + std::to_string(s.firstIndex) + " .. " + s.name +
                         "." + std::to_string(s.lastIndex));
    const int index = static_cast<int>(ReadInteger(fullName.substr(dot + 1), s.firstIndex, s.lastIndex, s.name + " index"));
    return {&s, index};
  }
  throw CommandError("unknown setting '" + fullName + "'");
}

}  // namespace

void ApplySetting(Game& g, const std::string& name, const std::string& value) {
  const Found f = Find(name);
  f.setting->write(g, f.index, value);
}

Json ReadSetting(const Game& g, const std::string& name) {
  const Found f = Find(name);
  return f.setting->read(g, f.index);
}

std::vector<std::string> SettingNames() {
  std::vector<std::string> names;
  for (const Setting& s : Registry())
    names.push_back(s.firstIndex == kNotArray
                        ? s.name
                        : s.name + "." + std::to_string(s.firstIndex) + ".." + std::to_string(s.lastIndex));
  return names;
}
