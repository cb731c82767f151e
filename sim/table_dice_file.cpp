// The table's Dice Roll File screen and the roll-your-own pad.

#include "engine/dice_roll_files.h"
#include "engine/pad.h"
#include "sim/table_command.h"

namespace {

TableResult NotDone(const std::string& what) { return TableResult::Fail(TableCode::NotDone, what + " was not done"); }
TableResult NoFile() { return TableResult::Fail(TableCode::NotDone, "no Dice Roll File is open"); }

}  // namespace

TableResult Table::OpenRollFile(const std::string& path) {
  return Command([&](Game& g) {
    if (!ShowFileStatus(g, ::OpenRollFile(g, path))) return NotDone("opening \"" + path + "\"");
    return MarkUnsavedIf(true);  // the game links another file
  });
}

TableResult Table::CloseRollFile() {
  return Command([&](Game& g) {
    if (!g.DiceFile.File.IsOpen()) return NoFile();
    ::CloseRollFile(g);
    return MarkUnsavedIf(true);
  });
}

TableResult Table::SetRecorder(int status) {
  return Command([&](Game& g) {
    MarkUnsavedIf(true);
    if (!SetRecorderStatus(g, status)) return NotDone("the status change");
    return TableResult{};
  });
}

TableResult Table::SetRollPosition(int64_t next, int64_t anchor) {
  return Command([&](Game& g) {
    if (!g.DiceFile.File.IsOpen()) return NoFile();
    SetPosition(g, next, anchor);
    return TableResult{};
  });
}

TableResult Table::SetRollInsert(bool insert) {
  return Command([&](Game& g) {
    if (!g.DiceFile.File.IsOpen()) return NoFile();
    g.DiceFile.InsertRolls = insert;
    return TableResult{};
  });
}

TableResult Table::EnterRoll(int die1, int die2) {
  return Command([&](Game& g) {
    if (!g.DiceFile.File.IsOpen()) return NoFile();
    if (!HandEntry(g, die1, die2)) return NotDone("the entry");
    return TableResult{};
  });
}

TableResult Table::EnterRandomRoll() {
  return Command([&](Game& g) {
    if (!g.DiceFile.File.IsOpen()) return NoFile();
    if (!HandEntryRandom(g)) return NotDone("the entry");
    return TableResult{};
  });
}

TableResult Table::EditRolls(RollFileEdit edit) {
  return Command([&](Game& g) {
    if (!g.DiceFile.File.IsOpen()) return NoFile();
    switch (edit) {
      case RollFileEdit::SelectAll:
        SetPosition(g, TotalRolls(g) + 1, 1);
        return TableResult{};
      case RollFileEdit::Copy:
        return CopySelection(g) ? TableResult{} : NotDone("copy");
      case RollFileEdit::Cut:
        return CutSelection(g) ? TableResult{} : NotDone("cut");
      case RollFileEdit::Paste:
        if (!ClipboardHasRolls(g)) return TableResult::Fail(TableCode::NotDone, "the clipboard is empty");
        return PasteClipboard(g) ? TableResult{} : NotDone("paste");
      case RollFileEdit::Delete:
        return DeleteSelection(g) ? TableResult{} : NotDone("delete");
    }
    return TableResult{};
  });
}

TableResult Table::TransferRolls(RollFileTransfer transfer, const std::string& path) {
  return Command([&](Game& g) {
    if (!g.DiceFile.File.IsOpen()) return NoFile();
    switch (transfer) {
      case RollFileTransfer::CopyTo:
        return ShowFileStatus(g, CopyToRollFile(g, path)) ? TableResult{} : NotDone("the copy");
      case RollFileTransfer::PasteFrom:
        return ShowFileStatus(g, PasteFromRollFile(g, path)) ? TableResult{} : NotDone("the paste");
      case RollFileTransfer::ImportText:
        return ShowFileStatus(g, PasteFromTextFile(g, path)) ? TableResult{} : NotDone("the import");
    }
    return TableResult{};
  });
}

TableResult Table::ExportRolls(const std::string& path, const RollTextOptions& options) {
  return Command([&](Game& g) {
    if (!g.DiceFile.File.IsOpen()) return NoFile();
    return ShowFileStatus(g, CopyToTextFile(g, path, options)) ? TableResult{} : NotDone("the export");
  });
}

int64_t Table::RollFileRolls() const { return game_->DiceFile.File.IsOpen() ? game_->DiceFile.File.Size() : 0; }

RunResult Table::PadRoll(int die1, int die2) {
  return Command<RunResult>([&](Game& g) {
    g.KeepRolling = false;
    GoToTable();
    const int32_t before = g.RollCounts[0];
    ::PadRoll(g, die1, die2);
    RunResult r;
    r.rolls = g.RollCounts[0] - before;
    return r;
  });
}

RunResult Table::PadTotal(int total) {
  return Command<RunResult>([&](Game& g) {
    g.KeepRolling = false;
    GoToTable();
    const int32_t before = g.RollCounts[0];
    PadRollTotal(g, total);
    RunResult r;
    r.rolls = g.RollCounts[0] - before;
    return r;
  });
}
