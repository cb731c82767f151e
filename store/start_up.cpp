#include "store/start_up.h"

#include <chrono>
#include <filesystem>

#include "engine/game.h"
#include "engine/new_game.h"
#include "engine/roll.h"
#include "engine/seed.h"
#include "store/game_file.h"
#include "store/small_files.h"

namespace {

// Empty loop passes per millisecond: how Hyper-Drive's throttle is paced.
int32_t MeasureSpeedUnit() {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::milliseconds(100);
  int64_t count = 0;
  while (Clock::now() < end) ++count;
  return static_cast<int32_t>(count / 10);
}

}  // namespace

void StartUp(Game& g, const std::string& folder) {
  g.DataFolder = folder;
  g.SpeedUnit = MeasureSpeedUnit();
  SeedAtStartUp(g);
  FillDefaults(g);
  ListSoundSetsAndHotKeys(g);
  // The default game of the folder sets everything a game file holds; with
  // none there (or one refused) the start is a new game.
  std::error_code ec;
  if (!std::filesystem::is_regular_file(DefaultGamePath(g), ec) || !ShowFileStatus(g, OpenGame(g, DefaultGamePath(g))))
    NewGame(g, false);
  WriteActiveScript(g);
  if (g.Point == 0) PlayComeOutSound(g);
}
