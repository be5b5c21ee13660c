#include "platform/program_folder.h"

#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>

#include "platform/desktop/system_error.h"
#include "platform/files.h"

namespace platform {

namespace {

// A variable that holds an absolute path; anything else in it counts as unset.
std::string pathVariable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && value[0] == '/' ? value : "";
}

std::string userDataFolder() {
  if (const std::string data = pathVariable("XDG_DATA_HOME"); !data.empty()) return data;
  const std::string home = pathVariable("HOME");
  return home.empty() ? "" : home + "/.local/share";
}

}  // namespace

std::string executableFolder() {
  char path[PATH_MAX];
  const ssize_t n = readlink("/proc/self/exe", path, sizeof path);
  if (n <= 0 || n == static_cast<ssize_t>(sizeof path)) return "";
  const std::string file(path, static_cast<std::size_t>(n));
  const std::size_t slash = file.rfind('/');
  return slash == 0 ? "/" : file.substr(0, slash);
}

bool findProgramFolder(std::string& folder, std::string& error) {
  folder = executableFolder();
  std::error_code unknown;
  if (!folder.empty() && std::filesystem::is_directory(folder + "/data", unknown) &&
      folderWritable(folder))
    return true;
  const std::string data = userDataFolder();
  if (data.empty()) {
    error = "there is no home folder to keep them in";
    return false;
  }
  folder = data + "/vellmoran";
  if (!makeFolders(folder, error)) return false;
  if (folderWritable(folder)) return true;
  error = folder + ": files cannot be made in this folder";
  return false;
}

bool enterFolder(const std::string& folder, std::string& error) {
  if (chdir(folder.c_str()) == 0) return true;
  error = folder + ": " + systemError(errno);
  return false;
}

std::string workingFolder() {
  char path[PATH_MAX];
  return getcwd(path, sizeof path) != nullptr ? path : "";
}

}  // namespace platform
