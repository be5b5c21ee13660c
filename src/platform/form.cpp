#include "platform/form.h"

#include <algorithm>

namespace platform {

namespace {

constexpr Rect kWholeScreen{0, 0, kScreenWidth, kScreenHeight};

/// Half of a whole number, rounded to nearest, ties to even.
int half(int value) {
  const int down = (value - (value & 1)) / 2;
  return (value & 1) != 0 && (down & 1) != 0 ? down + 1 : down;
}

}  // namespace

Form::Form(std::span<const ControlDesign> table, const char* background,
           const std::function<const Surface*(std::string_view)>& findImage)
    : controls_(table.size()), order_(table.size() + 1) {
  for (std::size_t i = 0; i < table.size(); ++i) {
    const ControlDesign& design = table[i];
    Control& control = controls_[i];
    control.design = &design;
    control.place = design.place;
    control.text.assign(design.text);
    control.fore = design.fore;
    control.back = design.back;
    control.border = design.border;
    control.visible = design.visible;
    if (design.image != nullptr) control.image = findImage(design.image);
    if (design.kind == ControlKind::dropDown || design.kind == ControlKind::fileList) {
      lists_.push_back(std::make_unique<ListContent>());
      control.list = lists_.back().get();
    }
    std::vector<int>& siblings = order_[design.parent + 1];
    control.rank = static_cast<int>(siblings.size());
    siblings.push_back(static_cast<int>(i));
  }
  if (background != nullptr) background_ = findImage(background);
}

int Form::find(std::string_view name, int index) const {
  int found = -1;
  for (int id = 0; id < count(); ++id) {
    const ControlDesign& design = *(*this)[id].design;
    if (name != design.name) continue;
    if (design.index == index) return id;
    if (index == kSingle && (found < 0 || design.index < (*this)[found].design->index)) found = id;
  }
  return found;
}

void Form::show(int id) {
  (*this)[id].visible = true;
  if ((*this)[id].design->kind == ControlKind::frame) raise(id);
}

void Form::raise(int id) {
  Control& control = (*this)[id];
  std::vector<int>& siblings = order_[control.design->parent + 1];
  if (siblings.back() == id) return;
  control.rank = (*this)[siblings.back()].rank + 1;
  const auto at = std::find(siblings.begin(), siblings.end(), id);
  std::rotate(at, at + 1, siblings.end());
}

void Form::moveTo(int id, int left, int top) {
  (*this)[id].place.left = left;
  (*this)[id].place.top = top;
}

void Form::centre(int id, int areaWidth, int areaHeight) {
  const Rect& place = (*this)[id].place;
  moveTo(id, half(areaWidth - place.width), half(areaHeight - place.height));
}

Rect Form::onScreen(int id) const {
  const Control& control = (*this)[id];
  Rect rect = control.place;
  if (control.design->kind == ControlKind::line) {
    const Point a = control.from;
    const Point b = control.to;
    rect = {std::min(a.x, b.x) - 1, std::min(a.y, b.y) - 1, std::abs(a.x - b.x) + 2,
            std::abs(a.y - b.y) + 2};
  }
  for (int p = control.design->parent; p != kNoParent; p = (*this)[p].design->parent) {
    rect = moved(rect, (*this)[p].place.left, (*this)[p].place.top);
  }
  return rect;
}

bool Form::shown(int id) const {
  for (int p = id; p != kNoParent; p = (*this)[p].design->parent) {
    if (!(*this)[p].visible) return false;
  }
  return true;
}

int Form::topmost(Point screen) const {
  return topmostIn(kNoParent, screen, kWholeScreen);
}

int Form::topmostIn(int parent, Point screen, Rect clip) const {
  if (!clip.contains(screen)) return -1;
  const Point corner =
      parent == kNoParent ? Point{} : Point{onScreen(parent).left, onScreen(parent).top};
  const std::span<const int> inside = children(parent);
  for (auto at = inside.rbegin(); at != inside.rend(); ++at) {
    const Control& control = (*this)[*at];
    if (!control.visible || control.design->kind == ControlKind::line) continue;
    const Rect& press = control.design->press;
    const Rect inParent = press.width > 0 ? press : control.place;
    const Rect place = intersection(moved(inParent, corner.x, corner.y), clip);
    if (!place.contains(screen)) continue;
    const int child = topmostIn(*at, screen, place);
    return child >= 0 ? child : *at;
  }
  return -1;
}

}  // namespace platform
