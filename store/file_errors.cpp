#include "store/file_errors.h"

#include <fstream>
#include <system_error>

#include "engine/notices.h"

std::string FileNameErrorText() {
  return std::string("File name error, file not found, or device error.") + kBreak + "Check path and file name.";
}

void ShowFileNameError(Game& g) { ShowMessage(g, "Error", FileNameErrorText()); }

bool WriteFileAtomically(const std::filesystem::path& target, const std::string& bytes) {
  namespace fs = std::filesystem;
  if (target.filename().empty() || fs::is_directory(target)) return false;
  fs::path temp = target;
  temp += ".tmp";
  std::error_code ec;
  {
    std::ofstream out(temp, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
      fs::remove(temp, ec);
      return false;
    }
  }
  fs::rename(temp, target, ec);
  if (ec) fs::remove(temp, ec);
  return !ec;
}
