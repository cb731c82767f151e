#pragma once
// Whole files as bytes, for tests that write damaged files and compare
// what was saved.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline std::string ReadBytes(const std::filesystem::path& p) {
  std::ifstream in(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteBytes(const std::filesystem::path& p, const std::string& bytes) {
  std::ofstream(p, std::ios::binary | std::ios::trunc) << bytes;
}

#include <signal.h>
#include <sys/resource.h>

// While alive, no file of the process can grow past `bytes`: a write beyond
// fails as on a full disk (EFBIG instead of the signal).
class FileSizeLimitForTest {
 public:
  explicit FileSizeLimitForTest(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &old_);
    oldHandler_ = signal(SIGXFSZ, SIG_IGN);
    rlimit limited = old_;
    limited.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~FileSizeLimitForTest() {
    setrlimit(RLIMIT_FSIZE, &old_);
    signal(SIGXFSZ, oldHandler_);
  }
  FileSizeLimitForTest(const FileSizeLimitForTest&) = delete;
  FileSizeLimitForTest& operator=(const FileSizeLimitForTest&) = delete;

 private:
  rlimit old_{};
  sighandler_t oldHandler_{};
};
