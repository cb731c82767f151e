#pragma once
// `run --bankroll-csv`: the bankroll of every roll of every game, streamed to
// disk as the games play, so memory stays flat however long they are.
//
// "game,seed,roll,bankroll", then one row per roll of each game in game
// order, roll 0 being the starting bankroll. Each game writes to a part file
// of its own beside the target (unlinked at once, so a crash leaves nothing);
// finished parts join the output in game order, and the output is renamed
// over the target at the end.

#include <atomic>
#include <cstdio>
#include <mutex>
#include <string>
#include <vector>

#include "sim/game_run.h"
#include "engine/file_status.h"

class BankrollCsvWriter : public BankrollSeriesOut {
 public:
  ~BankrollCsvWriter() override;
  // Starts the output beside `path`; a failure, one line naming the path,
  // when the folder cannot take it.
  FileStatus Open(const std::string& path, int64_t firstSeed, int64_t firstGame, int games);
  void Add(int64_t gameIndex, Currency bankroll) override;
  void EndGame(int64_t gameIndex) override;
  // Joins what is left and renames the output over the target.
  FileStatus Finish();

 private:
  struct Part {
    std::FILE* file = nullptr;
    int64_t rolls = 0;
    bool ended = false;
  };
  std::FILE* MakeHiddenFile();
  void JoinFinishedParts();  // under lock_
  void Fail();

  std::string path_, tempPath_;
  int64_t firstSeed_ = 0, firstGame_ = 0;
  std::FILE* out_ = nullptr;
  std::vector<Part> parts_;
  size_t nextToJoin_ = 0;
  std::atomic<int> failure_{0};  // the errno of the first failed write
  std::mutex lock_;
};

// A plain decimal without separators: "512", "-3.25", "0.0125".
std::string PlainAmount(Currency amount);
