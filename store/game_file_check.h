#pragma once
// The whole-file check of a game file. A file is opened only when its
// signature is a game file's own and its records line up with the format
// from the first to the last; a file this program wrote also carries its
// record count in the spare bytes of record 1 and a closing record with the
// CRC-32 of all before it, so that a cut or changed byte anywhere is seen.
// Files without those (written by other versions) are checked by structure.

#include <string>

// "Dicemill Game File, Data Format 5.0" with any sub-version letter.
bool IsGameFileSignature(const std::string& signature);

// Adds the record count and the closing check record to a file's bytes.
void SealGameFile(std::string& bytes);

// Whether the bytes are a whole game file.
bool GameFileIsWhole(const std::string& bytes);
