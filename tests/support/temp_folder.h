// A folder of its own for one test, gone when the test is over.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace support {

class TempFolder {
 public:
  TempFolder() : path_(testing::TempDir() + "vellmoran-XXXXXX") {
    if (mkdtemp(path_.data()) == nullptr) std::abort();
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  /// How many entries the folder has, those with a leading dot included.
  int entries() const {
    int count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(path_)) ++count;
    return count;
  }

 private:
  std::string path_;
};

/// The bytes of a file, read without the code under test; "(missing)" where there is none.
inline std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return "(missing)";
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void putFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace support
