#include "driver/json.h"

namespace driver {

std::string quoted(std::string_view text) {
  constexpr const char* kHex = "0123456789abcdef";
  std::string out = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (byte < 0x20) {
      out += "\\u00";
      out += kHex[byte >> 4];
      out += kHex[byte & 15];
    } else {
      out += c;
    }
  }
  return out + "\"";
}

JsonObject& JsonObject::add(std::string_view name, std::string_view rawValue) {
  if (text_.size() > 1) text_ += ",";
  text_ += quoted(name);
  text_ += ":";
  text_ += rawValue;
  return *this;
}

}  // namespace driver
