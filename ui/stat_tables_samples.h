#pragma once
// Realistic content for the pictures of Bet Trends, Games Log, Chip-Stacks
// and Flags: a session of Pass Line and Place bets on the table, a games log
// of finished sessions, and a stop-loss script that names a Chip-Stack and
// keeps Flags.

#include <string>

class Table;

// Writes "sample.glg" and "stop-loss.bet" into `folder` (a folder of the
// picture run's own) and leaves the table mid-session with both in use.
void FillSampleStatTables(Table& table, const std::string& folder);
