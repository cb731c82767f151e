#include "cli/headless_frontend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "cli/json_lines.h"

namespace {

struct Screen {
  std::ostringstream out;
  HeadlessFrontEnd ui{out};
  // The one object printed since the last call.
  Json Printed() {
    const std::string text = out.str();
    out.str("");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
    return Json::parse(text.substr(0, text.find('\n')));
  }
};

}  // namespace

TEST(HeadlessFrontEnd, QuestionsTakeQueuedRepliesElseTheirDefault) {
  Screen s;
  EXPECT_EQ(s.ui.ShowMessage("T", "line 1\rline 2", Buttons::Ok), Reply::Ok);
  EXPECT_EQ(s.Printed(), Json::parse(R"({"message":{"title":"T","text":"line 1\rline 2","reply":"ok"}})"));
  // An OK message consumes nothing; a reply that the dialog does not offer is
  // used up, and the default taken.
  const struct { const char* queued; Buttons buttons; Reply reply; const char* word; size_t left; } cases[] = {
      {"yes", Buttons::Ok, Reply::Ok, "ok", 1},          {nullptr, Buttons::YesNo, Reply::Yes, "yes", 0},
      {nullptr, Buttons::YesNo, Reply::No, "no", 0},     {"", Buttons::YesNoCancel, Reply::Cancel, "cancel", 0},
      {"cancel", Buttons::YesNo, Reply::No, "no", 0},    {"no", Buttons::YesNoCancel, Reply::No, "no", 0},
      {"cancel", Buttons::YesNoCancel, Reply::Cancel, "cancel", 0}};
  for (const auto& c : cases) {
    if (c.queued && *c.queued) s.ui.QueueAnswer(c.queued);
    EXPECT_EQ(s.ui.ShowMessage("Q", "?", c.buttons), c.reply) << (c.queued ? c.queued : "(queued before)");
    EXPECT_EQ(s.Printed()["message"]["reply"], c.word);
    EXPECT_EQ(s.ui.PendingAnswers(), c.left);
  }
}

TEST(HeadlessFrontEnd, NumberPromptsTakeAQueuedValueElseTheOffer) {
  Screen s;
  EXPECT_EQ(s.ui.AskNumber("Set Beginning Bankroll", "Enter your beginning bankroll: ", 500), Currency(500));
  EXPECT_EQ(s.Printed()["message"]["reply"], 500);
  s.ui.QueueAnswer("-7.5");
  EXPECT_EQ(s.ui.AskNumber("N", "", 500), Currency::FromRaw(-75000));
  EXPECT_EQ(s.Printed()["message"]["reply"], -7.5);
  s.ui.QueueAnswer("cancel");
  EXPECT_EQ(s.ui.AskNumber("N", "", 500), std::nullopt);
  EXPECT_EQ(s.Printed()["message"]["reply"], "cancel");
  s.ui.QueueAnswer("press");
  EXPECT_EQ(s.ui.AskNumber("N", "", 3), Currency(3));
  EXPECT_EQ(s.ui.PendingAnswers(), 0u);
}

TEST(HeadlessFrontEnd, SettleNoticesShowRowsAndTakeButtonWords) {
  Screen s;
  SettleNotice n{"Place 6 Bet Won", {{"Payoff at 7 to 6 for $6:", "$7"}, {"Net payoff:", "$7"}}, {}, true, {}, {}};
  EXPECT_FALSE(s.ui.ShowSettleNotice(n));
  EXPECT_EQ(s.Printed(), Json::parse(R"({"message":{"title":"Place 6 Bet Won",
      "text":"Payoff at 7 to 6 for $6:\t$7\rNet payoff:\t$7","reply":"same"}})"));
  const std::vector<std::string> won = {"take", "same", "press", "double", "parlay", "samebet", "bet"};
  const std::vector<std::string> lost = {"none", "remainder", "same", "press", "double"};
  for (bool isWon : {true, false}) {
    n.won = isWon;
    const auto& words = isWon ? won : lost;
    for (int i = 0; i < static_cast<int>(words.size()); ++i) {
      s.ui.QueueAnswer(words[i]);
      EXPECT_EQ(s.ui.ShowSettleNotice(n)->button, i);
      EXPECT_EQ(s.Printed()["message"]["reply"], words[i]);
    }
  }
  // "parlay" is no button of the lost dialog: used up, the default stands.
  s.ui.QueueAnswer("parlay");
  EXPECT_FALSE(s.ui.ShowSettleNotice(n));
  EXPECT_EQ(s.Printed()["message"]["reply"], "none");
  EXPECT_EQ(s.ui.PendingAnswers(), 0u);
}

TEST(HeadlessFrontEnd, ThrowsStopReasonsAndAnswerWords) {
  Screen s;
  s.ui.ShowThrow(2, 4, 6);
  EXPECT_EQ(s.Printed(), Json::parse(R"({"rolled":{"die1":2,"die2":4,"total":6,"point":6}})"));
  s.ui.RollFinished(StopReason::RollCount);
  EXPECT_EQ(s.ui.LastStop(), StopReason::RollCount);
  EXPECT_TRUE(s.out.str().empty());
  for (const char* ok : {"cancel", "samebet", "remainder", "-3", "1,000"})
    EXPECT_TRUE(HeadlessFrontEnd::IsAnswerWord(ok));
  for (const char* bad : {"", "maybe", "1e3", "ok"}) EXPECT_FALSE(HeadlessFrontEnd::IsAnswerWord(bad)) << bad;
}
