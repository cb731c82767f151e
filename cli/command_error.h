#pragma once
// A command line that cannot be carried out as written. The text is what the
// `error` object says; nothing has been changed when it is thrown.

#include <stdexcept>
#include <string>

struct CommandError : std::runtime_error {
  explicit CommandError(const std::string& text) : std::runtime_error(text) {}
};
