#include "engine/payoffs.h"

#include <array>
#include <cstdint>
#include <initializer_list>

#include "engine/game.h"
#include "engine/notices.h"

namespace {

constexpr Currency kForm = -1;  // "to": the form every built-in record takes
constexpr Currency kFor = 0;

PayoffRecord Record(int win, int per, Currency form = kForm) { return {win, form, per}; }

void SetRows(std::array<PayoffRecord, 22>& table, uint32_t rows, PayoffRecord value) {
  for (int row = 1; row <= 21; ++row)
    if (rows & (uint32_t{1} << row)) table[row] = value;
}

// --- Default table -----------------------------------------------------------

struct Ratio {
  int win, per;
};
// 4, 5, 6, 8, 9, 10 of a group of six.
constexpr std::array<Ratio, 6> kLayOdds = {{{1, 2}, {2, 3}, {5, 6}, {5, 6}, {2, 3}, {1, 2}}};
constexpr std::array<Ratio, 6> kTrueOdds = {{{2, 1}, {3, 2}, {6, 5}, {6, 5}, {3, 2}, {2, 1}}};
constexpr std::array<Ratio, 6> kPlaceOdds = {{{9, 5}, {7, 5}, {7, 6}, {7, 6}, {7, 5}, {9, 5}}};

void SetGroup(Game& g, int base, const std::array<Ratio, 6>& ratios) {
  for (int i = 0; i < 6; ++i) g.Payoff.Set(base + i, Record(ratios[i].win, ratios[i].per));
}

void SetBets(Game& g, std::initializer_list<int> ids, int win, int per = 1) {
  for (int id : ids) g.Payoff.Set(id, Record(win, per));
}

// --- Field presets -------------------------------------------------------------

// Field rows as a bit set, bit r for row r.
constexpr uint32_t Rows(std::initializer_list<int> rows) {
  uint32_t mask = 0;
  for (int row : rows) mask |= uint32_t{1} << row;
  return mask;
}

struct RowGroup {
  uint32_t rows = 0;
  PayoffRecord value;
};
struct FieldPreset {
  const char* caption;
  PayoffRecord base;
  std::array<RowGroup, 5> groups;
};

// The Pass Line family carries each come-out number at the expected value of
// the line bet once that number has been rolled: 4 and 10 at 1 to 3 against,
// 5 and 9 at 1 to 5, 6 and 8 at 1 to 11.
const std::array<FieldPreset, kFieldPresetCount>& FieldPresets() {
  static const std::array<FieldPreset, kFieldPresetCount> presets = {{
      {"&Field w/ 2x on Two and Twelve", Record(1, 1),
       {{{Rows({5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}), Record(-1, 1)}, {Rows({1, 21}), Record(2, 1)}}}},
      {"&Pass Line", Record(-1, 11),
       {{{Rows({1, 2, 21}), Record(-1, 1)},
         {Rows({3, 4, 18, 19}), Record(-1, 3)},
         {Rows({5, 6, 16, 17}), Record(-1, 5)},
         {Rows({10, 11, 12, 20}), Record(1, 1)}}}},
      {"&Don't Pass (bar 12)", Record(1, 11),
       {{{Rows({1, 2}), Record(1, 1)},
         {Rows({3, 4, 18, 19}), Record(1, 3)},
         {Rows({5, 6, 16, 17}), Record(1, 5)},
         {Rows({10, 11, 12, 20}), Record(-1, 1)},
         {Rows({21}), Record(0, 1)}}}},
      {"Place &6", Record(0, 1), {{{Rows({7, 8, 9}), Record(7, 6)}, {Rows({10, 11, 12}), Record(-1, 1)}}}},
      {"Place to &Lose 8", Record(0, 1),
       {{{Rows({10, 11, 12}), Record(4, 5)}, {Rows({13, 14, 15}), Record(-5, 5)}}}},
      {"Buy &10 (5 % vig)", Record(0, 1),
       {{{Rows({10, 11, 12}), Record(-1, 1)}, {Rows({18, 19}), Record(39, 21)}}}},
      {"Lay &4 (5% vig on win only)", Record(0, 1),
       {{{Rows({3, 4}), Record(-1, 1)}, {Rows({10, 11, 12}), Record(19, 41)}}}},
      {"H&ard 8", Record(0, 1), {{{Rows({10, 11, 12, 13, 14}), Record(-1, 1)}, {Rows({15}), Record(9, 1)}}}},
      {"&Horn", Record(-1, 1), {{{Rows({1, 21}), Record(27, 4, kFor)}, {Rows({2, 20}), Record(12, 4, kFor)}}}},
      {"&World", Record(-1, 1),
       {{{Rows({1, 21}), Record(26, 5, kFor)},
         {Rows({2, 20}), Record(11, 5, kFor)},
         {Rows({10, 11, 12}), Record(0, 5, kFor)}}}},
      {"H&op 13", Record(-1, 1), {{{Rows({3}), Record(15, 1)}}}},
      {"&Crapless Craps Pass Line", Record(-1, 11),
       {{{Rows({1, 21}), Record(-5, 7)},
         {Rows({2, 20}), Record(-1, 2)},
         {Rows({3, 4, 18, 19}), Record(-1, 3)},
         {Rows({5, 6, 16, 17}), Record(-1, 5)},
         {Rows({10, 11, 12}), Record(1, 1)}}}},
  }};
  return presets;
}

// --- The grid ------------------------------------------------------------------

// The labelled line families first, then the rest of the catalogue in order.
const std::array<int, kPayoffGridRows>& GridBets() {
  static const std::array<int, kPayoffGridRows> bets = [] {
    std::array<int, kPayoffGridRows> out{};
    int n = 0;
    auto add = [&](int first, int last) {
      for (int id = first; id <= last; ++id) out[n++] = id;
    };
    add(bet::kCome, bet::kCome);
    add(19, 30);
    add(bet::kDontCome, bet::kDontCome);
    add(7, 18);
    add(1, 6);
    add(31, 42);
    add(bet::kBig6, bet::kCraps);
    add(bet::kOver7, bet::kLastHop);
    return out;
  }();
  return bets;
}

bool InGrid(int betId) {
  for (int id : GridBets())
    if (id == betId) return true;
  return false;
}

PayoffRecord* EditableRecord(Game& g, PayoffTable table, int record) {
  if (table == PayoffTable::Field) return record >= 1 && record <= 21 ? &g.FieldPayoff.Edit()[record] : nullptr;
  return InGrid(record) ? &g.Payoff.Edit()[record] : nullptr;
}

bool IsForForm(const PayoffRecord& p) { return p.Form == 0; }

// The grid label of the line families, which the line bets share.
std::string LineLabel(int betId) {
  if (betId == bet::kCome) return "Passline/Come (c.o.)";
  if (betId == bet::kDontCome) return "Don't Pass/Come (c.o.)";
  if (bet::IsComeNumber(betId)) return "Pass/Come " + std::to_string(bet::NumberAt(betId - 19));
  if (bet::IsComeOdds(betId)) return "Pass/Come " + std::to_string(bet::NumberAt(betId - 25)) + " Odds";
  if (bet::IsDontComeNumber(betId)) return "DP/DC " + std::to_string(bet::NumberAt(betId - 7));
  if (bet::IsDontComeOdds(betId)) return "DP/DC " + std::to_string(bet::NumberAt(betId - 13)) + " Odds";
  return "";
}

// Error titles write out the flat line families only; odds rows go by the
// bet's own name.
std::string ErrorTitleLabel(const Game& g, int betId) {
  if (betId == bet::kCome || betId == bet::kDontCome || bet::IsComeNumber(betId) || bet::IsDontComeNumber(betId))
    return LineLabel(betId);
  return g.BetName[betId];
}

bool Fail(Game& g, PayoffFault* fault, PayoffTable table, int row, const std::string& title,
          const std::string& text) {
  if (fault) *fault = {table, row};
  ShowMessage(g, title, text, Buttons::Ok);
  return false;
}

}  // namespace

void RestoreDefaultPayoffs(Game& g) {
  for (int id = bet::kFirstTableBet; id <= bet::kLastTableBet; ++id) g.Payoff.Set(id, Record(1, 1));
  for (int row = 1; row <= 21; ++row) g.FieldPayoff.Set(row, Record(1, 1));

  SetGroup(g, bet::kLayBase, kLayOdds);
  SetGroup(g, bet::kDontComeOddsBase, kLayOdds);
  SetGroup(g, bet::kComeOddsBase, kTrueOdds);
  SetGroup(g, bet::kPlaceBase, kPlaceOdds);
  SetGroup(g, bet::kBuyBase, kTrueOdds);
  SetBets(g, {bet::kHard4, bet::kHard10}, 7);
  SetBets(g, {bet::kHard6, bet::kHard8}, 9);
  SetBets(g, {bet::kTwo, bet::kTwelve}, 30);
  SetBets(g, {bet::kThree, bet::kEleven}, 15);
  SetBets(g, {bet::kSeven}, 4);
  SetBets(g, {bet::kCraps}, 7);
  SetBets(g, {bet::kCandE}, 1, 2);
  SetBets(g, {bet::kHorn}, 1, 4);
  SetBets(g, {bet::kWorld}, 1, 5);
  for (int id = bet::kFirstHop; id <= bet::kLastHop; ++id) {
    bet::HopPair faces = bet::HopFaces(id);
    g.Payoff.Set(id, Record(faces.low == faces.high ? 30 : 15, 1));
  }

  if (g.Point != 0) SyncOddsPayoffs(g);

  SetFieldPreset(g, 0);  // the Field's own table is the first preset
}

bool SetFieldPreset(Game& g, int preset) {
  if (preset < 0 || preset >= kFieldPresetCount) return false;
  const FieldPreset& p = FieldPresets()[preset];
  std::array<PayoffRecord, 22> rows = g.FieldPayoff.Rows();
  for (int row = 1; row <= 21; ++row) rows[row] = p.base;
  for (const RowGroup& group : p.groups) SetRows(rows, group.rows, group.value);
  if (rows != g.FieldPayoff.Rows()) g.FieldPayoff.Edit() = rows;
  return true;
}

const char* FieldPresetCaption(int preset) {
  if (preset < 0 || preset >= kFieldPresetCount) return "";
  return FieldPresets()[preset].caption;
}

void SyncOddsPayoffs(Game& g) {
  if (!bet::IsPointNumber(g.Point)) return;
  int i = bet::NumberIndex(g.Point);
  // Shown with the line odds; their decisions pay by the number's own rows.
  g.Payoff.Quiet(bet::kPassOdds) = g.Payoff[bet::kComeOddsBase + i];
  g.Payoff.Quiet(bet::kDontPassOdds) = g.Payoff[bet::kDontComeOddsBase + i];
}

int PayoffGridBet(int row) { return row >= 1 && row <= kPayoffGridRows ? GridBets()[row - 1] : 0; }

std::string PayoffRowLabel(const Game& g, int betId) {
  std::string label = LineLabel(betId);
  if (!label.empty()) return label;
  return betId >= 0 && betId < bet::kSlots ? g.BetName[betId] : "";
}

const char* FieldRowLabel(int row) {
  static constexpr std::array<const char*, 22> kLabels = {
      "",
      "2    (1-1)",        "3    (1-2) (2-1)", "4    (1-3) (3-1)", "4    (2-2)",
      "5    (1-4) (4-1)",  "5    (2-3) (3-2)", "6    (1-5) (5-1)", "6    (2-4) (4-2)",
      "6    (3-3)",        "7    (1-6) (6-1)", "7    (2-5) (5-2)", "7    (3-4) (4-3)",
      "8    (2-6) (6-2)",  "8    (3-5) (5-3)", "8    (4-4)",       "9    (3-6) (6-3)",
      "9    (4-5) (5-4)",  "10   (4-6) (6-4)", "10   (5-5)",       "11   (5-6) (6-5)",
      "12   (6-6)",
  };
  return row >= 1 && row <= 21 ? kLabels[row] : "";
}

Currency PayoffShownAmount(const PayoffRecord& p) { return IsForForm(p) ? p.Win + p.Per : p.Win; }

const char* PayoffFormWord(const PayoffRecord& p) { return IsForForm(p) ? "for" : "to"; }

std::string PayoffWording(const std::string& lead, const PayoffRecord& p) {
  return lead + FormatNumberWithCommas(PayoffShownAmount(p)) + " " + PayoffFormWord(p) + " " +
         FormatNumberWithCommas(p.Per) + ":";
}

bool EditPayoff(Game& g, PayoffTable table, int record, int column, Currency typed) {
  PayoffRecord* p = EditableRecord(g, table, record);
  if (!p) return false;
  if (column == 0) {
    p->Win = IsForForm(*p) ? typed - p->Per : typed;
  } else if (column == 2) {
    if (typed <= 0) return false;  // Per divides every payoff
    if (IsForForm(*p)) p->Win = p->Win + p->Per - typed;  // the shown total stays
    p->Per = typed;
  } else {
    return false;
  }
  g.Ui->RefreshTable();  // the layout prints some payoffs
  return true;
}

bool EditPayoff(Game& g, PayoffTable table, int record, int column, char key) {
  PayoffRecord* p = EditableRecord(g, table, record);
  if (!p || column != 1) return false;
  if ((key == 't' || key == 'T') && IsForForm(*p)) {
    p->Form = kForm;
  } else if ((key == 'f' || key == 'F') && !IsForForm(*p)) {
    p->Form = kFor;
  } else {
    return false;
  }
  g.Ui->RefreshTable();
  return true;
}

bool ValidatePayoffs(Game& g, PayoffFault* fault) {
  for (int row = 1; row <= kPayoffGridRows; ++row) {
    int id = PayoffGridBet(row);
    if (g.Payoff[id].Win == 0)
      return Fail(g, fault, PayoffTable::Bets, row, "Payoff ratio error on " + ErrorTitleLabel(g, id),
                  "The payoff must be a positive amount.");
  }
  bool anyWins = false;
  for (int row = 1; row <= 21; ++row) {
    const PayoffRecord& p = g.FieldPayoff[row];
    if (p.Win < -p.Per)
      return Fail(g, fault, PayoffTable::Field, row, "Payoff ratio error on Field",
                  "The loss on any Field payoff cannot exceed the amount wagered.");
    if (p.Win > 0) anyWins = true;
  }
  if (!anyWins)
    return Fail(g, fault, PayoffTable::Field, 1, "Payoff error on Field",
                "At least one of the Field payoffs must be postiive.");
  return true;
}
