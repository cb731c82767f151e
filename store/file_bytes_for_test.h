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
