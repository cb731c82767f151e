#include "cli/interrupt.h"

#include <csignal>

namespace {

// A signal handler can only set a flag: the one piece of process state here.
volatile std::sig_atomic_t interrupted = 0;
extern "C" void OnInterruptWhileRunning(int) { interrupted = 1; }

}  // namespace

InterruptWhileRunning::InterruptWhileRunning() {
  interrupted = 0;
  previous_ = std::signal(SIGINT, OnInterruptWhileRunning);
}

InterruptWhileRunning::~InterruptWhileRunning() { std::signal(SIGINT, previous_); }

bool Interrupted() { return interrupted != 0; }
