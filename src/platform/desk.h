// The desk brings the pointer and the keys to the controls of the open screen, and keeps what
// floats above every screen: message boxes, the open part of a drop-down list, tooltips.
//
// A press goes down on the topmost visible control; the control that was pressed gets the click
// when the button goes up over it. While a message box is open, it alone takes presses and keys.
// Drop-down lists, file lists, check boxes and text boxes work by themselves and notify the screen
// afterwards.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/clipboard.h"
#include "platform/form.h"
#include "platform/text_edit.h"

namespace platform {

/// The events that a screen receives. `id` is a row of its table.
class FormListener {
 public:
  virtual ~FormListener() = default;
  /// The pointer moved over a control; x and y in its own pixels (for a canvas: pixels of its
  /// surface).
  virtual void onMouseMove(int id, int x, int y) = 0;
  /// The button went down on a control.
  virtual void onMouseDown(int id, int x, int y) = 0;
  /// A name of a file list was double-clicked, and is selected.
  virtual void onDoubleClick(int) {}
  /// Enter or Escape, whether a text box has the focus or not.
  virtual void onKey(Key) {}
  /// A control was pressed and released. A check box has changed its mark already.
  virtual void onClick(int id) = 0;
  /// An entry of a drop-down list was picked, also the one that was shown already.
  virtual void onChoose(int id) = 0;
};

struct MessageBox {
  Text title;
  Text text;
};

class Desk {
 public:
  /// Places of a message box and of its OK button, for a given box text.
  static Rect boxPlace(const MessageBox& box, Font& font);
  static Rect boxButton(const Rect& boxPlace);

  /// Without a clipboard the desk keeps to itself what is copied.
  explicit Desk(Font& font, Clipboard* clipboard = nullptr)
      : font_(font), clipboard_(clipboard != nullptr ? *clipboard : ownClipboard_) {}

  /// The screen that gets the events from now on; nothing of the old one is kept. Both may be null.
  void open(Form* form, FormListener* listener);
  Form* form() { return form_; }

  void pointerMoved(Point screen);
  /// The pointer is no longer over the screen: no tooltip before it comes back.
  void pointerLeft() { hovered_ = hoveredEntry_ = -1; }
  void buttonDown(Modifiers held = {});
  void buttonUp();
  /// The same at a point. The pointer moves there first, unless it is there already.
  void buttonDown(Point at, Modifiers held = {}) {
    if (!(pointer_ == at)) pointerMoved(at);
    buttonDown(held);
  }
  void buttonUp(Point at) {
    if (!(pointer_ == at)) pointerMoved(at);
    buttonUp();
  }
  /// Turns of the wheel, away from the player counted positive.
  void wheel(int steps);
  /// Text for the text box that has the focus, UTF-8.
  void type(std::string_view text);
  void key(Key key, Modifiers held = {});
  /// Gives a text box the focus, its caret at the end or all of its text selected.
  enum class Caret { atEnd, overAll };
  void focusOn(int id, Caret caret);
  Point pointer() const { return pointer_; }
  /// Whether the pointer at an edge of the screen may slide what is shown. A real window forbids it
  /// while the pointer is only passing.
  void setEdgeScrolling(bool allowed) { edgeScrolling_ = allowed; }
  bool edgeScrolling() const { return edgeScrolling_; }

  /// Puts a message box on the screen. Boxes queue: the next shows when the first is closed.
  void showBox(std::string_view title, std::string_view text);
  const MessageBox* box() const { return boxCount_ > 0 ? &boxes_[0] : nullptr; }
  void closeBox();

  /// The topmost visible control at a screen pixel that would get a press: a row of the table; -1
  /// for the bare screen. An open drop-down list counts as its control.
  int topmost(Point screen) const;
  /// Picks an entry of a drop-down or file list, as a click on that entry would. False when there
  /// is no such entry.
  bool choose(int id, std::string_view entry);

  // For the painter.
  int pressed() const;          // control that is held down by the pointer on it, or -1
  int focus() const;            // text box that is typed into, or -1
  Selection selection() const;  // in it
  int textShift() const;        // pixels by which its text is pushed to the left
  int openList() const;         // drop-down list that is open, or -1
  Rect openListPlace() const;   // its open part on the screen
  int openListRow() const { return openListRow_; }  // entry under the pointer, or -1
  bool boxButtonDown() const;
  /// Grows with every `open`, so that a new screen at an old one's address is recognised.
  int opened() const { return opened_; }
  /// The tooltip to show now, or none, and what it belongs to on the screen. `now` in milliseconds;
  /// `tooltipDue` says when to look again (-1 for not before the pointer moves).
  std::string_view tooltip(std::int64_t now) const;
  Rect tooltipOwner() const;
  std::int64_t tooltipDue() const;
  void setNow(std::int64_t now) { now_ = now; }

 private:
  Control& control(int id) { return (*form_)[id]; }
  const Control& control(int id) const { return (*form_)[id]; }
  bool isShown(int id) const;
  void lookUnderPointer();
  std::string_view tooltipText() const;
  int entryOfOpenList(Point screen) const;
  int entryOfFileList(int id) const;  // the one under the pointer, or -1
  void pick(int list, int entry);
  void pressList(int id);
  bool isSecondPress(int id);
  void pressTextBox(int id, Modifiers held, bool second);
  std::size_t caretUnderPointer(int id) const;
  void select(Selection selection);
  void dragScrollBar();

  Font& font_;
  Clipboard ownClipboard_;
  Clipboard& clipboard_;
  Form* form_ = nullptr;
  FormListener* listener_ = nullptr;
  int opened_ = 0;
  Point pointer_{600, 300};
  bool edgeScrolling_ = true;
  int pressed_ = -1;
  int focus_ = -1;
  Selection selection_;
  int textShift_ = 0;
  int openList_ = -1;
  int openListRow_ = -1;
  bool boxPressed_ = false;
  struct {
    int id = -1;
    int entry = -1;
    Point at{};
    std::int64_t time = 0;
  } lastPress_;
  bool doublePressed_ = false;
  int scrolled_ = -1;   // file list whose thumb is held, or -1
  int scrollGrip_ = 0;  // from the top of the thumb to the pixel that is held
  std::array<MessageBox, 4> boxes_{};
  int boxCount_ = 0;
  int hovered_ = -1;             // control under the pointer
  int hoveredEntry_ = -1;        // and the entry of a file list
  std::int64_t restsSince_ = 0;  // -1: no tooltip before the pointer gets to another control
  std::int64_t now_ = 0;
};

/// Milliseconds the pointer rests over a control before its tooltip shows.
inline constexpr int kTooltipDelay = 600;

/// Milliseconds within which a second press at the same place makes a double-click.
inline constexpr int kDoubleClick = 400;

/// Height of one entry of a drop-down or file list, and width of a scroll bar, in pixels.
inline constexpr int kListRowHeight = 18;
inline constexpr int kScrollBarWidth = 16;

}  // namespace platform
