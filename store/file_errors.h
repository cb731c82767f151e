#pragma once
// What every file routine says and does when a file cannot be used.

#include <filesystem>
#include <string>

struct Game;

// "File name error, file not found, or device error." and "Check path and
// file name." on two lines.
std::string FileNameErrorText();
// Shows the file-name error, titled "Error".
void ShowFileNameError(Game& g);

// Writes `bytes` to a temporary file beside `target`, then renames it over
// the target, so a failed save leaves the old file whole. False, with
// nothing left behind, on failure.
bool WriteFileAtomically(const std::filesystem::path& target, const std::string& bytes);
