#include <algorithm>

#include "platform/layout.h"
#include "platform/paint.h"

namespace platform {

namespace {

constexpr int kShadow = 4;
constexpr Color kPaper{226, 233, 251};
constexpr Color kTitleTop{92, 128, 214};
constexpr Color kTitleBottom{62, 92, 176};
constexpr Color kUnderPointer{206, 218, 246};
constexpr Color kNote{255, 253, 226};
constexpr FontSize kNoteFont = FontSize::pt9;
constexpr int kNoteWidth = 300;  // at which its text is wrapped
constexpr int kNoteMargin = 6;

void paintShadow(const Brush& brush, const Rect& place) {
  brush.darken({place.right(), place.top + kShadow, kShadow, place.height});
  brush.darken({place.left + kShadow, place.bottom(), place.width - kShadow, kShadow});
}

}  // namespace

Rect withShadow(const Rect& place) {
  if (place.empty()) return place;
  return {place.left, place.top, place.width + kShadow, place.height + kShadow};
}

void paintOpenList(const Brush& brush, const Rect& place, const Control& control, int row) {
  paintShadow(brush, place);
  brush.fill(place, kWhite);
  brush.outline(place, mix(kUnderPointer, kInk, 60));
  const ListContent& list = *control.list;
  Rect line{place.left + 1, place.top + 1, place.width - 2, kListRowHeight};
  for (std::size_t i = 0; i < list.items.size(); ++i) {
    const int entry = static_cast<int>(i);
    if (entry == row) {
      brush.fill(line, kTitleBottom);
    } else if (entry == list.selected) {
      brush.fill(line, kUnderPointer);
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
  return {std::clamp(owner.left, 0, std::max(0, 800 - kShadow - width)),
          below + height + kShadow <= 600 ? below : owner.top - height - 4, width, height};
}

void paintTooltipFrame(const Brush& brush, const Rect& place) {
  paintShadow(brush, place);
  brush.fill(place, kNote);
  brush.outline(place, mix(kNote, kInk, 60));
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
  brush.fill(place, kPaper);
  brush.raised(place, kPaper);
  const Rect title{place.left + 3, place.top + 3, place.width - 6, kBoxTitleHeight - 4};
  brush.fillDown(title, kTitleTop, kTitleBottom);
  brush.within(title).line({title.left + 8, title.top, title.width - 8, title.height}, box.title,
                           kBoxFont, kWhite, Align::left);

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
  paintButton(brush, button, mix(kPaper, kTitleTop, 18), "OK", kBoxFont, kBlack, buttonDown);
}

}  // namespace platform
