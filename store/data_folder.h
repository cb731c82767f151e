#pragma once
// Where the program keeps its files, for the command line and the desktop
// program alike, and how a new folder gets the samples and sounds that ship
// with the program.

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

// The installed share folder, <prefix>/share/dicemill, for an executable in
// <prefix>/bin; empty when there is none (a program run from a build tree).
std::filesystem::path FindShareDir(const std::filesystem::path& exePath);

// The folders the shipped files come from. Installed, both sit in the share
// folder as samples/ and sounds/; in the source tree they are samples/ and
// data/sounds/.
struct ShippedFolders {
  std::filesystem::path samples;
  std::filesystem::path sounds;
};
ShippedFolders InstalledFolders(const std::filesystem::path& shareDir);
ShippedFolders SourceTreeFolders(const std::filesystem::path& sourceDir);

// Creates `folder` if missing and copies into it every file of `from.samples`
// and `from.sounds` (not their subfolders) that it does not have yet. A file
// of the same name already there is the user's and is never touched, so this
// is safe on every start. A shipped folder that is empty or missing gives
// nothing. False, with the reason in `error`, when the folder cannot be made
// or a file cannot be copied into it; files copied before that stay.
bool SeedDataFolder(const std::filesystem::path& folder, const ShippedFolders& from, std::string& error);
