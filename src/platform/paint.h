// How each kind of control looks, and what floats above the controls.
#pragma once

#include "platform/brush.h"
#include "platform/desk.h"

namespace platform {

/// What the pointer and the keys do with a control while it is painted.
struct ControlState {
  bool pressed = false;
  bool open = false;     // a drop-down list whose entries show
  bool focused = false;  // a text box that is typed into
  Selection selection;   // in it
  int textShift = 0;
  friend bool operator==(const ControlState&, const ControlState&) = default;
};

/// Paints one control, not those that it holds, at its place on the screen. For a line the place is
/// that of the control that holds it. The brush may reach over its painted box.
void paintControl(const Brush& brush, const Control& control, const Rect& place,
                  const ControlState& state);
/// The pixels that a control at `place` paints: some reach beyond their place with the face of a key
/// or with a shadow.
Rect paintedBox(const Control& control, const Rect& place);
/// True when the control leaves no pixel of its box as it was.
bool coversItsBox(const Control& control);

/// The pixels that a floating thing at `place` changes: with its shadow.
Rect withShadow(const Rect& place);
void paintShadow(const Brush& brush, const Rect& place);
void paintOpenList(const Brush& brush, const Rect& place, const Control& control, int row);
/// Where a tooltip is shown for the control at `owner`.
Rect tooltipPlace(const Rect& owner, std::string_view text, Font& font);
void paintTooltipFrame(const Brush& brush, const Rect& place);
void paintTooltip(const Brush& brush, const Rect& place, std::string_view text);
void paintBox(const Brush& brush, const Rect& place, const MessageBox& box, bool buttonDown);

/// The face of a button, with its caption.
void paintButton(const Brush& brush, const Rect& place, std::string_view caption, FontSize size,
                 Color color, bool down);

}  // namespace platform
