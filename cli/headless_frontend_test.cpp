#include "cli/headless_frontend.h"

#include <gtest/gtest.h>

#include <sstream>

#include "cli/json_lines.h"

namespace {

struct Screen {
  std::ostringstream out;
  HeadlessFrontEnd ui{out};
  // The objects printed since the last call.
  std::vector<Json> Printed() {
    std::vector<Json> objects;
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);) objects.push_back(Json::parse(line));
    out.str("");
    return objects;
  }
  Json OnlyMessage() {
    auto objects = Printed();
    EXPECT_EQ(objects.size(), 1u);
    return objects.empty() ? Json() : objects[0]["message"];
  }
};

SettleNotice WonNotice() {
  SettleNotice n;
  n.title = "Place 6 Bet Won";
  n.rows = {{"Payoff at 7 to 6 for $6:", "$7"}, {"Net payoff:", "$7"}};
  n.buttons = {"Take", "Same", "Press", "Double", "Parlay", "Same Bet:", "Bet:"};
  n.won = true;
  return n;
}

}  // namespace

TEST(HeadlessFrontEnd, QuestionsTakeQueuedRepliesElseTheirDefault) {
  Screen s;
  s.ui.QueueAnswer("yes");
  // An OK message consumes nothing.
  EXPECT_EQ(s.ui.ShowMessage("T", "line 1\rline 2", Buttons::Ok), Reply::Ok);
  EXPECT_EQ(s.OnlyMessage(), Json::parse(R"({"title":"T","text":"line 1\rline 2","reply":"ok"})"));
  EXPECT_EQ(s.ui.PendingAnswers(), 1u);

  EXPECT_EQ(s.ui.ShowMessage("Q", "?", Buttons::YesNo), Reply::Yes);
  EXPECT_EQ(s.OnlyMessage()["reply"], "yes");
  EXPECT_EQ(s.ui.ShowMessage("Q", "?", Buttons::YesNo), Reply::No);
  EXPECT_EQ(s.ui.ShowMessage("Q", "?", Buttons::YesNoCancel), Reply::Cancel);
  s.Printed();

  // A reply that the dialog does not offer is used up, and the default taken.
  s.ui.QueueAnswer("cancel");
  s.ui.QueueAnswer("no");
  EXPECT_EQ(s.ui.ShowMessage("Q", "?", Buttons::YesNo), Reply::No);
  EXPECT_EQ(s.ui.ShowMessage("Q", "?", Buttons::YesNoCancel), Reply::No);
  EXPECT_EQ(s.ui.PendingAnswers(), 0u);
  s.ui.QueueAnswer("cancel");
  EXPECT_EQ(s.ui.ShowMessage("Q", "?", Buttons::YesNoCancel), Reply::Cancel);
}

TEST(HeadlessFrontEnd, NumberPromptsTakeAQueuedValueElseTheOffer) {
  Screen s;
  EXPECT_EQ(s.ui.AskNumber("Set Beginning Bankroll", "Enter your beginning bankroll: ", 500), Currency(500));
  EXPECT_EQ(s.OnlyMessage()["reply"], 500);
  s.ui.QueueAnswer("-7.5");
  EXPECT_EQ(s.ui.AskNumber("N", "", 500), Currency::FromRaw(-75000));
  EXPECT_EQ(s.OnlyMessage()["reply"], -7.5);
  s.ui.QueueAnswer("cancel");
  EXPECT_EQ(s.ui.AskNumber("N", "", 500), std::nullopt);
  EXPECT_EQ(s.OnlyMessage()["reply"], "cancel");
  s.ui.QueueAnswer("press");
  EXPECT_EQ(s.ui.AskNumber("N", "", 3), Currency(3));
  EXPECT_EQ(s.ui.PendingAnswers(), 0u);
}

TEST(HeadlessFrontEnd, SettleNoticesShowRowsAndTakeButtonWords) {
  Screen s;
  EXPECT_EQ(s.ui.ShowSettleNotice(WonNotice()), std::nullopt);
  const Json m = s.OnlyMessage();
  EXPECT_EQ(m["title"], "Place 6 Bet Won");
  EXPECT_EQ(m["text"], "Payoff at 7 to 6 for $6:\t$7\rNet payoff:\t$7");
  EXPECT_EQ(m["reply"], "same");

  const char* won[] = {"take", "same", "press", "double", "parlay", "samebet", "bet"};
  for (int i = 0; i < 7; ++i) {
    s.ui.QueueAnswer(won[i]);
    EXPECT_EQ(s.ui.ShowSettleNotice(WonNotice()), i);
    EXPECT_EQ(s.OnlyMessage()["reply"], won[i]);
  }

  SettleNotice lost = WonNotice();
  lost.won = false;
  const char* lostWords[] = {"none", "remainder", "same", "press", "double"};
  for (int i = 0; i < 5; ++i) {
    s.ui.QueueAnswer(lostWords[i]);
    EXPECT_EQ(s.ui.ShowSettleNotice(lost), i);
  }
  s.Printed();
  // "parlay" is no button of the lost dialog: used up, the default stands.
  s.ui.QueueAnswer("parlay");
  EXPECT_EQ(s.ui.ShowSettleNotice(lost), std::nullopt);
  EXPECT_EQ(s.OnlyMessage()["reply"], "none");
  EXPECT_EQ(s.ui.PendingAnswers(), 0u);
}

TEST(HeadlessFrontEnd, ThrowsAndStopReasons) {
  Screen s;
  s.ui.ShowThrow(2, 4, 6);
  EXPECT_EQ(s.Printed(), std::vector<Json>{Json::parse(R"({"rolled":{"die1":2,"die2":4,"total":6,"point":6}})")});
  s.ui.RollFinished("Stopped by roll count on Auto-Play screen.");
  EXPECT_EQ(s.ui.StopReason(), "Stopped by roll count on Auto-Play screen.");
  EXPECT_TRUE(s.Printed().empty());

  for (const char* ok : {"cancel", "samebet", "remainder", "-3", "1,000"}) EXPECT_TRUE(HeadlessFrontEnd::IsAnswerWord(ok));
  for (const char* bad : {"", "maybe", "1e3", "ok"}) EXPECT_FALSE(HeadlessFrontEnd::IsAnswerWord(bad)) << bad;
}
