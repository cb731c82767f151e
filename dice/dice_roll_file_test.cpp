#include "dice/dice_roll_file.h"

#include <gtest/gtest.h>

#include "cli/temp_folder_for_test.h"

TEST(DiceRollFile, RecordNIsByteNAndWritesMixWithReads) {
  TempFolder dir;
  const std::string path = (dir.path() / "a.rol").string();
  DiceRollFile f;
  EXPECT_FALSE(f.Open(path, false));  // no such file
  ASSERT_TRUE(f.Open(path, true));
  EXPECT_EQ(f.Size(), 0);
  EXPECT_EQ(f.Read(1), -1);
  for (int i = 1; i <= 5; ++i) ASSERT_TRUE(f.Write(i, static_cast<uint8_t>(i * 10)));
  EXPECT_FALSE(f.Write(8, 1));  // no holes past the end
  EXPECT_EQ(f.Size(), 5);
  EXPECT_EQ(f.Read(3), 30);
  EXPECT_EQ(f.Read(4), 40);  // sequential, then a write in the middle and a read after it
  ASSERT_TRUE(f.Write(2, 99));
  EXPECT_EQ(f.Read(2), 99);
  EXPECT_EQ(f.Read(5), 50);
  EXPECT_EQ(f.Read(6), -1);
  EXPECT_EQ(f.Read(1), 10);  // end of file does not stick

  uint8_t block[4] = {};
  EXPECT_EQ(f.ReadBlock(3, block, 4), 3u);  // only three left
  EXPECT_EQ(block[0], 30);
  ASSERT_TRUE(f.Truncate(2));
  EXPECT_EQ(f.Size(), 2);
  EXPECT_EQ(f.Read(2), 99);
  f.Close();
  DiceRollFile again;
  ASSERT_TRUE(again.Open(path, false));
  EXPECT_EQ(again.Size(), 2);
}
