#pragma once
// The sections of a game file after the link records, each written and read
// by one pair of functions in the same order. A reader past the end of the
// file gets zeros.

#include "store/game_record.h"

struct Game;

// Records 6 to 15: window state, settings, rules, Auto-Play, handling
// amounts, table state, dice and seeds.
void WriteSettingsRecords(const Game& g, RecordWriter& w);
void ReadSettingsRecords(Game& g, RecordReader& r);

// The money tables, the vig, the come-out status and the payoffs.
void WriteTableRecords(const Game& g, RecordWriter& w);
void ReadTableRecords(Game& g, RecordReader& r);

// The statistics and results tables: see game_file_statistics.cpp.
void WriteStatisticsRecords(const Game& g, RecordWriter& w);
void ReadStatisticsRecords(Game& g, RecordReader& r);

// Chip-Stack names, the roll history and the script's state.
void WriteScriptRecords(const Game& g, RecordWriter& w);
void ReadScriptRecords(Game& g, RecordReader& r);
// The Flags are rebuilt when the linked script is opened; their values are
// put back from the file afterwards.
void RestoreFlagValues(Game& g);

// After the last record: the full state of every generator and what else a
// reopened game needs to go on exactly as if it had never stopped. A file
// without it leaves the streams as they are.
void WriteContinuationRecords(const Game& g, RecordWriter& w);
void ReadContinuationRecords(Game& g, RecordReader& r);
// The records the continuation takes when `marker` starts a whole one of this
// program's format, marker included; 0 when it does not.
int ContinuationRecordCount(const FileRecord& marker);

// Values that index tables or steer the roll, brought into their ranges so
// that a damaged file can never take the engine out of bounds.
void KeepStateInRange(Game& g);
