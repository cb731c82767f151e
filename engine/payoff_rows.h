#pragma once
// A table of payoff rows that knows when it was changed: the statistics
// figure the results of the phantom wagers from these rows, and keep their
// figures only while the rows stay as they were.

#include <array>
#include <cstdint>

#include "dice/money.h"

// A payoff: a winner nets Win for each Per bet. Form -1 shows it as "Win to
// Per", 0 as "Win+Per for Per"; it never changes the money.
struct PayoffRecord {
  Currency Win = 1;
  Currency Form = -1;
  Currency Per = 1;
  friend bool operator==(const PayoffRecord&, const PayoffRecord&) = default;
};

template <size_t N>
class PayoffRows {
 public:
  const PayoffRecord& operator[](int row) const { return rows_[row]; }
  // Every change goes through here; the version moves with it.
  std::array<PayoffRecord, N>& Edit() {
    ++version_;
    return rows_;
  }
  void Set(int row, const PayoffRecord& record) {
    if (rows_[row] == record) return;
    Edit()[row] = record;
  }
  // A row changed without moving the version: only for rows that no
  // decision reads (the scratch row of the bet being settled, the copies
  // that the line odds show).
  PayoffRecord& Quiet(int row) { return rows_[row]; }
  uint32_t Version() const { return version_; }

  const std::array<PayoffRecord, N>& Rows() const { return rows_; }
  static constexpr size_t size() { return N; }
  auto begin() const { return rows_.begin(); }
  auto end() const { return rows_.end(); }

 private:
  std::array<PayoffRecord, N> rows_{};
  uint32_t version_ = 0;
};
