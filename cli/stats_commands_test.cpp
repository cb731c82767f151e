// The play session's `results`, `summary` and `trends` commands.

#include <gtest/gtest.h>

#include "cli/session_for_test.h"

TEST(StatsCommands, ResultsReadsASelectionAndAKind) {
  Session s;
  s.Run("bet 49 5\nroll 1 2\nroll 6 6");
  const Json field = s.Only("results 49", "results");
  EXPECT_EQ(field["kind"], "actual");
  EXPECT_EQ(field["bets"].dump(), "[49]");
  EXPECT_EQ(field["totalRolls"], 2);
  const Json& total = field["rows"][1];
  EXPECT_EQ(total["label"], "Total $");
  EXPECT_EQ(total.dump(),
            R"({"label":"Total $","wagers":10,"wins":15,"losses":0,"net":15,"netPercent":150.0,)"
            R"("cells":["10","15","0","15","150.00%"]})");
  EXPECT_EQ(field["rows"][0]["wagers"].dump(), "2");  // counts are whole numbers
  EXPECT_EQ(field["rows"][10]["label"], "Expctd value $");
  EXPECT_FALSE(field["rows"][10].contains("wagers"));

  const Json phantom = s.Only("results 6,8,49 PHANTOM", "results");
  EXPECT_EQ(phantom["kind"], "phantom");
  EXPECT_EQ(phantom["bets"].dump(), "[6,8,49]");
  EXPECT_EQ(phantom["rows"][0]["wagers"], 2);  // the Field's phantom unit; Lay 10 and Don't Come 5 undecided
  EXPECT_EQ(s.Only("results all", "results")["bets"].size(), 83u);

  for (const char* bad : {"results", "results 0", "results 84", "results 6,,8", "results 6,6", "results x",
                          "results 6 real", "results 6 actual x"})
    EXPECT_NE(s.Error(bad), "(none)") << bad;
  EXPECT_EQ(s.Error("results 6,6"), "results: BetId 6 is listed twice");
}

TEST(StatsCommands, SummaryAndTrends) {
  Session s;
  s.Run("bet 49 5\nroll 1 2\nroll 6 6");
  const Json summary = s.Only("summary", "summary");
  EXPECT_EQ(summary[0].dump(), R"({"label":"Total rolls:","value":"2"})");
  bool sawNet = false;
  for (const Json& row : summary)
    if (row["label"] == "Net win:") {
      sawNet = true;
      EXPECT_EQ(row["value"], "$15");
      EXPECT_EQ(row["share"], "150.00%");
    }
  EXPECT_TRUE(sawNet);
  const Json trends = s.Only("trends", "trends");
  EXPECT_EQ(trends["heading"],
            "Recent Won / Lost trend for bets actually made (losses shown as negative numbers).");
  EXPECT_EQ(trends["bets"].dump(), R"([{"id":49,"name":"Field","results":"5|10","span":"2 rolls"}])");
}
