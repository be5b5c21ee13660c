// The decimal form of a number, the same in captions and in files, whatever the locale.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace core {

/// Up to 15 significant digits, no thousands separator, a point as the decimal sign; very large and
/// very small numbers with an exponent behind "E" (1E+15, 1.5E-05). Minus zero is 0. A number that
/// has no decimal form (infinite, not a number) gives an empty text.
class NumberText {
 public:
  explicit NumberText(double value);
  std::string_view view() const { return {data_, size_}; }
  operator std::string_view() const { return view(); }  // NOLINT

 private:
  char data_[32];
  std::size_t size_ = 0;
};

/// Writes a caption as text, number, text.
void setCaption(platform::Text& caption, std::string_view before, double number,
                std::string_view after = {});

}  // namespace core
