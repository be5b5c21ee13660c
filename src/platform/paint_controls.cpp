#include <algorithm>

#include "platform/layout.h"
#include "platform/paint.h"

namespace platform {

namespace {

constexpr Color kFace{206, 218, 246};       // of buttons, where the design names no colour
constexpr Color kFieldEdge{150, 168, 220};  // the ground that text boxes and lists lie in
constexpr Color kChosen{70, 106, 190};      // the selected entry of a list
constexpr Color kTitleTint{84, 118, 214};
constexpr Color kKeyShade{66, 94, 158};
constexpr Color kKeyLight{190, 214, 250};

Rect inset(const Rect& r, int by) {
  return {r.left + by, r.top + by, r.width - 2 * by, r.height - 2 * by};
}

void paintTitle(const Brush& brush, const Control& control, const Rect& place) {
  // With its edge the bar ends above row 24, where what a panel holds may begin.
  const Rect bar{place.left + 2, place.top + 2, place.width - 4, 20};
  if (control.design->opaque) {
    brush.fillDown(bar, mix(control.back, kTitleTint, 18), mix(control.back, kTitleTint, 38));
    brush.fill({bar.left, bar.bottom(), bar.width, 1}, mix(control.back, kInk, 35));
    brush.fill({bar.left, bar.bottom() + 1, bar.width, 1}, mix(control.back, kWhite, 45));
  }
  brush.within(bar).line(bar, control.text, FontSize::pt14, control.fore, Align::centre);
}

void paintGroup(const Brush& brush, const Control& control, const Rect& place) {
  const FontSize size = control.design->font;
  const int half = lineHeight(size) / 2;
  const Rect edge{place.left, place.top + half, place.width - 1, place.height - half - 1};
  if (control.border) {
    brush.outline(moved(edge, 1, 1), mix(control.back, kWhite, 60));
    brush.outline(edge, mix(control.back, kInk, 45));
  }
  if (control.text.empty()) return;
  const int width = brush.font().width(control.text, size);
  const int left = place.left + 9;
  brush.fill({left - 3, edge.top, width + 6, 2}, control.back);
  brush.text(left, place.top, control.text, size, control.fore);
}

void paintFrame(const Brush& brush, const Control& control, const Rect& place) {
  const ControlDesign& design = *control.design;
  if (design.opaque) brush.fill(place, control.back);
  if (design.heading == Heading::group) {
    paintGroup(brush, control, place);
    return;
  }
  if (control.border) {
    // A panel stands out of the screen; a frame within a panel is let into it.
    design.parent == kNoParent ? brush.raised(place, control.back)
                               : brush.sunken(place, control.back);
  }
  if (design.heading == Heading::title) paintTitle(brush, control, place);
}

// A key of a painted plate, pushed in: in the shade, with round corners, its upper and left rim the
// darkest.
void paintHeldKey(const Brush& brush, const Rect& place) {
  const Rect face = inset(place, 1);
  for (int y = 0; y < face.height; ++y) {
    const int cut = std::max(0, 2 - std::min(y, face.height - 1 - y));
    brush.darken({face.left + cut, face.top + y, face.width - 2 * cut, 1});
  }
  brush.fill({face.left + 2, face.top, face.width - 4, 1}, kKeyShade);
  brush.fill({face.left, face.top + 2, 1, face.height - 4}, kKeyShade);
  brush.fill({face.left + 2, face.bottom(), face.width - 4, 1}, kKeyLight);
  brush.fill({face.right(), face.top + 2, 1, face.height - 4}, kKeyLight);
}

void paintLabel(const Brush& brush, const Control& control, const Rect& place) {
  const ControlDesign& design = *control.design;
  if (design.opaque) brush.fill(place, control.back);
  if (control.border) brush.outline(place, mix(design.opaque ? control.back : kFace, kInk, 60));
  if (control.image != nullptr) {
    constexpr int kMargin = 6;
    const int width = control.image->width();
    brush.picture({place.right() - kMargin - width, place.top, width, place.height},
                  *control.image);
  }
  std::string_view text = control.text;
  if (text.empty()) return;
  // A border that comes and goes moves no text.
  const Rect inside = design.border ? inset(place, 2) : place;
  const int step = lineHeight(design.font);
  const std::string_view whole = text;
  std::string_view line = takeLine(text, inside.width, brush.font(), design.font);
  // Where no second line fits, the text stays one line, cut off by its box.
  constexpr int kSparable = 4;
  if (text.empty() || place.height < 2 * step - kSparable) {
    Rect row = inside;
    if (place.height > 2 * step && design.align != Align::centre) row.height = step;
    brush.line(row, whole, design.font, control.fore, design.align);
    return;
  }
  for (int y = inside.top; y < inside.bottom(); y += step) {
    brush.line({inside.left, y, inside.width, step}, line, design.font, control.fore, design.align);
    if (text.empty()) return;
    line = takeLine(text, inside.width, brush.font(), design.font);
  }
}

void paintCheckBox(const Brush& brush, const Control& control, const Rect& place) {
  constexpr int kSize = 13;
  if (control.design->opaque) brush.fill(place, control.back);
  const Rect mark{place.left, place.top + (place.height - kSize) / 2, kSize, kSize};
  brush.fill(mark, kWhite);
  brush.sunken(mark, kFieldEdge);
  if (control.checked) {
    // A tick of seven columns, three pixels thick.
    constexpr int kRise[] = {2, 1, 0, 1, 2, 3, 4};
    for (int i = 0; i < 7; ++i) {
      brush.fill({mark.left + 3 + i, mark.bottom() - 6 - kRise[i], 1, 3}, kInk);
    }
    static_assert(sizeof kRise / sizeof kRise[0] == 7);
  }
  const Rect caption{mark.right() + 5, place.top, place.width - kSize - 5, place.height};
  brush.line(caption, control.text, control.design->font, control.fore, Align::left);
}

void paintDropDown(const Brush& brush, const Control& control, const Rect& place, bool open) {
  brush.fill(place, kWhite);
  brush.sunken(place, kFieldEdge);
  const Rect inside = inset(place, 2);
  const Rect button{inside.right() - kScrollBarWidth, inside.top, kScrollBarWidth, inside.height};
  brush.fill(button, kFace);
  open ? brush.sunken(button, kFace) : brush.raised(button, kFace);
  brush.arrow(moved(button, open ? 1 : 0, open ? 1 : 0), true, kInk);
  std::string_view text = control.text;
  const ListContent& list = *control.list;
  if (list.selected >= 0 && list.selected < static_cast<int>(list.items.size())) {
    text = list.items[static_cast<std::size_t>(list.selected)];
  }
  const Rect field{inside.left, inside.top, inside.width - button.width, inside.height};
  const Rect shown{field.left + 4, field.top, field.width - 4, field.height};
  brush.within(field).line(shown, text, control.design->font, control.fore, Align::left);
}

// A name that is too long for its row ends in an ellipsis.
void paintName(const Brush& brush, const Rect& place, std::string_view name, FontSize size,
               Color color) {
  const std::string_view shown = shortened(name, place.width, brush.font(), size);
  brush.line(place, shown, size, color, Align::left);
  if (shown.size() == name.size()) return;
  const int width = brush.font().width(shown, size);
  brush.line({place.left + width, place.top, place.width - width, place.height}, kEllipsis, size,
             color, Align::left);
}

void paintFileList(const Brush& brush, const Control& control, const Rect& place) {
  brush.fill(place, kWhite);
  brush.sunken(place, kFieldEdge);
  const ListContent& list = *control.list;
  const ListLayout layout = listLayout(place, list);
  const Brush rows = brush.within(layout.rows);
  const int count = static_cast<int>(list.items.size());
  for (int i = layout.top; i < count; ++i) {
    const Rect row = listRow(layout, i);
    if (row.top >= layout.rows.bottom()) break;
    const bool chosen = i == list.selected;
    if (chosen) rows.fill(row, kChosen);
    paintName(rows, listTextPlace(row), list.items[static_cast<std::size_t>(i)],
              control.design->font, chosen ? kWhite : control.fore);
  }
  if (!layout.bar) return;
  brush.fill(layout.track, mix(kFace, kWhite, 45));
  for (const Rect& part : {layout.up, layout.down, layout.thumb}) {
    brush.fill(part, kFace);
    brush.raised(part, kFace);
  }
  brush.arrow(layout.up, false, kInk);
  brush.arrow(layout.down, true, kInk);
}

void paintTextBox(const Brush& brush, const Control& control, const Rect& place,
                  const ControlState& state) {
  brush.fill(place, kWhite);
  brush.sunken(place, kFieldEdge);
  const FontSize size = control.design->font;
  const Rect inside = textBoxInside(place);
  const Brush within = brush.within(inside);
  const Rect line = moved(inside, -state.textShift, 0);
  within.line(line, control.text, size, control.fore, Align::left);
  if (!state.focused) return;
  const int height = std::min(inside.height, lineHeight(size));
  const auto upTo = [&](std::size_t at) {
    const int width = brush.font().width(control.text.view().substr(0, at), size);
    return Rect{line.left, inside.top + (inside.height - height) / 2, width, height};
  };
  const Selection& selection = state.selection;
  if (!selection.empty()) {
    Rect chosen = upTo(selection.to());
    chosen.left = upTo(selection.from()).right();
    chosen.width -= chosen.left - line.left;
    within.fill(chosen, kChosen);
    within.within(chosen).line(line, control.text, size, kWhite, Align::left);
  }
  const Rect caret = upTo(selection.caret);
  within.fill({caret.right(), caret.top, 1, height}, kInk);
}

}  // namespace

void paintButton(const Brush& brush, const Rect& place, Color face, std::string_view caption,
                 FontSize size, Color color, bool down) {
  if (down) {
    brush.fill(place, mix(face, kInk, 8));
    brush.sunken(place, face);
  } else {
    brush.fillDown(place, mix(face, kWhite, 30), mix(face, kInk, 5));
    brush.raised(place, face);
  }
  const int shift = down ? 1 : 0;
  brush.within(inset(place, 2))
      .line(moved(place, shift, shift), caption, size, color, Align::centre);
}

void paintControl(const Brush& brush, const Control& control, const Rect& place,
                  const ControlState& state) {
  const ControlDesign& design = *control.design;
  const Brush within = brush.within(place);
  switch (design.kind) {
    case ControlKind::frame:
      paintFrame(within, control, place);
      break;
    case ControlKind::label:
      paintLabel(within, control, place);
      break;
    case ControlKind::button:
      paintButton(within, place, design.opaque ? control.back : kFace, control.text, design.font,
                  control.fore, state.pressed);
      break;
    case ControlKind::image:
      if (design.opaque) within.fill(place, control.back);
      if (control.image != nullptr) within.picture(place, *control.image);
      if (control.border) within.raised(place, control.back);
      if (!control.heldKey.empty()) {
        paintHeldKey(within, moved(control.heldKey, place.left, place.top));
      }
      break;
    case ControlKind::picture: {
      const Size size = control.canvas == nullptr ? Size{}
                                                  : Size{control.canvas->surface().width(),
                                                         control.canvas->surface().height()};
      if (size != Size{place.width, place.height}) within.fill(place, kBlack);
      if (control.canvas == nullptr) break;
      within.picture({place.left, place.top, size.width, size.height}, control.canvas->surface());
      break;
    }
    case ControlKind::line:
      within.line({place.left + control.from.x, place.top + control.from.y},
                  {place.left + control.to.x, place.top + control.to.y}, control.fore);
      break;
    case ControlKind::box:
      if (design.opaque) within.fill(place, control.back);
      if (control.border) within.outline(place, mix(control.back, kInk, 35));
      break;
    case ControlKind::checkBox:
      paintCheckBox(within, control, place);
      break;
    case ControlKind::dropDown:
      paintDropDown(within, control, place, state.open);
      break;
    case ControlKind::fileList:
      paintFileList(within, control, place);
      break;
    case ControlKind::textBox:
      paintTextBox(within, control, place, state);
      break;
  }
}

bool coversItsBox(const Control& control) {
  switch (control.design->kind) {
    case ControlKind::frame:
    case ControlKind::label:
    case ControlKind::box:
    case ControlKind::checkBox:
      return control.design->opaque;
    case ControlKind::image:
      return control.design->opaque ||
             (control.image != nullptr && control.image->width() >= control.place.width &&
              control.image->height() >= control.place.height);
    case ControlKind::line:
      return false;
    default:
      return true;
  }
}

}  // namespace platform
