#include "platform/desk.h"

#include <algorithm>
#include <cstdlib>

#include "platform/layout.h"
#include "platform/utf8.h"

namespace platform {

// A handler of the listener may open another screen or hide controls. So a function that
// notifies the listener does so last, and touches no control of the form afterwards.

void Desk::open(Form* form, FormListener* listener) {
  form_ = form;
  listener_ = listener;
  ++opened_;
  pressed_ = focus_ = openList_ = openListRow_ = scrolled_ = hovered_ = hoveredEntry_ = -1;
  selection_ = {};
  textShift_ = 0;
  lastPress_ = {};
}

bool Desk::isShown(int id) const {
  return form_ != nullptr && id >= 0 && form_->shown(id);
}

int Desk::topmost(Point screen) const {
  if (form_ == nullptr || boxCount_ > 0) return -1;
  if (openListPlace().contains(screen)) return openList_;
  return form_->topmost(screen);
}

int Desk::pressed() const {
  return pressed_ >= 0 && topmost(pointer_) == pressed_ ? pressed_ : -1;
}

void Desk::pointerMoved(Point screen) {
  pointer_ = screen;
  if (scrolled_ >= 0) {
    dragScrollBar();
    return;
  }
  if (pressed_ >= 0 && pressed_ == focus() && !doublePressed_) {
    select({caretUnderPointer(pressed_), selection().anchor});
  }
  lookUnderPointer();
  openListRow_ = entryOfOpenList(screen);
  const int id = hovered_;
  if (id < 0 || listener_ == nullptr) return;
  const Rect place = form_->onScreen(id);
  listener_->onMouseMove(id, screen.x - place.left, screen.y - place.top);
}

void Desk::lookUnderPointer() {
  const int id = topmost(pointer_);
  const int entry = id < 0 ? -1 : entryOfFileList(id);
  const bool another = id != hovered_ || entry != hoveredEntry_;
  hovered_ = id;
  hoveredEntry_ = entry;
  if (another || (restsSince_ >= 0 && now_ - restsSince_ < kTooltipDelay)) restsSince_ = now_;
}

bool Desk::isSecondPress(int id) {
  const int entry = entryOfFileList(id);
  const Point off{pointer_.x - lastPress_.at.x, pointer_.y - lastPress_.at.y};
  const bool second = id == lastPress_.id && entry == lastPress_.entry &&
                      now_ - lastPress_.time <= kDoubleClick && std::abs(off.x) <= 4 &&
                      std::abs(off.y) <= 4;
  lastPress_ = {second ? -1 : id, entry, pointer_, now_};
  return second;
}

void Desk::buttonDown(Modifiers held) {
  restsSince_ = -1;
  pressed_ = -1;
  doublePressed_ = false;
  if (boxCount_ > 0) {
    boxPressed_ = boxButton(boxPlace(boxes_[0], font_)).contains(pointer_);
    return;
  }
  if (const int list = openList(); list >= 0) {
    const int entry = entryOfOpenList(pointer_);
    openList_ = openListRow_ = -1;
    if (entry >= 0) pick(list, entry);
    return;
  }
  const int id = topmost(pointer_);
  if (id < 0) return;
  pressed_ = id;
  doublePressed_ = isSecondPress(id);
  switch (control(id).design->kind) {
    case ControlKind::textBox:
      pressTextBox(id, held, doublePressed_);
      break;
    case ControlKind::fileList:
      focus_ = -1;
      doublePressed_ = doublePressed_ && entryOfFileList(id) >= 0;
      pressList(id);
      break;
    case ControlKind::dropDown:
      focus_ = -1;
      if (!control(id).list->items.empty()) openList_ = id;
      break;
    case ControlKind::button:
    case ControlKind::checkBox:
      focus_ = -1;
      break;
    default:
      break;
  }
  if (listener_ == nullptr) return;
  const Rect place = form_->onScreen(id);
  listener_->onMouseDown(id, pointer_.x - place.left, pointer_.y - place.top);
}

void Desk::buttonUp() {
  scrolled_ = -1;
  if (boxPressed_) {
    const bool closes = boxButtonDown();
    boxPressed_ = false;
    if (closes) closeBox();
    return;
  }
  const int id = pressed();
  const int held = pressed_;
  pressed_ = -1;
  if (id < 0) return;
  if (control(held).design->kind == ControlKind::dropDown) {
    // The button was held from the box down to an entry of the list that it opened.
    const int entry = entryOfOpenList(pointer_);
    if (entry >= 0) pick(held, entry);
    return;
  }
  if (control(id).design->kind == ControlKind::checkBox) control(id).checked = !control(id).checked;
  if (listener_ == nullptr) return;
  const bool twice = doublePressed_ && control(id).design->kind == ControlKind::fileList;
  twice ? listener_->onDoubleClick(id) : listener_->onClick(id);
}

void Desk::wheel(int steps) {
  const int id = topmost(pointer_);
  if (id < 0 || control(id).design->kind != ControlKind::fileList) return;
  ListContent& list = *control(id).list;
  const ListLayout layout = listLayout(form_->onScreen(id), list);
  list.top = std::clamp(layout.top - 3 * steps, 0, layout.last);
  lookUnderPointer();
}

// Drop-down lists.

int Desk::openList() const {
  return isShown(openList_) ? openList_ : -1;
}

Rect Desk::openListPlace() const {
  if (openList() < 0) return {};
  const Rect box = form_->onScreen(openList_);
  const int height = static_cast<int>(control(openList_).list->items.size()) * kListRowHeight + 2;
  if (box.bottom() + height <= kScreenHeight) return {box.left, box.bottom(), box.width, height};
  return {box.left, std::max(0, box.top - height), box.width, height};
}

int Desk::entryOfOpenList(Point screen) const {
  const Rect place = openListPlace();
  if (!place.contains(screen)) return -1;
  const int entry = std::max(0, screen.y - place.top - 1) / kListRowHeight;
  return std::min(entry, static_cast<int>(control(openList_).list->items.size()) - 1);
}

void Desk::pick(int list, int entry) {
  ListContent& content = *control(list).list;
  openList_ = openListRow_ = -1;
  // The entries may have become fewer since the pointer chose one.
  if (entry >= static_cast<int>(content.items.size())) return;
  content.selected = entry;
  control(list).text.assign(content.items[entry]);
  if (listener_ != nullptr) listener_->onChoose(list);
}

bool Desk::choose(int id, std::string_view entry) {
  if (form_ == nullptr || id < 0 || id >= form_->count() || control(id).list == nullptr)
    return false;
  ListContent& list = *control(id).list;
  const auto at = std::find(list.items.begin(), list.items.end(), entry);
  if (at == list.items.end()) return false;
  const int row = static_cast<int>(at - list.items.begin());
  if (control(id).design->kind == ControlKind::dropDown) {
    pick(id, row);
    return true;
  }
  list.selected = row;
  const ListLayout layout = listLayout(form_->onScreen(id), list);
  list.top = std::clamp(layout.top, std::max(0, row - layout.fitting + 1), row);
  if (listener_ != nullptr) listener_->onClick(id);
  return true;
}

// File lists.

int Desk::entryOfFileList(int id) const {
  if (control(id).design->kind != ControlKind::fileList) return -1;
  const ListContent& list = *control(id).list;
  return listEntryAt(listLayout(form_->onScreen(id), list), list, pointer_);
}

void Desk::pressList(int id) {
  ListContent& list = *control(id).list;
  const ListLayout layout = listLayout(form_->onScreen(id), list);
  int top = layout.top;
  if (layout.up.contains(pointer_)) {
    --top;
  } else if (layout.down.contains(pointer_)) {
    ++top;
  } else if (layout.thumb.contains(pointer_)) {
    scrolled_ = id;
    scrollGrip_ = pointer_.y - layout.thumb.top;
  } else if (layout.track.contains(pointer_)) {
    top += pointer_.y < layout.thumb.top ? -layout.fitting : layout.fitting;
  } else if (const int entry = listEntryAt(layout, list, pointer_); entry >= 0) {
    list.selected = entry;
  }
  list.top = std::clamp(top, 0, layout.last);
}

void Desk::dragScrollBar() {
  if (!isShown(scrolled_)) return;
  ListContent& list = *control(scrolled_).list;
  const ListLayout layout = listLayout(form_->onScreen(scrolled_), list);
  const int room = layout.track.height - layout.thumb.height;
  if (room <= 0) return;
  const int offset = std::clamp(pointer_.y - scrollGrip_ - layout.track.top, 0, room);
  list.top = (offset * layout.last + room / 2) / room;
}

// Text boxes.

int Desk::focus() const {
  return isShown(focus_) ? focus_ : -1;
}

Selection Desk::selection() const {
  // The screen may have written another text into the box meanwhile.
  return focus() < 0 ? Selection{} : within(control(focus_).text, selection_);
}

int Desk::textShift() const {
  if (focus() < 0) return 0;
  const Control& box = control(focus_);
  return textBoxShift(box.text, selection().caret, textBoxInside(box.place).width, font_,
                      box.design->font, textShift_);
}

void Desk::select(Selection selection) {
  selection_ = selection;
  textShift_ = textShift();
}

void Desk::focusOn(int id, Caret caret) {
  focus_ = id;
  textShift_ = 0;
  const std::size_t end = control(id).text.view().size();
  select({end, caret == Caret::overAll ? 0 : end});
}

std::size_t Desk::caretUnderPointer(int id) const {
  const Control& box = control(id);
  const FontSize size = box.design->font;
  const std::string_view text = box.text.view();
  int x = textBoxInside(form_->onScreen(id)).left - (focus_ == id ? textShift() : 0);
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t next = nextCharacter(text, at);
    const int width = font_.width(text.substr(at, next - at), size);
    if (pointer_.x < x + (width + 1) / 2) break;
    x += width;
    at = next;
  }
  return at;
}

void Desk::pressTextBox(int id, Modifiers held, bool second) {
  const std::size_t at = caretUnderPointer(id);
  if (focus_ != id) {
    focus_ = id;
    textShift_ = 0;
    selection_ = {at, at};
  }
  if (second) {
    select(wordAt(control(id).text, at));
  } else {
    select({at, held.shift ? selection().anchor : at});
  }
}

void Desk::type(std::string_view text) {
  lastPress_ = {};
  if (boxCount_ > 0 || focus() < 0) return;
  Selection at = selection();
  insert(control(focus_).text, at, text);
  select(at);
}

void Desk::key(Key key, Modifiers held) {
  lastPress_ = {};
  if (boxCount_ > 0) {
    if (key == Key::enter || key == Key::escape) closeBox();
    return;
  }
  if (const int list = openList(); list >= 0) {
    const int entry = openListRow_;
    if (key != Key::enter && key != Key::escape) return;
    openList_ = openListRow_ = -1;
    if (key == Key::enter && entry >= 0) pick(list, entry);
    return;
  }
  if (key == Key::enter || key == Key::escape) {
    if (listener_ != nullptr) listener_->onKey(key);
    return;
  }
  if (focus() < 0) return;
  Text& text = control(focus_).text;
  Selection at = selection();
  if (key == Key::paste) return type(clipboard_.text());
  if ((key == Key::copy || key == Key::cut) && !at.empty()) {
    clipboard_.setText(std::string(at.of(text)));
    if (key == Key::cut) edit(text, at, Key::backspace, {});
  }
  edit(text, at, key, held);
  select(at);
}

// Message boxes.

Rect Desk::boxPlace(const MessageBox& box, Font& font) {
  const Size text = measureLines(box.text, kBoxTextWidth, font, kBoxFont);
  const int title = font.width(box.title, kBoxFont);
  const int width = std::clamp(std::max(text.width, title), 160, 740) + 2 * kBoxMargin;
  const int lines = std::max(1, text.height) * lineHeight(kBoxFont);
  const int height = std::min(580, kBoxTitleHeight + lines + 3 * kBoxMargin - 8 + 27);
  return {(kScreenWidth - width) / 2, (kScreenHeight - height) / 2, width, height};
}

Rect Desk::boxButton(const Rect& place) {
  return {place.left + (place.width - 82) / 2, place.bottom() - kBoxMargin + 4 - 27, 82, 27};
}

void Desk::showBox(std::string_view title, std::string_view text) {
  // When the queue is full the newest box replaces the last one: it matters most.
  if (boxCount_ == static_cast<int>(boxes_.size())) --boxCount_;
  MessageBox& box = boxes_[boxCount_++];
  box.title.assign(title);
  box.text.assign(text);
  pressed_ = openList_ = openListRow_ = scrolled_ = hovered_ = hoveredEntry_ = -1;
}

void Desk::closeBox() {
  if (boxCount_ == 0) return;
  std::move(boxes_.begin() + 1, boxes_.begin() + boxCount_, boxes_.begin());
  --boxCount_;
  boxPressed_ = false;
}

bool Desk::boxButtonDown() const {
  return boxPressed_ && boxCount_ > 0 && boxButton(boxPlace(boxes_[0], font_)).contains(pointer_);
}

// Tooltips.

std::string_view Desk::tooltipText() const {
  if (!isShown(hovered_)) return {};
  const Control& owner = control(hovered_);
  if (owner.list == nullptr || owner.design->kind != ControlKind::fileList) return owner.tooltip;
  // A name that is cut off in its list is shown whole.
  if (hoveredEntry_ < 0 || hoveredEntry_ >= static_cast<int>(owner.list->items.size())) return {};
  const std::string_view name = owner.list->items[hoveredEntry_];
  const Rect row = listTextPlace(tooltipOwner());
  return font_.width(name, owner.design->font) > row.width ? name : std::string_view{};
}

Rect Desk::tooltipOwner() const {
  const Rect place = form_->onScreen(hovered_);
  if (hoveredEntry_ < 0) return place;
  const ListLayout layout = listLayout(place, *control(hovered_).list);
  return listRow(layout, hoveredEntry_);
}

std::string_view Desk::tooltip(std::int64_t now) const {
  if (restsSince_ < 0 || now - restsSince_ < kTooltipDelay) return {};
  if (openList() >= 0 || topmost(pointer_) != hovered_) return {};
  return tooltipText();
}

std::int64_t Desk::tooltipDue() const {
  if (restsSince_ < 0 || tooltipText().empty()) return -1;
  const std::int64_t due = restsSince_ + kTooltipDelay;
  return due > now_ ? due : -1;
}

}  // namespace platform
