#pragma once
// Runs the built `dicemill-cli` as a user would, in a folder of its own,
// and keeps its exit status and both outputs.

#include "test_paths.h"
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "cli/temp_folder_for_test.h"

struct Ran {
  int status = -1;
  std::string out, err;
};

inline std::string Slurp(const std::filesystem::path& path) {
  std::stringstream s;
  s << std::ifstream(path).rdbuf();
  return s.str();
}

// A shell command run in the work folder; what it prints is kept.
inline Ran Shell(const TempFolder& work, const std::string& command) {
  const auto out = work.path() / "out.txt", err = work.path() / "err.txt";
  const std::string line =
      "cd '" + work.path().string() + "' && { " + command + "\n} > '" + out.string() + "' 2> '" + err.string() + "'";
  const int raw = std::system(line.c_str());
  return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, Slurp(out), Slurp(err)};
}

inline const std::string kCliPath = "'" DICEMILL_CLI_PATH "'";

// `args` go to the shell as written, after the program's path.
inline Ran Cli(const TempFolder& work, const std::string& args) { return Shell(work, kCliPath + " " + args); }

inline std::string SourcePath(const std::string& relative) {
  return "'" + std::string(DICEMILL_SOURCE_DIR) + "/" + relative + "'";
}
