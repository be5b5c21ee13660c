// Quiet for libraries that write to standard error where a device is missing: what is missing is said
// once, in one line of our own.
#pragma once

namespace platform {

/// Turns standard error off as long as it lives.
class Hush {
 public:
  Hush();
  ~Hush();
  Hush(const Hush&) = delete;
  Hush& operator=(const Hush&) = delete;

 private:
  int kept_;
};

}  // namespace platform
