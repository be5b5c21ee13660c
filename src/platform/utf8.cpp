#include "platform/utf8.h"

namespace platform {

namespace {

bool continues(unsigned char byte) {
  return (byte & 0xC0) == 0x80;
}

}  // namespace

char32_t takeCharacter(std::string_view& text) {
  const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char first = byte(0);
  std::size_t length = 1;
  char32_t code = first;
  char32_t least = 0;  // a character written in more bytes than it needs is none
  if (first >= 0xF0 && first < 0xF8) {
    length = 4, code = first & 0x07u, least = 0x10000;
  } else if (first >= 0xE0) {
    length = 3, code = first & 0x0Fu, least = 0x800;
  } else if (first >= 0xC0) {
    length = 2, code = first & 0x1Fu, least = 0x80;
  }
  bool good = first < 0x80 || (first >= 0xC0 && first < 0xF8 && length <= text.size());
  for (std::size_t i = 1; good && i < length; ++i) {
    good = continues(byte(i));
    code = code << 6 | (byte(i) & 0x3Fu);
  }
  good = good && code >= least && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  text.remove_prefix(good ? length : 1);
  return good ? code : kReplacement;
}

std::size_t nextCharacter(std::string_view text, std::size_t at) {
  if (at >= text.size()) return text.size();
  std::string_view rest = text.substr(at);
  takeCharacter(rest);
  return text.size() - rest.size();
}

std::size_t previousCharacter(std::string_view text, std::size_t at) {
  if (at == 0) return 0;
  // A character is at most four bytes long: the one that ends here begins at most four back.
  for (std::size_t back = at < 4 ? at : 4; back > 1; --back) {
    if (nextCharacter(text.substr(0, at), at - back) == at) return at - back;
  }
  return at - 1;
}

}  // namespace platform
