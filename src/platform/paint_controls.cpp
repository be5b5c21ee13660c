#include <algorithm>

#include "platform/layout.h"
#include "platform/paint.h"

namespace platform {

namespace {

constexpr Color kChosen{52, 86, 159};    // the selected entry of a list
constexpr Color kBright{253, 247, 230};  // what etched lines show to the light
constexpr Color kTrack{216, 200, 164};   // of a scroll bar
constexpr Color kBrass{152, 112, 48};
constexpr Color kLedger{226, 211, 176};  // of a row of a table, on parchment

Rect inset(const Rect& r, int by) {
  return {r.left + by, r.top + by, r.width - 2 * by, r.height - 2 * by};
}

// A control on the screen itself, framed, with a shadow below it.
bool isPanel(const Control& control) {
  const ControlDesign& design = *control.design;
  return design.parent == kNoParent && design.border && design.opaque;
}

// A table's rows are a shade darker than the sheet on which they are.
void paintGround(const Brush& brush, const Control& control, const Rect& place) {
  if (!control.design->paper) {
    brush.fill(place, control.back);
  } else if (control.design->kind == ControlKind::label) {
    brush.fill(place, kLedger);
  } else {
    brush.look(place, Look::sheet);
  }
}

Rect faceOf(const Control& control, const Rect& place) {
  const ControlDesign& design = *control.design;
  return moved(design.faceBox, place.left - design.place.left, place.top - design.place.top);
}

void paintTitle(const Brush& brush, const Control& control, const Rect& place) {
  // The strip ends above row 32, where what most panels hold begins.
  const Rect strip{place.left + 4, place.top + 4, place.width - 8, 24};
  if (control.design->opaque) brush.look(strip, Look::sheet);
  brush.within(strip).line(strip, control.text, FontSize::pt14, control.fore, Align::centre);
}

void paintGroup(const Brush& brush, const Control& control, const Rect& place) {
  const FontSize size = control.design->font;
  const int half = lineHeight(size) / 2;
  const Rect edge{place.left + 2, place.top + half, place.width - 5, place.height - half - 3};
  const int left = place.left + 9;
  const int width = control.text.empty() ? 0 : brush.font().width(control.text, size);
  if (control.border) {
    // The lines leave the caption free, whatever ground it has.
    const int gap = control.text.empty() ? edge.left : left - 3;
    const int on = control.text.empty() ? edge.left : left + width + 3;
    for (const auto& [by, color] : {std::pair{1, kBright}, {0, kBrass}}) {
      const Rect line = moved(edge, by, by);
      brush.fill({line.left, line.top, gap - edge.left, 1}, color);
      brush.fill({on + by, line.top, line.right() - on - by, 1}, color);
      brush.fill({line.left, line.top, 1, line.height}, color);
      brush.fill({line.right() - 1, line.top, 1, line.height}, color);
      brush.fill({line.left, line.bottom() - 1, line.width, 1}, color);
    }
  }
  if (!control.text.empty()) brush.text(left, place.top, control.text, size, control.fore);
}

void paintFrame(const Brush& brush, const Control& control, const Rect& place) {
  const ControlDesign& design = *control.design;
  if (design.face == Face::sheet) {
    brush.look(faceOf(control, place), Look::sheet);
  } else if (design.opaque) {
    paintGround(brush, control, place);
  }
  if (design.heading == Heading::group) {
    paintGroup(brush, control, place);
    return;
  }
  // A panel stands out of the screen; a frame within a panel is let into it.
  if (control.border) brush.look(place, isPanel(control) ? Look::frame : Look::inlay);
  if (design.heading == Heading::title) paintTitle(brush, control, place);
}

// Where the caption of a key is centred: one that is up shows its lower side too.
Rect faceAbove(const Rect& key, bool down) {
  return {key.left, key.top, key.width, key.height - (down ? 0 : 2)};
}

// A label that acts as a button.
void paintKey(const Brush& brush, const Control& control, const Rect& key,
              const ControlState& state) {
  const bool lit = control.fore == kYellow;
  const bool down = state.pressed || control.held;
  if (control.design->face == Face::plainKey) {
    const int shift = down ? 1 : 0;
    brush.fill(key, control.back);
    brush.look(key, lit || down ? Look::rimLit : Look::rim);
    brush.line(moved(key, shift, shift), control.text, control.design->font, control.fore,
               Align::centre);
    return;
  }
  brush.look(key, down ? lit ? Look::keyDown : Look::keyHeld : lit ? Look::keyLit : Look::key);
  brush.caption(faceAbove(key, down), control.text, control.design->font, control.fore);
}

// The text of a label, over as many lines as it takes.
void paintText(const Brush& brush, const Control& control, const Rect& inside) {
  const ControlDesign& design = *control.design;
  std::string_view text = control.text;
  if (text.empty()) return;
  const int step = lineHeight(design.font);
  const std::string_view whole = text;
  std::string_view line = takeLine(text, inside.width, brush.font(), design.font);
  // Where no second line fits, the text stays one line, cut off by its box.
  constexpr int kSparable = 4;
  if (text.empty() || inside.height < 2 * step - kSparable) {
    Rect row = inside;
    if (inside.height > 2 * step && design.align != Align::centre) row.height = step;
    brush.line(row, whole, design.font, control.fore, design.align);
    return;
  }
  for (int y = inside.top; y < inside.bottom(); y += step) {
    brush.line({inside.left, y, inside.width, step}, line, design.font, control.fore, design.align);
    if (text.empty()) return;
    line = takeLine(text, inside.width, brush.font(), design.font);
  }
}

void paintLabel(const Brush& brush, const Control& control, const Rect& place,
                const ControlState& state) {
  const ControlDesign& design = *control.design;
  if (design.face == Face::key || design.face == Face::plainKey) {
    paintKey(brush, control, faceOf(control, place), state);
    return;
  }
  if (design.face == Face::sheet) brush.look(faceOf(control, place), Look::sheet);
  if (design.opaque) paintGround(brush, control, place);
  if (control.border) {
    isPanel(control) ? brush.look(place, Look::frame) : brush.outline(place, kBrass);
  }
  if (control.image != nullptr) {
    constexpr int kMargin = 6;
    const int width = control.image->width();
    brush.picture({place.right() - kMargin - width, place.top, width, place.height},
                  *control.image);
  }
  // A border that comes and goes moves no text.
  paintText(brush.within(place), control, design.border ? inset(place, 2) : place);
}

void paintCheckBox(const Brush& brush, const Control& control, const Rect& place) {
  constexpr int kSize = 13;
  if (control.design->opaque) brush.fill(place, control.back);
  const Rect mark{place.left, place.top + (place.height - kSize) / 2, kSize, kSize};
  brush.look(mark, Look::sheet);
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
  brush.look(place, Look::sheet);
  const Rect inside = inset(place, 2);
  const Rect button{inside.right() - kScrollBarWidth, inside.top, kScrollBarWidth, inside.height};
  brush.look(button, open ? Look::keyHeld : Look::key);
  brush.arrow(moved(button, 0, open ? 0 : -1), true, kInk);
  std::string_view text = control.text;
  const ListContent& list = *control.list;
  if (list.selected >= 0 && list.selected < static_cast<int>(list.items.size())) {
    text = list.items[list.selected];
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
  brush.look(place, Look::sheet);
  const ListContent& list = *control.list;
  const ListLayout layout = listLayout(place, list);
  const Brush rows = brush.within(layout.rows);
  const int count = static_cast<int>(list.items.size());
  for (int i = layout.top; i < count; ++i) {
    const Rect row = listRow(layout, i);
    if (row.top >= layout.rows.bottom()) break;
    const bool chosen = i == list.selected;
    if (chosen) rows.fill(row, kChosen);
    paintName(rows, listTextPlace(row), list.items[i], control.design->font,
              chosen ? kWhite : control.fore);
  }
  if (!layout.bar) return;
  brush.fill(layout.track, kTrack);
  for (const Rect& part : {layout.up, layout.down, layout.thumb}) brush.look(part, Look::key);
  brush.arrow(moved(layout.up, 0, -1), false, kInk);
  brush.arrow(moved(layout.down, 0, -1), true, kInk);
}

void paintTextBox(const Brush& brush, const Control& control, const Rect& place,
                  const ControlState& state) {
  brush.look(place, Look::sheet);
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

Rect paintedBox(const Control& control, const Rect& place) {
  if (control.design->face != Face::none) return boundingBox(place, faceOf(control, place));
  return isPanel(control) ? withShadow(place) : place;
}

void paintButton(const Brush& brush, const Rect& place, std::string_view caption, FontSize size,
                 Color color, bool down) {
  brush.look(place, down ? Look::keyHeld : Look::key);
  brush.line(faceAbove(place, down), caption, size, color, Align::centre);
}

void paintControl(const Brush& brush, const Control& control, const Rect& place,
                  const ControlState& state) {
  const ControlDesign& design = *control.design;
  if (isPanel(control)) paintShadow(brush, place);
  const Brush within = brush.within(place);
  switch (design.kind) {
    case ControlKind::frame:
      paintFrame(brush, control, place);
      break;
    case ControlKind::label:
      paintLabel(brush, control, place, state);
      break;
    case ControlKind::button:
      paintButton(within, place, control.text, design.font, control.fore, state.pressed);
      break;
    case ControlKind::image:
      if (design.opaque) within.fill(place, control.back);
      if (control.image != nullptr) within.picture(place, *control.image);
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
      if (control.border) within.look(place, Look::inlay);
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
