#pragma once
// The working status of every table bet, with the set of bets that work kept
// beside it: the statistics run by that set and must learn when it changes,
// so every write goes through Set.

#include <array>
#include <cstdint>

// 0 off, 1 working, 2 called ON, -1 called OFF.
namespace status {
constexpr int32_t kCalledOff = -1;
constexpr int32_t kOff = 0;
constexpr int32_t kWorking = 1;
constexpr int32_t kCalledOn = 2;
}  // namespace status

// Bit id of the set: bets 0..127 in two words.
struct WorkingSet {
  std::array<uint64_t, 2> bits{};
  bool Has(int id) const { return (bits[id >> 6] >> (id & 63)) & 1u; }
  friend bool operator==(const WorkingSet&, const WorkingSet&) = default;
};

class BetStatusTable {
 public:
  static constexpr int kSize = 101;

  int32_t operator[](int id) const { return status_[id]; }
  void Set(int id, int32_t value) {
    status_[id] = value;
    const uint64_t bit = uint64_t{1} << (id & 63);
    uint64_t& word = working_.bits[id >> 6];
    const uint64_t was = word;
    word = value >= status::kWorking ? word | bit : word & ~bit;
    if (word != was) ++flips_;
  }
  const WorkingSet& Working() const { return working_; }
  // Counts every change of the working set; a settlement compares it
  // before and after a bet's handling.
  uint32_t Flips() const { return flips_; }

  static constexpr int size() { return kSize; }
  auto begin() const { return status_.begin(); }
  auto end() const { return status_.end(); }

 private:
  std::array<int32_t, kSize> status_{};
  WorkingSet working_;
  uint32_t flips_ = 0;
};
