#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "platform/desktop/system_error.h"
#include "platform/file_faults.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

}  // namespace

bool readFile(const std::string& path, std::string& into, std::string& error, std::size_t limit) {
  if (!namesFile(path, error)) return false;
  // Without waiting: opening a pipe would otherwise block until somebody writes into it.
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  if (file < 0) return fail(error, path, systemError(errno));
  const auto refuse = [&](std::string_view what) {
    close(file);
    return fail(error, path, what);
  };
  struct stat status {};
  if (fstat(file, &status) != 0) return refuse(systemError(errno));
  if (S_ISDIR(status.st_mode)) return refuse("is a folder");
  if (!S_ISREG(status.st_mode)) return refuse("is not an ordinary file");
  if (static_cast<std::size_t>(status.st_size) > limit) return refuse("is too large");

  // A file may grow while it is read, and some hold more than their reported size.
  std::string bytes;
  char chunk[1 << 16];
  bytes.reserve(static_cast<std::size_t>(status.st_size));
  for (;;) {
    const ssize_t n = read(file, chunk, sizeof chunk);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return refuse(systemError(errno));
    if (n == 0) break;
    if (static_cast<std::size_t>(n) > limit - bytes.size()) return refuse("is too large");
    bytes.append(chunk, static_cast<std::size_t>(n));
  }
  close(file);
  into = std::move(bytes);
  return true;
}

bool setAside(const std::string& path, std::string& to, std::string& error) {
  if (!namesFile(path, error) || !namesFile(to, error)) return false;
  const std::string folder = path.substr(0, path.rfind('/') + 1);
  const std::string name = to.substr(to.rfind('/') + 1);
  for (int number = 1; number < 10000; ++number) {
    const std::string candidate = number == 1 ? name : name + "." + std::to_string(number);
    const std::string target = folder + candidate;
    int result = renameat2(AT_FDCWD, path.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE);
    if (result != 0 && (errno == EINVAL || errno == ENOSYS)) {
      // A file system without a rename that replaces nothing: a second name, then the first goes.
      result = link(path.c_str(), target.c_str());
      if (result == 0) result = unlink(path.c_str());
    }
    if (result == 0) {
      to = candidate;
      return true;
    }
    if (errno != EEXIST) return fail(error, path, systemError(errno));
  }
  return fail(error, path, "there are too many files of the name it should get");
}

std::vector<std::string> listFiles(const std::string& folder, std::string_view ending) {
  std::vector<std::string> names;
  std::error_code failed;
  for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
       entry.increment(failed)) {
    std::string name = entry->path().filename().string();
    std::error_code unknown;
    if (name.ends_with(ending) && entry->is_regular_file(unknown)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool fileExists(const std::string& path) {
  std::error_code unknown;
  return fs::is_regular_file(path, unknown);
}

bool folderWritable(const std::string& folder) {
  std::error_code unknown;
  return fs::is_directory(folder, unknown) &&
         faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool makeFolders(const std::string& folder, std::string& error) {
  std::size_t end = 0;
  do {
    end = folder.find('/', end + 1);
    const std::string part = folder.substr(0, end);
    if (mkdir(part.c_str(), 0700) == 0) continue;  // nobody else may look in, not even for a moment
    const int reason = errno;
    std::error_code unknown;
    if (fs::is_directory(part, unknown)) continue;
    if (fs::exists(part, unknown)) return fail(error, part, "is not a folder");
    return fail(error, part, systemError(reason));
  } while (end != std::string::npos);
  return true;
}

}  // namespace platform
