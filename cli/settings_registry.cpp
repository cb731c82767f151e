#include "cli/settings_registry.h"

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/table_answer.h"
#include "config/settings_table.h"
#include "sim/table.h"

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

void ApplySetting(Table& table, const std::string& name, const std::string& value) {
  const Found f = Find(name);
  const TableResult r = table.Set(name, ReadValue(*f.row, value));
  // A guarded setter that refused has said why on the screen.
  if (r.code != TableCode::Refused) Require(r);
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
