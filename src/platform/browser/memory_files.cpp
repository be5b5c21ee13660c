#include "platform/browser/memory_files.h"

#include <algorithm>
#include <map>

#include "platform/browser/host.h"
#include "platform/file_faults.h"
#include "platform/files.h"
#include "platform/program_folder.h"

namespace platform {

namespace {

std::map<std::string, std::string, std::less<>> files;
std::string entered = kBrowserFolder;

std::string whole(const std::string& path) {
  if (path == ".") return entered;
  return path.starts_with('/') ? path : entered + "/" + path;
}

void keep(const std::string& path) {
  const auto found = files.find(path);
  const bool there = found != files.end();
  pageKeep(path.data(), static_cast<int>(path.size()), there ? found->second.data() : nullptr,
           there ? static_cast<int>(found->second.size()) : 0);
}

}  // namespace

void putFile(const std::string& path, std::string_view bytes) {
  files[whole(path)] = bytes;
}

void removeFile(const std::string& path) {
  files.erase(whole(path));
}

bool readFile(const std::string& path, std::string& into, std::string& error, std::size_t limit) {
  if (!namesFile(path, error)) return false;
  const auto found = files.find(whole(path));
  if (found == files.end()) return fail(error, path, "there is no such file or folder");
  if (found->second.size() > limit) return fail(error, path, "is too large");
  into = found->second;
  return true;
}

bool writeFile(const std::string& path, std::string_view bytes, std::string& error) {
  if (!namesFile(path, error)) return false;
  putFile(path, bytes);
  keep(whole(path));
  return true;
}

bool setAside(const std::string& path, std::string& to, std::string& error) {
  if (!namesFile(path, error) || !namesFile(to, error)) return false;
  const std::string from = whole(path);
  const auto found = files.find(from);
  if (found == files.end()) return fail(error, path, "there is no such file or folder");
  const std::string folder = from.substr(0, from.rfind('/') + 1);
  const std::string name = to.substr(to.rfind('/') + 1);
  for (int number = 1;; ++number) {
    to = number == 1 ? name : name + "." + std::to_string(number);
    if (!files.contains(folder + to)) break;
  }
  files[folder + to] = std::move(found->second);
  files.erase(found);
  keep(folder + to);
  keep(from);
  return true;
}

std::vector<std::string> listFiles(const std::string& folder, std::string_view ending) {
  const std::string at = whole(folder) + "/";
  std::vector<std::string> names;
  for (const auto& [path, bytes] : files) {
    const std::string_view name = std::string_view(path).substr(std::min(at.size(), path.size()));
    if (path.starts_with(at) && name.find('/') == std::string_view::npos && name.ends_with(ending))
      names.emplace_back(name);
  }
  return names;
}

bool fileExists(const std::string& path) {
  return files.contains(whole(path));
}

bool folderWritable(const std::string&) {
  return true;
}

bool makeFolders(const std::string&, std::string&) {
  return true;
}

std::string executableFolder() {
  return "/program";
}

std::string workingFolder() {
  return entered;
}

bool findProgramFolder(std::string& folder, std::string&) {
  folder = kBrowserFolder;
  return true;
}

bool enterFolder(const std::string& folder, std::string&) {
  entered = folder;
  return true;
}

}  // namespace platform
