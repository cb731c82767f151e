#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "dice/generators.h"
#include "dice/rng.h"

TEST(Ran1Ran2, KnownStreamsAndReinitialisation) {
  std::string err;
  Ran1State r1;
  Ran2State r2;
  // idum before each draw (0: left as the last draw left it), and the draw.
  const struct { bool ran1; int32_t idum; float value; } draws[] = {
      {true, -1, 0.3900425136089325f},  {true, 0, 0.171148419380188f},  {true, 0, 0.6423839330673218f},
      {true, -1, 0.3900425136089325f},  {true, -12345, 0.1444481760263443f},
      {false, -1, 0.22098246216773987f}, {false, 1, 0.1670921891927719f}, {false, 1, 0.5601876974105835f},
      {false, -12345, 0.9612828493118286f}, {false, 1, 0.4660901129245758f}};
  int32_t idum = 0;
  for (const auto& d : draws) {
    if (d.idum != 0) idum = d.idum;
    EXPECT_EQ(d.ran1 ? Ran1(r1, idum, err) : Ran2(r2, idum, err), d.value) << d.ran1 << " " << d.idum;
    // Ran1 hands back 1 after initialising; Ran2 keeps its state to itself.
    EXPECT_EQ(idum, d.ran1 ? 1 : d.idum);
  }
  EXPECT_EQ(err, "");

  // Far enough in for the decimal reciprocals to tell from exact ones.
  idum = -1;
  for (int i = 0; i < 999; ++i) Ran1(r1, idum, err);
  EXPECT_EQ(Ran1(r1, idum, err), 0.9402850270271301f);
  idum = -1;
  Ran2(r2, idum, err);
  idum = 1;
  for (int i = 1; i < 999; ++i) Ran2(r2, idum, err);
  EXPECT_EQ(Ran2(r2, idum, err), 0.6909828186035156f);
  for (int i = 0; i < 200000; ++i) {
    float a = Ran1(r1, idum, err), b = Ran2(r2, idum, err);
    ASSERT_TRUE(a >= 0 && a < 1 && b >= 0 && b < 1) << i;
  }
}

TEST(Ran1Ran2, EdgesOfTheState) {
  std::string err;
  // An entry computed just above 1 is stored just below it.
  Ran1State r1;
  r1.iff = 1;
  r1.ix1 = 222786;  // steps to 259199
  r1.ix2 = 15212;   // steps to 134455
  int32_t idum = 1;
  Ran1(r1, idum, err);
  EXPECT_EQ(r1.r[r1.j], std::nextafter(1.0f, 0.0f));

  // A broken state reports through the error text and yields 0.
  Ran1State broken1;
  broken1.iff = 1;
  broken1.ix3 = -200000;
  EXPECT_EQ(Ran1(broken1, idum, err), 0.0f);
  EXPECT_EQ(err, "An error occurred in function Ran1\r");
  Ran2State broken2;
  broken2.iff = 1;
  broken2.iy = -5;
  EXPECT_EQ(Ran2(broken2, idum, err), 0.0f);
  EXPECT_EQ(err, "An error occurred in function Ran2\r");

  EXPECT_FALSE(Ran1InitOverflows(-2147428874));
  EXPECT_TRUE(Ran1InitOverflows(-2147428875));
  EXPECT_FALSE(Ran2InitOverflows(-2147332758));
  EXPECT_TRUE(Ran2InitOverflows(-2147332759));
}
