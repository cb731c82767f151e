#pragma once
// Ctrl-C while a `play` command runs: the roll or script pass under way
// stops and the session goes on. Between commands Ctrl-C ends the program
// as usual.

// While alive, SIGINT sets the flag that Interrupted() reads instead of
// ending the program.
class InterruptWhileRunning {
 public:
  InterruptWhileRunning();
  ~InterruptWhileRunning();
  InterruptWhileRunning(const InterruptWhileRunning&) = delete;
  InterruptWhileRunning& operator=(const InterruptWhileRunning&) = delete;

 private:
  void (*previous_)(int);
};

bool Interrupted();
