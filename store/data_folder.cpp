#include "store/data_folder.h"

#include <system_error>

namespace fs = std::filesystem;

namespace {

const char* NonEmpty(const char* value) { return value && *value ? value : nullptr; }

// Copies through a hidden name in the target folder and renames, so that a
// copy cut short never sits under the real name, where it would pass for the
// user's own file and be kept for ever.
bool CopyOneFile(const fs::path& source, const fs::path& target, std::string& error) {
  const fs::path partial = target.parent_path() / ("." + target.filename().string() + ".seeding");
  std::error_code ec;
  fs::copy_file(source, partial, fs::copy_options::overwrite_existing, ec);
  if (!ec) fs::rename(partial, target, ec);
  if (!ec) return true;
  std::error_code ignored;
  fs::remove(partial, ignored);
  error = "cannot copy " + source.string() + " to " + target.string() + ": " + ec.message();
  return false;
}

bool SeedFrom(const fs::path& shipped, const fs::path& folder, std::string& error) {
  std::error_code ec;
  if (shipped.empty() || !fs::is_directory(shipped, ec)) return true;
  for (fs::directory_iterator it(shipped, ec), end; !ec && it != end; it.increment(ec)) {
    if (!it->is_regular_file(ec)) continue;
    const fs::path target = folder / it->path().filename();
    // symlink_status: a dangling link the user made still counts as theirs.
    if (fs::exists(fs::symlink_status(target, ec))) continue;
    if (!CopyOneFile(it->path(), target, error)) return false;
  }
  if (!ec) return true;
  error = "cannot read " + shipped.string() + ": " + ec.message();
  return false;
}

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

fs::path FindShareDir(const fs::path& exePath) {
  if (exePath.empty()) return {};
  std::error_code ec;
  const fs::path share = (exePath.parent_path() / ".." / "share" / "dicemill").lexically_normal();
  return fs::is_directory(share, ec) ? share : fs::path();
}

ShippedFolders InstalledFolders(const fs::path& shareDir) { return {shareDir / "samples", shareDir / "sounds"}; }

ShippedFolders SourceTreeFolders(const fs::path& sourceDir) {
  return {sourceDir / "samples", sourceDir / "data" / "sounds"};
}

bool SeedDataFolder(const fs::path& folder, const ShippedFolders& from, std::string& error) {
  return EnsureFolder(folder, error) && SeedFrom(from.samples, folder, error) && SeedFrom(from.sounds, folder, error);
}
