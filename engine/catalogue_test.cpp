#include "engine/catalogue.h"

#include <gtest/gtest.h>

// The arithmetic of positions and the catalogue rows must agree, since the
// engine uses both.
TEST(Catalogue, PositionsAgreeWithNamesAndFamilies) {
  for (int n : bet::kNumbers) {
    const std::string num = std::to_string(n);
    EXPECT_EQ(bet::CatalogueName(bet::Lay(n)), "Lay " + num);
    EXPECT_EQ(bet::CatalogueName(bet::DontCome(n)), "Don't Come " + num);
    EXPECT_EQ(bet::CatalogueName(bet::DontComeOdds(n)), "Don't Come " + num + " Odds");
    EXPECT_EQ(bet::CatalogueName(bet::Come(n)), "Come " + num);
    EXPECT_EQ(bet::CatalogueName(bet::ComeOdds(n)), "Come " + num + " Odds");
    EXPECT_EQ(bet::CatalogueName(bet::Place(n)), "Place " + num);
    EXPECT_EQ(bet::CatalogueName(bet::Buy(n)), "Buy " + num);
    EXPECT_EQ(bet::EntryOf(bet::Buy(n)).group, bet::Group::Buy);
  }
  for (int id = bet::kFirstHop; id <= bet::kLastHop; ++id) {
    const bet::HopPair p = bet::HopFaces(id);
    EXPECT_EQ(bet::CatalogueName(id), "Hop " + std::to_string(p.low) + "-" + std::to_string(p.high));
    EXPECT_EQ(bet::HopFor(p.high, p.low), id);
    EXPECT_EQ(bet::EntryOf(id).group, bet::Group::Hop);
  }
  EXPECT_EQ(bet::HopFor(1, 1), 0);  // the pairs of 2, 3, 11 and 12 are propositions
  EXPECT_EQ(bet::HopFor(5, 6), 0);
  EXPECT_EQ(bet::CatalogueName(bet::kRail), "Rail");
  EXPECT_EQ(bet::StackName(104), "Chip-Stack # 4");
}

TEST(Catalogue, ComeOutDefaultsAndFieldRows) {
  int off = 0;
  for (int id = 1; id <= bet::kLastTableBet; ++id) off += bet::DefaultWorkOnComeOut(id) == 0;
  EXPECT_EQ(off, 6 + 6 + 6 + 4);  // Come odds, Place, Buy, line odds and the boxes
  EXPECT_EQ(bet::DefaultWorkOnComeOut(bet::DontComeOdds(4)), 1);
  EXPECT_EQ(bet::EntryOf(bet::kCome).contract, bet::Contract::NeedsPoint);
  EXPECT_EQ(bet::EntryOf(0).group, bet::Group::None);
  // Every one of the 36 pairs has its row, and the rows cover 1..21.
  int seen[22] = {};
  for (int a = 1; a <= 6; ++a)
    for (int b = 1; b <= 6; ++b) ++seen[bet::FieldRow(a, b)];
  for (int row = 1; row <= 21; ++row) EXPECT_GT(seen[row], 0) << row;
  EXPECT_EQ(bet::FieldRow(2, 2), 4);
  EXPECT_EQ(bet::FieldRow(4, 4), 15);
  EXPECT_EQ(bet::FieldRow(6, 3), 16);
}
