#include "engine/script.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(ScriptFlags, EveryNameOfAFlagConditionOrSetFlagOnceTrimmedAndFalse) {
  Script s;
  auto add = [&](int kind, int code, int subject, const std::string& name) {
    ScriptLine l;
    l.Kind = kind;
    l.Code = code;
    l.Subject = subject;
    l.Name = name;
    s.Lines.push_back(l);
  };
  add(20, 0, 1500, " hot ");
  add(30, 77, 0, "cold");
  add(30, 77, 0, "hot");
  add(30, 117, 0, "label");   // a Go to names a label, not a flag
  add(20, 26, 1600, "stack");  // nor does a Chip-Stack name
  s.Flags.push_back({"stale", -1, -1});
  RebuildFlags(s);
  ASSERT_EQ(s.Flags.size(), 2u);
  EXPECT_EQ(s.Flags[0].FlagName, "hot");
  EXPECT_EQ(s.Flags[1].FlagName, "cold");
  EXPECT_EQ(s.Flags[1].FlagValue, 0);
  EXPECT_EQ(FindFlag(s, "cold"), 2);
  EXPECT_EQ(FindFlag(s, "stale"), 0);
  EXPECT_EQ(s.Line(2).Name, "cold");
  EXPECT_THROW(s.Line(6), std::out_of_range);
}

}  // namespace
