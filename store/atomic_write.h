#pragma once
// Saving a file so that every reader, at every moment, sees either the old
// file whole or the new one whole, even with two writers and a kill midway.

#include <filesystem>
#include <string>

// Writes `bytes` to a uniquely named temporary file in the target's folder,
// syncs it, renames it over the target and syncs the folder. The target keeps
// its permissions; a target that is a symbolic link has the file it points
// to replaced. False, with nothing left behind and `reason` set to a sentence
// end ("could not be written: no space left on device"), on failure.
bool WriteFileAtomically(const std::filesystem::path& target, const std::string& bytes, std::string& reason);
bool WriteFileAtomically(const std::filesystem::path& target, const std::string& bytes);

// Whether `name` is a temporary file of such a save.
bool IsSaveTemporaryName(const std::string& name);
// Removes the temporary files in `folder` left by saves whose process is
// gone (a crash, a kill). The count removed.
int RemoveStaleSaveTemporaries(const std::filesystem::path& folder);
