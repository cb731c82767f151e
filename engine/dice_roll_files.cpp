#include "engine/dice_roll_files.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <random>
#include <system_error>
#include <vector>

#include "engine/game.h"
#include "engine/notices.h"
#include "engine/file_errors.h"

namespace fs = std::filesystem;

namespace {

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

std::string TemporaryBeside(const std::string& target) { return target + ".tmp~"; }

// Renames a finished temporary file over its target; the temporary goes on failure.
bool CommitTemporary(const std::string& temp, const std::string& target) {
  std::error_code ec;
  fs::rename(temp, target, ec);
  if (ec) fs::remove(temp, ec);
  return !ec;
}

void MoveForward(Game& g) {
  DiceFileState& d = g.DiceFile;
  d.LastRollNum = d.NextRollNum;
  ++d.NextRollNum;
  d.SelectAnchor = d.NextRollNum;
}

bool NeedOpenFile(Game& g, const char* title) {
  if (g.DiceFile.File.IsOpen()) return true;
  ShowMessage(g, title, "You need to open a file first.");
  return false;
}

// Copies `count` bytes of `from` starting at roll `at` into `to` at roll
// `into`, forwards, through the one bounded buffer.
bool CopyForward(DiceRollFile& from, int64_t at, DiceRollFile& to, int64_t into, int64_t count) {
  std::vector<uint8_t> buffer(static_cast<size_t>(std::min<int64_t>(count, kBlockBytes)));
  for (int64_t done = 0; done < count;) {
    const size_t slice = static_cast<size_t>(std::min<int64_t>(count - done, kBlockBytes));
    if (from.ReadBlock(at + done, buffer.data(), slice) != slice) return false;
    if (!to.WriteBlock(into + done, buffer.data(), slice)) return false;
    done += static_cast<int64_t>(slice);
  }
  return true;
}

// The rolls inside one file move from `at` to `into`; the slices are taken
// in the order that reads every byte before it is overwritten.
bool MoveWithin(DiceRollFile& f, int64_t at, int64_t into, int64_t count) {
  if (into <= at) return CopyForward(f, at, f, into, count);
  std::vector<uint8_t> buffer(static_cast<size_t>(std::min<int64_t>(count, kBlockBytes)));
  for (int64_t left = count; left > 0;) {
    const size_t slice = static_cast<size_t>(std::min<int64_t>(left, kBlockBytes));
    left -= static_cast<int64_t>(slice);
    if (f.ReadBlock(at + left, buffer.data(), slice) != slice) return false;
    if (!f.WriteBlock(into + left, buffer.data(), slice)) return false;
  }
  return true;
}

int64_t FileLength(const std::string& path) {
  std::error_code ec;
  const auto size = fs::file_size(path, ec);
  return ec ? -1 : static_cast<int64_t>(size);
}

// Writes rolls [first, first + count) of the open file to a new file at
// `destination`, through a temporary beside it.
bool WriteRangeTo(Game& g, int64_t first, int64_t count, const std::string& destination) {
  const std::string temp = TemporaryBeside(destination);
  {
    DiceRollFile out;
    std::error_code ec;
    fs::remove(temp, ec);
    if (!out.Open(temp, true)) return false;
    if (!CopyForward(g.DiceFile.File, first, out, 1, count) || !out.Flush()) {
      out.Close();
      fs::remove(temp, ec);
      return false;
    }
  }
  return CommitTemporary(temp, destination);
}

// The gap and copy steps of every paste: `count` rolls of `source` at NextRollNum.
bool PasteAtCaret(Game& g, const std::string& source, int64_t count) {
  if (count <= 0) return true;
  if (!InsertGap(g, count)) return false;
  if (!PasteFile(g, source, g.DiceFile.NextRollNum, count)) return false;
  g.DiceFile.SelectAnchor = g.DiceFile.NextRollNum;
  return true;
}

}  // namespace

bool CheckRollValue(int value) {
  const int die1 = Die1Of(value), die2 = Die2Of(value);
  return die1 >= 1 && die1 <= 6 && die2 >= 1 && die2 <= 6;
}
uint8_t RollByte(int die1, int die2) { return static_cast<uint8_t>(die2 * 32 + die1 * 4); }
int Die1Of(int value) { return (value & 28) / 4; }
int Die2Of(int value) { return (value & 224) / 32; }


FileRoll NextRollFromFile(Game& g) {
  DiceFileState& d = g.DiceFile;
  const int value = d.File.Read(d.NextRollNum);
  if (value < 0) return FileRoll::EndOfFile;
  if (!CheckRollValue(value)) {
    g.DiceFileMode = kRecorderOff;
    g.TableDirty = true;
    ShowMessage(g, "Dice Roll File Error",
                std::string("A dice roll value has been found to be out of limits. ") + kTwoBreaks +
                    "Playback of this Dice Roll File has ceased so that you can check the file or continue "
                    "without it.");
    return FileRoll::OutOfLimits;
  }
  g.Die1 = Die1Of(value);
  g.Die2 = Die2Of(value);
  MoveForward(g);
  return FileRoll::Rolled;
}

namespace {

// A roll that could not be written: recording stops, and the player is told
// which file failed, why, and how far it holds.
void StopRecordingAfterFailure(Game& g) {
  DiceFileState& d = g.DiceFile;
  const int error = d.File.LastError();
  const std::string path = d.File.Path();
  d.File.Close();  // what the stream still held is lost with it, as on the disk
  d.File.Open(path, false);
  const int64_t kept = d.File.Size();
  d.NextRollNum = static_cast<int32_t>(std::min<int64_t>(d.NextRollNum, kept + 1));
  d.LastRollNum = static_cast<int32_t>(kept);
  d.SelectAnchor = d.NextRollNum;
  g.DiceFileMode = kRecorderOff;
  g.KeepRolling = false;
  g.TableDirty = true;
  ShowMessage(g, "Dice Roll File Error",
              PrintableName(path) + " could not be written: " + (error ? ErrnoReason(error) : "write error") + "." +
                  kBreak + "Recording has stopped. " +
                  (kept > 0 ? "The last roll kept is #" + FormatWithCommas(kept) + "." : "No roll was kept."));
  g.Ui->RefreshTable();
}

}  // namespace

void RecordRoll(Game& g, int die1, int die2) {
  DiceFileState& d = g.DiceFile;
  // Outside Hyper-Drive every roll goes to the disk at once; in it, once a second.
  const bool written = d.File.Write(d.NextRollNum, RollByte(die1, die2)) &&
                       (g.HyperDriveOn ? d.File.FlushIfDue() : d.File.Flush());
  if (!written) return StopRecordingAfterFailure(g);
  MoveForward(g);
}

bool SetRecorderStatus(Game& g, int status) {
  if (status != kRecorderOff && !g.DiceFile.File.IsOpen()) {
    ShowMessage(g, status == kRecorderRecord ? "Record Dice Rolls During Game Play" : "Playback Dice Rolls During Game Play",
                "You need to open a file first.");
    g.DiceFileMode = kRecorderOff;
    return false;
  }
  g.DiceFileMode = status;
  g.TableDirty = true;
  g.Ui->RefreshTable();
  return true;
}

void OfferRewind(Game& g) {
  g.KeepRolling = false;
  const std::string text = std::string(g.DiceFileMode == kRecorderPlayback ? "Playback stopped." : "Recording stopped.") +
                           kBreak + "Rewind for playback?";
  const Reply reply = ShowMessage(g, "Dice Roll File", text, Buttons::YesNoCancel);
  if (reply == Reply::Yes) {
    g.DiceFile.NextRollNum = g.DiceFile.SelectAnchor = 1;
    g.DiceFileMode = kRecorderPlayback;
  } else if (reply == Reply::No) {
    g.DiceFileMode = kRecorderOff;
  }
  if (reply == Reply::Yes || reply == Reply::No) g.Ui->RefreshTable();
}

FileStatus OpenRollFile(Game& g, const std::string& path) {
  DiceRollFile probe;
  if (path.empty() || !probe.Open(path, true)) return FileNameErrorStatus();
  probe.Close();
  DiceFileState& d = g.DiceFile;
  d.File.Open(path, false);
  d.RollFileName = path;
  d.NextRollNum = d.SelectAnchor = d.TopRollNum = 1;
  d.LastRollNum = 0;
  return {};
}

void CloseRollFile(Game& g) {
  DiceFileState& d = g.DiceFile;
  d.File.Close();
  d.RollFileName.clear();
  d.NextRollNum = d.LastRollNum = d.SelectAnchor = d.TopRollNum = 0;
  g.DiceFileMode = kRecorderOff;
}

int64_t TotalRolls(Game& g) { return g.DiceFile.File.Size(); }

RollRange Selection(Game& g) {
  const int64_t size = TotalRolls(g);
  const int64_t low = std::max<int64_t>(1, std::min(g.DiceFile.NextRollNum, g.DiceFile.SelectAnchor));
  const int64_t high = std::min<int64_t>(size + 1, std::max(g.DiceFile.NextRollNum, g.DiceFile.SelectAnchor));
  return {low, std::max<int64_t>(0, high - low)};
}

void SetPosition(Game& g, int64_t rollNum, int64_t anchor) {
  const int64_t last = TotalRolls(g) + 1;
  auto clamp = [last](int64_t n) { return static_cast<int32_t>(std::clamp<int64_t>(n, 1, last)); };
  g.DiceFile.NextRollNum = clamp(rollNum);
  g.DiceFile.SelectAnchor = anchor < 0 ? g.DiceFile.NextRollNum : clamp(anchor);
}

bool HandEntry(Game& g, int die1, int die2) {
  if (!NeedOpenFile(g, "Record Dice Rolls")) return false;
  DiceFileState& d = g.DiceFile;
  const int64_t size = TotalRolls(g);
  if (d.NextRollNum < 1 || d.NextRollNum > size + 1) d.NextRollNum = static_cast<int32_t>(size + 1);
  if (d.InsertRolls && d.NextRollNum <= size && !InsertGap(g, 1)) return false;
  if (!d.File.Write(d.NextRollNum, RollByte(die1, die2))) return false;
  ++d.NextRollNum;
  d.SelectAnchor = d.NextRollNum;
  d.TopRollNum = std::max(d.TopRollNum, 1);
  return true;
}

bool HandEntryRandom(Game& g) {
  std::minstd_rand rnd(static_cast<uint32_t>(std::chrono::system_clock::now().time_since_epoch().count()));
  std::uniform_int_distribution<int> die(1, 6);
  rnd.discard(1);
  const int die2 = die(rnd);
  const int die1 = die(rnd);
  return HandEntry(g, die1, die2);
}

bool CopyRange(Game& g, const std::string& destination) {
  const RollRange r = Selection(g);
  return WriteRangeTo(g, r.first, r.count, destination);
}

bool InsertGap(Game& g, int64_t count) {
  DiceFileState& d = g.DiceFile;
  const int64_t size = TotalRolls(g);
  const int64_t from = d.NextRollNum;
  if (count <= 0 || from > size) return true;
  const bool moved = MoveWithin(d.File, from, from + count, size - from + 1);
  return d.File.Flush() && moved;
}

bool PasteFile(Game& g, const std::string& source, int64_t at, int64_t count) {
  DiceRollFile in;
  if (!in.Open(source, false)) return false;
  const bool copied = CopyForward(in, 1, g.DiceFile.File, at, count);
  return g.DiceFile.File.Flush() && copied;
}

std::string EditFilePath(const Game& g, const char* name) {
  fs::path folder = g.DataFolder.empty() ? fs::temp_directory_path() : fs::path(g.DataFolder);
  return (folder / name).string();
}

bool CopySelection(Game& g) {
  if (!g.DiceFile.File.IsOpen()) return false;
  return CopyRange(g, EditFilePath(g, kClipboardName));
}

bool DeleteSelection(Game& g) {
  DiceFileState& d = g.DiceFile;
  if (!d.File.IsOpen()) return false;
  const RollRange r = Selection(g);
  if (r.count == 0) return true;
  const int64_t size = TotalRolls(g);
  const int64_t tail = size - (r.first + r.count) + 1;
  if (!MoveWithin(d.File, r.first + r.count, r.first, tail)) return false;
  if (!d.File.Flush() || !d.File.Truncate(size - r.count)) return false;
  d.NextRollNum = d.SelectAnchor = static_cast<int32_t>(r.first);
  return true;
}

bool CutSelection(Game& g) { return CopySelection(g) && DeleteSelection(g); }

bool ClipboardHasRolls(const Game& g) {
  std::error_code ec;
  return fs::exists(EditFilePath(g, kClipboardName), ec);
}

bool PasteClipboard(Game& g) {
  if (!g.DiceFile.File.IsOpen() || !ClipboardHasRolls(g)) return false;
  const std::string clip = EditFilePath(g, kClipboardName);
  return PasteAtCaret(g, clip, FileLength(clip));
}

namespace {
// A step that failed with nothing to tell.
FileStatus Untold(bool done) { return {done, {}}; }
}  // namespace

FileStatus CopyToRollFile(Game& g, const std::string& path) {
  if (!g.DiceFile.File.IsOpen()) return Untold(false);
  std::error_code ec;
  if (fs::exists(path, ec)) {
    const Reply reply = ShowMessage(g, "Copy To Dice Roll File",
                                    path + " is already on file." + kBreak + "Do you want to copy over it?",
                                    Buttons::YesNo);
    if (reply != Reply::Yes) return Untold(false);
  }
  if (CopyRange(g, path)) return {};
  return FileNameErrorStatus();
}

FileStatus PasteFromRollFile(Game& g, const std::string& path) {
  if (!g.DiceFile.File.IsOpen()) return Untold(false);
  const int64_t count = FileLength(path);
  if (count < 0) return FileNameErrorStatus();
  return Untold(PasteAtCaret(g, path, count));
}

FileStatus PasteFromTextFile(Game& g, const std::string& path) {
  if (!g.DiceFile.File.IsOpen()) return Untold(false);
  const std::string temp = EditFilePath(g, kTextConvertName);
  const int64_t count = ConvertTextToRolls(path, temp);
  if (count < 0) return FileNameErrorStatus();
  const bool pasted = PasteAtCaret(g, temp, count);
  std::error_code ec;
  fs::remove(temp, ec);
  return Untold(pasted);
}

std::string RollTextLine(int64_t number, int die1, int die2, const RollTextOptions& options) {
  std::string line;
  auto add = [&line](const std::string& part) {
    if (!line.empty()) line += "- ";
    line += part;
  };
  if (options.rollNums) add(std::to_string(number));
  if (options.dieNums) {
    const char pair[] = {'(', static_cast<char>('0' + die1), '-', static_cast<char>('0' + die2), ')', '\0'};
    add(pair);
  }
  if (options.numbersCalled) add(std::to_string(die1 + die2));
  return line;
}

FileStatus CopyToTextFile(Game& g, const std::string& path, const RollTextOptions& options) {
  if (!g.DiceFile.File.IsOpen()) return Untold(false);
  if (!options.dieNums && !options.numbersCalled) {
    return FileStatus::Failed(
        "Copy Dice Rolls To Text File",
        std::string("You must check at least one of the following boxes found under Output Options:") + kBreak +
            "        Include individual die #'s" + kBreak + "        Include numbers called");
  }
  const RollRange r = Selection(g);
  int64_t firstNumber = r.first;
  if (r.first != 1 && options.rollNums &&
      ShowMessage(g, "Copy Dice Rolls To Text File",
                  "The rolls you've selected do not begin with roll #1.  Would you like to renumber them in the "
                  "output starting with #1?",
                  Buttons::YesNo) == Reply::Yes)
    firstNumber = 1;
  g.DiceFile.File.Flush();
  if (WriteRollsAsText(g.DiceFile.RollFileName, r.first, r.count, firstNumber, options, path) >= 0) return {};
  return FileNameErrorStatus();
}

int64_t ConvertTextToRolls(const std::string& textPath, const std::string& rolPath) {
  if (!NotARegularFileReason(textPath).empty()) return -1;  // a pipe would hang, a device never end
  FilePtr in(std::fopen(textPath.c_str(), "rb"));
  if (!in) return -1;
  const std::string temp = TemporaryBeside(rolPath);
  int64_t rolls = 0;
  {
    FilePtr out(std::fopen(temp.c_str(), "wb"));
    if (!out) return -1;
    int first = 0;
    for (int c; (c = std::getc(in.get())) != EOF;) {
      if (c < '1' || c > '6') continue;
      if (first == 0) {
        first = c - '0';
        continue;
      }
      std::putc(RollByte(first, c - '0'), out.get());
      first = 0;
      ++rolls;
    }
    const bool ok = !std::ferror(in.get()) && std::fflush(out.get()) == 0 && !std::ferror(out.get());
    if (!ok) {
      out.reset();
      std::error_code ec;
      fs::remove(temp, ec);
      return -1;
    }
  }
  return CommitTemporary(temp, rolPath) ? rolls : -1;
}

int64_t WriteRollsAsText(const std::string& rolPath, int64_t first, int64_t count, int64_t firstNumber,
                         const RollTextOptions& options, const std::string& textPath, int64_t* badRoll) {
  if (!NotARegularFileReason(rolPath).empty()) return -1;
  FilePtr in(std::fopen(rolPath.c_str(), "rb"));
  if (!in || std::fseek(in.get(), static_cast<long>(first - 1), SEEK_SET) != 0) return -1;
  const std::string temp = TemporaryBeside(textPath);
  FilePtr out(std::fopen(temp.c_str(), "wb"));
  if (!out) return -1;
  std::vector<uint8_t> buffer(static_cast<size_t>(std::clamp<int64_t>(count, 1, kBlockBytes)));
  int64_t written = 0;
  bool ok = true;
  while (ok && written < count) {
    const size_t want = static_cast<size_t>(std::min<int64_t>(count - written, kBlockBytes));
    const size_t got = std::fread(buffer.data(), 1, want, in.get());
    for (size_t i = 0; ok && i < got; ++i) {
      if (!CheckRollValue(buffer[i])) {
        if (badRoll) *badRoll = first + written;
        ok = false;
        break;
      }
      const std::string line = RollTextLine(firstNumber + written, Die1Of(buffer[i]), Die2Of(buffer[i]), options) + "\n";
      ok = std::fputs(line.c_str(), out.get()) >= 0;
      ++written;
    }
    if (got < want) break;
  }
  ok = ok && std::fflush(out.get()) == 0;
  out.reset();
  std::error_code ec;
  if (!ok) {
    fs::remove(temp, ec);
    return -1;
  }
  return CommitTemporary(temp, textPath) ? written : -1;
}
