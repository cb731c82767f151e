#pragma once
// The Hot-Key table "HotKeys.dta": 256-byte records, record 1 the header with
// the count of bindings, then one record per binding: the key (1 byte), the
// Auto-Bet file (100 bytes) and a label (100 bytes), blank padded.

#include <string>
#include <vector>

#include "engine/file_status.h"
#include "engine/hot_key_binding.h"

struct Game;

inline constexpr const char* kHotKeysFileName = "HotKeys.dta";
inline constexpr const char* kHotKeysMagic = "Dicemill Hot-Key File";
constexpr size_t kHotKeyRecordBytes = 256;
constexpr size_t kHotKeyFieldBytes = 100;

// A key the table can bind, upper-cased; 0 for any other character.
char HotKeyChar(char c);

// How the list shows a binding: "Ctrl " and the key.
inline std::string HotKeyCaption(char key) { return std::string("Ctrl ") + key; }

std::string EncodeHotKeys(const std::vector<HotKeyBinding>& keys);

enum class HotKeysStatus { Ok, Corrupt };
// The bindings of a file's bytes. A wrong header, a count that is no number
// or runs past the end, a key that can't be bound or bound twice: Corrupt,
// and `keys` is left empty.
HotKeysStatus DecodeHotKeys(const std::string& bytes, std::vector<HotKeyBinding>& keys);

// Reads "HotKeys.dta" of the data folder into g.HotKeys. A missing file means
// no bindings and nothing to tell; a corrupt one binds nothing, leaving the
// file as it is, and says why.
FileStatus LoadHotKeys(Game& g);
// Writes g.HotKeys to "HotKeys.dta" beside itself and renames it into place;
// the file-name error when it can't be written.
FileStatus SaveHotKeys(Game& g);

// The binding of a key, or nullptr.
const HotKeyBinding* FindHotKey(const Game& g, char key);
// Binds (or rebinds) a key. False, changing nothing, for a key that can't be
// bound, an empty file name ("Please enter an Auto-Bet filename to define
// this Hot-Key." is shown) or a field too long for its record.
bool DefineHotKey(Game& g, char key, const std::string& file, const std::string& label);
// False when the key had no binding.
bool ClearHotKey(Game& g, char key);
