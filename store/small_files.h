#pragma once
// The work files of the data folder: "active.tmp", the working copy of the
// script, and the Dice Roll File clipboard "copyfile.rll"; and what start-up
// and stop do with them.

#include <filesystem>
#include <optional>
#include <vector>

#include "engine/script_line.h"

struct Game;

inline constexpr const char* kActiveScriptName = "active.tmp";

// A file of the data folder.
std::filesystem::path DataFile(const Game& g, const char* name);

// Writes the script to "active.tmp" as an Auto-Bet file. False when there is
// no folder, a line too wide for a record, or the write fails: nothing is
// shown then, as the copy is the program's own and callers keep one in memory.
bool WriteActiveScript(const Game& g);
// The lines of "active.tmp"; nullopt when it is missing or unreadable.
std::optional<std::vector<ScriptLine>> ReadActiveScript(const Game& g);

// Start-up, before the default game: the sound sets are listed and the
// Hot-Keys read.
void ListSoundSetsAndHotKeys(Game& g);

// A script was opened from its file: it is saved as it stands, the game now
// links another file, and the working copy follows it.
void ScriptOpened(Game& g);
// The script editor closes: with changes, the script is unsaved, its first
// cycle is due and the working copy follows it.
void ScriptEditorClosed(Game& g, bool changed);

// The stop's last step: closes the Dice Roll File and deletes "active.tmp"
// and "copyfile.rll" if they are there.
void RemoveWorkFiles(Game& g);
