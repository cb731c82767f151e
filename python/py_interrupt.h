#pragma once
// Ctrl-C during a run started from Python. Python runs its signal handlers
// only on the main thread and only while it holds the GIL, so a run that
// released the GIL must come back to it now and then for Ctrl-C to act.

#include <pybind11/pybind11.h>

#include "sim/batch.h"

namespace py = pybind11;

// Plays the batch on a thread of its own while the caller waits in short
// slices with the GIL released, letting Python handle signals between them.
// A handler that raises (Ctrl-C's KeyboardInterrupt) stops the games, and
// its exception is raised here once they have stopped.
BatchResult RunBatchInterruptibly(const RunOptions& options, const Script& script, RunControl& control);
