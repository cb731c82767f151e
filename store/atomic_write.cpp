#include "store/atomic_write.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <random>
#include <system_error>

#include "dice/file_read.h"

namespace fs = std::filesystem;

namespace {

// ".NAME.PID.NUMBER.dmtmp": hidden, and the owner's process id tells a
// stale one from one being written.
constexpr const char* kTempSuffix = ".dmtmp";
constexpr int kMostLinks = 40;  // as the system's own limit on a chain of links

struct Fd {
  int fd = -1;
  ~Fd() {
    if (fd >= 0) ::close(fd);
  }
};

std::string Failed(const char* what, int error) { return std::string(what) + ": " + ErrnoReason(error); }

// The file a save replaces: the end of a chain of symbolic links.
fs::path FinalTarget(fs::path target) {
  std::error_code ec;
  for (int i = 0; i < kMostLinks && fs::is_symlink(target, ec); ++i) {
    const fs::path next = fs::read_symlink(target, ec);
    if (ec) break;
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return target;
}

uint64_t UniqueNumber() {
  static std::atomic<uint64_t> counter{std::random_device{}()};
  return counter.fetch_add(1) * 0x9E3779B97F4A7C15ull;
}

// A new temporary file beside the target, opened for writing.
bool CreateTemporary(const fs::path& target, fs::path& temp, Fd& out, std::string& reason) {
  for (int attempt = 0; attempt < 100; ++attempt) {
    temp = target.parent_path() / ("." + target.filename().string() + "." + std::to_string(::getpid()) + "." +
                                   std::to_string(UniqueNumber() % 1'000'000'000) + kTempSuffix);
    out.fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (out.fd >= 0) return true;
    if (errno != EEXIST) {
      reason = Failed("could not be written", errno);
      return false;
    }
  }
  reason = "could not be written: no free temporary name";
  return false;
}

bool WriteAll(int fd, const std::string& bytes) {
  size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<size_t>(n);
  }
  return true;
}

void SyncFolder(const fs::path& folder) {
  Fd dir{::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
  if (dir.fd >= 0) ::fsync(dir.fd);
}

bool ProcessAlive(long pid) { return pid > 0 && (::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM); }

}  // namespace

bool WriteFileAtomically(const fs::path& requested, const std::string& bytes, std::string& reason) {
  if (requested.filename().empty()) {
    reason = "is not a file name";
    return false;
  }
  const fs::path target = FinalTarget(requested);
  struct stat old {};
  const bool exists = ::stat(target.c_str(), &old) == 0;
  if (exists && S_ISDIR(old.st_mode)) {
    reason = "is a directory";
    return false;
  }
  if (exists && !S_ISREG(old.st_mode)) {
    reason = "is not a regular file (a device, pipe or socket)";
    return false;
  }
  fs::path temp;
  Fd out;
  if (!CreateTemporary(target, temp, out, reason)) return false;
  bool ok = true;
  if (exists && ::fchmod(out.fd, old.st_mode & 07777) != 0) ok = false, reason = Failed("could not be written", errno);
  if (ok && !WriteAll(out.fd, bytes)) ok = false, reason = Failed("could not be written", errno);
  if (ok && ::fsync(out.fd) != 0) ok = false, reason = Failed("could not be written", errno);
  const int closed = ::close(out.fd);
  out.fd = -1;
  if (ok && closed != 0) ok = false, reason = Failed("could not be written", errno);
  if (ok && ::rename(temp.c_str(), target.c_str()) != 0) ok = false, reason = Failed("could not be replaced", errno);
  if (!ok) {
    ::unlink(temp.c_str());
    return false;
  }
  SyncFolder(target.parent_path());
  return true;
}

bool WriteFileAtomically(const fs::path& target, const std::string& bytes) {
  std::string ignored;
  return WriteFileAtomically(target, bytes, ignored);
}

bool IsSaveTemporaryName(const std::string& name) {
  const std::string suffix = kTempSuffix;
  return name.size() > suffix.size() + 1 && name[0] == '.' &&
         name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0;
}

int RemoveStaleSaveTemporaries(const fs::path& folder) {
  std::error_code ec;
  int removed = 0;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    const std::string name = it->path().filename().string();
    if (!IsSaveTemporaryName(name)) continue;
    // The owner's id stands between the last two dots before the number.
    const std::string stem = name.substr(0, name.size() - std::string(kTempSuffix).size());
    const size_t numberDot = stem.rfind('.');
    const size_t pidDot = numberDot == std::string::npos || numberDot == 0 ? std::string::npos : stem.rfind('.', numberDot - 1);
    long pid = 0;
    if (pidDot != std::string::npos) pid = std::strtol(stem.c_str() + pidDot + 1, nullptr, 10);
    if (ProcessAlive(pid)) continue;
    std::error_code ignored;
    if (fs::remove(it->path(), ignored)) ++removed;
  }
  return removed;
}
