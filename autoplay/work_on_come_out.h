#pragma once
// Which bets work on the come-out roll, edited over a selection of bets.

#include <string>
#include <vector>

struct Game;

// The row of the list for a bet: its name, then " - Yes" or " - No".
std::string WorkOnComeOutRow(const Game& g, int betId);
// Every table bet, as Select All chooses them.
std::vector<int> SelectAllBets();
// Yes and No set the selected bets working or off; Default restores each to
// the catalogue's value. Bets outside 1..83 are passed over. During the
// come-out, a bet not called ON or OFF takes its new status at once.
void SetWorkOnComeOut(Game& g, const std::vector<int>& selection, bool works);
void SetWorkOnComeOutDefault(Game& g, const std::vector<int>& selection);
