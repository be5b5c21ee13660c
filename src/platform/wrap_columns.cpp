#include "platform/wrap_columns.h"

#include "platform/utf8.h"

namespace platform {

namespace {

/// The bytes of the longest piece from the start of `line` that has `columns` characters at most.
std::size_t fitting(std::string_view line, int columns) {
  std::string_view rest = line;
  while (!rest.empty() && columns-- > 0) takeCharacter(rest);
  return line.size() - rest.size();
}

}  // namespace

std::string wrapColumns(std::string_view text, int columns) {
  std::string result;
  for (;;) {
    const std::string_view line = text.substr(0, text.find('\n'));
    std::size_t length = fitting(line, columns);
    std::size_t skipped = 0;
    if (length < line.size()) {
      const std::size_t blank = line.substr(0, length + 1).rfind(' ');
      if (blank != std::string_view::npos && blank > 0) {
        length = blank;
        skipped = 1;
      }
    } else if (length < text.size()) {
      skipped = 1;  // the line's own end
    }
    result += text.substr(0, length);
    text.remove_prefix(length + skipped);
    if (text.empty()) return result;
    result += '\n';
  }
}

}  // namespace platform
