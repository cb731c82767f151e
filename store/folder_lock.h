#pragma once
// One Dicemill at a time in a data folder: the first to open the folder
// holds a lock on a file in it until it stops (or dies: the system drops the
// lock with the process). Another is told, and leaves the folder's files be.

#include <filesystem>
#include <string>

struct Game;

inline constexpr const char* kFolderLockName = "dicemill.lock";

class DataFolderLock {
 public:
  DataFolderLock() = default;
  ~DataFolderLock();
  DataFolderLock(const DataFolderLock&) = delete;
  DataFolderLock& operator=(const DataFolderLock&) = delete;

  // False when another process (or another lock in this one) holds it.
  bool Take(const std::filesystem::path& folder);
  bool Held() const { return fd_ >= 0; }

 private:
  int fd_ = -1;
};

// What a front end does before the start-up reads the folder: takes the
// lock and clears the temporary files of saves that crashed; or, with the
// folder in use, says so and marks the game so that nothing is written there.
void ClaimDataFolder(Game& g, DataFolderLock& lock, const std::filesystem::path& folder);
