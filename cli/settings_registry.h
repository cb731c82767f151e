#pragma once
// Every setting of a game by its own name, for `set NAME VALUE` and `get NAME`.
// Array settings take an index after a dot: "StopOnRoll.9", "WorkOnComeOut.31".

#include <string>
#include <vector>

#include "cli/json_lines.h"

struct Game;
class Table;

// Reads `value` as the setting's type and range in the table of settings
// and hands it to the table. The vig rules and AllowNegativeBankroll may be
// refused by the table with a message of their own. Throws CommandError for
// an unknown name, a bad index or a bad value, with nothing changed.
void ApplySetting(Table& table, const std::string& name, const std::string& value);

// The setting's value: money as an exact number, flags as true/false.
Json ReadSetting(const Game& g, const std::string& name);

// The names the registry knows; array settings as "NAME.first..last".
std::vector<std::string> SettingNames();
