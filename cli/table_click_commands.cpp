// Table commands of the play session that a screen reaches by pointer and
// keyboard: a click with the click tool, Shift-click, a keyed-in amount, and
// the simulated roll rate of the configuration screen.

#include "cli/command_error.h"
#include "cli/command_words.h"
#include "cli/json_lines.h"
#include "cli/play_session.h"
#include "cli/table_answer.h"
#include "engine/game.h"
#include "sim/table.h"

namespace {

constexpr const char* kRateUsage = "rate VALUE rolls/hr|rolls/min|rolls/sec|hrs/roll|mins/roll|secs/roll";

RateUnit ReadRateUnit(const std::string& word) {
  const std::string w = ToLower(word);
  const struct {
    const char* word;
    RateUnit unit;
  } units[] = {{"rolls/hr", RateUnit::RollsPerHour},   {"rolls/min", RateUnit::RollsPerMinute},
               {"rolls/sec", RateUnit::RollsPerSecond}, {"hrs/roll", RateUnit::HoursPerRoll},
               {"mins/roll", RateUnit::MinutesPerRoll}, {"secs/roll", RateUnit::SecondsPerRoll}};
  for (const auto& u : units)
    if (w == u.word) return u.unit;
  throw CommandError(std::string("expected: ") + kRateUsage);
}

}  // namespace

void PlaySession::Click(const Args& a) {
  const int id = ReadBetId(a[0]);
  bool shift = false;
  if (a.size() == 2) {
    if (ToLower(a[1]) != "shift") throw CommandError("expected: click ID [shift]");
    shift = true;
  }
  NotBusy(table_->Click(id, shift));
}

void PlaySession::Enter(const Args& a) {
  const int id = ReadBetId(a[0]);
  Require(table_->Enter(id, a[1]));
}

void PlaySession::Rate(const Args& a) {
  const Currency value = ReadAmount(a[0], "VALUE");
  const TableResult r = table_->SetRollRate(value, ReadRateUnit(a[1]));
  NotBusy(r);  // a rate out of limits has said why on the screen
  if (r.Done())
    WriteJsonLine(out_, {{"setting", {{"name", "SimRollRate"}, {"value", MoneyJson(table_->State().SimRollRate)}}}});
}
