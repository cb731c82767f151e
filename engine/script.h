#pragma once
// The Auto-Bet script of a game: its lines (numbered from 1, no fixed
// maximum), its Flags and the names of its Chip-Stacks.

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "engine/script_line.h"
#include "engine/subject_codes.h"
#include "engine/verb_codes.h"

struct Flag {
  std::string FlagName;      // trimmed
  int16_t FlagValue = 0;     // True -1, False 0
  int16_t FlagPrevious = 0;  // the value at the end of the previous pass
};

constexpr int kChipStackNames = 100;  // Chip-Stack numbers 0..99

struct ScriptPlan;

struct Script {
  std::vector<ScriptLine> Lines;  // Lines[0] is line 1
  std::vector<Flag> Flags;        // Flags[0] is flag 1
  std::array<std::string, kChipStackNames> ChipStackNames{};
  std::string FileName;           // the file the script was last opened from or saved to
  // How a pass walks the lines, worked out from them by the interpreter and
  // checked against them on every pass; shared by copies, never changed.
  std::shared_ptr<const ScriptPlan> Plan;

  int NumLines() const { return static_cast<int>(Lines.size()); }
  ScriptLine& Line(int n) { return Lines.at(static_cast<size_t>(n - 1)); }
  const ScriptLine& Line(int n) const { return Lines.at(static_cast<size_t>(n - 1)); }
};

// Flag condition subject and "Set flag" verb: the lines that name a flag.
constexpr int kSubjectFlag = subject::kFlag;
constexpr int kVerbSetFlag = verb::kSetFlag;

// Trailing and leading blanks off.
std::string Trimmed(const std::string& s);

// Refills the Flags table with every name used in a Flag condition or a
// "Set flag" line, trimmed, once each in order of first use, all False.
void RebuildFlags(Script& script);

// Index (1-based) of the flag of that trimmed name, 0 when there is none.
int FindFlag(const Script& script, const std::string& name);
