#include "store/progress.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temp_folder.h"

namespace store {
namespace {

using support::bytesOf;
using support::putFile;
using support::TempFolder;

constexpr const char* kFresh = "1,0,0,0,0,0,0,0,0,0,0,0\r\n";

TEST(Progress, IsOneLineOfTwelveNumbersThatAreCarriedUnchanged) {
  const TempFolder folder;
  Progress progress;
  std::string error;
  for (const char* text : {kFresh, "11,-2147483648,1,0,0,0,0,0,0,0,0.5,1\r\n"}) {
    putFile(folder / "config.dat", text);
    ASSERT_TRUE(readProgress(folder.path(), progress, error)) << error;
    ASSERT_TRUE(writeProgress(folder.path(), progress, error)) << error;
    EXPECT_EQ(bytesOf(folder / "config.dat"), text);
  }
  EXPECT_EQ(progress.reachedMission, 11);
  EXPECT_EQ(progress.puzzleDone[10], 1);
  EXPECT_EQ(handOverFile(2), "mission2.dat");
  EXPECT_EQ(handOverFile(10), "mission10.dat");
  EXPECT_FALSE(writeProgress(folder / "nowhere", progress, error));
  EXPECT_EQ(error, "config.dat: its folder does not exist");
}

TEST(Progress, ADamagedFileIsKeptUnderAnotherNameAndTold) {
  const TempFolder folder;
  int count = 0;
  for (const char* text : {"", "1,0,0,0,0,0,0,0,0,0,0,0", "1,0,0,0,0,0,0,0,0,0,0\r\n",
                           "1,0,0,0,0,0,0,0,0,0,0,0,0\r\n", "1,0,0,0,0,0,0,0,0,0,0,0\r\n\r\n",
                           "0,0,0,0,0,0,0,0,0,0,0,0\r\n", "12,0,0,0,0,0,0,0,0,0,0,0\r\n",
                           ",0,0,0,0,0,0,0,0,0,0,0\r\n", "1.5,0,0,0,0,0,0,0,0,0,0,0\r\n",
                           "1,0.5,0,0,0,0,0,0,0,0,0,0\r\n", "1,2147483648,0,0,0,0,0,0,0,0,0,0\r\n",
                           "1,0,0,0,0,0,0,0,0,0,0,x\r\n", "1;0;0;0;0;0;0;0;0;0;0;0\r\n"}) {
    putFile(folder / "config.dat", text);
    Progress untouched;
    untouched.reachedMission = 7;
    std::string error, notice;
    EXPECT_FALSE(readProgress(folder.path(), untouched, error)) << text;
    EXPECT_TRUE(error.starts_with("config.dat: ")) << error;
    EXPECT_EQ(untouched.reachedMission, 7);

    EXPECT_TRUE(prepareProgress(folder.path(), notice)) << text;
    const std::string kept =
        ++count == 1 ? "config.dat.damaged" : "config.dat.damaged." + std::to_string(count);
    EXPECT_TRUE(notice.starts_with(error)) << notice;
    EXPECT_NE(notice.find("is kept as " + kept + ","), std::string::npos) << notice;
    EXPECT_EQ(bytesOf(folder / kept), text);
    EXPECT_EQ(bytesOf(folder / "config.dat"), kFresh);
  }
}

TEST(Progress, AMissingFileIsMadeAndToldOfOnlyWhereSomebodyPlayed) {
  const TempFolder folder;
  std::string notice = "old";
  for (int start = 1; start <= 2; ++start) {
    EXPECT_TRUE(prepareProgress(folder.path(), notice));
    EXPECT_EQ(notice, "");
    EXPECT_EQ(bytesOf(folder / "config.dat"), kFresh);
  }
  std::filesystem::remove(folder / "config.dat");
  putFile(folder / "mission2.dat", "");
  EXPECT_TRUE(prepareProgress(folder.path(), notice));
  EXPECT_TRUE(notice.starts_with("config.dat: ")) << notice;

  std::filesystem::remove(folder / "config.dat");
  std::filesystem::create_directory(folder / "config.dat");
  EXPECT_TRUE(prepareProgress(folder.path(), notice));
  EXPECT_TRUE(notice.starts_with("config.dat: is a folder")) << notice;
  EXPECT_TRUE(std::filesystem::is_directory(folder / "config.dat.damaged"));
  EXPECT_EQ(bytesOf(folder / "config.dat"), kFresh);

  EXPECT_FALSE(prepareProgress(folder / "nowhere", notice));
  EXPECT_EQ(notice, "config.dat: its folder does not exist");
}

}  // namespace
}  // namespace store
