// The script's output file, one channel kept open between passes, and the
// Probability File verbs. A file that cannot be used aborts the pass.

#include <filesystem>
#include <fstream>

#include "store/prob_file.h"
#include "script/values.h"
#include "script/verb_families.h"
#include "engine/verb_codes.h"

namespace {

using namespace verb;

void OpenOutput(Game& g, const ScriptLine& line, std::ios::openmode mode) {
  if (g.ScriptOutput.is_open()) g.ScriptOutput.close();
  g.ScriptOutput.clear();
  const std::string name = Trimmed(line.Name);
  if (name.empty()) throw script_error::BadFileName();
  g.ScriptOutput.open(name, std::ios::out | mode);
  if (!g.ScriptOutput.is_open()) throw script_error::PathAccess();
}

void Write(Game& g, const std::string& text) {
  if (!g.ScriptOutput.is_open()) throw script_error::BadFileName();
  g.ScriptOutput << text;
  if (!g.ScriptOutput) throw script_error::PathAccess();
}

// "Name" and a tab; a name ending in ";" goes out bare, to run on.
std::string MessageText(const std::string& name) {
  if (!name.empty() && name.back() == ';') return name.substr(0, name.size() - 1);
  return name + "\t";
}

// The value with no separators and no trailing zeros: "1234.5", "-3".
std::string PlainNumber(Currency v) {
  const uint64_t magnitude = v.raw < 0 ? 0 - static_cast<uint64_t>(v.raw) : static_cast<uint64_t>(v.raw);
  std::string text = (v.raw < 0 ? "-" : "") + std::to_string(magnitude / Currency::kScale);
  uint64_t fraction = magnitude % Currency::kScale;
  if (fraction == 0) return text;
  std::string digits = std::to_string(fraction + Currency::kScale).substr(1);
  while (digits.back() == '0') digits.pop_back();
  return text + "." + digits;
}

void ActivateProbabilityFile(Game& g, const ScriptLine& line) {
  const std::string name = Trimmed(line.Name);
  if (name.empty()) throw script_error::BadFileName();
  std::error_code ec;
  if (!std::filesystem::is_regular_file(name, ec)) throw script_error::FileNotFound();
  // A file of the wrong kind is refused with its own message and changes nothing.
  if (ShowFileStatus(g, OpenProbabilityFile(g, name))) g.UseSkewedProbability = true;
}

}  // namespace

bool CarryOutFileVerb(Game& g, const ScriptLine& line) {
  switch (line.Code) {
    case kOpenClear: OpenOutput(g, line, std::ios::trunc); break;
    case kOpenAppend: OpenOutput(g, line, std::ios::app); break;
    case kOutputMessage: Write(g, MessageText(line.Name)); break;
    case kOutputValue: Write(g, "\t" + PlainNumber(GetValue(g, line.Subject, line.SubjectNum))); break;
    case kOutputLastValue: Write(g, "\t" + PlainNumber(GetLastValue(g, line.Subject, line.SubjectNum))); break;
    case kOutputNewLine: Write(g, "\n"); break;
    case kCloseFile:
      if (g.ScriptOutput.is_open()) g.ScriptOutput.close();
      break;
    case kActivateProbFile: ActivateProbabilityFile(g, line); break;
    case kDeactivateProbFile: g.UseSkewedProbability = false; break;
    default: return false;
  }
  return true;
}
