#include "driver/describe.h"

#include "driver/json.h"

namespace driver {

namespace {

const char* kindName(platform::ControlKind kind) {
  using Kind = platform::ControlKind;
  switch (kind) {
    case Kind::frame:
      return "frame";
    case Kind::label:
      return "label";
    case Kind::button:
      return "button";
    case Kind::image:
      return "image";
    case Kind::picture:
      return "picture";
    case Kind::line:
      return "line";
    case Kind::box:
      return "box";
    case Kind::checkBox:
      return "checkbox";
    case Kind::dropDown:
      return "dropdown";
    case Kind::fileList:
      return "filelist";
    case Kind::textBox:
      return "textbox";
  }
  return "";
}

std::string hex(platform::Color color) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string text;
  for (const int part : {color.r, color.g, color.b}) {
    text += kDigits[part >> 4];
    text += kDigits[part & 15];
  }
  return text;
}

}  // namespace

std::string controlName(const platform::Form& form, int id) {
  const platform::ControlDesign& design = *form[id].design;
  std::string name = design.name;
  if (design.index != platform::kSingle) name += " " + std::to_string(design.index);
  return name;
}

std::string describeControl(const platform::Form& form, int id) {
  const platform::Control& control = form[id];
  JsonObject json;
  json.addText("kind", kindName(control.design->kind))
      .addBool("visible", control.visible)
      .addBool("shown", form.shown(id));
  if (control.design->kind == platform::ControlKind::line) {
    json.add("x1", control.from.x).add("y1", control.from.y);
    json.add("x2", control.to.x).add("y2", control.to.y);
  } else {
    const platform::Rect place = form.onScreen(id);
    json.add("left", place.left).add("top", place.top);
    json.add("width", place.width).add("height", place.height);
  }
  std::string_view text = control.text;
  if (control.list != nullptr && control.design->kind == platform::ControlKind::dropDown &&
      control.list->selected >= 0) {
    text = control.list->items[control.list->selected];
  }
  json.addText("text", text);
  json.addText("color", hex(control.fore)).addText("back", hex(control.back));
  json.add("border", control.border ? 1 : 0);
  if (control.design->kind == platform::ControlKind::checkBox) {
    json.addBool("checked", control.checked);
  }
  if (control.list != nullptr) {
    std::string items = "[";
    for (const std::string& item : control.list->items) {
      if (items.size() > 1) items += ",";
      items += quoted(item);
    }
    json.add("items", items + "]").add("selected", control.list->selected);
  }
  return json.text();
}

std::string describeBox(const platform::MessageBox* box) {
  if (box == nullptr) return "null";
  return JsonObject().addText("title", box->title).addText("text", box->text).text();
}

std::string describeSounds(std::span<const std::string> sounds) {
  std::string array = "[";
  for (const std::string& sound : sounds) {
    if (array.size() > 1) array += ",";
    array += quoted(sound);
  }
  return array + "]";
}

}  // namespace driver
