#include "dice/generators.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

TEST(Mt19937, MatchesTheReferenceStream) {
  // The reference stream is the standard engine's; 5489 is also the seed of
  // an unseeded generator. Several reloads are covered.
  Mt19937 g, unseeded;
  EXPECT_EQ(genrand_int32(unseeded), 3499211612u);
  for (uint32_t seed : {5489u, 1u, 4357u, 0xFFFFFFFFu}) {
    init_genrand(g, seed);
    std::mt19937 standard(seed);
    for (int i = 0; i < 2000; ++i) ASSERT_EQ(genrand_int32(g), standard()) << "seed " << seed << " draw " << i;
  }
  init_genrand(g, 5489u);
  for (int i = 0; i < 9999; ++i) genrand_int32(g);
  EXPECT_EQ(genrand_int32(g), 4123659995u);
  init_genrand(g, 7u);
  init_genrand(unseeded, 7u);
  EXPECT_EQ(genrand_real2(g), genrand_int32(unseeded) / 4294967296.0);
}

TEST(Cokus, SeedsWithItsOwnCongruentialFill) {
  // The published first outputs of the 69069-seeded generator for 4357, which
  // an unseeded one falls back on.
  CokusMt g, unseeded;
  srandMT(g, 4357u);
  for (uint32_t v : {3510405877u, 4290933890u, 2191955339u}) EXPECT_EQ(randomMT_int32(g), v);
  EXPECT_EQ(randomMT_int32(unseeded), 3510405877u);

  // The seed is forced odd: 12344 and 12345 give one stream.
  CokusMt even, odd;
  srandMT(even, 12344u);
  srandMT(odd, 12345u);
  for (int i = 0; i < 10; ++i) ASSERT_EQ(randomMT_int32(even), randomMT_int32(odd));

  // Past a reload it follows the standard recurrence from its fill.
  for (uint32_t seed : {1u, 99u, 0xFFFFFFFFu}) {
    srandMT(g, seed);
    std::stringstream words;
    for (int i = 0; i < 624; ++i) words << g.state[i] << ' ';
    std::mt19937 standard;
    words >> standard;
    for (int i = 0; i < 2000; ++i) ASSERT_EQ(randomMT_int32(g), standard()) << "seed " << seed << " draw " << i;
  }
  srandMT(g, 1u);
  EXPECT_EQ(randomMT_int32(g), 3796174982u);  // not the reference seeding's 1791095845
  for (int i = 1; i < 624; ++i) randomMT_int32(g);
  EXPECT_EQ(randomMT_int32(g), 1141860845u);
  srandMT(g, 1u);
  EXPECT_EQ(randomMT(g), 3796174982u / 4294967296.0);
}
