#include "platform/files.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace platform {
namespace {

namespace fs = std::filesystem;
using support::bytesOf;
using support::putFile;
using support::TempFolder;
using Names = std::vector<std::string>;

int stepsLeft = -1;  // before the one that goes wrong; -1: none does
bool dies = false;   // of it

bool countedStep(const char*) {
  if (stepsLeft < 0 || stepsLeft-- > 0) return true;
  if (dies) kill(getpid(), SIGKILL);
  return false;
}

template <typename Action>
int statusOfChild(Action action) {
  const pid_t child = fork();
  if (child == 0) _exit(action());
  int status = -1;
  return waitpid(child, &status, 0) == child ? status : -1;
}

TEST(Files, AWriterThatFailsOrDiesAtAnyStepLeavesAWholeFileAndTheNextOneClearsUp) {
  const TempFolder folder;
  const std::string place = folder / "town.sav", fresh(50000, 'n');
  std::string error;
  setWriteStep(countedStep);
  const auto write = [&] { return writeFile(place, fresh, error); };
  for (int step = 0; step < 8; ++step) {  // create, four chunks, flush, rename, folder
    SCOPED_TRACE(step);
    putFile(place, "old");
    EXPECT_TRUE(WIFSIGNALED(statusOfChild([&] { return stepsLeft = step, dies = true, write(); })));
    EXPECT_EQ(bytesOf(place), step < 7 ? "old" : fresh);
    EXPECT_EQ(listFiles(folder.path(), ".sav"), Names{"town.sav"});
    ASSERT_TRUE(write()) << error;
    EXPECT_EQ(folder.entries(), 1);

    putFile(place, "old");
    stepsLeft = step;
    EXPECT_FALSE(write());
    EXPECT_EQ(bytesOf(place), step < 7 ? "old" : fresh);
    EXPECT_EQ(folder.entries(), 1);
    EXPECT_TRUE(error.starts_with(place + ": ")) << error;
    EXPECT_EQ(error.ends_with("did not confirm it"), step == 7);
  }
  stepsLeft = 8;
  EXPECT_TRUE(write());
  EXPECT_EQ(stepsLeft, 0) << "no step went unseen";
  setWriteStep(nullptr);
}

TEST(Files, ALinkIsFollowedPermissionsStayAndARefusalNamesFileAndReason) {
  const TempFolder folder;
  std::string error;
  fs::create_directory(folder / "far");
  putFile(folder / "far/real.sav", "old");
  fs::permissions(folder / "far/real.sav", fs::perms{0640});
  fs::create_symlink("far/real.sav", folder / "second.sav");
  fs::create_symlink("second.sav", folder / "first.sav");
  fs::create_symlink("far/later.sav", folder / "dangling.sav");
  fs::create_symlink("circle", folder / "circle");
  for (const char* name : {"first.sav", "dangling.sav", "\xC3\xA4 .sav"}) {
    EXPECT_TRUE(writeFile(folder / name, "new", error)) << error;
  }
  for (const char* name : {"far/real.sav", "far/later.sav"})
    EXPECT_EQ(bytesOf(folder / name), "new");
  for (const char* name : {"first.sav", "second.sav"}) EXPECT_TRUE(fs::is_symlink(folder / name));
  EXPECT_EQ(fs::status(folder / "far/real.sav").permissions(), fs::perms{0640});

  const std::pair<std::string, std::string> refused[] = {
      {folder / "far", "a folder has this name"},
      {folder / "nowhere/town.sav", "its folder does not exist"},
      {folder / std::string(256, 'x'), "the name is too long"},
      {folder / "", "the file's name is missing"},
      {"/dev/full", "is not an ordinary file"}};
  for (const auto& [path, reason] : refused) {
    EXPECT_FALSE(writeFile(path, "x", error));
    EXPECT_EQ(error, path + ": " + reason);
  }
  for (const std::string& path : {folder / "circle", folder / std::string("a\0b", 3)}) {
    EXPECT_FALSE(writeFile(path, "x", error));
  }
  EXPECT_EQ(folder.entries(), 6);
}

TEST(Files, ALockedFolderKeepsTheOldFile) {
  const TempFolder folder;
  const std::string place = folder / "town.sav";
  putFile(place, "old");
  const int status = statusOfChild([&] {
    std::string error;
    chmod(place.c_str(), 0666);
    chmod(folder.path().c_str(), 0555);
    if (geteuid() == 0 && setuid(65534) != 0) return 1;
    if (folderWritable(folder.path()) || writeFile(place, "new", error)) return 2;
    return error.ends_with("permission is denied") ? 0 : 3;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(bytesOf(place), "old");
  EXPECT_EQ(folder.entries(), 1);
}

TEST(Files, OnlyOrdinaryFilesWithinTheLimitAreListedAndRead) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe.sav").c_str(), 0600), 0);
  fs::create_directory(folder / "folder.sav");
  for (const char* name :
       {"b.sav", "a.SAV", ".sav", "Z.sav", "\xC3\xA4.sav", ".a.sav", "a.sav.x"}) {
    putFile(folder / name, "0123456789");
  }
  const Names inOrderOfBytes{".a.sav", ".sav", "Z.sav", "b.sav", "\xC3\xA4.sav"};
  EXPECT_EQ(listFiles(folder.path(), ".sav"), inOrderOfBytes);
  std::string into = "untouched", error;
  // The last says that it is empty.
  for (const std::string& path : {folder / "pipe.sav", folder / "missing.sav", folder / "b.sav",
                                  std::string("/dev/zero"), std::string("/proc/self/status")}) {
    EXPECT_FALSE(readFile(path, into, error, 9)) << path;
  }
  EXPECT_FALSE(readFile(folder / "folder.sav", into, error));
  EXPECT_EQ(error, folder / "folder.sav" + ": is a folder");
  EXPECT_EQ(into, "untouched");
  EXPECT_TRUE(readFile(folder / "b.sav", into, error, 10)) << error;
  EXPECT_EQ(into, "0123456789");
}

TEST(Files, SettingAsideReplacesNothingAndFoldersAreMadeWithThoseAboveThem) {
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

  EXPECT_TRUE(makeFolders(folder / "a/b/c", error)) << error;
  EXPECT_TRUE(folderWritable(folder / "a/b/c"));
  EXPECT_FALSE(makeFolders(folder / "config.bad/b", error));
}

}  // namespace
}  // namespace platform
