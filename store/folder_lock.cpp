#include "store/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "engine/game.h"
#include "engine/notices.h"
#include "store/atomic_write.h"
#include "engine/file_errors.h"

DataFolderLock::~DataFolderLock() {
  if (fd_ >= 0) ::close(fd_);
}

bool DataFolderLock::Take(const std::filesystem::path& folder) {
  if (fd_ >= 0) return true;
  const int fd = ::open((folder / kFolderLockName).c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (fd < 0) return false;
  if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
    ::close(fd);
    return false;
  }
  fd_ = fd;
  return true;
}

void ClaimDataFolder(Game& g, DataFolderLock& lock, const std::filesystem::path& folder) {
  if (lock.Take(folder)) {
    g.DataFolderInUse = false;
    RemoveStaleSaveTemporaries(folder);
    return;
  }
  g.DataFolderInUse = true;
  ShowMessage(g, "Dicemill",
              PrintableName(folder) + " is in use by another Dicemill." + kBreak +
                  "This one reads its files but will not change them.");
}
