// Where the parts of text, lists and text boxes lie. The desk that answers a press and the painter
// that shows it use the same places.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/control.h"

namespace platform {

/// Takes the next line off a text that is to be wrapped at `width` pixels: as many words as fit, or
/// what fits of a single longer word. Blanks at the break are dropped, others kept. A newline ends
/// a line. An empty text gives no further line.
std::string_view takeLine(std::string_view& text, int width, Font& font, FontSize size);

/// What of a line stays in front of an ellipsis where the line is wider than `width`; the whole line
/// where it fits.
inline constexpr std::string_view kEllipsis = "\u2026";
std::string_view shortened(std::string_view line, int width, Font& font, FontSize size);

/// Lines that a text takes when it is wrapped so, and the width of the longest.
Size measureLines(std::string_view text, int width, Font& font, FontSize size);

/// A file list with `place` on the screen.
struct ListLayout {
  Rect rows;      // where entries are shown
  int fitting;    // whole rows that fit
  int top;        // first entry in sight
  int last;       // greatest value of `top`
  bool bar;       // more entries than rows; else the five places below are empty
  Rect up, down;  // arrows
  Rect track;     // between the arrows
  Rect thumb;
};
ListLayout listLayout(const Rect& place, const ListContent& list);

/// Place of a visible entry on the screen, and of the text within such a row.
Rect listRow(const ListLayout& layout, int entry);
Rect listTextPlace(const Rect& row);

/// The entry of the list at a screen pixel, or -1.
int listEntryAt(const ListLayout& layout, const ListContent& list, Point screen);

/// The inside of a text box with `place` on the screen: where its text is shown.
Rect textBoxInside(const Rect& place);
/// By how many pixels the text of a text box is pushed to the left so that its caret is in sight: as
/// near to what it was `before` as can be, with no room lost behind the text.
int textBoxShift(std::string_view text, std::size_t caret, int width, Font& font, FontSize size,
                 int before);

/// A message box: height of its title bar, margin around its text, width at which the text is
/// wrapped.
inline constexpr int kBoxTitleHeight = 26;
inline constexpr int kBoxMargin = 20;
inline constexpr int kBoxTextWidth = 400;
inline constexpr FontSize kBoxFont = FontSize::pt11;

}  // namespace platform
