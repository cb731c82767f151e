#include "cli/data_folder.h"

#include <system_error>

namespace fs = std::filesystem;

namespace {
const char* NonEmpty(const char* value) { return value && *value ? value : nullptr; }
}  // namespace

fs::path ChooseDataFolder(const std::string& option, const EnvLookup& env) {
  if (!option.empty()) return option;
  if (const char* home = NonEmpty(env("DICEMILL_HOME"))) return home;
  if (const char* xdg = NonEmpty(env("XDG_DATA_HOME"))) return fs::path(xdg) / "dicemill";
  if (const char* home = NonEmpty(env("HOME"))) return fs::path(home) / ".local" / "share" / "dicemill";
  return fs::path("dicemill");  // no home at all: beside the working folder
}

bool EnsureFolder(const fs::path& folder, std::string& error) {
  std::error_code ec;
  fs::create_directories(folder, ec);
  if (!ec && fs::is_directory(folder, ec)) return true;
  error = "cannot use the data folder " + folder.string() + (ec ? ": " + ec.message() : ": not a folder");
  return false;
}
