#pragma once
// A script line as the tests build it: a kind and a code, the other fields
// only where a test needs them.

#include <string>

#include "engine/script_line.h"

inline ScriptLine MakeLine(int kind, int code = 0, Currency amount = 0, int subject = 0, int target = 0,
                           const std::string& name = "") {
  ScriptLine l;
  l.Kind = kind;
  l.Code = code;
  l.LineAmount = amount;
  l.Subject = subject;
  l.Target = target;
  l.Name = name;
  return l;
}
