// The tables after record 15: the money slots and their two snapshots, the
// contract baseline, the vig, the come-out status and the payoffs.

#include "engine/game.h"
#include "store/game_file_sections.h"

namespace {

// 201 entries in nine records: blocks of 25 in slots 0..24, and entry 200
// alone in slot 25 of the ninth.
constexpr int kBlock = 25;
constexpr int kBlocks = 8;

void WriteMoneySlots(RecordWriter& w, const std::array<Currency, bet::kSlots>& table) {
  for (int b = 0; b < kBlocks; ++b) {
    FileRecord& r = w.Add();
    for (int i = 0; i < kBlock; ++i) PutCurrency(r, i, table[static_cast<size_t>(b * kBlock + i)]);
  }
  PutCurrency(w.Add(), kBlock, table[bet::kSlots - 1]);
}

void ReadMoneySlots(RecordReader& reader, std::array<Currency, bet::kSlots>& table) {
  for (int b = 0; b < kBlocks; ++b) {
    const FileRecord r = reader.Next();
    for (int i = 0; i < kBlock; ++i) table[static_cast<size_t>(b * kBlock + i)] = GetCurrency(r, i);
  }
  table[bet::kSlots - 1] = GetCurrency(reader.Next(), kBlock);
}

// The contract baseline, 0..46: three records of 23 entries, then entry 46.
constexpr int kCommittedBlock = 23;
constexpr int kLastCommitted = 46;

void WriteCommitted(RecordWriter& w, const std::array<Currency, 47>& table) {
  for (int b = 0; b < 3; ++b) {
    FileRecord& r = w.Add();
    for (int i = 0; i < kCommittedBlock && b * kCommittedBlock + i < kLastCommitted; ++i)
      PutCurrency(r, i, table[static_cast<size_t>(b * kCommittedBlock + i)]);
  }
  PutCurrency(w.Add(), kCommittedBlock, table[kLastCommitted]);
}

void ReadCommitted(RecordReader& reader, std::array<Currency, 47>& table) {
  for (int b = 0; b < 3; ++b) {
    const FileRecord r = reader.Next();
    for (int i = 0; i < kCommittedBlock && b * kCommittedBlock + i < kLastCommitted; ++i)
      table[static_cast<size_t>(b * kCommittedBlock + i)] = GetCurrency(r, i);
  }
  table[kLastCommitted] = GetCurrency(reader.Next(), kCommittedBlock);
}

// Win of every row, then Form, then Per, 32 to a record.
template <size_t N>
void WritePayoffs(RecordWriter& w, const std::array<PayoffRecord, N>& rows) {
  std::vector<Currency> values;
  for (Currency PayoffRecord::*field : {&PayoffRecord::Win, &PayoffRecord::Form, &PayoffRecord::Per})
    for (size_t row = 1; row < N; ++row) values.push_back(rows[row].*field);
  w.AddCurrencies(values);
}

template <size_t N>
void ReadPayoffs(RecordReader& reader, std::array<PayoffRecord, N>& rows) {
  const std::vector<Currency> values = reader.NextCurrencies(3 * (N - 1));
  size_t k = 0;
  for (Currency PayoffRecord::*field : {&PayoffRecord::Win, &PayoffRecord::Form, &PayoffRecord::Per})
    for (size_t row = 1; row < N; ++row) rows[row].*field = values[k++];
}

}  // namespace

void WriteTableRecords(const Game& g, RecordWriter& w) {
  WriteMoneySlots(w, g.BetAmount.All());
  WriteMoneySlots(w, g.BetAtRollStart());
  WriteMoneySlots(w, g.BetAfterRoll());
  WriteCommitted(w, g.CommittedAmounts());

  FileRecord& vig = w.Add();
  for (int n = 1; n <= 6; ++n) {
    PutCurrency(vig, n, g.LayVigOnBet[static_cast<size_t>(n - 1)]);
    PutCurrency(vig, n + 6, g.BuyVigOnBet[static_cast<size_t>(n - 1)]);
  }
  FileRecord& comeOut = w.Add();
  for (int id = 0; id <= 100; ++id) PutInt16(comeOut, id, g.WorkOnComeOut[static_cast<size_t>(id)]);
  w.Add();  // the per-bet table of the bet results, which are not kept yet

  WritePayoffs(w, g.Payoff.Rows());
  WritePayoffs(w, g.FieldPayoff.Rows());
}

void ReadTableRecords(Game& g, RecordReader& r) {
  Game::Amounts amounts;
  ReadMoneySlots(r, amounts);
  g.BetAmount.Assign(amounts);
  ReadMoneySlots(r, g.EditAtRollStart());
  ReadMoneySlots(r, g.EditAfterRoll());
  Game::CommittedTable committed;
  ReadCommitted(r, committed);
  g.SetAllCommitted(committed);

  const FileRecord vig = r.Next();
  for (int n = 1; n <= 6; ++n) {
    g.LayVigOnBet[static_cast<size_t>(n - 1)] = GetCurrency(vig, n);
    g.BuyVigOnBet[static_cast<size_t>(n - 1)] = GetCurrency(vig, n + 6);
  }
  const FileRecord comeOut = r.Next();
  for (int id = 0; id <= 100; ++id) g.WorkOnComeOut[static_cast<size_t>(id)] = GetInt16(comeOut, id);
  r.Next();

  ReadPayoffs(r, g.Payoff.Edit());
  ReadPayoffs(r, g.FieldPayoff.Edit());
}
