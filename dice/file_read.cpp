#include "dice/file_read.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>

#include "dice/money.h"

namespace {

struct Fd {
  int fd;
  ~Fd() {
    if (fd >= 0) ::close(fd);
  }
};

std::string OpenFailure(int error) {
  if (error == ENOENT) return "was not found";
  if (error == EISDIR) return "is a directory";
  return "could not be opened: " + ErrnoReason(error);
}

std::string KindReason(const struct stat& st) {
  if (S_ISDIR(st.st_mode)) return "is a directory";
  if (S_ISREG(st.st_mode)) return "";
  return "is not a regular file (a device, pipe or socket)";
}

std::string TooLarge(uintmax_t maxBytes) {
  return "is larger than " + FormatWithCommas(static_cast<int64_t>(maxBytes)) + " bytes, too large for its kind";
}

}  // namespace

std::string ErrnoReason(int error) {
  std::string text = std::strerror(error);
  if (!text.empty()) text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
  return text;
}

std::string NotARegularFileReason(const std::filesystem::path& path) {
  struct stat st {};
  if (::stat(path.c_str(), &st) != 0) return OpenFailure(errno);
  return KindReason(st);
}

bool ReadRegularFile(const std::filesystem::path& path, uintmax_t maxBytes, std::string& bytes, std::string& reason) {
  // Non-blocking, so that opening a pipe returns at once; it is refused below.
  Fd in{::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
  if (in.fd < 0) {
    reason = OpenFailure(errno);
    return false;
  }
  struct stat st {};
  if (::fstat(in.fd, &st) != 0) {
    reason = "could not be read: " + ErrnoReason(errno);
    return false;
  }
  if (reason = KindReason(st); !reason.empty()) return false;
  if (static_cast<uintmax_t>(st.st_size) > maxBytes) {
    reason = TooLarge(maxBytes);
    return false;
  }
  std::string read;
  read.resize(static_cast<size_t>(st.st_size));
  size_t got = 0;
  // The file may grow while read: one byte past the limit is enough to refuse.
  for (;;) {
    if (got == read.size()) read.resize(std::min<uintmax_t>(maxBytes + 1, read.size() * 2 + 4096));
    const ssize_t n = ::read(in.fd, read.data() + got, read.size() - got);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) {
      reason = "could not be read: " + ErrnoReason(errno);
      return false;
    }
    if (n == 0) break;
    got += static_cast<size_t>(n);
    if (got > maxBytes) {
      reason = TooLarge(maxBytes);
      return false;
    }
  }
  read.resize(got);
  bytes = std::move(read);
  return true;
}
