// The table of settings against the game file: every stored setting comes
// back from a save and an open as it went out, at either end of its range.

#include <gtest/gtest.h>

#include <functional>

#include "cli/temp_folder_for_test.h"
#include "config/settings_table.h"
#include "engine/new_game.h"
#include "engine/table_for_test.h"
#include "store/game_file.h"

namespace {

struct FreshGame {
  Game g;
  RecordingFrontEnd ui;
  explicit FreshGame(const TempFolder& folder) {
    g.Ui = &ui;
    g.DataFolder = folder.path().string();
    g.ReSeedNewGames = false;
    FillDefaults(g);
  }
};

void ForEachValue(const std::function<void(const SettingRow&, int index)>& each) {
  for (const SettingRow& row : SettingsTable()) {
    const int first = row.IsArray() ? row.firstIndex : 0, last = row.IsArray() ? row.lastIndex : 0;
    for (int i = first; i <= last; ++i) each(row, i);
  }
}

// Sets every stored setting by `pick`, saves, opens in a fresh game and
// expects each back as it was set.
void ExpectRoundTrip(const char* what, const std::function<Currency(const SettingRow&, int)>& pick) {
  SCOPED_TRACE(what);
  TempFolder folder;
  FreshGame out(folder);
  ForEachValue([&](const SettingRow& row, int i) {
    if (row.stored) row.set(out.g, i, pick(row, i));
  });
  const std::string path = (folder.path() / "settings.crp").string();
  ASSERT_TRUE(SaveGame(out.g, path));
  FreshGame in(folder);
  ASSERT_TRUE(OpenGame(in.g, path));
  ForEachValue([&](const SettingRow& row, int i) {
    if (row.stored) {
      EXPECT_EQ(row.get(in.g, i), pick(row, i)) << row.name << "." << i;
    }
  });
}

}  // namespace

TEST(SettingsTable, DefaultsAreAFreshGamesAndWithinRange) {
  Game fresh;
  FillDefaults(fresh);
  ForEachValue([&](const SettingRow& row, int i) {
    EXPECT_EQ(row.get(fresh, i), row.DefaultAt(i)) << row.name << "." << i;
    EXPECT_LE(row.least, row.DefaultAt(i)) << row.name;
    EXPECT_LE(row.DefaultAt(i), row.most) << row.name;
  });
}

TEST(SettingsTable, EveryStoredSettingSurvivesSaveAndOpen) {
  ExpectRoundTrip("least", [](const SettingRow& row, int) { return row.least; });
  // One of the two ends is not the default, so a setting the file drops shows.
  ExpectRoundTrip("most", [](const SettingRow& row, int) { return row.most; });
}

TEST(SettingsTable, AFileOutOfRangeIsBroughtBackIntoIt) {
  TempFolder folder;
  FreshGame f(folder);
  f.g.AutoRollDelay = 5000;
  f.g.ProbRollsOutOf = 2'000'000;
  f.g.BarNumber = 7;
  KeepSettingsInRange(f.g);
  EXPECT_EQ(f.g.AutoRollDelay, 3600);
  EXPECT_EQ(f.g.ProbRollsOutOf, 1'000'000);
  EXPECT_EQ(FindSettingRow("autorolldelay"), FindSettingRow("AutoRollDelay"));
  EXPECT_EQ(FindSettingRow("Nope"), nullptr);
}
