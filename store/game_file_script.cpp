// Chip-Stack names, the roll history and the last record, the script's
// state. The script's lines are not here: the game links their file.

#include <algorithm>

#include "engine/game.h"
#include "store/game_file_sections.h"

namespace {

constexpr size_t kStackNameWidth = 80;
constexpr int kNamesPerRecord = 3;
// More flags than any script could name: a damaged count reads no further.
constexpr int32_t kMostFlags = 100'000;

}  // namespace

void WriteScriptRecords(const Game& g, RecordWriter& w) {
  const auto& names = g.AutoBet.ChipStackNames;
  for (size_t first = 0; first < names.size(); first += kNamesPerRecord) {
    FileRecord& r = w.Add();
    for (size_t i = 0; i < kNamesPerRecord && first + i < names.size(); ++i)
      PutText(r, i * kStackNameWidth, kStackNameWidth, names[first + i]);
  }
  // The roll history is not kept, so its count in record 12 stays 0.

  FileRecord& state = w.Add();
  PutInt32(state, 0, g.InitPending ? kTrue : 0);
  PutInt32(state, 1, static_cast<int32_t>(g.LastAnswer));
  PutInt32(state, 2, g.RollCountAfterPass);
  PutInt32(state, 3, static_cast<int32_t>(g.AutoBet.Flags.size()));
  std::vector<int32_t> flags;
  for (const Flag& f : g.AutoBet.Flags) {
    flags.push_back(f.FlagValue);
    flags.push_back(f.FlagPrevious);
  }
  w.AddInt32s(flags);
}

void ReadScriptRecords(Game& g, RecordReader& r) {
  auto& names = g.AutoBet.ChipStackNames;
  for (size_t first = 0; first < names.size(); first += kNamesPerRecord) {
    const FileRecord record = r.Next();
    for (size_t i = 0; i < kNamesPerRecord && first + i < names.size(); ++i)
      names[first + i] = GetText(record, i * kStackNameWidth, kStackNameWidth);
  }

  const FileRecord state = r.Next();
  g.InitPending = GetInt32(state, 0) != 0;
  g.LastAnswer = static_cast<Answer>(GetInt32(state, 1));
  g.RollCountAfterPass = GetInt32(state, 2);
  const int32_t count = std::clamp(GetInt32(state, 3), 0, kMostFlags);
  const std::vector<int32_t> flags = r.NextInt32s(static_cast<size_t>(count) * 2);
  g.FileExtras.FlagValues.clear();
  for (size_t i = 0; i + 1 < flags.size(); i += 2)
    g.FileExtras.FlagValues.push_back({static_cast<int16_t>(flags[i]), static_cast<int16_t>(flags[i + 1])});
}

void RestoreFlagValues(Game& g) {
  auto& stored = g.FileExtras.FlagValues;
  if (stored.size() == g.AutoBet.Flags.size())
    for (size_t i = 0; i < stored.size(); ++i) {
      g.AutoBet.Flags[i].FlagValue = stored[i][0];
      g.AutoBet.Flags[i].FlagPrevious = stored[i][1];
    }
  stored.clear();
}
