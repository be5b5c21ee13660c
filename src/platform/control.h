// Controls as plain data. A screen's table gives each control its name and its look as designed; the
// running control holds what the game may change. Writing these fields is all it takes: the painter
// finds out by itself what has to be repainted, and the desk which control a pointer is over.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/color.h"
#include "platform/font.h"
#include "platform/geometry.h"
#include "platform/text.h"

namespace platform {

enum class ControlKind : std::uint8_t {
  frame,    // a panel that holds others, clipped to it; may have a caption
  label,    // text, and the buttons of the side panel
  button,   // a raised button with a centred caption
  image,    // a picture that fills the control
  picture,  // a drawing surface (a canvas)
  line,     // a line of two pixels; the pointer goes through it
  box,      // plain decoration: takes a press and does nothing with it
  checkBox,
  dropDown,
  fileList,
  textBox,
};

enum class Align : std::uint8_t { left, centre, right };

/// What a label is painted on, where that is not its own box.
enum class Face : std::uint8_t {
  none,
  key,       // a key of the side panel: down while pressed or held, lit while its text is yellow
  plainKey,  // the same with a face of the label's own colour
  sheet,     // a sheet to read from
};

/// How a frame shows its caption.
enum class Heading : std::uint8_t {
  none,
  title,  // centred at the top, in the size of panel titles
  group,  // small, at the left, set into the border
};

inline constexpr int kNoParent = -1;
inline constexpr int kSingle = -1;

/// One row of a screen's control table. Rows are ordered from the back to the front: a later row
/// covers an earlier one of the same parent.
struct ControlDesign {
  const char* name = nullptr;
  int index = kSingle;  // number within an array of controls, or kSingle
  ControlKind kind = ControlKind::label;
  int parent = kNoParent;  // row number of the frame or picture that holds it
  Rect place{};            // position in the parent, and size
  const char* text = "";
  FontSize font = FontSize::pt11;
  Align align = Align::left;
  Color fore = kBlack;
  Color back = kBlack;
  bool opaque = false;  // fills its box with `back`
  bool paper = false;   // opaque, and that ground is covered with parchment
  bool border = false;  // a single line around it
  bool visible = true;
  Heading heading = Heading::none;
  Face face = Face::none;
  Rect faceBox{};               // in the parent; may reach beyond `place`, which alone is pressed
  const char* image = nullptr;  // name of the picture of an image control
  Rect press{};  // where in the parent it takes the pointer, if that is not its place
};

/// What a list shows: a drop-down list or a file list.
struct ListContent {
  std::vector<std::string> items;
  int selected = -1;  // -1 for none
  int top = 0;        // first item in sight
};

struct Control {
  const ControlDesign* design = nullptr;
  Rect place{};         // position in the parent, and size
  std::string tooltip;  // shown while the pointer rests on it; empty for none
  Text text;            // a text box holds what was typed in it
  Color fore{};
  Color back{};
  bool border = false;
  bool visible = true;  // its own flag; it is seen when all that hold it are visible too
  bool checked = false;
  bool held = false;  // a key that stays down
  Point from{};       // end points of a line, in pixels of its parent
  Point to{};
  int rank = 0;                    // the higher of two siblings is in front
  const Surface* image = nullptr;  // of an image control; at the right end of a label's line
  Canvas* canvas = nullptr;
  ListContent* list = nullptr;
};

}  // namespace platform
