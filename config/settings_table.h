#pragma once
// Every setting a player may change, once: its name, where it lives in the
// game, the values it may take and its default. The command line, the game
// file and the Configure screen all take their ranges from here.

#include <string_view>
#include <vector>

#include "dice/money.h"

struct Game;

enum class SettingType { Money, Integer, Flag };

constexpr int kNotArray = -1;

struct SettingRow {
  const char* name;
  SettingType type;
  Currency least, most;  // integers and flags as whole values
  Currency byDefault;    // an array's every element, unless defaultAt says otherwise
  bool stored;           // kept in the game file
  // Where the value lives; an array's elements are firstIndex..lastIndex.
  Currency (*get)(const Game&, int index);
  void (*set)(Game&, int index, Currency value);  // as given: callers keep to the range
  int firstIndex = kNotArray, lastIndex = kNotArray;
  Currency (*defaultAt)(int index) = nullptr;

  bool IsArray() const { return firstIndex != kNotArray; }
  Currency DefaultAt(int index) const { return defaultAt ? defaultAt(index) : byDefault; }
};

const std::vector<SettingRow>& SettingsTable();
// The row of a name, matched without regard to case; nullptr for none.
const SettingRow* FindSettingRow(std::string_view name);

// Brings every setting back into its range, as outside input needs.
void KeepSettingsInRange(Game& g);
