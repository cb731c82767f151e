#pragma once
// The working status of every table bet, with the set of bets that work
// worked out from it when asked: the statistics run by that set and must
// learn when it changes, so every write goes through this table.

#include <array>
#include <cstdint>
#include <cstring>

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
    if (status_[id] == value) return;
    status_[id] = value;
    Changed();
  }
  // The point is established: bets off by default work (bets first..last).
  void PointEstablished(int first, int last) {
    for (int id = first; id <= last; ++id) status_[id] = status_[id] == status::kOff ? status::kWorking : status_[id];
    Changed();
  }
  // The come-out: every bet not called takes its come-out status.
  void ComeOut(int first, int last, const std::array<int32_t, kSize>& comeOutStatus) {
    for (int id = first; id <= last; ++id) {
      const bool called = status_[id] == status::kCalledOn || status_[id] == status::kCalledOff;
      status_[id] = called ? status_[id] : comeOutStatus[id];
    }
    Changed();
  }

  const WorkingSet& Working() const {
    if (stale_) {
      // A byte per bet (the compiler compares them many at once), then
      // eight bytes of 0 or 1 gathered into eight bits by one multiply.
      std::array<uint8_t, 128> works{};
      for (int id = 0; id < kSize; ++id) works[id] = status_[id] >= status::kWorking;
      WorkingSet set;
      for (int chunk = 0; chunk < 16; ++chunk) {
        uint64_t bytes;
        std::memcpy(&bytes, &works[chunk * 8], sizeof bytes);
        set.bits[chunk >> 3] |= ((bytes * 0x0102040810204080ull) >> 56) << ((chunk & 7) * 8);
      }
      working_ = set;
      stale_ = false;
    }
    return working_;
  }
  // Counts the changes of any status; a settlement compares it before and
  // after a bet's handling.
  uint32_t Changes() const { return changes_; }

  static constexpr int size() { return kSize; }
  auto begin() const { return status_.begin(); }
  auto end() const { return status_.end(); }

 private:
  void Changed() {
    stale_ = true;
    ++changes_;
  }

  std::array<int32_t, kSize> status_{};
  // Worked out on demand: a point's change rewrites every status at once.
  mutable WorkingSet working_;
  mutable bool stale_ = false;
  uint32_t changes_ = 0;
};
