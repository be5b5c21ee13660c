// A few lines of JSON writing.
#pragma once

#include <string>
#include <string_view>

namespace driver {

/// A string in quotes, with what must be escaped.
std::string quoted(std::string_view text);

/// Builds one object, member by member.
class JsonObject {
 public:
  JsonObject& add(std::string_view name, std::string_view rawValue);
  JsonObject& add(std::string_view name, int value) { return add(name, std::to_string(value)); }
  JsonObject& addText(std::string_view name, std::string_view text) {
    return add(name, quoted(text));
  }
  JsonObject& addBool(std::string_view name, bool value) {
    return add(name, value ? "true" : "false");
  }
  std::string text() const { return text_ + "}"; }

 private:
  std::string text_ = "{";
};

}  // namespace driver
