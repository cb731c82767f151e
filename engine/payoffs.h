#pragma once
// The payoff tables: defaults, Field presets, the line odds that follow the
// point, cell editing and validation.

#include <string>

#include "dice/money.h"

struct Game;
struct PayoffRecord;

void RestoreDefaultPayoffs(Game& g);

// Field presets in menu order, 0..11 ("&Field w/ 2x on Two and Twelve" first).
constexpr int kFieldPresetCount = 12;
// Overwrites all 21 Field rows; false (and nothing changed) for an unknown preset.
bool SetFieldPreset(Game& g, int preset);
// The menu caption of a preset, "" for an unknown one.
const char* FieldPresetCaption(int preset);

// Records 44 and 47 take the Come Odds and Don't Come Odds rows of the point.
// Nothing changes on the come-out.
void SyncOddsPayoffs(Game& g);

// The payoff grid: 75 rows bound to BetIds. The bets missing from it take
// their payoff from other rows (line bets, their odds, the split props) or
// from the Field table.
constexpr int kPayoffGridRows = 75;
// BetId shown on grid row 1..75, 0 outside the grid.
int PayoffGridBet(int row);
// The grid label of a payoff row ("Pass/Come 4", "DP/DC 6 Odds", a bet's name).
std::string PayoffRowLabel(const Game& g, int betId);
// The label of Field row 1..21, "2    (1-1)" and so on.
const char* FieldRowLabel(int row);

// How a record is shown: the first cell (Win, or Win+Per in the "for" form)
// and the word between the cells.
Currency PayoffShownAmount(const PayoffRecord& p);
const char* PayoffFormWord(const PayoffRecord& p);
// lead, the shown amount, " to " or " for ", Per and ":" -- the one wording
// of a payoff in every notice ("Payoff at 7 to 6:").
std::string PayoffWording(const std::string& lead, const PayoffRecord& p);

// Cell edits of the grid. `record` is the BetId in the bet table and the row
// 1..21 in the Field table; columns are 0 (amount), 1 (form word), 2 (Per).
enum class PayoffTable { Bets, Field };
// A typed value into column 0 or 2. False, with the record untouched, for a
// record or column that cannot be edited or a Per that is not above zero.
bool EditPayoff(Game& g, PayoffTable table, int record, int column, Currency typed);
// A key on column 1: "t" switches a "for" record to "to", "f" the other way.
// False when the key changes nothing.
bool EditPayoff(Game& g, PayoffTable table, int record, int column, char key);

// Where validation found its fault: a grid row (1..75) or a Field row (1..21).
struct PayoffFault {
  PayoffTable table = PayoffTable::Bets;
  int row = 0;
};
// The last step of ValidateConfiguration: false, after one message, at the
// first fault, which is left in *fault when given.
bool ValidatePayoffs(Game& g, PayoffFault* fault = nullptr);
