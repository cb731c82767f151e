#pragma once
// The long runs that pin results and measure the roll loop: the empty table,
// every sample strategy and the busy table, each from its own fixed seed, in
// Hyper-Drive as `dicemill-cli run` plays them.

#include <array>
#include <cstdint>

#include "sim/game_run.h"

enum class Layout { Empty, Sample, Busy };

struct LongRun {
  const char* Name;  // the sample's file name without ".txt" where Layout::Sample
  Layout Kind;
};

inline constexpr std::array<LongRun, 8> kLongRuns = {{
    {"empty-table", Layout::Empty},
    {"pass-line-full-odds", Layout::Sample},
    {"three-point-molly", Layout::Sample},
    {"iron-cross", Layout::Sample},
    {"place-6-8-press", Layout::Sample},
    {"dont-pass-stop-loss", Layout::Sample},
    {"field-martingale", Layout::Sample},
    {"busy-table", Layout::Busy},
}};

struct PlayedRun {
  RunOptions Options;
  GameResult Result;
};

// Plays `rolls` rolls of the run; `watcher` (may be null) sees the table
// whenever it lets input run, before the busy table's player refills it.
// Throws std::runtime_error when a sample can't be read.
PlayedRun PlayLongRun(const LongRun& run, int64_t rolls, TableWatcher* watcher);
