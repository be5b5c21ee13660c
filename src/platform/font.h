// Text in the interface font, at the sizes the screens use.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/surface.h"

namespace platform {

/// Letter heights of the interface, given in points at 96 dots an inch: 9, 11.25, 12 and 14.25.
enum class FontSize : std::uint8_t { pt9, pt11, pt12, pt14 };

/// Units from one line of text to the next.
int lineHeight(FontSize size);

/// Places text on a surface. Characters outside the font show as an empty box. The letters of plain
/// captions are prepared when the font is opened, so that drawing them allocates nothing.
class Font {
 public:
  ~Font();
  Font(const Font&) = delete;
  Font& operator=(const Font&) = delete;

  /// Opens a font file for surfaces of one scale. On failure returns nothing and says in `error` which
  /// file and what is wrong.
  static std::unique_ptr<Font> open(const std::string& path, std::string& error, int scale = 1);

  /// Width in units of one line of UTF-8 text, the same at every scale.
  int width(std::string_view text, FontSize size);
  /// Draws one line of UTF-8 text with the top left corner of its line box at (x, y), blended, inside
  /// `clip` and the surface.
  void draw(Surface& target, const Rect& clip, int x, int y, std::string_view text, FontSize size,
            Color color);

 private:
  explicit Font(int scale);
  struct Implementation;
  std::unique_ptr<Implementation> implementation_;
};

}  // namespace platform
