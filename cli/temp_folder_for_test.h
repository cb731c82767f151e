#pragma once
// A fresh folder under the system's temporary folder, removed afterwards.

#include <stdlib.h>

#include <filesystem>
#include <string>

class TempFolder {
 public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "dicemill_test_XXXXXX").string();
    if (mkdtemp(pattern.data()) != nullptr) path_ = pattern;
  }
  ~TempFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};
