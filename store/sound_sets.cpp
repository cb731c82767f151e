#include "store/sound_sets.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <set>

namespace {

std::string Lowered(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return std::tolower(c); });
  return s;
}

bool EndsWith(const std::string& s, const std::string& tail) {
  return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

std::vector<std::string> Sorted(const std::set<std::string>& names) { return {names.begin(), names.end()}; }

}  // namespace

SoundSets ListSoundSets(const std::string& folder) {
  namespace fs = std::filesystem;
  std::set<std::string> stickman, dice, win, chips;
  std::error_code ec;
  if (!folder.empty()) {
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
      if (!it->is_regular_file(ec)) continue;
      const std::string name = it->path().filename().string();
      const std::string lower = Lowered(name);
      const std::string stem = name.substr(0, name.size() >= 4 ? name.size() - 4 : 0);
      if (EndsWith(lower, ".stk") && name.size() > 6)
        stickman.insert(name.substr(0, name.size() - 6));
      else if (EndsWith(lower, ".dce"))
        dice.insert(stem);
      else if (EndsWith(lower, ".win"))
        win.insert(stem);
      else if (EndsWith(lower, ".chp"))
        chips.insert(stem);
    }
  }
  return {Sorted(stickman), Sorted(dice), Sorted(win), Sorted(chips)};
}
