// The Hot-Key commands of the play session: run a bound file once, list,
// define and clear the bindings.

#include <filesystem>

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "engine/game.h"
#include "script/hot_key_run.h"
#include "store/hot_keys_file.h"

namespace {

constexpr const char* kHotKeyUsage = "hotkey K|list|set K FILE [LABEL]|clear K";

char ReadKey(const std::string& word) {
  const char key = word.size() == 1 ? HotKeyChar(word[0]) : 0;
  if (key == 0) throw CommandError("'" + word + "' is no Hot-Key: A..Z or 0..9");
  return key;
}

void ExpectCount(const std::vector<std::string>& a, size_t least, size_t most) {
  if (a.size() < least || a.size() > most) throw CommandError(std::string("expected: ") + kHotKeyUsage);
}

Json HotKeysJson(const Game& g) {
  Json keys = Json::array();
  for (const HotKeyBinding& k : g.HotKeys)
    keys.push_back({{"key", std::string(1, k.Key)}, {"file", k.File}, {"label", k.Label}});
  return keys;
}

// A Hot-Key's file is kept from the data folder (where a run looks for it);
// the path given resolves from the working folder, as every other path of a
// session does.
std::string BoundFile(const Game& g, const std::string& given) {
  std::error_code ec;
  const std::filesystem::path file = std::filesystem::absolute(given, ec).lexically_normal();
  if (ec) return given;
  if (!g.DataFolder.empty()) {
    const std::filesystem::path folder = std::filesystem::absolute(g.DataFolder, ec).lexically_normal();
    const std::filesystem::path inside = file.lexically_relative(folder);
    if (!ec && !inside.empty() && *inside.begin() != "..") return inside.string();
  }
  return file.string();
}

}  // namespace

void PlaySession::HotKey(const Args& a) {
  Game& g = *game_;
  const std::string verb = ToLower(a[0]);
  if (verb == "list") {
    ExpectCount(a, 1, 1);
    WriteJsonLine(out_, {{"hotkeys", HotKeysJson(g)}});
  } else if (verb == "set") {
    ExpectCount(a, 3, 4);
    const char key = ReadKey(a[1]);
    const std::string label = a.size() == 4 ? a[3] : "";
    const std::string file = BoundFile(g, a[2]);
    if (file.size() > kHotKeyFieldBytes || label.size() > kHotKeyFieldBytes)
      throw CommandError("FILE (as a path from the data folder, or whole) and LABEL take at most 100 characters each");
    if (!DefineHotKey(g, key, file, label)) throw CommandError(HotKeyCaption(key) + " was not defined");
    if (!ShowFileStatus(g, SaveHotKeys(g))) throw CommandError(std::string(kHotKeysFileName) + " was not saved");
  } else if (verb == "clear") {
    ExpectCount(a, 2, 2);
    const char key = ReadKey(a[1]);
    if (!ClearHotKey(g, key)) throw CommandError(HotKeyCaption(key) + " is not defined");
    if (!ShowFileStatus(g, SaveHotKeys(g))) throw CommandError(std::string(kHotKeysFileName) + " was not saved");
  } else {
    ExpectCount(a, 1, 1);
    const char key = ReadKey(a[0]);
    switch (RunHotKey(g, key)) {
      case HotKeyOutcome::Ran:
        WriteJsonLine(out_, {{"hotkey", {{"key", std::string(1, key)}, {"file", FindHotKey(g, key)->File}}}});
        break;
      case HotKeyOutcome::NotBound:
        throw CommandError(HotKeyCaption(key) + " is not defined");
      case HotKeyOutcome::Busy:
        throw CommandError("a pass is under way");
      case HotKeyOutcome::NotOpened:
        throw CommandError("\"" + FindHotKey(g, key)->File + "\" was not opened");
    }
  }
}
