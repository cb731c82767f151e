#include "engine/script.h"

std::string Trimmed(const std::string& s) {
  const size_t first = s.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  return s.substr(first, s.find_last_not_of(' ') - first + 1);
}

void RebuildFlags(Script& script) {
  script.Flags.clear();
  for (const ScriptLine& line : script.Lines) {
    const bool names_flag = (line.Kind == line_kind::kCondition && line.Subject == kSubjectFlag) ||
                            (line.Kind == line_kind::kAction && line.Code == kVerbSetFlag);
    if (!names_flag) continue;
    const std::string name = Trimmed(line.Name);
    if (FindFlag(script, name) == 0) script.Flags.push_back({name, 0, 0});
  }
}

int FindFlag(const Script& script, const std::string& name) {
  for (size_t i = 0; i < script.Flags.size(); ++i)
    if (script.Flags[i].FlagName == name) return static_cast<int>(i) + 1;
  return 0;
}
