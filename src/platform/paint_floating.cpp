#include <algorithm>

#include "platform/display.h"
#include "platform/layout.h"
#include "platform/paint.h"

namespace platform {

namespace {

constexpr int kShadow = 4;
constexpr Color kUnderPointer{52, 86, 159};
constexpr Color kSelected{214, 196, 152};
constexpr FontSize kNoteFont = FontSize::pt9;
constexpr int kNoteWidth = 300;  // at which its text is wrapped
constexpr int kNoteMargin = 6;

}  // namespace

void paintShadow(const Brush& brush, const Rect& place) {
  brush.darken({place.right(), place.top + kShadow, kShadow, place.height});
  brush.darken({place.left + kShadow, place.bottom(), place.width - kShadow, kShadow});
}

Rect withShadow(const Rect& place) {
  if (place.empty()) return place;
  return {place.left, place.top, place.width + kShadow, place.height + kShadow};
}

void paintOpenList(const Brush& brush, const Rect& place, const Control& control, int row) {
  paintShadow(brush, place);
  brush.look(place, Look::sheet);
  const ListContent& list = *control.list;
  Rect line{place.left + 1, place.top + 1, place.width - 2, kListRowHeight};
  for (std::size_t i = 0; i < list.items.size(); ++i) {
    const int entry = static_cast<int>(i);
    if (entry == row) {
      brush.fill(line, kUnderPointer);
    } else if (entry == list.selected) {
      brush.fill(line, kSelected);
    }
    brush.within(line).line({line.left + 5, line.top, line.width - 5, line.height}, list.items[i],
                            control.design->font, entry == row ? kWhite : control.fore,
                            Align::left);
    line.top += kListRowHeight;
  }
}

Rect tooltipPlace(const Rect& owner, std::string_view text, Font& font) {
  const Size lines = measureLines(text, kNoteWidth, font, kNoteFont);
  const int width = lines.width + 2 * kNoteMargin;
  const int height = lines.height * lineHeight(kNoteFont) + kNoteMargin;
  const int below = owner.bottom() + 4;
  return {std::clamp(owner.left, 0, std::max(0, kScreenWidth - kShadow - width)),
          below + height + kShadow <= kScreenHeight ? below : owner.top - height - 4, width,
          height};
}

void paintTooltipFrame(const Brush& brush, const Rect& place) {
  paintShadow(brush, place);
  brush.look(place, Look::sheet);
}

void paintTooltip(const Brush& brush, const Rect& place, std::string_view text) {
  paintTooltipFrame(brush, place);
  const int step = lineHeight(kNoteFont);
  for (int y = place.top + kNoteMargin / 2; !text.empty(); y += step) {
    const std::string_view line = takeLine(text, kNoteWidth, brush.font(), kNoteFont);
    brush.line({place.left + kNoteMargin, y, place.width, step}, line, kNoteFont, kInk,
               Align::left);
  }
}

void paintBox(const Brush& brush, const Rect& place, const MessageBox& box, bool buttonDown) {
  paintShadow(brush, place);
  brush.look(place, Look::sheet);
  brush.look(place, Look::frame);
  const Rect title{place.left + 4, place.top + 4, place.width - 8, kBoxTitleHeight - 4};
  brush.look(title, Look::sheet);
  brush.within(title).line({title.left + 8, title.top, title.width - 16, title.height}, box.title,
                           kBoxFont, kBlack, Align::centre);

  const Rect button = Desk::boxButton(place);
  const int step = lineHeight(kBoxFont);
  const Rect inside{place.left + 4, place.top + kBoxTitleHeight, place.width - 8,
                    button.top - place.top - kBoxTitleHeight};
  Rect line{place.left + kBoxMargin, place.top + kBoxTitleHeight + kBoxMargin - 2,
            place.width - 2 * kBoxMargin, step};
  std::string_view text = box.text;
  const bool single = measureLines(text, kBoxTextWidth, brush.font(), kBoxFont).height == 1;
  while (!text.empty() && line.top < inside.bottom()) {
    const std::string_view words = takeLine(text, kBoxTextWidth, brush.font(), kBoxFont);
    brush.within(inside).line(line, words, kBoxFont, kBlack, single ? Align::centre : Align::left);
    line.top += step;
  }
  paintButton(brush, button, "OK", kBoxFont, kBlack, buttonDown);
}

}  // namespace platform
