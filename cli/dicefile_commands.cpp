// The `dicefile` and `pad` words of the play session: the Dice Roll File
// screen and the roll-your-own pad, driven through the engine's own routines.

#include <filesystem>

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "dice/dice_roll_files.h"
#include "dice/pad.h"
#include "engine/game.h"

namespace {

void NeedOpenFile(Game& g) {
  if (!g.DiceFile.File.IsOpen()) throw CommandError("no Dice Roll File is open");
}

void NeedArgs(const std::vector<std::string>& a, size_t n, const char* usage) {
  if (a.size() != n) throw CommandError(std::string("expected: dicefile ") + usage);
}

// An engine step that said why it failed on the screen still fails the command.
void Check(bool done, const std::string& what) {
  if (!done) throw CommandError(what + " was not done");
}

int ReadStatus(const std::string& word) {
  const std::string w = ToLower(word);
  if (w == "off") return kRecorderOff;
  if (w == "record") return kRecorderRecord;
  if (w == "play" || w == "playback") return kRecorderPlayback;
  throw CommandError("'" + word + "' is not off, record or play");
}

const char* StatusWord(int status) {
  return status == kRecorderRecord ? "record" : status == kRecorderPlayback ? "play" : "off";
}

// export's option words: nums, dice, calls (any of them, in any order).
RollTextOptions ReadTextOptions(const std::vector<std::string>& a, size_t from) {
  if (a.size() <= from) return {};
  RollTextOptions o{false, false, false};
  for (size_t i = from; i < a.size(); ++i) {
    const std::string w = ToLower(a[i]);
    if (w == "nums") o.rollNums = true;
    else if (w == "dice") o.dieNums = true;
    else if (w == "calls") o.numbersCalled = true;
    else throw CommandError("'" + a[i] + "' is not nums, dice or calls");
  }
  return o;
}

}  // namespace

void PlaySession::DiceFile(const Args& a) {
  Game& g = *game_;
  const std::string sub = ToLower(a[0]);
  if (sub == "open" || sub == "create") {
    NeedArgs(a, 2, "open|create FILE.rol");
    std::error_code ec;
    if (sub == "create" && std::filesystem::exists(a[1], ec)) throw CommandError("\"" + a[1] + "\" already exists");
    const bool opened = ShowFileStatus(g, OpenRollFile(g, a[1]));
    if (opened) g.GameChanged = true;  // the game links another file
    return Check(opened, "opening \"" + a[1] + "\"");
  }
  if (sub == "info") {
    NeedArgs(a, 1, "info");
    const bool open = g.DiceFile.File.IsOpen();
    WriteJsonLine(out_, {{"dicefile",
                          {{"name", g.DiceFile.RollFileName},
                           {"status", StatusWord(g.DiceFileMode)},
                           {"rolls", open ? TotalRolls(g) : 0},
                           {"next", g.DiceFile.NextRollNum},
                           {"last", g.DiceFile.LastRollNum},
                           {"anchor", g.DiceFile.SelectAnchor},
                           {"insert", g.DiceFile.InsertRolls},
                           {"clipboard", ClipboardHasRolls(g)}}}});
    return;
  }
  if (sub == "status") {
    NeedArgs(a, 2, "status off|record|play");
    g.GameChanged = true;
    return Check(SetRecorderStatus(g, ReadStatus(a[1])), "the status change");
  }
  NeedOpenFile(g);
  if (sub == "close") {
    NeedArgs(a, 1, "close");
    CloseRollFile(g);
    g.GameChanged = true;
  } else if (sub == "position") {
    if (a.size() < 2 || a.size() > 3) throw CommandError("expected: dicefile position N [ANCHOR]");
    const int64_t next = ReadInteger(a[1], 1, MaxRolls, "N");
    SetPosition(g, next, a.size() == 3 ? ReadInteger(a[2], 1, MaxRolls, "ANCHOR") : -1);
  } else if (sub == "selectall") {
    NeedArgs(a, 1, "selectall");
    SetPosition(g, TotalRolls(g) + 1, 1);
  } else if (sub == "typeover" || sub == "insert") {
    NeedArgs(a, 1, "typeover|insert");
    g.DiceFile.InsertRolls = sub == "insert";
  } else if (sub == "enter") {
    if (a.size() == 2 && ToLower(a[1]) == "random") return Check(HandEntryRandom(g), "the entry");
    NeedArgs(a, 3, "enter D1 D2|random");
    const int d1 = static_cast<int>(ReadInteger(a[1], 1, 6, "D1"));
    const int d2 = static_cast<int>(ReadInteger(a[2], 1, 6, "D2"));
    Check(HandEntry(g, d1, d2), "the entry");
  } else if (sub == "copy" || sub == "cut" || sub == "paste" || sub == "delete") {
    NeedArgs(a, 1, "copy|cut|paste|delete");
    if (sub == "paste" && !ClipboardHasRolls(g)) throw CommandError("the clipboard is empty");
    const bool done = sub == "copy"  ? CopySelection(g)
                      : sub == "cut" ? CutSelection(g)
                      : sub == "paste" ? PasteClipboard(g)
                                       : DeleteSelection(g);
    Check(done, sub);
  } else if (sub == "copyto") {
    NeedArgs(a, 2, "copyto FILE.rol");
    Check(ShowFileStatus(g, CopyToRollFile(g, a[1])), "the copy");
  } else if (sub == "pastefrom") {
    NeedArgs(a, 2, "pastefrom FILE.rol");
    Check(ShowFileStatus(g, PasteFromRollFile(g, a[1])), "the paste");
  } else if (sub == "import") {
    NeedArgs(a, 2, "import FILE.txt");
    Check(ShowFileStatus(g, PasteFromTextFile(g, a[1])), "the import");
  } else if (sub == "export") {
    if (a.size() < 2) throw CommandError("expected: dicefile export FILE.txt [nums] [dice] [calls]");
    Check(ShowFileStatus(g, CopyToTextFile(g, a[1], ReadTextOptions(a, 2))), "the export");
  } else {
    throw CommandError("'" + a[0] +
                       "' is not open, create, close, info, status, position, selectall, typeover, insert, enter, "
                       "copy, cut, paste, delete, copyto, pastefrom, import or export");
  }
}

void PlaySession::Pad(const Args& a) {
  Game& g = *game_;
  g.KeepRolling = false;
  if (a.size() == 2) {
    const int d1 = static_cast<int>(ReadInteger(a[0], 1, 6, "D1"));
    const int d2 = static_cast<int>(ReadInteger(a[1], 1, 6, "D2"));
    GoToTable();
    return PadRoll(g, d1, d2);
  }
  const int total = static_cast<int>(ReadInteger(a[0], 2, 12, "TOTAL"));
  GoToTable();
  PadRollTotal(g, total);
}
