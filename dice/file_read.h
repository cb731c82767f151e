#pragma once
// Reading a whole file without trusting it: only a regular file is read (a
// directory, device or pipe is refused before any byte is taken, and a pipe
// never blocks), and no more bytes than its kind can sensibly hold.

#include <cstdint>
#include <filesystem>
#include <string>

// Largest files of each kind: far above anything the program writes, far
// below what would exhaust memory.
constexpr uintmax_t kMaxGameFileBytes = 8u << 20;
constexpr uintmax_t kMaxGamesLogBytes = 256u << 20;  // about a million games
constexpr uintmax_t kMaxScriptFileBytes = 16u << 20;
constexpr uintmax_t kMaxSmallFileBytes = 1u << 20;  // Hot-Keys, probabilities

// The whole file into `bytes`. False with `reason` set to what a sentence
// after the file name says ("is a directory", "was not found", ...).
bool ReadRegularFile(const std::filesystem::path& path, uintmax_t maxBytes, std::string& bytes, std::string& reason);

// Why `path` can't be read as a file, or "" when it is a regular file. Lets a
// reader that streams (a Dice Roll File) refuse what would hang it.
std::string NotARegularFileReason(const std::filesystem::path& path);

// The reason of a failed system call, in lower case: "no space left on device".
std::string ErrnoReason(int error);
