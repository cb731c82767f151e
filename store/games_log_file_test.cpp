#include "store/games_log_file.h"

#include <gtest/gtest.h>

#include <random>

#include "cli/temp_folder_for_test.h"
#include "engine/table_for_test.h"
#include "store/file_bytes_for_test.h"
#include "test_paths.h"

namespace {

// Games as the program logs them (nets the differences beside them), with
// the extremes of Currency in fields it only carries.
std::vector<GameLogRecord> SomeGames() {
  std::vector<GameLogRecord> games(3);
  for (int g = 0; g < 3; ++g) {
    for (int f = 0; f < kGameLogFields; ++f) games[g][f] = Currency((g + 1) * 1'003 * (f + 1));
    games[g][4] = games[g][2] - games[g][3];
    games[g][8] = games[g][6] - games[g][7];
  }
  games[2][31] = Currency::FromRaw(INT64_MIN);
  games[1][11] = Currency::FromRaw(INT64_MAX);
  return games;
}

TEST(GamesLogFile, TheLayoutOfTheRecords) {
  const std::string bytes = EncodeGamesFile(SomeGames());
  ASSERT_EQ(bytes.size(), 4u * 256);
  EXPECT_EQ(bytes.substr(0, 36), "Dicemill Games File, Data Format 5.0");
  EXPECT_EQ(bytes.substr(36, 56), std::string(56, ' '));
  EXPECT_EQ(bytes.substr(92, 4), std::string("\x03\0\0\0", 4));
  EXPECT_EQ(bytes.substr(96, 160), std::string(160, '\0'));
  // Game 2, field 11: the largest Currency, little-endian.
  EXPECT_EQ(bytes.substr(512 + 88, 8), std::string("\xff\xff\xff\xff\xff\xff\xff\x7f", 8));

  std::vector<GameLogRecord> back;
  ASSERT_TRUE(DecodeGamesFile(bytes, back));
  EXPECT_EQ(back, SomeGames());
  // The title is compared after trimming.
  std::string padded = bytes;
  padded.replace(0, 37, " Dicemill Games File, Data Format 5.0");
  EXPECT_TRUE(DecodeGamesFile(padded, back));
}

TEST(GamesLogFile, RoundTripAndAppend) {
  TempFolder dir;
  const auto path = dir.path() / "log.glg";
  ASSERT_TRUE(AppendGamesToLog(path, {}));  // a new, empty log
  std::vector<GameLogRecord> games{GameLogRecord{}};
  ASSERT_TRUE(ReadGamesFile(path, games));
  EXPECT_TRUE(games.empty());
  EXPECT_EQ(std::filesystem::file_size(path), 256u);

  const auto some = SomeGames();
  ASSERT_TRUE(AppendGamesToLog(path, {some[0]}));
  ASSERT_TRUE(AppendGamesToLog(path, {some[1], some[2]}));
  ASSERT_TRUE(ReadGamesFile(path, games));
  EXPECT_EQ(games, some);
  EXPECT_FALSE(std::filesystem::exists(dir.path() / "log.glg.tmp"));
}

TEST(GamesLogFile, ACorruptFileIsRefusedAndLeftAlone) {
  TempFolder dir;
  const std::string good = EncodeGamesFile(SomeGames());
  std::string wrongTitle = good;
  wrongTitle[9] = 'g';
  std::string negative = good;
  negative.replace(92, 4, std::string("\xff\xff\xff\xff", 4));
  const struct {
    const char* name;
    std::string bytes;
  } cases[] = {
      {"empty.glg", ""},
      {"title.glg", wrongTitle},
      {"short.glg", good.substr(0, 3 * 256 + 100)},  // the count says 3, the file holds 2 and a bit
      {"negative.glg", negative},
      {"text.glg", std::string(600, 'a')},
      {"long.glg", good + std::string(300, 'x')},  // bytes past the last counted game
  };
  for (const auto& c : cases) {
    const auto path = dir.path() / c.name;
    WriteBytes(path, c.bytes);
    std::vector<GameLogRecord> games;
    const FileStatus read = ReadGamesFile(path, games);
    EXPECT_FALSE(read.Ok) << c.name;
    const std::vector<FileMessage> refusal{
        {"Unable to Open Dicemill Games File",
         path.string() + "\ris either from an older version, has been corrupted, or is not a true Dicemill Games File."}};
    EXPECT_EQ(read.Messages, refusal) << c.name;
    // Nothing is added to a file that is not a games log.
    EXPECT_EQ(AppendGamesToLog(path, SomeGames()).Messages, refusal) << c.name;
    EXPECT_EQ(ReadBytes(path), c.bytes) << c.name;
  }

  // The table keeps its log when another file is refused, and is told.
  TestTable t;
  WriteBytes(dir.path() / "good.glg", good);
  ASSERT_TRUE(OpenGamesFile(t.g, (dir.path() / "good.glg").string()));
  const FileStatus refused = OpenGamesFile(t.g, (dir.path() / "title.glg").string());
  EXPECT_FALSE(refused.Ok);
  EXPECT_EQ(t.g.GamesLogFile, (dir.path() / "good.glg").string());
  EXPECT_EQ(refused.Messages.at(0).Title, "Unable to Open Dicemill Games File");
}

// Random damage to a good file: the reader either refuses it or reads the
// number of games the header claims, and never reads past the end.
TEST(GamesLogFile, MutatedFilesNeverCrashTheReader) {
  const std::string good = EncodeGamesFile(SomeGames());
  std::mt19937 random(20261121);
  int refused = 0;
  for (int round = 0; round < 5000; ++round) {
    std::string bytes = good;
    const int edits = 1 + static_cast<int>(random() % 8);
    for (int e = 0; e < edits; ++e) {
      const size_t at = bytes.empty() ? 0 : random() % bytes.size();
      switch (random() % 4) {
        case 0:
          if (!bytes.empty()) bytes[at] = static_cast<char>(random());
          break;
        case 1: bytes.resize(random() % (bytes.size() + 1)); break;
        case 2: bytes.insert(at, 1 + random() % 300, static_cast<char>(random())); break;
        case 3:  // the count is where damage matters most
          if (bytes.size() >= 96) bytes[92 + random() % 4] = static_cast<char>(random());
          break;
      }
    }
    std::vector<GameLogRecord> games;
    if (!DecodeGamesFile(bytes, games)) {
      ++refused;
      continue;
    }
    EXPECT_LE((games.size() + 1) * 256, bytes.size());
  }
  EXPECT_GT(refused, 0);
  EXPECT_LT(refused, 5000);
}

}  // namespace
