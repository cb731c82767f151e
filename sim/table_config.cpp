// The configuration screen's commands: its closing check, the payoff grid's
// edits and menus, and the tray's Chip-Stacks.

#include "engine/catalogue.h"
#include "engine/table_commands.h"
#include "engine/script.h"
#include "sim/table_command.h"
#include "sim/table_listener.h"

TableResult Table::SetConfigScreenOpen(bool open) {
  return Command([&](Game& g) {
    g.ConfigScreenActive = open;
    return TableResult{};
  });
}

ConfigCheck Table::ValidateConfiguration() {
  if (busy_) return {false, "", "", -1};
  relay_->Forget();
  // The check may bring a setting back into range; the screen then shows it.
  const ConfigCheck check = ::ValidateConfiguration(*game_);
  Publish();
  return check;
}

TableResult Table::RestoreDefaultPayoffs() {
  return Command([&](Game& g) {
    ::RestoreDefaultPayoffs(g);
    return MarkUnsavedIf(true);
  });
}

TableResult Table::SetFieldPreset(int preset) {
  return Command([&](Game& g) {
    if (!::SetFieldPreset(g, preset))
      return TableResult::Fail(TableCode::Unknown, "there are Field presets 0 to " + std::to_string(kFieldPresetCount - 1));
    return MarkUnsavedIf(true);
  });
}

TableResult Table::EditPayoffCell(PayoffTable grid, int record, int column, Currency typed) {
  return Command([&](Game& g) {
    if (!EditPayoff(g, grid, record, column, typed))
      return TableResult::Fail(TableCode::OutOfRange, "that cell does not take " + FormatNumberWithCommas(typed));
    return MarkUnsavedIf(true);
  });
}

TableResult Table::EditPayoffCell(PayoffTable grid, int record, int column, char key) {
  return Command([&](Game& g) {
    if (!EditPayoff(g, grid, record, column, key)) return TableResult::Fail(TableCode::Refused, "nothing to change");
    return MarkUnsavedIf(true);
  });
}

TableResult Table::SetTrayStack(int tool, int stack) {
  return Command([&](Game& g) {
    if (tool < kToolFirstStack || tool > kToolLastStack)
      return TableResult::Fail(TableCode::Unknown, "the tray's Chip-Stack tools are 7 to 10");
    if (stack < 0 || stack >= kChipStackNames)
      return TableResult::Fail(TableCode::OutOfRange, "Chip-Stacks are numbered 0 to 99");
    g.TrayStack[static_cast<size_t>(tool - kToolFirstStack + 1)] = bet::kFirstStack + stack;
    for (TableListener* l : listeners_) l->SettingChanged("TrayStack");
    return TableResult{};
  });
}
