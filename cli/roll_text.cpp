#include "cli/roll_text.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

#include "engine/dice_roll_files.h"

namespace {

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

bool IsSeparator(int c) { return std::strchr(" \t\r\n,-()", c) != nullptr && c != '\0'; }

std::string Place(int64_t line, int64_t column) {
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

std::string Shown(int c) {
  if (c >= 0x20 && c < 0x7f) return "\"" + std::string(1, static_cast<char>(c)) + "\"";
  char hex[8];
  std::snprintf(hex, sizeof hex, "0x%02X", c);
  return "the byte " + std::string(hex);
}

}  // namespace

int64_t ConvertRollText(const std::string& textPath, const std::string& rolPath, std::string& error) {
  FilePtr in(std::fopen(textPath.c_str(), "rb"));
  if (!in) {
    error = textPath + ": cannot be read: " + std::strerror(errno);
    return -1;
  }
  std::string temp = rolPath + ".XXXXXX";
  const int fd = mkstemp(temp.data());
  FilePtr out(fd >= 0 ? fdopen(fd, "wb") : nullptr);
  if (!out) {
    error = rolPath + ": cannot be written: " + std::strerror(errno);
    if (fd >= 0) close(fd), std::remove(temp.c_str());
    return -1;
  }
  auto fail = [&](const std::string& why) {
    out.reset();
    std::remove(temp.c_str());
    error = why;
    return int64_t{-1};
  };
  int64_t line = 1, column = 0, rolls = 0, firstLine = 0, firstColumn = 0;
  int first = 0;  // Die 1 of a roll still waiting for Die 2
  for (int c; (c = std::getc(in.get())) != EOF;) {
    ++column;
    if (c >= '1' && c <= '6') {
      if (first == 0) {
        first = c - '0', firstLine = line, firstColumn = column;
        continue;
      }
      std::putc(RollByte(first, c - '0'), out.get());
      first = 0;
      ++rolls;
    } else if (c >= '0' && c <= '9') {
      return fail(textPath + ": " + Place(line, column) + ": " + Shown(c) + " is no die face (1 to 6)");
    } else if (!IsSeparator(c)) {
      return fail(textPath + ": " + Place(line, column) + ": " + Shown(c) +
                  " is neither a die face nor a separator (space, comma, hyphen, parenthesis)");
    }
    if (c == '\n') ++line, column = 0;
  }
  if (std::ferror(in.get())) return fail(textPath + ": cannot be read: " + std::strerror(errno));
  if (first != 0)
    return fail(textPath + ": " + Place(firstLine, firstColumn) + ": the last roll has one die only");
  if (std::fflush(out.get()) != 0 || std::ferror(out.get()) || fsync(fileno(out.get())) != 0)
    return fail(rolPath + ": cannot be written: " + std::strerror(errno));
  out.reset();
  if (std::rename(temp.c_str(), rolPath.c_str()) != 0) return fail(rolPath + ": cannot be written: " + std::strerror(errno));
  return rolls;
}
