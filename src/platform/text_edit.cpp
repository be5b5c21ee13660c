#include "platform/text_edit.h"

#include "platform/utf8.h"

namespace platform {

namespace {

bool isWord(std::string_view text, std::size_t at) {
  const char c = text[at];
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
         static_cast<unsigned char>(c) >= 0x80;
}

std::size_t wordBefore(std::string_view text, std::size_t at) {
  while (at > 0 && !isWord(text, at - 1)) --at;
  while (at > 0 && isWord(text, at - 1)) --at;
  return at;
}

std::size_t wordAfter(std::string_view text, std::size_t at) {
  while (at < text.size() && !isWord(text, at)) ++at;
  while (at < text.size() && isWord(text, at)) ++at;
  return at;
}

void replace(Text& text, Selection& selection, std::string_view by) {
  Text result(text.view().substr(0, selection.from()));
  result.append(by);
  const std::size_t at = result.view().size();
  result.append(text.view().substr(selection.to()));
  text = result;
  selection = {at, at};
}

std::size_t wholeCharacter(std::string_view text, std::size_t at) {
  at = std::min(at, text.size());
  while (at > 0 && at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) --at;
  return at;
}

}  // namespace

Selection within(std::string_view text, Selection selection) {
  return {wholeCharacter(text, selection.caret), wholeCharacter(text, selection.anchor)};
}

Selection wordAt(std::string_view text, std::size_t at) {
  if (text.empty()) return {};
  const bool word = isWord(text, std::min(at, text.size() - 1));
  Selection found{at, at};
  while (found.anchor > 0 && isWord(text, found.anchor - 1) == word) --found.anchor;
  while (found.caret < text.size() && isWord(text, found.caret) == word) ++found.caret;
  return found;
}

void insert(Text& text, Selection& selection, std::string_view added) {
  Text printable;
  std::size_t room = Text::kCapacity - (text.view().size() - selection.of(text).size());
  while (!added.empty()) {
    const std::string_view before = added;
    const char32_t code = takeCharacter(added);
    const std::string_view character = before.substr(0, before.size() - added.size());
    const bool damaged = code == kReplacement && character.size() == 1;
    if (code < 0x20 || code == 0x7F || damaged) continue;
    if (character.size() > room) break;
    room -= character.size();
    printable.append(character);
  }
  if (!printable.empty()) replace(text, selection, printable);
}

void edit(Text& text, Selection& selection, Key key, Modifiers held) {
  const std::size_t at = selection.caret;
  const std::size_t before = held.control ? wordBefore(text, at) : previousCharacter(text, at);
  const std::size_t after = held.control ? wordAfter(text, at) : nextCharacter(text, at);
  const bool drops = !selection.empty() && !held.shift && !held.control;
  const auto moveTo = [&](std::size_t to) {
    selection.caret = to;
    if (!held.shift) selection.anchor = to;
  };
  const auto remove = [&](std::size_t to) {
    if (selection.empty()) selection.anchor = to;
    replace(text, selection, {});
  };
  switch (key) {
    case Key::left:
      return moveTo(drops ? selection.from() : before);
    case Key::right:
      return moveTo(drops ? selection.to() : after);
    case Key::home:
      return moveTo(0);
    case Key::end:
      return moveTo(text.view().size());
    case Key::backspace:
      return remove(before);
    case Key::deleteForward:
      return remove(after);
    case Key::selectAll:
      selection = {text.view().size(), 0};
      return;
    default:
      return;
  }
}

}  // namespace platform
