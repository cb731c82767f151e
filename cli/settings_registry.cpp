#include "cli/settings_registry.h"

#include <map>

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "engine/adjust_bet.h"
#include "autoplay/auto_odds.h"
#include "engine/rules.h"
#include "config/settings_table.h"
#include "engine/bet_status.h"
#include "engine/game.h"

namespace {

// Reads the text as the row's type within its range; throws CommandError.
Currency ReadValue(const SettingRow& row, const std::string& text) {
  const std::string name = row.name;
  switch (row.type) {
    case SettingType::Flag: return ReadBool(text, name) ? 1 : 0;
    case SettingType::Integer:
      return Currency::FromRaw(ReadInteger(text, row.least.raw / Currency::kScale, row.most.raw / Currency::kScale, name) *
                               Currency::kScale);
    case SettingType::Money: break;
  }
  const Currency v = ReadAmount(text, name);
  if (v < row.least)
    throw CommandError(name + " " + text + " is below the least allowed, " + FormatNumberWithCommas(row.least));
  if (v > row.most)
    throw CommandError(name + " " + text + " is above the most allowed, " + FormatNumberWithCommas(row.most));
  return v;
}

Json ValueJson(const SettingRow& row, Currency v) {
  switch (row.type) {
    case SettingType::Flag: return Json(v != 0);
    case SettingType::Integer: return Json(v.raw / Currency::kScale);
    case SettingType::Money: break;
  }
  return MoneyJson(v);
}

int32_t Whole(Currency v) { return static_cast<int32_t>(v.raw / Currency::kScale); }

// Settings whose change does more than store the value: the vig rules are
// refigured and may be refused, auto-odds and the adjustment act on the
// table, and some values inside the range mean nothing.
using Store = void (*)(Game&, int index, Currency value);
const std::map<std::string, Store>& SpecialStores() {
  static const std::map<std::string, Store> stores = {
      {"RoundLayVig", [](Game& g, int, Currency v) { ChangeVigRule(g, VigRule::RoundLayVig, Whole(v)); }},
      {"RoundBuyVig", [](Game& g, int, Currency v) { ChangeVigRule(g, VigRule::RoundBuyVig, Whole(v)); }},
      {"ChargeAllLay", [](Game& g, int, Currency v) { ChangeVigRule(g, VigRule::ChargeAllLay, v != 0 ? kTrue : 0); }},
      {"ChargeAllBuy", [](Game& g, int, Currency v) { ChangeVigRule(g, VigRule::ChargeAllBuy, v != 0 ? kTrue : 0); }},
      {"AutoTakeFullOdds", [](Game& g, int, Currency v) { SetAutoTakeFullOdds(g, v != 0); }},
      {"AutoLayFullOdds", [](Game& g, int, Currency v) { SetAutoLayFullOdds(g, v != 0); }},
      {"AutoAdjustMode", [](Game& g, int, Currency v) { SetAutoAdjustMode(g, Whole(v)); }},
      {"AllowNegativeBankroll", [](Game& g, int, Currency v) { SetAllowNegativeBankroll(g, v != 0); }},
      // A change of come-out working status shows at once on a bet that is not called.
      {"WorkOnComeOut",
       [](Game& g, int id, Currency v) {
         g.WorkOnComeOut[id] = v != 0 ? 1 : 0;
         if (g.BetStatus[id] != 2 && g.BetStatus[id] != -1) SetBetStatusDefault(g, id);
       }},
  };
  return stores;
}

// Values inside a range that still mean nothing.
void RefuseGaps(const SettingRow& row, Currency v, const std::string& text) {
  const std::string name = row.name;
  if (name == "BarNumber" && v != 2 && v != 12) throw CommandError("BarNumber " + text + " is neither 2 nor 12");
  if (name == "ModifyUnits" && v == 1) throw CommandError("ModifyUnits 1 is no unit: -1 $, 0 %, 2..6 a check");
}

struct Found {
  const SettingRow* row;
  int index;
};

// Names match without regard to case; arrays need ".INDEX", scalars refuse it.
Found Find(const std::string& fullName) {
  const size_t dot = fullName.find('.');
  const SettingRow* row = FindSettingRow(fullName.substr(0, dot));
  if (!row) throw CommandError("unknown setting '" + fullName + "'");
  const std::string name = row->name;
  if (!row->IsArray() && dot != std::string::npos) throw CommandError(name + " takes no index");
  if (!row->IsArray()) return {row, 0};
  if (dot == std::string::npos)
    throw CommandError(name + " needs an index: " + name + "." + std::to_string(row->firstIndex) + " .. " + name + "." +
                       std::to_string(row->lastIndex));
  const int index = static_cast<int>(ReadInteger(fullName.substr(dot + 1), row->firstIndex, row->lastIndex, name + " index"));
  return {row, index};
}

}  // namespace

void ApplySetting(Game& g, const std::string& name, const std::string& value) {
  const Found f = Find(name);
  const Currency v = ReadValue(*f.row, value);
  RefuseGaps(*f.row, v, value);
  const auto special = SpecialStores().find(f.row->name);
  if (special != SpecialStores().end())
    special->second(g, f.index, v);
  else
    f.row->set(g, f.index, v);
}

Json ReadSetting(const Game& g, const std::string& name) {
  const Found f = Find(name);
  return ValueJson(*f.row, f.row->get(g, f.index));
}

std::vector<std::string> SettingNames() {
  std::vector<std::string> names;
  for (const SettingRow& row : SettingsTable())
    names.push_back(row.IsArray() ? std::string(row.name) + "." + std::to_string(row.firstIndex) + ".." +
                                        std::to_string(row.lastIndex)
                                  : std::string(row.name));
  return names;
}
