#include "platform/file_faults.h"

namespace platform {

bool fail(std::string& error, const std::string& path, std::string_view what) {
  error = path.empty() ? "(no name)" : path;
  error += ": ";
  error += what;
  return false;
}

bool namesFile(const std::string& path, std::string& error) {
  if (path.find('\0') != std::string::npos) return fail(error, path.c_str(), "is no file name");
  if (path.empty() || path.back() == '/') return fail(error, path, "the file's name is missing");
  return true;
}

}  // namespace platform
