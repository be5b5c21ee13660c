#include "store/text_form.h"

#include <algorithm>
#include <charconv>

#include "core/number_text.h"
#include "platform/utf8.h"

namespace store {

namespace {

constexpr int kShownName = 100;  // characters of a file's name in a message
constexpr int kShownField = 24;  // characters of a field in a message

// The largest number that 15 digits can say: beyond it they would round to one that nothing can
// read.
constexpr double kLargestWritten = 1.79769313486231E308;

// Far beyond every exponent that counts, and far from the end of int.
constexpr int kHugeExponent = 1000000000;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t countDigits(std::string_view text) {
  const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
  return static_cast<std::size_t>(end - text.begin());
}

// Whether a number of sound form, which is out of the range of a double, is too large and not
// too small, judged by the position of its first digit that is not 0.
bool isTooLarge(std::string_view digits, std::string_view decimals, std::string_view exponent) {
  int power = 0;
  const bool negative = exponent.starts_with('-');
  if (negative || exponent.starts_with('+')) exponent.remove_prefix(1);
  for (const char c : exponent) {
    power = power >= kHugeExponent / 10 ? kHugeExponent : power * 10 + (c - '0');
  }
  if (negative) power = -power;
  const std::size_t first = digits.find_first_not_of('0');
  if (first != std::string_view::npos) return power + static_cast<int>(digits.size() - first) > 0;
  const std::size_t zeros = std::min(decimals.find_first_not_of('0'), decimals.size());
  return power > static_cast<int>(zeros);
}

enum class Reading { number, noNumber, tooLarge };

Reading readNumber(std::string_view field, double& into) {
  std::string_view rest = field;
  if (rest.starts_with('-')) rest.remove_prefix(1);
  const std::string_view digits = rest.substr(0, countDigits(rest));
  rest.remove_prefix(digits.size());
  std::string_view decimals, exponent;
  if (rest.starts_with('.')) {
    rest.remove_prefix(1);
    decimals = rest.substr(0, countDigits(rest));
    rest.remove_prefix(decimals.size());
  }
  if (digits.empty() && decimals.empty()) return Reading::noNumber;
  if (rest.starts_with('E') || rest.starts_with('e')) {
    exponent = rest.substr(1);
    rest = exponent;
    if (rest.starts_with('-') || rest.starts_with('+')) rest.remove_prefix(1);
    const std::size_t count = countDigits(rest);
    if (count == 0) return Reading::noNumber;
    rest.remove_prefix(count);
  }
  if (!rest.empty()) return Reading::noNumber;

  const auto result = std::from_chars(field.data(), field.data() + field.size(), into);
  if (result.ec == std::errc::result_out_of_range) {
    if (isTooLarge(digits, decimals, exponent)) return Reading::tooLarge;
    into = 0;
    return Reading::number;
  }
  return result.ec == std::errc{} ? Reading::number : Reading::noNumber;
}

}  // namespace

void FieldWriter::separate() {
  if (lineBegun_) into_ += ',';
  lineBegun_ = true;
}

void FieldWriter::put(const core::Number& value) {
  separate();
  if (!value.isSet()) return;
  double number = value;
  if (number - number != 0) return;
  number = std::clamp(number, -kLargestWritten, kLargestWritten);
  into_ += core::NumberText(number).view();
}

void FieldWriter::put(int value) {
  separate();
  char digits[12];
  const auto result = std::to_chars(digits, digits + sizeof digits, value);
  into_.append(digits, result.ptr);
}

void FieldWriter::endLine() {
  into_ += "\r\n";
  lineBegun_ = false;
}

bool FieldReader::fail(std::string_view what) {
  error_ = "line ";
  error_ += core::NumberText(takenLine_).view();
  error_ += what;
  return false;
}

bool FieldReader::failField(std::string_view field, std::string_view what) {
  fail(", field ");
  error_ += core::NumberText(takenField_).view();
  error_ += ": \"";
  error_ += plainText(field, kShownField);
  error_ += "\" ";
  error_ += what;
  return false;
}

bool FieldReader::next(core::Number& into) {
  takenLine_ = line_;
  takenField_ = field_;
  if (at_ == text_.size()) {
    fail("");
    error_.insert(0, "ends early, in ");
    return false;
  }
  // The end of the text closes a field as the end of a line does.
  const std::size_t end = std::min(text_.find_first_of(",\r\n", at_), text_.size());
  const std::string_view field = text_.substr(at_, end - at_);
  at_ = end;
  lineClosed_ = !text_.substr(at_).starts_with(',');
  if (!lineClosed_) {
    ++at_;
  } else if (!passLineEnd()) {
    return fail(": a carriage return stands alone");
  }
  if (lineClosed_) {
    ++line_;
    field_ = 1;
  } else {
    ++field_;
  }

  into.unset();
  if (field.empty()) return true;
  double number = 0;
  switch (readNumber(field, number)) {
    case Reading::noNumber:
      return failField(field, "is not a number");
    case Reading::tooLarge:
      return failField(field, "is too large a number");
    case Reading::number:
      break;
  }
  into = number;
  return true;
}

bool FieldReader::passLineEnd() {
  const bool returned = text_.substr(at_).starts_with('\r');
  if (returned) ++at_;
  const bool fed = text_.substr(at_).starts_with('\n');
  if (fed) ++at_;
  return !returned || fed || at_ == text_.size();
}

bool FieldReader::finish() {
  if (lineClosed_ && text_.find_first_not_of("\r\n", at_) == std::string_view::npos) return true;
  takenLine_ = line_;
  return fail(": more stands here than belongs in the file");
}

bool FieldReader::refuse(std::string_view what, const core::Number& value) {
  fail(": ");
  error_ += what;
  error_ += ": ";
  error_ += value.isSet() ? core::NumberText(value).view() : "(empty)";
  return false;
}

std::string plainText(std::string_view text, int limit) {
  std::string plain;
  for (int count = 0; !text.empty(); ++count) {
    if (count == limit) return plain + "...";
    const std::string_view before = text;
    const char32_t c = platform::takeCharacter(text);
    if (c < 0x20 || (c >= 0x7F && c < 0xA0) || c == platform::kReplacement) {
      plain += "\xEF\xBF\xBD";
    } else {
      plain += before.substr(0, before.size() - text.size());
    }
  }
  return plain;
}

std::string plainName(const std::string& path) {
  const std::string_view shown = path.c_str();  // what comes behind a zero byte names nothing
  const std::string name = plainText(shown.substr(shown.rfind('/') + 1), kShownName);
  return name.empty() ? "(no name)" : name;
}

std::string withPlainName(const std::string& path, std::string_view error) {
  const std::string_view shown = path.empty() ? "(no name)" : path.c_str();
  if (error.starts_with(shown) && error.substr(shown.size()).starts_with(": ")) {
    error.remove_prefix(shown.size() + 2);
  }
  return plainName(path) + ": " + std::string(error);
}

}  // namespace store
