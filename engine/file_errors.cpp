#include "engine/file_errors.h"

#include "engine/notices.h"

std::string FileNameErrorText() {
  return std::string("File name error, file not found, or device error.") + kBreak + "Check path and file name.";
}

FileStatus FileNameErrorStatus() { return FileStatus::Failed("Error", FileNameErrorText()); }

namespace {

// The length of the UTF-8 sequence starting at `at`, 0 when it is not one.
size_t Utf8Length(const std::string& s, size_t at) {
  const auto byte = [&](size_t i) { return static_cast<unsigned char>(s[i]); };
  const unsigned char lead = byte(at);
  const size_t length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 0;
  if (length == 0 || at + length > s.size()) return 0;
  for (size_t i = 1; i < length; ++i)
    if ((byte(at + i) & 0xC0) != 0x80) return 0;
  return length;
}

}  // namespace

std::string PrintableName(const std::filesystem::path& path) {
  const std::string name = path.string();
  std::string shown;
  for (size_t at = 0; at < name.size();) {
    const size_t length = Utf8Length(name, at);
    const auto lead = static_cast<unsigned char>(name[at]);
    if (length == 0 || lead < 0x20 || lead == 0x7F) {
      shown += '?';
      ++at;
    } else {
      shown.append(name, at, length);
      at += length;
    }
  }
  return shown;
}

std::string FileErrorText(const std::filesystem::path& path, const std::string& reason) {
  return PrintableName(path) + " " + reason + "." + kBreak + FileNameErrorText();
}

FileStatus FileErrorStatus(const std::filesystem::path& path, const std::string& reason) {
  return FileStatus::Failed("Error", FileErrorText(path, reason));
}
