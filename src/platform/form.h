// A screen: the controls of one table, with their order from back to front.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "platform/display.h"

namespace platform {

class Form {
 public:
  /// Builds the controls of a table. `findImage` gives the surface of a picture by its name, or
  /// nothing; it is called for every row that names an image, and for `background`.
  Form(std::span<const ControlDesign> table, const char* background,
       const std::function<const Surface*(std::string_view)>& findImage);

  int count() const { return static_cast<int>(controls_.size()); }
  Control& operator[](int id) { return controls_[id]; }
  const Control& operator[](int id) const { return controls_[id]; }

  /// The control with this name and index (kSingle for one that is no array); -1 where there is none.
  /// A name without index also finds the first of an array.
  int find(std::string_view name, int index = kSingle) const;

  /// Shows a control. A frame comes to the front of its siblings, also when it was visible already.
  void show(int id);
  void hide(int id) { (*this)[id].visible = false; }
  void setVisible(int id, bool visible) { visible ? show(id) : hide(id); }
  /// Moves a control within its parent.
  void moveTo(int id, int left, int top);
  /// Moves a panel to the middle of an area that begins at the screen's corner.
  void centre(int id, int areaWidth = kScreenWidth, int areaHeight = kScreenHeight);

  /// Position and size on the screen.
  Rect onScreen(int id) const;
  /// Visible, and so are all that hold it.
  bool shown(int id) const;
  /// The topmost shown control at a screen pixel that takes a press; -1 for the bare screen.
  int topmost(Point screen) const;
  /// Controls with this parent (kNoParent for those of the screen itself), from back to front.
  std::span<const int> children(int parent) const { return order_[parent + 1]; }

  const Surface* background() const { return background_; }

 private:
  int topmostIn(int parent, Point screen, Rect clip) const;
  void raise(int id);

  std::vector<Control> controls_;
  std::vector<std::vector<int>> order_;  // [parent + 1]: children from back to front
  std::vector<std::unique_ptr<ListContent>> lists_;
  const Surface* background_ = nullptr;
};

}  // namespace platform
