#include "platform/natural_order.h"

#include <algorithm>

#include "platform/utf8.h"

namespace platform {

namespace {

// The letters from U+00C0 to U+017F without their accents; a blank for the signs among them.
constexpr std::string_view kPlain =
    "aaaaaaaceeeeiiiidnooooo ouuuuytsaaaaaaaceeeeiiiidnooooo ouuuuyty"
    "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkk"
    "llllllllllnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";
constexpr char32_t kFirstAccented = 0xC0;
static_assert(kPlain.size() == 0x180 - kFirstAccented);

char32_t plain(char32_t c) {
  if (c >= 'A' && c <= 'Z') return c - 'A' + 'a';
  if (c < kFirstAccented || c - kFirstAccented >= kPlain.size()) return c;
  const char letter = kPlain[c - kFirstAccented];
  return letter == ' ' ? c : static_cast<char32_t>(letter);
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Takes the digits of a number off the front, and drops zeros that say nothing.
std::string_view takeNumber(std::string_view& text) {
  const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
  std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(number.size());
  number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
  return number;
}

}  // namespace

bool comesBefore(std::string_view a, std::string_view b) {
  std::string_view x = a;
  std::string_view y = b;
  while (!x.empty() && !y.empty()) {
    if (isDigit(x.front()) && isDigit(y.front())) {
      const std::string_view m = takeNumber(x);
      const std::string_view n = takeNumber(y);
      if (m.size() != n.size()) return m.size() < n.size();
      if (m != n) return m < n;
      continue;
    }
    const char32_t c = plain(takeCharacter(x));
    const char32_t d = plain(takeCharacter(y));
    if (c != d) return c < d;
  }
  if (x.empty() != y.empty()) return x.empty();
  return a < b;
}

}  // namespace platform
