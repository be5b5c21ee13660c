#include "store/progress.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temp_folder.h"

namespace store {
namespace {

using support::bytesOf;
using support::putFile;

constexpr const char* kFresh = "1,0,0,0,0,0,0,0,0,0,0,0\r\n";

TEST(Progress, IsOneLineOfTwelveNumbersThatAreCarriedUnchanged) {
  const support::TempFolder folder;
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
}

TEST(Progress, ADamagedFileIsKeptUnderAnotherNameAndTold) {
  const support::TempFolder folder;
  int count = 0;
  const std::string tail = ",0,0,0,0,0,0,0,0,0,0", end = "\r\n";
  for (const std::string& text :
       {std::string(), "1,0" + tail, "1" + tail + end, "1,0,0" + tail + end,
        "1,0" + tail + end + end, "0,0" + tail + end, "12,0" + tail + end, ",0" + tail + end,
        "1.5,0" + tail + end, "1,0.5" + tail + end, "1,2147483648" + tail + end, "1,x" + tail + end,
        "1;0" + tail + end}) {
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
  const support::TempFolder folder;
  std::string notice = "old";
  EXPECT_TRUE(prepareProgress(folder.path(), notice));
  EXPECT_EQ(notice, "");
  EXPECT_EQ(bytesOf(folder / "config.dat"), kFresh);
  std::filesystem::remove(folder / "config.dat");
  putFile(folder / handOverFile(10), "");
  EXPECT_TRUE(prepareProgress(folder.path(), notice));
  EXPECT_TRUE(notice.starts_with("config.dat: ")) << notice;
  EXPECT_FALSE(prepareProgress(folder / "nowhere", notice));
  EXPECT_EQ(notice, "config.dat: its folder does not exist");
}

}  // namespace
}  // namespace store
