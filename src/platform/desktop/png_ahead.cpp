#include <future>

#include "platform/png.h"

namespace platform {

struct PngAhead::Reading {
  Surface surface;
  std::string error;
  std::future<bool> good;
};

// Where no thread can be had, the picture is read when it is taken.
PngAhead::PngAhead(const std::string& path, int scale) : reading_(std::make_unique<Reading>()) {
  Reading& reading = *reading_;
  reading.good = std::async(std::launch::async | std::launch::deferred, [&reading, path, scale] {
    return readPng(path, reading.surface, reading.error, scale);
  });
}

PngAhead::~PngAhead() = default;

bool PngAhead::take(Surface& into, std::string& error) {
  if (!reading_->good.get()) {
    error = reading_->error;
    return false;
  }
  into = std::move(reading_->surface);
  return true;
}

}  // namespace platform
