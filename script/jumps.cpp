#include "script/jumps.h"

#include <cctype>

#include "engine/script.h"

std::string LabelKey(const std::string& name) {
  std::string key = Trimmed(name);
  for (char& c : key) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return key;
}

bool CarryOutJump(PassState& pass, const ScriptLine& line) {
  switch (line.Code) {
    case verb::kGoTo:
      pass.JumpLabel = LabelKey(line.Name);
      return true;
    case verb::kGoSub:
      pass.JumpLabel = LabelKey(line.Name);
      pass.ReturnStack = std::to_string(pass.CurrentLine) + "," + pass.ReturnStack;
      return true;
    case verb::kReturn:
      // With nothing to return to the line is ignored; the interpreter says so.
      if (pass.ReturnStack.find(',') != std::string::npos) {
        pass.ReturnPending = true;
        pass.OverallTrue = true;
      }
      return true;
    default:
      return false;
  }
}
