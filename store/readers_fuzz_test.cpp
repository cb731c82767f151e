// Every reader of outside files against thousands of damaged inputs: bits
// flipped, bytes overwritten with extremes, files cut short or grown, and
// plain noise. Each must refuse or read without crashing; the sanitizer
// build catches what a crash would not show.

#include "test_paths.h"
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "cli/temp_folder_for_test.h"
#include "fuzz/fuzz_entries.h"
#include "store/file_bytes_for_test.h"

namespace {

std::string Sample(const char* name) { return ReadBytes(std::string(DICEMILL_SOURCE_DIR) + "/samples/" + name); }

class Mutator {
 public:
  explicit Mutator(uint32_t seed) : random_(seed) {}

  std::string Mutate(std::string bytes) {
    const int edits = 1 + Below(4);
    for (int i = 0; i < edits; ++i) Edit(bytes);
    return bytes;
  }
  std::string Noise() {
    std::string bytes(Below(4096), '\0');
    for (char& c : bytes) c = static_cast<char>(random_());
    return bytes;
  }

 private:
  size_t Below(size_t n) { return n == 0 ? 0 : random_() % n; }

  void Edit(std::string& b) {
    static constexpr uint8_t kExtremes[] = {0x00, 0xFF, 0x7F, 0x80, 0x20, '0', '9'};
    const size_t at = Below(b.size());
    switch (Below(6)) {
      case 0:
        if (!b.empty()) b[at] = static_cast<char>(b[at] ^ (1 << Below(8)));
        break;
      case 1:
        if (!b.empty()) b[at] = static_cast<char>(kExtremes[Below(sizeof kExtremes)]);
        break;
      case 2:  // a whole 32- or 64-bit field set to an extreme
        for (size_t k = 0, width = Below(2) ? 4 : 8; k < width && at + k < b.size(); ++k)
          b[at + k] = static_cast<char>(k + 1 == width && Below(2) ? 0x7F : 0xFF);
        break;
      case 3:
        b.resize(Below(b.size() + 1));
        break;
      case 4:
        b.insert(at, std::string(Below(300), static_cast<char>(random_())));
        break;
      default:
        if (!b.empty()) b.append(b.substr(at, Below(512)));
        break;
    }
  }

  std::mt19937 random_;
};

template <class Reader>
void Hammer(const std::vector<std::string>& seeds, int rounds, uint32_t seed, Reader read) {
  Mutator m(seed);
  for (const std::string& s : seeds) read(s);
  for (int i = 0; i < rounds; ++i) read(m.Mutate(seeds[static_cast<size_t>(i) % seeds.size()]));
  for (int i = 0; i < rounds / 10; ++i) read(m.Noise());
}

}  // namespace

TEST(ReadersFuzz, DamagedInputsAreRefusedOrReadNeverACrash) {
  TempFolder folder;
  Game g;
  g.DataFolder = folder.path().string();
  FillDefaults(g);
  NewGame(g, false);
  g.AutoBet.ChipStackNames[3] = "spare";
  g.BetAmount.Set(43, 10);
  g.TotalOnTable = 10;
  const std::string game = (folder.path() / "seed.crp").string();
  ASSERT_TRUE(SaveGame(g, game));
  const std::string sealed = ReadBytes(game);

  // Sealed, nearly every change is refused whole; without the seal (as
  // other versions write) the changes reach every record.
  std::string unsealed = sealed;
  unsealed.resize(unsealed.size() - 256);
  std::fill_n(unsealed.begin() + 232, 24, '\0');
  Hammer({sealed, unsealed}, 1000, 1, fuzz::GameFile);
  Hammer({Sample("three-point-molly.bet"), Sample("iron-cross.bet")}, 4000, 2, fuzz::BetFile);
  Hammer({EncodeProbFile(TrueTable())}, 4000, 3, fuzz::ProbFile);
  Hammer({Sample("three-point-molly.txt"), Sample("dont-pass-stop-loss.txt"), Sample("field-martingale.txt")}, 4000, 4,
         fuzz::ScriptText);
  std::string rolls;
  for (int i = 0; i < 200; ++i) rolls.push_back(static_cast<char>(RollByte(1 + i % 6, 1 + i / 6 % 6)));
  Hammer({rolls}, 500, 5, fuzz::RollFile);
}

// Every file that once broke the program, through the reader of its kind and,
// for scripts, played: refused or used, never a crash or a hang.
TEST(ReadersFuzz, TheFilesThatOnceBrokeTheProgram) {
  const std::filesystem::path cases = DICEMILL_SOURCE_DIR "/tests/reliability";
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(cases)) {
    const std::string bytes = ReadBytes(entry.path());
    const std::string ext = entry.path().extension().string();
    SCOPED_TRACE(entry.path().filename().string());
    if (ext == ".crp") fuzz::GameFile(bytes);
    if (ext == ".bet") fuzz::BetFileAndPlay(bytes);
    if (ext == ".txt") fuzz::ScriptTextAndPlay(bytes);
    if (ext == ".glg") fuzz::GamesLog(bytes);
    files += ext == ".crp" || ext == ".bet" || ext == ".txt" || ext == ".glg";
  }
  EXPECT_EQ(files, 32);
}
