#include "store/hot_keys_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <random>

#include "cli/temp_folder_for_test.h"
#include "store/file_bytes_for_test.h"
#include "engine/table_for_test.h"
#include "engine/file_errors.h"

namespace {

const std::vector<HotKeyBinding> kKeys = {
    {'A', "/data/press.bet", "press the six and eight"},
    {'7', "relative/iron cross.bet", ""},
    {'Z', std::string(100, 'f'), std::string(100, 'l')},
};

bool Same(const std::vector<HotKeyBinding>& a, const std::vector<HotKeyBinding>& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (a[i].Key != b[i].Key || a[i].File != b[i].File || a[i].Label != b[i].Label) return false;
  return true;
}

}  // namespace

TEST(HotKeysFile, RecordsRoundTrip) {
  const std::string bytes = EncodeHotKeys(kKeys);
  ASSERT_EQ(bytes.size(), 4 * kHotKeyRecordBytes);
  EXPECT_EQ(bytes.substr(1, 21), "Dicemill Hot-Key File");
  EXPECT_EQ(bytes.substr(101, 2), "3 ");
  EXPECT_EQ(bytes[256], 'A');
  EXPECT_EQ(bytes.substr(257 + 15, 2), "  ");  // blank padded
  std::vector<HotKeyBinding> read;
  ASSERT_EQ(DecodeHotKeys(bytes, read), HotKeysStatus::Ok);
  EXPECT_TRUE(Same(read, kKeys));
  // A last record that stops after its 201 bytes still reads.
  ASSERT_EQ(DecodeHotKeys(bytes.substr(0, 3 * 256 + 201), read), HotKeysStatus::Ok);
  EXPECT_TRUE(Same(read, kKeys));
  ASSERT_EQ(DecodeHotKeys(EncodeHotKeys({}), read), HotKeysStatus::Ok);
  EXPECT_TRUE(read.empty());
}

TEST(HotKeysFile, CorruptFilesBindNothing) {
  const std::string good = EncodeHotKeys(kKeys);
  auto with = [&](size_t at, const std::string& text) { return std::string(good).replace(at, text.size(), text); };
  const struct {
    const char* why;
    std::string bytes;
  } cases[] = {
      {"empty", ""},
      {"short header", good.substr(0, 200)},
      {"wrong magic", with(1, "Dicemill Hot-Key Fill")},
      {"count not a number", with(101, "three")},
      {"negative count", with(101, "-1")},
      {"count past the end", with(101, "4")},
      {"huge count", with(101, "99999999999")},
      {"last record cut short", good.substr(0, 3 * 256 + 200)},
      {"key not bindable", with(256, "*")},
      {"lower-case key", with(256, "a")},
      {"key bound twice", with(512, "A")},
      {"binding without a file", with(257, std::string(100, ' '))},
  };
  for (const auto& c : cases) {
    std::vector<HotKeyBinding> read = kKeys;
    EXPECT_EQ(DecodeHotKeys(c.bytes, read), HotKeysStatus::Corrupt) << c.why;
    EXPECT_TRUE(read.empty()) << c.why;
  }
}

TEST(HotKeysFile, MissingCorruptAndFailedFiles) {
  TempFolder folder;
  TestTable t;
  t.g.DataFolder = folder.path().string();
  const auto path = folder.path() / kHotKeysFileName;
  t.g.HotKeys = kKeys;
  const FileStatus missing = LoadHotKeys(t.g);  // missing: no bindings, not a word
  EXPECT_TRUE(missing.Ok && missing.Messages.empty());
  EXPECT_TRUE(t.g.HotKeys.empty());

  t.g.HotKeys = kKeys;
  ASSERT_TRUE(SaveHotKeys(t.g));
  EXPECT_FALSE(std::filesystem::exists(path.string() + ".tmp"));
  t.g.HotKeys.clear();
  ASSERT_TRUE(LoadHotKeys(t.g));
  EXPECT_TRUE(Same(t.g.HotKeys, kKeys));

  std::ofstream(path, std::ios::binary) << "not a hot-key file";
  const FileStatus corrupt = LoadHotKeys(t.g);
  EXPECT_TRUE(t.g.HotKeys.empty());
  ASSERT_EQ(corrupt.Messages.size(), 1u);
  EXPECT_EQ(corrupt.Messages[0].Title, "Unable to Open Hot-Key File");
  EXPECT_EQ(ReadBytes(path), "not a hot-key file");  // left for the player to look at

  // A save that can't be written says so and leaves the old file whole.
  t.g.HotKeys = kKeys;
  {
    const FileSizeLimitForTest fullDisk(10);
    const FileStatus saved = SaveHotKeys(t.g);
    EXPECT_FALSE(saved.Ok);
    const std::vector<FileMessage> told{{"Error", FileErrorText(path, "could not be written: file too large")}};
    EXPECT_EQ(saved.Messages, told);
  }
  EXPECT_TRUE(t.ui.messages.empty());  // the caller shows what it is told
  EXPECT_EQ(ReadBytes(path), "not a hot-key file");
}

// What would abort or hang the start-up: each is told and the table goes on
// with no Hot-Keys.
TEST(HotKeysFile, AFileThatIsNoRegularFileBindsNothing) {
  const struct {
    const char* what;
    void (*make)(const std::filesystem::path&);
    const char* reason;
  } cases[] = {
      {"directory", [](const std::filesystem::path& p) { std::filesystem::create_directory(p); }, "is a directory."},
      {"link to /dev/zero", [](const std::filesystem::path& p) { std::filesystem::create_symlink("/dev/zero", p); },
       "is not a regular file (a device, pipe or socket)."},
      {"fifo", [](const std::filesystem::path& p) { mkfifo(p.c_str(), 0600); },
       "is not a regular file (a device, pipe or socket)."},
      {"dangling link", [](const std::filesystem::path& p) { std::filesystem::create_symlink("nowhere", p); },
       "was not found."},
  };
  for (const auto& c : cases) {
    TempFolder folder;
    TestTable t;
    t.g.DataFolder = folder.path().string();
    const auto path = folder.path() / kHotKeysFileName;
    c.make(path);
    t.g.HotKeys = kKeys;
    const FileStatus loaded = LoadHotKeys(t.g);
    EXPECT_TRUE(t.g.HotKeys.empty()) << c.what;
    const std::vector<FileMessage> told{
        {"Unable to Open Hot-Key File", path.string() + "\r" + c.reason + "\rNo Hot-Keys are defined."}};
    EXPECT_EQ(loaded.Messages, told) << c.what;
  }
}

TEST(HotKeysFile, DefiningAndClearing) {
  TestTable t;
  EXPECT_TRUE(DefineHotKey(t.g, 'b', "one.bet", "first"));
  EXPECT_TRUE(DefineHotKey(t.g, 'B', "two.bet", ""));  // rebinds
  EXPECT_FALSE(DefineHotKey(t.g, '#', "x.bet", ""));
  EXPECT_FALSE(DefineHotKey(t.g, 'C', std::string(101, 'x'), ""));
  EXPECT_FALSE(DefineHotKey(t.g, 'C', "", ""));
  EXPECT_EQ(t.ui.messages.back(),
            (RecordedMessage{"Hot-Key", "Please enter an Auto-Bet filename to define this Hot-Key."}));
  ASSERT_EQ(t.g.HotKeys.size(), 1u);
  EXPECT_EQ(FindHotKey(t.g, 'b')->File, "two.bet");
  EXPECT_EQ(FindHotKey(t.g, 'C'), nullptr);
  EXPECT_FALSE(ClearHotKey(t.g, 'C'));
  EXPECT_TRUE(ClearHotKey(t.g, 'b'));
  EXPECT_TRUE(t.g.HotKeys.empty());
}

// Thousands of damaged files: the reader never crashes, and whatever it
// accepts is a table it can write back the same.
TEST(HotKeysFile, MutatedInputsNeverCrashTheReader) {
  std::mt19937 rng(20261121);
  const std::string good = EncodeHotKeys(kKeys);
  auto pick = [&](size_t n) { return n == 0 ? size_t{0} : std::uniform_int_distribution<size_t>(0, n - 1)(rng); };
  int accepted = 0;
  for (int round = 0; round < 6000; ++round) {
    std::string bytes;
    switch (round % 4) {
      case 0:  // a few bytes changed
        bytes = good;
        for (size_t k = 1 + pick(8); k > 0; --k) bytes[pick(bytes.size())] = static_cast<char>(pick(256));
        break;
      case 1:  // cut anywhere
        bytes = good.substr(0, pick(good.size() + 1));
        break;
      case 2:  // the count rewritten
        bytes = good;
        bytes.replace(101, 8, std::to_string(static_cast<int>(pick(20)) - 5) + "       ");
        break;
      default:  // noise behind a true header, or noise alone
        bytes = round % 8 == 3 ? good.substr(0, 256) : "";
        for (size_t k = pick(1200); k > 0; --k) bytes += static_cast<char>(pick(256));
        break;
    }
    std::vector<HotKeyBinding> read;
    if (DecodeHotKeys(bytes, read) != HotKeysStatus::Ok) {
      EXPECT_TRUE(read.empty());
      continue;
    }
    ++accepted;
    std::vector<HotKeyBinding> again;
    ASSERT_EQ(DecodeHotKeys(EncodeHotKeys(read), again), HotKeysStatus::Ok);
    EXPECT_TRUE(Same(read, again));
    for (const HotKeyBinding& k : read) EXPECT_EQ(HotKeyChar(k.Key), k.Key);
  }
  EXPECT_GT(accepted, 100);  // the mutations also reach the accepting paths
}
