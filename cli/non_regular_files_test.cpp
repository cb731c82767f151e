// Every command that reads a file, given what is no regular file: a clear
// message and an error status, at once (a pipe never blocks it, a device
// never fills memory).

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "cli/cli_for_test.h"

namespace {

// Bounded by `timeout`: a command that hangs fails with 124 instead of
// holding up the suite.
Ran Bounded(const TempFolder& work, const std::string& args, const std::string& input = "") {
  std::ofstream(work.path() / "in.txt") << input;
  return Shell(work, "timeout 20 " + kCliPath + " " + args + " < in.txt");
}

TEST(SpecialPaths, ReadersRefuseWhatIsNoRegularFile) {
  TempFolder work;
  mkfifo((work.path() / "fifo").c_str(), 0600);
  std::filesystem::create_symlink("/dev/zero", work.path() / "zero");
  std::filesystem::create_directory(work.path() / "dir");
  const struct {
    const char* name;
    const char* reason;
  } files[] = {
      {"fifo", " is not a regular file (a device, pipe or socket)."},
      {"zero", " is not a regular file (a device, pipe or socket)."},
      {"dir", " is a directory."},
  };
  for (const auto& f : files) {
    const std::string name = f.name;
    for (const std::string& args : {"script check " + name, "run --quiet --rolls 10 --script " + name,
                                    "dice info " + name, "dice to-rol " + name + " out.rol", "games " + name}) {
      const Ran r = Bounded(work, args);
      EXPECT_TRUE(r.status == 1 || r.status == 2) << args << ": " << r.status << " " << r.err;
      EXPECT_NE(r.err.find(f.reason), std::string::npos) << args << ": " << r.err;
    }
    const Ran play = Bounded(work, "play --folder data", "prob open " + name + "\nopen " + name + "\nquit\n");
    EXPECT_EQ(play.status, 0) << play.err;
    EXPECT_NE(play.out.find(f.reason), std::string::npos) << name << ": " << play.out;
  }
}

}  // namespace
