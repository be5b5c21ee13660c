#include "core/number_text.h"

#include <charconv>

namespace core {

NumberText::NumberText(double value) {
  const bool finite = value - value == 0;
  if (!finite) return;
  if (value == 0) value = 0;  // drops the sign of minus zero
  const auto result =
      std::to_chars(data_, data_ + sizeof data_, value, std::chars_format::general, 15);
  size_ = static_cast<std::size_t>(result.ptr - data_);
  for (std::size_t n = 0; n < size_; ++n) {
    if (data_[n] == 'e') data_[n] = 'E';
  }
}

void setCaption(platform::Text& caption, std::string_view before, double number,
                std::string_view after) {
  caption.assign(before);
  caption.append(NumberText(number));
  caption.append(after);
}

}  // namespace core
