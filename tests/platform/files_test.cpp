#include "platform/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "platform/program_folder.h"
#include "support/temp_folder.h"

namespace platform {
namespace {

using support::bytesOf;
using support::putFile;
using support::TempFolder;

int stepsBeforeFailure = -1;  // -1: no step fails

bool countedStep(const char*) {
  return stepsBeforeFailure < 0 || stepsBeforeFailure-- > 0;
}

bool diesAtStep(const char*) {
  if (stepsBeforeFailure-- == 0) kill(getpid(), SIGKILL);
  return true;
}

TEST(Files, EveryFailingStepLeavesTheOldFileOrTheNewOneAndNoDraft) {
  const TempFolder folder;
  const std::string place = folder / "town.sav";
  const std::string fresh(50000, 'n');
  setWriteStep(countedStep);
  int failures = 0;
  for (int step = 0; step < 100; ++step) {
    putFile(place, "old");
    stepsBeforeFailure = step;
    std::string error;
    const bool written = writeFile(place, fresh, error);
    EXPECT_EQ(folder.entries(), 1);
    if (written) break;
    ++failures;
    EXPECT_TRUE(error.starts_with(place + ": ")) << error;
    const bool confirmMissing = error.ends_with("did not confirm it");
    EXPECT_EQ(bytesOf(place), confirmMissing ? fresh : "old") << "step " << step;
  }
  stepsBeforeFailure = -1;
  setWriteStep(nullptr);
  EXPECT_EQ(bytesOf(place), fresh);
  EXPECT_EQ(failures, 8);  // create, four chunks, flush, rename, folder
}

TEST(Files, AWriterKilledAtAnyStepLeavesAWholeFileAndTheNextOneClearsUp) {
  const TempFolder folder;
  const std::string place = folder / "town.sav";
  const std::string fresh(50000, 'n');
  std::string error;
  for (int step = 0; step < 8; ++step) {
    putFile(place, "old");
    const pid_t child = fork();
    if (child == 0) {
      stepsBeforeFailure = step;
      setWriteStep(diesAtStep);
      writeFile(place, fresh, error);
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "step " << step;
    EXPECT_EQ(bytesOf(place), step < 7 ? "old" : fresh) << "step " << step;
    EXPECT_EQ(listFiles(folder.path(), ".sav"), std::vector<std::string>{"town.sav"});
    ASSERT_TRUE(writeFile(place, fresh, error)) << error;
    EXPECT_EQ(folder.entries(), 1) << "step " << step;
  }
}

TEST(Files, ALinkIsFollowedAndPermissionsStay) {
  const TempFolder folder;
  std::string error;
  std::filesystem::create_directory(folder / "far");
  putFile(folder / "far/real.sav", "old");
  chmod((folder / "far/real.sav").c_str(), 0640);
  ASSERT_EQ(symlink("far/real.sav", (folder / "second.sav").c_str()), 0);
  ASSERT_EQ(symlink("second.sav", (folder / "first.sav").c_str()), 0);
  ASSERT_EQ(symlink("far/later.sav", (folder / "dangling.sav").c_str()), 0);
  ASSERT_EQ(symlink("circle", (folder / "circle").c_str()), 0);

  ASSERT_TRUE(writeFile(folder / "first.sav", "new", error)) << error;
  EXPECT_EQ(bytesOf(folder / "far/real.sav"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "first.sav"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "second.sav"));
  struct stat status {};
  ASSERT_EQ(stat((folder / "far/real.sav").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
  ASSERT_TRUE(writeFile(folder / "dangling.sav", "late", error)) << error;
  EXPECT_EQ(bytesOf(folder / "far/later.sav"), "late");
  EXPECT_FALSE(writeFile(folder / "circle", "x", error));
}

TEST(Files, WhatCannotBeWrittenIsRefusedWithItsNameAndReason) {
  const TempFolder folder;
  std::filesystem::create_directory(folder / "town.sav");
  const std::string longest(255, 'x');
  const struct {
    std::string path, reason;
  } cases[] = {
      {folder / "town.sav", "a folder has this name"},
      {folder / "nowhere/town.sav", "its folder does not exist"},
      {folder / (longest + "x"), "the name is too long"},
      {folder / "", "the file's name is missing"},
      {"", "the file's name is missing"},
      {"/dev/full", "is not an ordinary file"},
  };
  for (const auto& [path, reason] : cases) {
    std::string error;
    EXPECT_FALSE(writeFile(path, "x", error)) << path;
    EXPECT_EQ(error, (path.empty() ? "(no name)" : path) + ": " + reason);
  }
  std::string error;
  EXPECT_FALSE(writeFile(folder / std::string("a\0b", 3), "x", error));
  EXPECT_TRUE(writeFile(folder / longest, "x", error)) << error;
  EXPECT_TRUE(writeFile(folder / " \xC3\xA4 .sav", "", error)) << error;
  EXPECT_EQ(folder.entries(), 3);
}

TEST(Files, AFullDiskAndALockedFolderLeaveTheOldFile) {
  const TempFolder folder;
  const std::string place = folder / "town.sav";
  putFile(place, "old");
  const pid_t child = fork();
  if (child == 0) {
    // A limit on the size of files stands for a full disk; the superuser's rights are given up.
    signal(SIGXFSZ, SIG_IGN);
    struct rlimit limit {
      10000, 10000
    };
    std::string error;
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0 || writeFile(place, std::string(20000, 'n'), error)) {
      _exit(1);
    }
    if (!error.ends_with("the file would be too large")) _exit(2);
    chmod(place.c_str(), 0666);
    chmod(folder.path().c_str(), 0555);
    if (geteuid() == 0 && setuid(65534) != 0) _exit(3);
    if (folderWritable(folder.path()) || writeFile(place, "new", error)) _exit(4);
    _exit(error.ends_with("permission is denied") ? 0 : 5);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(bytesOf(place), "old");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(Files, OnlyOrdinaryFilesWithinTheLimitAreRead) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe.sav").c_str(), 0600), 0);
  std::filesystem::create_directory(folder / "folder.sav");
  putFile(folder / "ten.sav", "0123456789");
  std::string into = "untouched", error;
  EXPECT_FALSE(readFile(folder / "pipe.sav", into, error));
  EXPECT_FALSE(readFile(folder / "folder.sav", into, error));
  EXPECT_EQ(error, folder / "folder.sav" + ": is a folder");
  EXPECT_FALSE(readFile("/dev/zero", into, error));
  EXPECT_FALSE(readFile(folder / "missing.sav", into, error));
  EXPECT_FALSE(readFile(folder / "ten.sav", into, error, 9));
  EXPECT_FALSE(readFile("/proc/self/status", into, error, 9));  // says that it is empty
  EXPECT_EQ(into, "untouched");
  EXPECT_TRUE(readFile(folder / "ten.sav", into, error, 10)) << error;
  EXPECT_EQ(into, "0123456789");
  EXPECT_EQ(listFiles(folder.path(), ".sav"), std::vector<std::string>{"ten.sav"});
}

TEST(Files, ListsAreInTheOrderOfTheirBytes) {
  const TempFolder folder;
  for (const char* name :
       {"b.sav", "a.SAV", ".sav", "Z.sav", "\xC3\xA4.sav", ".a.sav", "a.sav.x"}) {
    putFile(folder / name, "");
  }
  const std::vector<std::string> expected{".a.sav", ".sav", "Z.sav", "b.sav", "\xC3\xA4.sav"};
  EXPECT_EQ(listFiles(folder.path(), ".sav"), expected);
  EXPECT_TRUE(listFiles(folder / "missing", ".sav").empty());
}

TEST(Files, SettingAsideReplacesNothing) {
  const TempFolder folder;
  putFile(folder / "config.bad", "first");
  std::string to, error;
  for (const char* expected : {"config.bad.2", "config.bad.3"}) {
    putFile(folder / "config.dat", expected);
    to = "config.bad";
    ASSERT_TRUE(setAside(folder / "config.dat", to, error)) << error;
    EXPECT_EQ(to, expected);
    EXPECT_EQ(bytesOf(folder / to), expected);
  }
  EXPECT_EQ(bytesOf(folder / "config.bad"), "first");
  EXPECT_FALSE(setAside(folder / "config.dat", to, error));
}

TEST(Files, FoldersAreMadeWithThoseAboveThem) {
  const TempFolder folder;
  putFile(folder / "file", "");
  std::string error;
  EXPECT_TRUE(makeFolders(folder / "a/b/c", error)) << error;
  EXPECT_TRUE(makeFolders(folder / "a/b/c", error)) << error;
  EXPECT_TRUE(folderWritable(folder / "a/b/c"));
  EXPECT_FALSE(makeFolders(folder / "file/b", error));
  EXPECT_EQ(error, folder / "file" + ": is not a folder");
  EXPECT_FALSE(folderWritable(folder / "file"));
  EXPECT_TRUE(std::filesystem::exists(executableFolder() + "/vellmoran-tests"));
}

}  // namespace
}  // namespace platform
