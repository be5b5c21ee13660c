// A caption: text of a bounded length that is kept in place, so that writing one allocates nothing.
#pragma once

#include <array>
#include <cstring>
#include <string_view>

namespace platform {

class Text {
 public:
  static constexpr std::size_t kCapacity = 636;

  Text() = default;
  Text(std::string_view text) { assign(text); }               // NOLINT: written as plain text
  Text(const char* text) { assign(std::string_view(text)); }  // NOLINT

  /// Takes the text; what goes beyond the capacity is cut at a whole UTF-8 character.
  void assign(std::string_view text) {
    size_ = fitting(text, kCapacity);
    if (size_ > 0) std::memmove(data_.data(), text.data(), size_);
  }
  /// Adds to the end, cut the same way.
  void append(std::string_view text) {
    const std::size_t n = fitting(text, kCapacity - size_);
    if (n > 0) std::memmove(data_.data() + size_, text.data(), n);
    size_ += n;
  }
  void clear() { size_ = 0; }
  bool empty() const { return size_ == 0; }
  std::string_view view() const { return {data_.data(), size_}; }
  operator std::string_view() const { return view(); }  // NOLINT

  friend bool operator==(const Text& a, std::string_view b) { return a.view() == b; }
  friend bool operator==(const Text& a, const char* b) { return a.view() == b; }
  friend bool operator==(const Text& a, const Text& b) { return a.view() == b.view(); }

 private:
  static std::size_t fitting(std::string_view text, std::size_t room) {
    if (text.size() <= room) return text.size();
    std::size_t n = room;
    while (n > 0 && (static_cast<unsigned char>(text[n]) & 0xC0) == 0x80) --n;
    return n;
  }

  std::array<char, kCapacity> data_{};
  std::size_t size_ = 0;
};

}  // namespace platform
