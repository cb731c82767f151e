#pragma once
// A script file in either form: a ".bet" file of records, or the text form
// (".txt"). Tools and the headless front end load and save scripts through
// these, without a screen to show messages on.

#include <string>

#include "engine/file_status.h"
#include "engine/script.h"
#include "store/bet_file.h"


// Reads a ".bet" file (by extension, or by its magic whatever the name) or a
// text file. On success the lines replace the script's, its Flags are
// rebuilt and FileName becomes the path; on failure the script is untouched
// and the status says why in one line, titled "Error".
FileStatus LoadScriptFile(const std::string& path, Script& script);

// Writes the script as ".bet" records when the path ends in ".bet", else as
// text. The file is replaced whole or not at all.
FileStatus SaveScriptFile(const std::string& path, const Script& script);
