// What was cut or copied last. This one keeps it for the program alone; a window's shares it with others.
#pragma once

#include <string>

namespace platform {

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual std::string text() { return text_; }
  virtual void setText(const std::string& text) { text_ = text; }

 private:
  std::string text_;
};

}  // namespace platform
