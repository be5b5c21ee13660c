// The line of a text box while it is typed into: a caret, what is selected, and the keys that move and
// change them. Positions are bytes, between two whole characters.
#pragma once

#include <algorithm>
#include <string_view>

#include "platform/key.h"
#include "platform/text.h"

namespace platform {

struct Selection {
  std::size_t caret = 0;
  std::size_t anchor = 0;  // the other end; at the caret when nothing is selected

  std::size_t from() const { return std::min(caret, anchor); }
  std::size_t to() const { return std::max(caret, anchor); }
  bool empty() const { return caret == anchor; }
  std::string_view of(std::string_view text) const { return text.substr(from(), to() - from()); }
  friend bool operator==(const Selection&, const Selection&) = default;
};

/// The same selection in a text that may have become shorter, or another, since it was made.
Selection within(std::string_view text, Selection selection);
/// The word at a position, or the blanks and signs between two words.
Selection wordAt(std::string_view text, std::size_t at);
/// Puts the printable characters of `added` in the place of what is selected, as many as there is room for.
void insert(Text& text, Selection& selection, std::string_view added);
/// Moves the caret, or deletes. Keys that do neither leave everything as it is.
void edit(Text& text, Selection& selection, Key key, Modifiers held);

}  // namespace platform
