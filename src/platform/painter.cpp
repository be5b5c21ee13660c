#include "platform/painter.h"

#include <algorithm>

#include "platform/layout.h"
#include "platform/paint.h"

namespace platform {

namespace {

constexpr Rect kScreen{0, 0, kScreenWidth, kScreenHeight};

/// A number that differs where the look of a floating thing or a list does.
class Digest {
 public:
  Digest& with(std::string_view text) {
    for (const char c : text) step(static_cast<unsigned char>(c));
    return with(static_cast<int>(text.size()));
  }
  Digest& with(int value) {
    for (int i = 0; i < 4; ++i) step(static_cast<unsigned>(value) >> (8 * i) & 0xFF);
    return *this;
  }
  std::uint64_t value() const { return value_; }

 private:
  void step(std::uint64_t byte) { value_ = (value_ ^ byte) * 0x100000001B3u; }
  std::uint64_t value_ = 0xCBF29CE484222325u;
};

/// The look of what a list shows within its own box.
std::uint64_t lookOf(const Control& control, const Rect& place) {
  const ListContent& list = *control.list;
  const int count = static_cast<int>(list.items.size());
  Digest look;
  look.with(list.selected).with(count);
  if (control.design->kind == ControlKind::dropDown) {
    if (list.selected >= 0 && list.selected < count) {
      look.with(list.items[list.selected]);
    }
    return look.value();
  }
  const ListLayout layout = listLayout(place, list);
  look.with(layout.top);
  for (int i = layout.top; i < count && i <= layout.top + layout.fitting; ++i) {
    look.with(list.items[i]);
  }
  return look.value();
}

std::uint64_t lookOfOpenList(const Control& control, int row) {
  const ListContent& list = *control.list;
  Digest look;
  look.with(row).with(list.selected);
  look.with(control.fore.r).with(control.fore.g).with(control.fore.b);
  for (const std::string& item : list.items) look.with(item);
  return look.value();
}

/// Where a control is on the screen, given the one that holds it.
Rect placeIn(const Control& control, const Rect& parent) {
  if (control.design->kind == ControlKind::line) return parent;
  return moved(control.place, parent.left, parent.top);
}

/// A control of the screen itself that hides what is behind it.
bool isCover(const Control& control) {
  return control.visible && coversItsBox(control);
}

}  // namespace

struct Painter::Painted {
  bool shown = false;
  bool border = false;
  bool checked = false;
  bool held = false;
  ControlState state;
  Color fore{};
  Color back{};
  int rank = 0;
  Rect place{};
  Rect clip{};
  Point from{};
  Point to{};
  const Surface* image = nullptr;
  const Canvas* canvas = nullptr;
  std::uint64_t list = 0;
  Text text;
};

struct Painter::Held {
  int pressed = -1;
  int open = -1;
  int focus = -1;
  Selection selection;
  int textShift = 0;

  explicit Held(const Desk& desk)
      : pressed(desk.pressed()),
        open(desk.openList()),
        focus(desk.focus()),
        selection(desk.selection()),
        textShift(desk.textShift()) {}
  ControlState of(int id) const {
    const bool focused = id == focus;
    return {id == pressed, id == open, focused, focused ? selection : Selection{},
            focused ? textShift : 0};
  }
};

Painter::Painter(Font& font, const Skin& skin) : font_(font), skin_(skin) {}
Painter::~Painter() = default;

// Finding what changed.

/// Adds a rectangle without what `covers` hide of it. Whatever changes in those parts is a change of
/// the covers themselves.
void Painter::damage(const Rect& rect, std::span<const Rect> covers) {
  if (rect.empty()) return;
  if (covers.empty()) {
    damage_.add(rect);
    return;
  }
  const Rect hidden = intersection(rect, covers.front());
  const std::span<const Rect> others = covers.subspan(1);
  if (hidden.empty()) {
    damage(rect, others);
    return;
  }
  damage({rect.left, rect.top, rect.width, hidden.top - rect.top}, others);
  damage({rect.left, hidden.bottom(), rect.width, rect.bottom() - hidden.bottom()}, others);
  damage({rect.left, hidden.top, hidden.left - rect.left, hidden.height}, others);
  damage({hidden.right(), hidden.top, rect.right() - hidden.right(), hidden.height}, others);
}

void Painter::findCovers(const Form& form) {
  const std::span<const int> children = form.children(kNoParent);
  for (auto id = children.rbegin(); id != children.rend(); ++id) {
    if (isCover(form[*id])) covers_.push_back(form[*id].place);
  }
  covering_ = covers_.size();
}

void Painter::compareChildren(const Form& form, int parent, const Rect& parentPlace,
                              const Rect& clip, const Held& held) {
  for (const int id : form.children(parent)) {
    const Control& control = form[id];
    const Rect place = placeIn(control, parentPlace);
    const bool line = control.design->kind == ControlKind::line;
    const Rect seen = intersection(line ? form.onScreen(id) : paintedBox(control, place), clip);
    if (parent == kNoParent && isCover(control)) --covering_;
    if (!control.visible || seen.empty()) {
      forgetShown(form, id);
      continue;
    }
    compare(form, id, place, seen, held);
    compareChildren(form, id, place, intersection(place, clip), held);
  }
}

void Painter::compare(const Form& form, int id, const Rect& place, const Rect& clip,
                      const Held& held) {
  const Control& control = form[id];
  Painted& was = painted_[id];
  const ControlState state = held.of(id);
  const std::uint64_t list = control.list == nullptr ? 0 : lookOf(control, place);
  const std::span covers(covers_.data(), covering_);
  if (control.canvas != nullptr) {
    for (const Rect& rect : control.canvas->shown().rects()) {
      damage(intersection(moved(rect, place.left, place.top), clip), covers);
    }
    control.canvas->shown().clear();
  }
  const bool same =
      was.shown && was.clip == clip && was.place == place && was.fore == control.fore &&
      was.back == control.back && was.border == control.border && was.checked == control.checked &&
      was.held == control.held && was.state == state && was.rank == control.rank &&
      was.from == control.from && was.to == control.to && was.image == control.image &&
      was.canvas == control.canvas && was.list == list && was.text == control.text;
  if (same) return;
  if (was.shown) damage(was.clip, covers);
  damage(clip, covers);
  was.shown = true;
  was.border = control.border;
  was.checked = control.checked;
  was.held = control.held;
  was.state = state;
  was.fore = control.fore;
  was.back = control.back;
  was.rank = control.rank;
  was.place = place;
  was.clip = clip;
  was.from = control.from;
  was.to = control.to;
  was.image = control.image;
  was.canvas = control.canvas;
  was.list = list;
  was.text.assign(control.text);
}

void Painter::forgetShown(const Form& form, int id) {
  Painted& was = painted_[id];
  if (!was.shown) return;  // then nothing that it holds was shown either
  was.shown = false;
  damage(was.clip, {covers_.data(), covering_});
  for (const int child : form.children(id)) forgetShown(form, child);
}

void Painter::compareFloating(Floating& was, const Floating& now) {
  if (was.place == now.place && was.look == now.look) return;
  damage_.add(intersection(was.place, kScreen));
  damage_.add(intersection(now.place, kScreen));
  was = now;
}

// Painting.

namespace {

void paintChildren(const Brush& brush, const Form& form, int parent, const Rect& parentPlace,
                   const auto& stateOf) {
  const std::span<const int> children = form.children(parent);
  std::size_t first = 0;
  // What is wholly behind a control that covers the brush's rectangle need not be painted.
  for (std::size_t i = children.size(); i-- > 0 && first == 0;) {
    const Control& control = form[children[i]];
    const Rect place = placeIn(control, parentPlace);
    const bool covers = control.visible && coversItsBox(control) &&
                        intersection(place, brush.clip()) == brush.clip();
    if (covers) first = i;
  }
  for (const int id : children.subspan(first)) {
    const Control& control = form[id];
    if (!control.visible) continue;
    const Rect place = placeIn(control, parentPlace);
    const Brush whole = brush.within(paintedBox(control, place));
    if (whole.clip().empty()) continue;
    paintControl(whole, control, place, stateOf(id));
    const Brush within = brush.within(place);
    if (!within.clip().empty()) paintChildren(within, form, id, place, stateOf);
  }
}

}  // namespace

const DamageList& Painter::paint(Surface& framebuffer, Desk& desk, std::int64_t now) {
  damage_.clear();
  const Form* form = desk.form();
  if (opened_ != desk.opened()) {
    opened_ = desk.opened();
    const std::size_t count = form == nullptr ? 0 : static_cast<std::size_t>(form->count());
    painted_.assign(count, Painted{});
    covers_.reserve(count);
    damage_.add(kScreen);
  }
  const Held held(desk);
  covers_.clear();
  if (form != nullptr) {
    findCovers(*form);
    compareChildren(*form, kNoParent, kScreen, kScreen, held);
  }

  Floating list;
  if (held.open >= 0) {
    list = {withShadow(desk.openListPlace()),
            lookOfOpenList((*form)[held.open], desk.openListRow())};
  }
  Floating tooltip;
  const std::string_view tip = desk.tooltip(now);
  Rect tipPlace;
  if (!tip.empty()) {
    tipPlace = tooltipPlace(desk.tooltipOwner(), tip, font_);
    tooltip = {withShadow(tipPlace), Digest().with(tip).value()};
  }
  Floating box;
  Rect boxPlace;
  if (const MessageBox* shown = desk.box()) {
    boxPlace = Desk::boxPlace(*shown, font_);
    box = {withShadow(boxPlace),
           Digest().with(shown->title).with(shown->text).with(desk.boxButtonDown()).value()};
  }
  compareFloating(list_, list);
  compareFloating(tooltip_, tooltip);
  compareFloating(box_, box);

  // Many rectangles that overlap cost more than the one around them all.
  Rect around;
  int pixels = 0;
  for (const Rect& rect : damage_.rects()) {
    around = boundingBox(around, rect);
    pixels += rect.width * rect.height;
  }
  if (pixels > around.width * around.height) {
    damage_.clear();
    damage_.add(around);
  }

  for (const Rect& rect : damage_.rects()) {
    const Brush brush(framebuffer, rect, font_, skin_);
    const bool covered = std::any_of(covers_.begin(), covers_.end(), [&rect](const Rect& cover) {
      return intersection(cover, rect) == rect;
    });
    if (!covered) {
      brush.fill(rect, kBlack);
      if (form != nullptr && form->background() != nullptr) {
        const Surface& picture = *form->background();
        brush.picture(picture.bounds(), picture);
      }
    }
    if (form != nullptr) {
      paintChildren(brush, *form, kNoParent, kScreen, [&held](int id) { return held.of(id); });
      if (held.open >= 0) {
        paintOpenList(brush, desk.openListPlace(), (*form)[held.open], desk.openListRow());
      }
      if (!tip.empty()) paintTooltip(brush, tipPlace, tip);
    }
    if (const MessageBox* shown = desk.box()) {
      paintBox(brush, boxPlace, *shown, desk.boxButtonDown());
    }
  }
  return damage_;
}

}  // namespace platform
