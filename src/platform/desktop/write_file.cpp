// The writer of `files.h`: writes a temporary file, syncs it, and moves it over the target.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <utility>

#include "platform/desktop/system_error.h"
#include "platform/file_faults.h"
#include "platform/files.h"

namespace platform {

namespace {

constexpr std::size_t kChunk = 16384;

WriteStep writeStep = nullptr;

// False when a test wants this step to fail; it then fails like a broken disk.
bool mayGoOn(const char* step) {
  if (writeStep == nullptr || writeStep(step)) return true;
  errno = EIO;
  return false;
}

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// Follows the links at the end of `path`, also to a file that is not there yet. 0 or an errno.
int followLinks(std::string& path) {
  for (int links = 0; links < 40; ++links) {
    char target[PATH_MAX];
    const ssize_t n = readlink(path.c_str(), target, sizeof target);
    if (n < 0) return errno == EINVAL || errno == ENOENT ? 0 : errno;
    if (n == static_cast<ssize_t>(sizeof target)) return ENAMETOOLONG;
    const std::string_view name(target, static_cast<std::size_t>(n));
    path = name.starts_with('/') ? std::string(name) : folderOf(path) + "/" + std::string(name);
  }
  return ELOOP;
}

// The temporary file beside the target. Its name is short, so that it fits wherever the target's
// name fits. A living writer holds a lock on it; one without a lock was left by a program that was
// killed, and is cleared away.
class Draft {
 public:
  explicit Draft(std::string folder) : folder_(std::move(folder)) {}
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;
  ~Draft() {
    if (file_ < 0) return;
    if (!moved_) unlink(name_.c_str());
    close(file_);
  }

  bool create();
  bool write(std::string_view bytes) const;
  bool moveTo(const std::string& place);
  int file() const { return file_; }

 private:
  bool clearLeftover() const;

  std::string folder_;
  std::string name_;
  int file_ = -1;
  bool moved_ = false;
};

bool Draft::create() {
  for (int number = 0; number < 1000;) {
    name_ = folder_ + "/.vellmoran-" + std::to_string(number) + ".part";
    file_ = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file_ < 0) {
      if (errno != EEXIST) return false;
      if (!clearLeftover()) ++number;
      continue;
    }
    flock(file_, LOCK_EX);
    struct stat status {};
    if (fstat(file_, &status) == 0 && status.st_nlink > 0) return true;
    close(file_);  // another writer cleared it away before it was locked
    file_ = -1;
  }
  errno = EEXIST;
  return false;
}

bool Draft::clearLeftover() const {
  const int file = open(name_.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
  if (file < 0) return errno == ENOENT;
  const bool cleared = flock(file, LOCK_EX | LOCK_NB) == 0 && unlink(name_.c_str()) == 0;
  close(file);
  return cleared;
}

bool Draft::write(std::string_view bytes) const {
  while (!bytes.empty()) {
    if (!mayGoOn("write")) return false;
    const ssize_t n = ::write(file_, bytes.data(), std::min(bytes.size(), kChunk));
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return mayGoOn("flush") && fsync(file_) == 0;
}

bool Draft::moveTo(const std::string& place) {
  if (!mayGoOn("rename") || rename(name_.c_str(), place.c_str()) != 0) return false;
  moved_ = true;
  return true;
}

bool flushFolder(const std::string& folder) {
  if (!mayGoOn("folder")) return false;
  const int handle = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return errno == EACCES;  // may be written but not listed: nothing more to do
  const bool flushed = fsync(handle) == 0 || errno == EINVAL;
  close(handle);
  return flushed;
}

// The owner is kept where that is allowed (by the superuser), the permissions always.
bool keepPermissions(int file, const struct stat& old) {
  if ((old.st_uid != geteuid() || old.st_gid != getegid()) &&
      fchown(file, old.st_uid, old.st_gid) != 0) {
    return fchmod(file, old.st_mode & 0777) == 0;
  }
  return fchmod(file, old.st_mode & 07777) == 0;
}

}  // namespace

void setWriteStep(WriteStep step) {
  writeStep = step;
}

bool writeFile(const std::string& path, std::string_view bytes, std::string& error) {
  if (!namesFile(path, error)) return false;
  std::string place = path;
  if (const int reason = followLinks(place); reason != 0)
    return fail(error, path, systemError(reason));
  struct stat old {};
  const bool replaces = stat(place.c_str(), &old) == 0;
  if (!replaces && errno != ENOENT) return fail(error, path, systemError(errno));
  if (replaces && S_ISDIR(old.st_mode)) return fail(error, path, "a folder has this name");
  if (replaces && !S_ISREG(old.st_mode)) return fail(error, path, "is not an ordinary file");
  // The move over a protected file would succeed: its folder alone decides that.
  if (replaces && faccessat(AT_FDCWD, place.c_str(), W_OK, AT_EACCESS) != 0) {
    return fail(error, path, systemError(errno));
  }

  const std::string folder = folderOf(place);
  Draft draft(folder);
  if (!mayGoOn("create") || !draft.create()) {
    return fail(error, path, errno == ENOENT ? "its folder does not exist" : systemError(errno));
  }
  if ((replaces && !keepPermissions(draft.file(), old)) || !draft.write(bytes) ||
      !draft.moveTo(place)) {
    return fail(error, path, systemError(errno));
  }
  if (!flushFolder(folder)) return fail(error, path, "is written, but the disk did not confirm it");
  return true;
}

}  // namespace platform
