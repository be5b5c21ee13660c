#include "platform/layout.h"

#include <algorithm>

#include "platform/desk.h"
#include "platform/utf8.h"

namespace platform {

std::string_view takeLine(std::string_view& text, int width, Font& font, FontSize size) {
  const std::string_view whole = text;
  std::size_t at = 0;
  int used = 0;
  std::size_t lineEnd = 0;  // end of the words that fit, and where the next line begins
  std::size_t nextLine = 0;
  bool wordSeen = false;
  while (at < whole.size() && whole[at] != '\n') {
    if (whole[at] == ' ' && wordSeen) {
      lineEnd = at;
      nextLine = whole.find_first_not_of(' ', at);
      if (nextLine == std::string_view::npos) nextLine = whole.size();
    }
    wordSeen = wordSeen || whole[at] != ' ';
    const std::size_t next = nextCharacter(whole, at);
    const int wider = used + font.width(whole.substr(at, next - at), size);
    if (wider > width && whole[at] != ' ') {
      if (nextLine == 0) lineEnd = nextLine = std::max(at, nextCharacter(whole, 0));
      text = whole.substr(nextLine);
      return whole.substr(0, lineEnd);
    }
    used = wider;
    at = next;
  }
  text = whole.substr(std::min(at + 1, whole.size()));
  return whole.substr(0, at);
}

std::string_view shortened(std::string_view line, int width, Font& font, FontSize size) {
  if (font.width(line, size) <= width) return line;
  const int room = width - font.width(kEllipsis, size);
  std::size_t end = 0;
  while (end < line.size()) {
    const std::size_t next = nextCharacter(line, end);
    if (font.width(line.substr(0, next), size) > room) break;
    end = next;
  }
  return line.substr(0, end);
}

Size measureLines(std::string_view text, int width, Font& font, FontSize size) {
  Size lines;
  while (!text.empty()) {
    lines.width = std::max(lines.width, font.width(takeLine(text, width, font, size), size));
    ++lines.height;
  }
  return lines;
}

ListLayout listLayout(const Rect& place, const ListContent& list) {
  ListLayout layout{};
  const Rect inside{place.left + 2, place.top + 2, place.width - 4, place.height - 4};
  const int count = static_cast<int>(list.items.size());
  layout.rows = inside;
  layout.fitting = std::max(1, inside.height / kListRowHeight);
  layout.last = std::max(0, count - layout.fitting);
  layout.top = std::clamp(list.top, 0, layout.last);
  layout.bar = layout.last > 0;
  if (!layout.bar) return layout;
  layout.rows.width -= kScrollBarWidth;
  const int left = layout.rows.right();
  const int arrow = std::min(kScrollBarWidth, inside.height / 2);
  layout.up = {left, inside.top, kScrollBarWidth, arrow};
  layout.down = {left, inside.bottom() - arrow, kScrollBarWidth, arrow};
  layout.track = {left, layout.up.bottom(), kScrollBarWidth, layout.down.top - layout.up.bottom()};
  const int size =
      std::min(layout.track.height, std::max(12, layout.track.height * layout.fitting / count));
  const int room = layout.track.height - size;
  layout.thumb = {left, layout.track.top + room * layout.top / layout.last, kScrollBarWidth, size};
  return layout;
}

Rect listRow(const ListLayout& layout, int entry) {
  return {layout.rows.left, layout.rows.top + (entry - layout.top) * kListRowHeight,
          layout.rows.width, kListRowHeight};
}

Rect listTextPlace(const Rect& row) {
  return {row.left + 4, row.top, row.width - 6, row.height};
}

int listEntryAt(const ListLayout& layout, const ListContent& list, Point screen) {
  if (!layout.rows.contains(screen)) return -1;
  const int entry = layout.top + (screen.y - layout.rows.top) / kListRowHeight;
  return entry < static_cast<int>(list.items.size()) ? entry : -1;
}

Rect textBoxInside(const Rect& place) {
  return {place.left + 4, place.top + 2, std::max(0, place.width - 8), place.height - 4};
}

int textBoxShift(std::string_view text, std::size_t caret, int width, Font& font, FontSize size,
                 int before) {
  const int at = font.width(text.substr(0, caret), size);
  width = std::max(width, 1);
  const int most = std::max(0, font.width(text, size) + 1 - width);
  return std::clamp(std::clamp(before, at + 1 - width, at), 0, most);
}

}  // namespace platform
