// The `dicefile` and `pad` words of the play session: the Dice Roll File
// screen and the roll-your-own pad, driven through the engine's own routines.

#include <filesystem>

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "cli/table_answer.h"
#include "engine/dice_roll_files.h"
#include "engine/game.h"
#include "sim/table.h"

namespace {

void NeedOpenFile(const Game& g) {
  if (!g.DiceFile.File.IsOpen()) throw CommandError("no Dice Roll File is open");
}

void NeedArgs(const std::vector<std::string>& a, size_t n, const char* usage) {
  if (a.size() != n) throw CommandError(std::string("expected: dicefile ") + usage);
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
  Table& table = *table_;
  const Game& g = table.State();
  const std::string sub = ToLower(a[0]);
  // An engine step that said why it failed on the screen still fails the command.
  if (sub == "open" || sub == "create") {
    NeedArgs(a, 2, "open|create FILE.rol");
    std::error_code ec;
    if (sub == "create" && std::filesystem::exists(a[1], ec)) throw CommandError("\"" + a[1] + "\" already exists");
    return Require(table.OpenRollFile(a[1]));
  }
  if (sub == "info") {
    NeedArgs(a, 1, "info");
    WriteJsonLine(out_, {{"dicefile",
                          {{"name", g.DiceFile.RollFileName},
                           {"status", StatusWord(g.DiceFileMode)},
                           {"rolls", table.RollFileRolls()},
                           {"next", g.DiceFile.NextRollNum},
                           {"last", g.DiceFile.LastRollNum},
                           {"anchor", g.DiceFile.SelectAnchor},
                           {"insert", g.DiceFile.InsertRolls},
                           {"clipboard", ClipboardHasRolls(g)}}}});
    return;
  }
  if (sub == "status") {
    NeedArgs(a, 2, "status off|record|play");
    return Require(table.SetRecorder(ReadStatus(a[1])));
  }
  NeedOpenFile(g);
  if (sub == "close") {
    NeedArgs(a, 1, "close");
    Require(table.CloseRollFile());
  } else if (sub == "position") {
    if (a.size() < 2 || a.size() > 3) throw CommandError("expected: dicefile position N [ANCHOR]");
    const int64_t next = ReadInteger(a[1], 1, MaxRolls, "N");
    Require(table.SetRollPosition(next, a.size() == 3 ? ReadInteger(a[2], 1, MaxRolls, "ANCHOR") : -1));
  } else if (sub == "selectall") {
    NeedArgs(a, 1, "selectall");
    Require(table.EditRolls(RollFileEdit::SelectAll));
  } else if (sub == "typeover" || sub == "insert") {
    NeedArgs(a, 1, "typeover|insert");
    Require(table.SetRollInsert(sub == "insert"));
  } else if (sub == "enter") {
    if (a.size() == 2 && ToLower(a[1]) == "random") return Require(table.EnterRandomRoll());
    NeedArgs(a, 3, "enter D1 D2|random");
    const int d1 = static_cast<int>(ReadInteger(a[1], 1, 6, "D1"));
    const int d2 = static_cast<int>(ReadInteger(a[2], 1, 6, "D2"));
    Require(table.EnterRoll(d1, d2));
  } else if (sub == "copy" || sub == "cut" || sub == "paste" || sub == "delete") {
    NeedArgs(a, 1, "copy|cut|paste|delete");
    Require(table.EditRolls(sub == "copy"  ? RollFileEdit::Copy
                            : sub == "cut" ? RollFileEdit::Cut
                            : sub == "paste" ? RollFileEdit::Paste
                                             : RollFileEdit::Delete));
  } else if (sub == "copyto") {
    NeedArgs(a, 2, "copyto FILE.rol");
    Require(table.TransferRolls(RollFileTransfer::CopyTo, a[1]));
  } else if (sub == "pastefrom") {
    NeedArgs(a, 2, "pastefrom FILE.rol");
    Require(table.TransferRolls(RollFileTransfer::PasteFrom, a[1]));
  } else if (sub == "import") {
    NeedArgs(a, 2, "import FILE.txt");
    Require(table.TransferRolls(RollFileTransfer::ImportText, a[1]));
  } else if (sub == "export") {
    if (a.size() < 2) throw CommandError("expected: dicefile export FILE.txt [nums] [dice] [calls]");
    Require(table.ExportRolls(a[1], ReadTextOptions(a, 2)));
  } else {
    throw CommandError("'" + a[0] +
                       "' is not open, create, close, info, status, position, selectall, typeover, insert, enter, "
                       "copy, cut, paste, delete, copyto, pastefrom, import or export");
  }
}

void PlaySession::Pad(const Args& a) {
  if (a.size() == 2) {
    const int d1 = static_cast<int>(ReadInteger(a[0], 1, 6, "D1"));
    const int d2 = static_cast<int>(ReadInteger(a[1], 1, 6, "D2"));
    return NotBusy(table_->PadRoll(d1, d2));
  }
  NotBusy(table_->PadTotal(static_cast<int>(ReadInteger(a[0], 2, 12, "TOTAL"))));
}
