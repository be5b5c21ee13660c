// What the page hands over and takes back: text and bytes in memory that it asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

#define VELLMORAN_EXPORT(name) extern "C" __attribute__((export_name(name)))

namespace platform {

/// Bytes that the page wrote into memory from `room`; frees them at the end of the scope.
class Handed {
 public:
  Handed(char* bytes, int size) : bytes_(bytes), size_(static_cast<std::size_t>(size)) {}
  std::string_view view() const { return {bytes_.get(), size_}; }

 private:
  struct Free {
    void operator()(char* bytes) const { std::free(bytes); }
  };
  std::unique_ptr<char, Free> bytes_;
  std::size_t size_;
};

}  // namespace platform
