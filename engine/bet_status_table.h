#pragma once
// The working status of every table bet, with the set of bets that work
// worked out from it when asked: the statistics run by that set and must
// learn when it changes, so every write goes through this table.

#include <array>
#include <cstdint>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "engine/slot_bits.h"

// 0 off, 1 working, 2 called ON, -1 called OFF.
namespace status {
constexpr int32_t kCalledOff = -1;
constexpr int32_t kOff = 0;
constexpr int32_t kWorking = 1;
constexpr int32_t kCalledOn = 2;
}  // namespace status

// The working bets, 0..127.
using WorkingSet = SlotBits<2>;

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
    // Distinct arrays: the loop then works on many bets at once.
    int32_t* __restrict now = status_.data();
    const int32_t* __restrict comeOut = comeOutStatus.data();
    for (int id = first; id <= last; ++id) {
      const int32_t s = now[id], c = comeOut[id];  // both read, so that no branch is needed
      const bool called = s == status::kCalledOn || s == status::kCalledOff;
      now[id] = called ? s : c;
    }
    Changed();
  }

  const WorkingSet& Working() const {
    if (stale_) {
      working_ = WorkingOf(status_);
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
  static WorkingSet WorkingOf(const std::array<int32_t, kSize>& status) {
    // Each word gathered in a register of its own: or-ing into memory would
    // chain every step on the last one's store.
    uint64_t low = 0, high = 0;
#if defined(__SSE2__)
    // Four statuses compared at once, the results' signs gathered into four bits.
    const __m128i off = _mm_set1_epi32(status::kOff);
    auto four = [&](int id) -> uint64_t {
      const __m128i s = _mm_loadu_si128(reinterpret_cast<const __m128i*>(&status[id]));
      return static_cast<uint32_t>(_mm_movemask_ps(_mm_castsi128_ps(_mm_cmpgt_epi32(s, off))));
    };
    for (int id = 0; id < 64; id += 4) low |= four(id) << id;
    for (int id = 64; id + 4 <= kSize; id += 4) high |= four(id) << (id - 64);
    for (int id = kSize / 4 * 4; id < kSize; ++id) high |= uint64_t{status[id] >= status::kWorking} << (id - 64);
#else
    for (int id = 0; id < 64; ++id) low |= uint64_t{status[id] >= status::kWorking} << id;
    for (int id = 64; id < kSize; ++id) high |= uint64_t{status[id] >= status::kWorking} << (id - 64);
#endif
    return WorkingSet{{low, high}};
  }

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
