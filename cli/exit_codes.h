#pragma once
// The exit statuses of every `dicemill-cli` command.

enum ExitCode : int {
  kExitDone = 0,
  kExitFailed = 1,       // failed while running, a write that failed included
  kExitUsage = 2,        // refused before any work: a bad option, value or file
  kExitInterrupted = 130,  // Ctrl-C, as a shell reports SIGINT
};
