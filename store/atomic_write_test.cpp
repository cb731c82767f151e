#include "store/atomic_write.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "cli/temp_folder_for_test.h"
#include "store/file_bytes_for_test.h"

namespace fs = std::filesystem;

namespace {

TEST(AtomicWrite, KeepsTheModeAndWritesThroughLinks) {
  TempFolder folder;
  const fs::path real = folder.path() / "real.crp", link = folder.path() / "link.crp";
  WriteBytes(real, "old");
  chmod(real.c_str(), 0640);
  fs::create_symlink("real.crp", link);

  ASSERT_TRUE(WriteFileAtomically(link, "new"));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(ReadBytes(real), "new");
  struct stat st {};
  stat(real.c_str(), &st);
  EXPECT_EQ(st.st_mode & 07777, 0640u);

  std::string reason;
  EXPECT_FALSE(WriteFileAtomically(folder.path(), "x", reason));
  EXPECT_EQ(reason, "is a directory");
  EXPECT_FALSE(WriteFileAtomically(folder.path() / "none" / "x", "x", reason));
  EXPECT_EQ(reason, "could not be written: no such file or directory");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 2);
}

TEST(AtomicWrite, OnlyTheTemporariesOfGoneProcessesAreCleared) {
  TempFolder folder;
  const std::string mine = ".a.crp." + std::to_string(getpid()) + ".17.dmtmp";
  const std::string gone = ".a.crp.999999999.17.dmtmp";  // above any process id the system gives
  for (const std::string& name : {mine, gone, std::string("a.crp"), std::string(".hidden")})
    WriteBytes(folder.path() / name, "x");
  EXPECT_EQ(RemoveStaleSaveTemporaries(folder.path()), 1);
  EXPECT_FALSE(fs::exists(folder.path() / gone));
  for (const std::string& name : {mine, std::string("a.crp"), std::string(".hidden")})
    EXPECT_TRUE(fs::exists(folder.path() / name)) << name;
}

}  // namespace
