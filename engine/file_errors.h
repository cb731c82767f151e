#pragma once
// What every file routine says when a file cannot be used.

#include <filesystem>
#include <string>

#include "dice/file_read.h"
#include "engine/file_status.h"

// "File name error, file not found, or device error." and "Check path and
// file name." on two lines.
std::string FileNameErrorText();
// The file-name error as a failed status titled "Error", for the caller to show.
FileStatus FileNameErrorStatus();
// A file name fit to show: control bytes and bytes that are not UTF-8 become
// "?", so that a name read from a damaged file never prints raw bytes.
std::string PrintableName(const std::filesystem::path& path);
// The sentence that names the file and what is wrong with it ("/x/rolls.rol
// is a directory."), then the file-name error.
std::string FileErrorText(const std::filesystem::path& path, const std::string& reason);
// FileErrorText as a failed status, titled "Error".
FileStatus FileErrorStatus(const std::filesystem::path& path, const std::string& reason);

