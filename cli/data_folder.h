#pragma once
// Where the program keeps its files when run headless.

#include <filesystem>
#include <functional>
#include <string>

// Reads one environment variable; nullptr when it is not set.
using EnvLookup = std::function<const char*(const char*)>;

// The --folder option if given, else $DICEMILL_HOME, else
// ${XDG_DATA_HOME:-$HOME/.local/share}/dicemill. Empty variables count as unset.
std::filesystem::path ChooseDataFolder(const std::string& option, const EnvLookup& env);

// Creates the folder and its parents if missing. False, with the reason in
// `error`, when it cannot be made or is not a folder.
bool EnsureFolder(const std::filesystem::path& folder, std::string& error);
