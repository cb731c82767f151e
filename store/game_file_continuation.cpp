// Beyond the last record: every generator's whole state and the rest of what
// the roll reads, so that a reopened game rolls the same dice as the game
// that was saved. One marker record, then a list of 32-bit words.

#include <bit>
#include <type_traits>

#include "engine/game.h"
#include "store/game_file_sections.h"

namespace {

constexpr const char* kMarker = "Dicemill Continuation, Format 1";
constexpr size_t kMarkerWidth = 64;
constexpr int kWordCountSlot = 16;

struct WordPut {
  std::vector<int32_t>& words;
  void operator()(uint32_t v) const { words.push_back(static_cast<int32_t>(v)); }
  void operator()(int32_t v) const { words.push_back(v); }
  void operator()(int64_t v) const {
    (*this)(static_cast<uint32_t>(v));
    (*this)(static_cast<uint32_t>(static_cast<uint64_t>(v) >> 32));
  }
  void operator()(float v) const { (*this)(std::bit_cast<uint32_t>(v)); }
  void operator()(bool v) const { words.push_back(v ? kTrue : 0); }
  void operator()(Currency v) const { (*this)(v.raw); }
};

struct WordGet {
  const std::vector<int32_t>& words;
  size_t& next;
  uint32_t Take() const { return next < words.size() ? static_cast<uint32_t>(words[next++]) : 0; }
  void operator()(uint32_t& v) const { v = Take(); }
  void operator()(int32_t& v) const { v = static_cast<int32_t>(Take()); }
  void operator()(int64_t& v) const {
    const uint64_t low = Take();
    v = static_cast<int64_t>(low | (uint64_t{Take()} << 32));
  }
  void operator()(float& v) const { v = std::bit_cast<float>(Take()); }
  void operator()(bool& v) const { v = Take() != 0; }
  void operator()(Currency& v) const { (*this)(v.raw); }
};

template <class G, class F>
void ContinuationFields(G& g, F&& f) {
  auto& rng = g.Rng;
  for (auto& word : rng.mt.mt) f(word);
  f(rng.mt.mti);
  for (auto& word : rng.cokus.state) f(word);
  f(rng.cokus.next);
  f(rng.cokus.left);
  for (auto& value : rng.ran1.r) f(value);
  f(rng.ran1.iff);
  f(rng.ran1.ix1);
  f(rng.ran1.ix2);
  f(rng.ran1.ix3);
  f(rng.ran1.j);
  for (auto& value : rng.ran2.ir) f(value);
  f(rng.ran2.iff);
  f(rng.ran2.iy);
  f(rng.ran2.j);
  f(rng.ran2.idum);
  f(g.RndState);
  f(g.SeedRequest);

  for (int id = 0; id < g.BetStatus.size(); ++id) {
    int32_t status = g.BetStatus[id];
    f(status);
    if constexpr (!std::is_const_v<G>) g.BetStatus.Set(id, status);
  }
  f(g.ModifyOperator[1]);
  f(g.ModifyOperator[3]);
  f(g.AutoArrangeChips);
  f(g.ClickTool);
  for (auto& stack : g.TrayStack) f(stack);

  // The percentage table too: a table never saved to a file of its own
  // still comes back.
  for (auto& row : g.Prob.cell)
    for (auto& cell : row) {
      f(cell.flags);
      f(cell.value);
    }
  f(g.ProbModified);
}

size_t WordCount() {
  static const size_t count = [] {
    Game g;
    std::vector<int32_t> words;
    ContinuationFields(static_cast<const Game&>(g), WordPut{words});
    return words.size();
  }();
  return count;
}

}  // namespace

void WriteContinuationRecords(const Game& g, RecordWriter& w) {
  std::vector<int32_t> words;
  ContinuationFields(g, WordPut{words});
  FileRecord& marker = w.Add();
  PutText(marker, 0, kMarkerWidth, kMarker);
  PutInt32(marker, kWordCountSlot, static_cast<int32_t>(words.size()));
  w.AddInt32s(words);
}

int ContinuationRecordCount(const FileRecord& marker) {
  if (GetText(marker, 0, kMarkerWidth) != kMarker) return 0;
  if (GetInt32(marker, kWordCountSlot) != static_cast<int32_t>(WordCount())) return 0;
  return 1 + static_cast<int>((WordCount() + kInt32Slots - 1) / kInt32Slots);
}

void ReadContinuationRecords(Game& g, RecordReader& r) {
  const FileRecord marker = r.Next();
  if (GetText(marker, 0, kMarkerWidth) != kMarker) return;
  if (GetInt32(marker, kWordCountSlot) != static_cast<int32_t>(WordCount())) return;
  if (r.BytesLeft() < WordCount() * sizeof(int32_t)) return;  // cut short: keep the streams as they are
  const std::vector<int32_t> words = r.NextInt32s(WordCount());
  size_t next = 0;
  ContinuationFields(g, WordGet{words, next});
}
