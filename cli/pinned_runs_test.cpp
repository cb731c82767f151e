// Long runs from fixed seeds, pinned by a hash of the table after every roll
// and a hash of the final report: a change of any result, by a cent or a
// roll, fails here and names the run that changed.
//
// To re-pin after a deliberate change of results, run
//   build/dicemill_tests --gtest_filter='*PinnedRuns*'
// and copy the hashes each failure prints into kPins.

#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <ostream>
#include <string>

#include "cli/run_report.h"
#include "engine/game.h"
#include "testkit/long_runs.h"

namespace {

constexpr int64_t kShortRolls = 20'000;
constexpr int64_t kLongRolls = 1'000'000;

struct Pin {
  const char* Name;
  uint64_t ShortTable, ShortReport;  // kShortRolls
  uint64_t LongTable, LongReport;    // kLongRolls
};

constexpr Pin kPins[] = {
    {"empty-table", 0xcd08672a1b49361cULL, 0xc229c2c5ff5bd0d3ULL, 0xf4e8bd57e97d2ed1ULL, 0x8f7ed1aa1097673dULL},
    {"pass-line-full-odds", 0x9627313a21fd022cULL, 0x0e0715d6a3d24f45ULL, 0x0f658e1134d17d31ULL, 0x4e9691a9d39972a4ULL},
    {"three-point-molly", 0x4a9a013390f99d81ULL, 0xb6754aab56fd4b88ULL, 0x5c8284b82291a01eULL, 0x1db4e638e2640443ULL},
    {"iron-cross", 0x17ee9360a20d6abcULL, 0x1cdd0195df8a2812ULL, 0xc09fefd78108f191ULL, 0x334858735a97ed85ULL},
    {"place-6-8-press", 0x7e86c798322b5e3cULL, 0x4c43e8df75741c61ULL, 0xa88e11c63f4ea731ULL, 0x16e26a268764fb51ULL},
    {"dont-pass-stop-loss", 0x75b2dd0b871542caULL, 0x32022cfc27b83a4fULL, 0x75b2dd0b871542caULL, 0x7eeda5982e300bfcULL},
    {"field-martingale", 0xe983ebe99d50db3cULL, 0x5215e494c28789eeULL, 0x92715a435cb168f1ULL, 0x1eb660612c2575c4ULL},
    {"busy-table", 0x04fbe79b49e91c76ULL, 0x70d7aed81243634fULL, 0x80f5dccc6a456c03ULL, 0x9acb15d3fc9e5b8cULL},
};

// FNV-1a taken a 64-bit word at a time: a few thousand words a roll over a
// million rolls stay well under a second.
class Fnv1a {
 public:
  void Add(uint64_t word) {
    hash_ ^= word;
    hash_ *= 0x100000001b3ULL;
  }
  void Add(const std::string& text) {
    for (unsigned char c : text) Add(uint64_t{c});
  }
  uint64_t Value() const { return hash_; }

 private:
  uint64_t hash_ = 0xcbf29ce484222325ULL;
};

// Takes the table once per roll: a long script pass lets input run too, and
// how often it does so is no result.
class TableHasher : public TableWatcher {
 public:
  void LetInputRun(Game& g) override {
    if (g.RollCounts[0] == lastRoll_) return;
    lastRoll_ = g.RollCounts[0];
    hash_.Add(static_cast<uint64_t>(g.Die1));
    hash_.Add(static_cast<uint64_t>(g.Die2));
    hash_.Add(static_cast<uint64_t>(g.Point));
    for (const Currency& amount : g.BetAmount) hash_.Add(static_cast<uint64_t>(amount.raw));  // bankroll, bets, rail, rack
    for (int32_t status : g.BetStatus) hash_.Add(static_cast<uint64_t>(status));
  }
  uint64_t Value() const { return hash_.Value(); }

 private:
  int64_t lastRoll_ = -1;
  Fnv1a hash_;
};

uint64_t ReportHash(const PlayedRun& played, const char* name) {
  BatchResult batch;
  batch.Games.push_back(played.Result);
  Json report = RunReportJson(RunDescription{played.Options, "", "", ""}, batch, false);
  report["run"]["script"] = name;  // not where the tree happens to be
  Fnv1a hash;
  hash.Add(report.dump());
  return hash.Value();
}

std::string Hex(uint64_t value) {
  char text[24];
  std::snprintf(text, sizeof text, "0x%016" PRIx64, value);
  return text;
}

void CheckRun(const Pin& pin, int64_t rolls, uint64_t pinnedTable, uint64_t pinnedReport) {
  const LongRun* run = nullptr;
  for (const LongRun& r : kLongRuns)
    if (std::string(r.Name) == pin.Name) run = &r;
  ASSERT_NE(run, nullptr) << pin.Name;
  TableHasher table;
  const PlayedRun played = PlayLongRun(*run, rolls, &table);
  const uint64_t report = ReportHash(played, run->Name);
  EXPECT_TRUE(table.Value() == pinnedTable && report == pinnedReport)
      << "The run " << run->Name << " (" << rolls << " rolls) changed its results:\n"
      << "  table after every roll: " << Hex(table.Value()) << ", pinned " << Hex(pinnedTable) << "\n"
      << "  final report:           " << Hex(report) << ", pinned " << Hex(pinnedReport) << "\n"
      << "If the change is deliberate, re-pin: put the new hashes into kPins in " << __FILE__ << ".";
}

void PrintTo(const Pin& pin, std::ostream* out) { *out << pin.Name; }

class PinnedRuns : public testing::TestWithParam<Pin> {};

TEST_P(PinnedRuns, Short) { CheckRun(GetParam(), kShortRolls, GetParam().ShortTable, GetParam().ShortReport); }

TEST_P(PinnedRuns, Long) {
#ifdef DICEMILL_SANITIZED
  GTEST_SKIP() << "a million rolls take too long under the sanitizers; the short run stands in";
#endif
  CheckRun(GetParam(), kLongRolls, GetParam().LongTable, GetParam().LongReport);
}

TEST(PinnedRunsTable, EveryRunIsPinned) {
  ASSERT_EQ(std::size(kPins), kLongRuns.size());
  for (size_t i = 0; i < kLongRuns.size(); ++i) EXPECT_STREQ(kPins[i].Name, kLongRuns[i].Name);
}

INSTANTIATE_TEST_SUITE_P(Runs, PinnedRuns, testing::ValuesIn(kPins), [](const auto& pinned) {
  std::string name = pinned.param.Name;
  for (char& c : name)
    if (c == '-') c = '_';
  return name;
});

}  // namespace
