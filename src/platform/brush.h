// Drawing on the framebuffer inside one rectangle: fills, edges, text, pictures. All places are in
// units; at a scale of two, slanted edges, shades and letters are drawn by the pixel.
#pragma once

#include <string_view>

#include "platform/control.h"
#include "platform/skin.h"

namespace platform {

inline constexpr Color kInk{52, 32, 16};  // the darkest edges: a deep brown, never black

class Brush {
 public:
  /// Nothing outside `clip` is touched.
  Brush(Surface& target, const Rect& clip, Font& font, const Skin& skin)
      : target_(target), clip_(intersection(clip, target.bounds())), font_(font), skin_(skin) {}

  const Rect& clip() const { return clip_; }
  Font& font() const { return font_; }
  /// The same brush for a part of its rectangle.
  Brush within(const Rect& part) const {
    return {target_, intersection(clip_, part), font_, skin_};
  }

  void fill(const Rect& rect, Color color) const { target_.fill(intersection(rect, clip_), color); }
  /// Takes a quarter of the light away.
  void darken(const Rect& rect) const;
  /// A line of one unit along the inside of the rectangle.
  void outline(const Rect& rect, Color color) const { edges(rect, color, color); }
  /// The same with one colour for the top and left, another for the bottom and right.
  void edges(const Rect& rect, Color topLeft, Color bottomRight) const;
  /// One of the pictures of the skin, put together to the size of the rectangle.
  void look(const Rect& rect, Look look) const;
  /// A line of two units; both end points belong to it.
  void line(Point from, Point to, Color color) const;
  /// A small triangle in the middle of the rectangle that points down or up.
  void arrow(const Rect& rect, bool down, Color color) const;
  /// A picture at its own size, in the middle of `place`.
  void picture(const Rect& place, const Surface& source) const;
  /// One line of text; yellow text gets a dark rim so that it reads on light ground.
  void text(int x, int y, std::string_view text, FontSize size, Color color) const;
  /// One line of text in the middle of a rectangle's height, placed in its width.
  void line(const Rect& rect, std::string_view text, FontSize size, Color color, Align align) const;
  /// The caption in the middle of a key. Its letters are drawn together by up to a pixel where it
  /// would come too near to the rim of the key.
  void caption(const Rect& key, std::string_view text, FontSize size, Color color) const;

 private:
  void fillPixels(const Rect& pixels, Color color) const;
  void patch(const Rect& rect, Look look) const;

  Surface& target_;
  Rect clip_;
  Font& font_;
  const Skin& skin_;
};

}  // namespace platform
