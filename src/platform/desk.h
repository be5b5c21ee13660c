// The desk brings the pointer and the keys to the controls of the open screen, and keeps what
// floats above every screen: message boxes, the open part of a drop-down list, tooltips.
//
// A press goes down on the topmost visible control; the control that was pressed gets the click
// when the button goes up over it. While a message box stands, it alone takes presses and keys.
// Drop-down lists, file lists, check boxes and text boxes work by themselves and tell the screen
// afterwards.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/form.h"

namespace platform {

/// What a screen is told. `id` is a row of its table.
class FormListener {
 public:
  virtual ~FormListener() = default;
  /// The pointer moved over a control; x and y in its own pixels (for a canvas: pixels of its
  /// surface).
  virtual void onMouseMove(int id, int x, int y) = 0;
  /// The button went down on a control.
  virtual void onMouseDown(int id, int x, int y) = 0;
  /// A control was pressed and released. A check box has changed its mark already.
  virtual void onClick(int id) = 0;
  /// An entry of a drop-down list was picked, also the one that was shown already.
  virtual void onChoose(int id) = 0;
};

enum class Key : std::uint8_t { backspace, enter, escape, left, right, home, end, deleteForward };

struct MessageBox {
  Text title;
  Text text;
};

class Desk {
 public:
  /// Where the OK button of a message box stands, and the box itself, for a given box text.
  static Rect boxPlace(const MessageBox& box, Font& font);
  static Rect boxButton(const Rect& boxPlace);

  explicit Desk(Font& font) : font_(font) {}

  /// The screen that gets the events from now on; nothing of the old one is kept. Both may be null.
  void open(Form* form, FormListener* listener);
  Form* form() { return form_; }

  void pointerMoved(Point screen);
  void buttonDown();
  void buttonUp();
  /// The same at a point. The pointer moves there first, unless it is there already.
  void buttonDown(Point at) {
    if (!(pointer_ == at)) pointerMoved(at);
    buttonDown();
  }
  void buttonUp(Point at) {
    if (!(pointer_ == at)) pointerMoved(at);
    buttonUp();
  }
  /// Turns of the wheel, away from the player counted positive.
  void wheel(int steps);
  /// Text for the text box that has the focus, UTF-8.
  void type(std::string_view text);
  void key(Key key);
  Point pointer() const { return pointer_; }

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
  int pressed() const;         // control that is held down by the pointer upon it, or -1
  int focus() const;           // text box that is typed into, or -1
  std::size_t caret() const;   // byte position of the caret in it
  int openList() const;        // drop-down list that is open, or -1
  Rect openListPlace() const;  // its open part on the screen
  int openListRow() const { return openListRow_; }  // entry under the pointer, or -1
  bool boxButtonDown() const;
  /// Grows with every `open`: tells a new screen from an old one at the same address.
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
  void pressTextBox(int id);
  void dragScrollBar();
  void insert(std::string_view text);

  Font& font_;
  Form* form_ = nullptr;
  FormListener* listener_ = nullptr;
  int opened_ = 0;
  Point pointer_{600, 300};
  int pressed_ = -1;
  int focus_ = -1;
  std::size_t caret_ = 0;
  int openList_ = -1;
  int openListRow_ = -1;
  bool boxPressed_ = false;
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

/// Height of one entry of a drop-down or file list, and width of a scroll bar, in pixels.
inline constexpr int kListRowHeight = 18;
inline constexpr int kScrollBarWidth = 16;

}  // namespace platform
