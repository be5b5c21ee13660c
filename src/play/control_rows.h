// The words in which both screens write their control tables: one short function for each kind of row,
// and the colours that the screens share.
#pragma once

#include <span>

#include "platform/control.h"

namespace play::rows {

using platform::Align;
using platform::Color;
using platform::ControlDesign;
using platform::ControlKind;
using platform::FontSize;
using platform::Heading;
using platform::kNoParent;
using platform::kSingle;
using platform::Rect;

using platform::Face;

inline constexpr Color kPanel{140, 179, 242};
inline constexpr Color kPlate{203, 221, 241};

/// Where panels wait until something places them: off the screen.
inline constexpr int kParked = 1000;

constexpr ControlDesign row(const char* name, ControlKind kind, int parent, Rect place) {
  return {.name = name, .kind = kind, .parent = parent, .place = place};
}
/// The same row with a ground of its own.
constexpr ControlDesign on(Color ground, ControlDesign design) {
  design.back = ground;
  design.opaque = true;
  return design;
}
constexpr ControlDesign bordered(ControlDesign design) {
  design.border = true;
  return design;
}
constexpr ControlDesign hidden(ControlDesign design) {
  design.visible = false;
  return design;
}

/// The same row with parchment over its ground.
constexpr ControlDesign onPaper(ControlDesign design) {
  design.paper = true;
  return design;
}
/// The same row on the ground of what holds it, whatever its own would be.
constexpr ControlDesign bare(ControlDesign design) {
  design.opaque = false;
  return design;
}
constexpr ControlDesign unbordered(ControlDesign design) {
  design.border = false;
  return design;
}

/// The same row painted on something of its own, at `box` in the parent.
constexpr ControlDesign faced(Face face, Rect box, ControlDesign design) {
  design.face = face;
  design.faceBox = box;
  return design;
}

constexpr ControlDesign frame(const char* name, int parent, Rect place, Color back) {
  return on(back, row(name, ControlKind::frame, parent, place));
}
constexpr ControlDesign box(const char* name, int parent, Rect place, Color back) {
  return bordered(on(back, row(name, ControlKind::box, parent, place)));
}
constexpr ControlDesign image(const char* name, int parent, Rect place) {
  ControlDesign design = row(name, ControlKind::image, parent, place);
  design.image = name;
  return design;
}
constexpr ControlDesign label(const char* name, int parent, Rect place, const char* text,
                              FontSize font = FontSize::pt11, Align align = Align::left,
                              int index = kSingle) {
  ControlDesign design = row(name, ControlKind::label, parent, place);
  design.index = index;
  design.text = text;
  design.font = font;
  design.align = align;
  return design;
}
constexpr ControlDesign button(const char* name, int parent, Rect place, const char* text,
                               FontSize font = FontSize::pt11) {
  ControlDesign design = on(kPlate, row(name, ControlKind::button, parent, place));
  design.text = text;
  design.font = font;
  design.align = Align::centre;
  return design;
}

/// Whether every row of a table has been written.
constexpr bool complete(std::span<const ControlDesign> table) {
  for (const ControlDesign& design : table) {
    if (design.name == nullptr) return false;
  }
  return true;
}

}  // namespace play::rows
