// Every setting of the table by its name in the settings table: "NAME", or
// "NAME.INDEX" for an array. A bad name or value is an answer, never a throw.

#include <charconv>
#include <map>

#include "engine/adjust_bet.h"
#include "autoplay/auto_odds.h"
#include "engine/rules.h"
#include "config/settings_table.h"
#include "engine/bet_status.h"
#include "engine/notices.h"
#include "sim/table_command.h"
#include "stats/bankroll_graph.h"
#include "sim/table_listener.h"

namespace {

int32_t Whole(Currency v) { return static_cast<int32_t>(v.raw / Currency::kScale); }

// Settings whose change does more than store the value: the vig rules are
// refigured and may be refused, auto-odds and the adjustment act on the
// table. False when the table refused the change.
using Store = bool (*)(Game&, int index, Currency value);
const std::map<std::string, Store>& SpecialStores() {
  static const std::map<std::string, Store> stores = {
      {"RoundLayVig", [](Game& g, int, Currency v) { return ChangeVigRule(g, VigRule::RoundLayVig, Whole(v)); }},
      {"RoundBuyVig", [](Game& g, int, Currency v) { return ChangeVigRule(g, VigRule::RoundBuyVig, Whole(v)); }},
      {"ChargeAllLay",
       [](Game& g, int, Currency v) { return ChangeVigRule(g, VigRule::ChargeAllLay, v != 0 ? kTrue : 0); }},
      {"ChargeAllBuy",
       [](Game& g, int, Currency v) { return ChangeVigRule(g, VigRule::ChargeAllBuy, v != 0 ? kTrue : 0); }},
      {"AutoTakeFullOdds",
       [](Game& g, int, Currency v) {
         SetAutoTakeFullOdds(g, v != 0);
         return true;
       }},
      {"AutoLayFullOdds",
       [](Game& g, int, Currency v) {
         SetAutoLayFullOdds(g, v != 0);
         return true;
       }},
      {"AutoAdjustMode",
       [](Game& g, int, Currency v) {
         SetAutoAdjustMode(g, Whole(v));
         return true;
       }},
      {"AllowNegativeBankroll", [](Game& g, int, Currency v) { return SetAllowNegativeBankroll(g, v != 0); }},
      // The averages are kept only while shown: shown again, the window's are worked out anew.
      {"DisplayAverage",
       [](Game& g, int, Currency v) {
         g.DisplayAverage = v != 0;
         if (g.DisplayAverage) SetMovingAverageRolls(g, g.MovingAverageRolls);
         return true;
       }},
      // A change of come-out working status shows at once on a bet that is not called.
      {"WorkOnComeOut",
       [](Game& g, int id, Currency v) {
         g.WorkOnComeOut[id] = v != 0 ? 1 : 0;
         if (g.BetStatus[id] != 2 && g.BetStatus[id] != -1) SetBetStatusDefault(g, id);
         return true;
       }},
  };
  return stores;
}

struct Found {
  const SettingRow* row = nullptr;
  int index = 0;
  TableResult fault;
};

Found Find(const std::string& fullName) {
  Found f;
  const size_t dot = fullName.find('.');
  f.row = FindSettingRow(std::string_view(fullName).substr(0, dot));
  if (!f.row) {
    f.fault = TableResult::Fail(TableCode::Unknown, "unknown setting '" + fullName + "'");
    return f;
  }
  const std::string name = f.row->name;
  if (!f.row->IsArray()) {
    if (dot != std::string::npos) f.fault = TableResult::Fail(TableCode::Unknown, name + " takes no index");
    return f;
  }
  const std::string digits = dot == std::string::npos ? "" : fullName.substr(dot + 1);
  const auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), f.index);
  if (digits.empty() || ec != std::errc() || end != digits.data() + digits.size() || f.index < f.row->firstIndex ||
      f.index > f.row->lastIndex)
    f.fault = TableResult::Fail(TableCode::Unknown, name + " needs an index from " + std::to_string(f.row->firstIndex) +
                                                        " to " + std::to_string(f.row->lastIndex));
  return f;
}

// The value's kind and range by the row; values inside a range that still
// mean nothing are out of range too.
TableResult CheckValue(const SettingRow& row, Currency v) {
  const std::string name = row.name;
  const bool whole = v.raw % Currency::kScale == 0;
  if (row.type == SettingType::Flag && v != 0 && v != 1)
    return TableResult::Fail(TableCode::WrongType, name + " is a flag: 0 or 1");
  if (row.type == SettingType::Integer && !whole)
    return TableResult::Fail(TableCode::WrongType, name + " takes a whole number");
  if (v < row.least)
    return TableResult::Fail(
        TableCode::OutOfRange,
        name + " " + FormatNumberWithCommas(v) + " is below the least allowed, " + FormatNumberWithCommas(row.least));
  if (v > row.most)
    return TableResult::Fail(
        TableCode::OutOfRange,
        name + " " + FormatNumberWithCommas(v) + " is above the most allowed, " + FormatNumberWithCommas(row.most));
  if (name == "BarNumber" && v != 2 && v != 12)
    return TableResult::Fail(TableCode::OutOfRange, "BarNumber " + std::to_string(Whole(v)) + " is neither 2 nor 12");
  if (name == "ModifyUnits" && v == 1)
    return TableResult::Fail(TableCode::OutOfRange, "ModifyUnits 1 is no unit: -1 $, 0 %, 2..6 a check");
  return {};
}

}  // namespace

TableResult Table::Set(const std::string& name, Currency value) {
  return Command([&](Game& g) {
    const Found f = Find(name);
    if (!f.row) return f.fault;
    if (!f.fault.Done()) return f.fault;
    if (TableResult bad = CheckValue(*f.row, value); !bad.Done()) return bad;
    const Currency before = f.row->get(g, f.index);
    const auto special = SpecialStores().find(f.row->name);
    const bool taken =
        special == SpecialStores().end() ? (f.row->set(g, f.index, value), true) : special->second(g, f.index, value);
    const bool changed = f.row->get(g, f.index) != before;
    if (changed) {
      const std::string shown =
          f.row->IsArray() ? std::string(f.row->name) + "." + std::to_string(f.index) : f.row->name;
      for (TableListener* l : listeners_) l->SettingChanged(shown);
    }
    MarkUnsavedIf(changed);
    if (!taken) return Told(*relay_, TableCode::Refused, std::string(f.row->name) + " was not changed");
    return TableResult{};
  });
}

SettingResult Table::Get(const std::string& name) const {
  SettingResult r;
  const Found f = Find(name);
  if (!f.row || !f.fault.Done()) {
    static_cast<TableResult&>(r) = f.fault;
    return r;
  }
  r.value = f.row->get(*game_, f.index);
  return r;
}
