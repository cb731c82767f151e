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

  int32_t operator[](int id) const { return status_[static_cast<size_t>(id)]; }
  void Set(int id, int32_t value) {
    const int8_t narrow = Narrow(value);
    if (status_[static_cast<size_t>(id)] == narrow) return;
    status_[static_cast<size_t>(id)] = narrow;
    Changed(id);
  }
  // The point is established: bets off by default work (bets first..last).
  void PointEstablished(int first, int last) {
    for (int id = first; id <= last; ++id) {
      int8_t& s = status_[static_cast<size_t>(id)];
      s = static_cast<int8_t>(s + (s == status::kOff));  // off becomes working, without a branch
    }
    Changed(kMany);
  }
  // The come-out: every bet not called takes its come-out status.
  void ComeOut(int first, int last, const std::array<int32_t, kSize>& comeOutStatus) {
    int id = first;
#if defined(__SSE2__)
    // Sixteen bets at a time: the come-out statuses narrowed to bytes as
    // Set narrows them, then taken wherever the bet is not called.
    const __m128i calledOn = _mm_set1_epi8(status::kCalledOn), calledOff = _mm_set1_epi8(status::kCalledOff);
    for (; id + 16 <= last + 1; id += 16) {
      auto four = [&](int at) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(&comeOutStatus[static_cast<size_t>(at)]));
      };
      const __m128i comeOut =
          _mm_packs_epi16(_mm_packs_epi32(four(id), four(id + 4)), _mm_packs_epi32(four(id + 8), four(id + 12)));
      __m128i* at = reinterpret_cast<__m128i*>(&status_[static_cast<size_t>(id)]);
      const __m128i now = _mm_loadu_si128(at);
      const __m128i called = _mm_or_si128(_mm_cmpeq_epi8(now, calledOn), _mm_cmpeq_epi8(now, calledOff));
      _mm_storeu_si128(at, _mm_or_si128(_mm_and_si128(called, now), _mm_andnot_si128(called, comeOut)));
    }
#endif
    for (; id <= last; ++id) {
      int8_t& s = status_[static_cast<size_t>(id)];
      if (s != status::kCalledOn && s != status::kCalledOff) s = Narrow(comeOutStatus[static_cast<size_t>(id)]);
    }
    Changed(kMany);
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
  // Whether the changes since `seen` were all to bet `id`: a bet's handling
  // mostly touches only the bet handled.
  bool OnlyChangedSince(uint32_t seen, int id) const { return changes_ == seen + 1 && lastChanged_ == id; }

  static constexpr int size() { return kSize; }
  auto begin() const { return status_.begin(); }
  auto end() const { return status_.begin() + kSize; }

 private:
  // A byte a status: a whole table's statuses fit in seven registers. Values
  // beyond a byte (only a damaged file could bring them) stay at its ends.
  static constexpr size_t kStored = 112;
  static_assert(kStored >= kSize && kStored % 16 == 0);
  using Statuses = std::array<int8_t, kStored>;

  static int8_t Narrow(int32_t value) { return static_cast<int8_t>(value < -128 ? -128 : value > 127 ? 127 : value); }

  static WorkingSet WorkingOf(const Statuses& status) {
    uint64_t low = 0, high = 0;
#if defined(__SSE2__)
    // Sixteen statuses compared at once, their signs gathered into sixteen bits.
    const __m128i off = _mm_setzero_si128();
    auto sixteen = [&](size_t id) -> uint64_t {
      const __m128i s = _mm_loadu_si128(reinterpret_cast<const __m128i*>(&status[id]));
      return static_cast<uint32_t>(_mm_movemask_epi8(_mm_cmpgt_epi8(s, off)));
    };
    for (size_t id = 0; id < 64; id += 16) low |= sixteen(id) << id;
    for (size_t id = 64; id < kStored; id += 16) high |= sixteen(id) << (id - 64);
#else
    for (size_t id = 0; id < 64; ++id) low |= uint64_t{status[id] >= status::kWorking} << id;
    for (size_t id = 64; id < kStored; ++id) high |= uint64_t{status[id] >= status::kWorking} << (id - 64);
#endif
    return WorkingSet{{low, high}};
  }

  static constexpr int kMany = -1;  // a change of many bets at once
  void Changed(int id) {
    stale_ = true;
    ++changes_;
    lastChanged_ = id;
  }

  Statuses status_{};  // kSize statuses, then zeros
  // Worked out on demand: a point's change rewrites every status at once.
  mutable WorkingSet working_;
  mutable bool stale_ = false;
  uint32_t changes_ = 0;
  int lastChanged_ = kMany;
};
