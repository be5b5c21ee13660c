// The text form of all files that the game writes: decimal numbers, separated by a comma or by the
// end of a line, nothing else. An empty field means an unset value.
//
// The reader takes a file as a flat stream of fields: where its lines break does not count, nor does
// a missing line end or a blank line behind the last field. It
// takes numbers in the forms that a person would type (.8, 5., 1.5E-03) and refuses everything
// else, so that a damaged file is found out and nothing depends on the locale.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/number.h"

namespace store {

/// Appends fields to a text.
class FieldWriter {
 public:
  explicit FieldWriter(std::string& into) : into_(into) {}

  /// A number with up to 15 digits; what is unset or has no decimal form is an empty field.
  void put(const core::Number& value);
  void put(double value) { put(core::Number(value)); }
  void put(int value);
  template <class T>
  void put(const core::Whole<T>& value) {
    if (value.isSet()) return put(static_cast<int>(value));
    separate();
  }
  void endLine();

 private:
  void separate();

  std::string& into_;
  bool lineBegun_ = false;
};

/// Takes the fields of a text one by one. After the first failure only `error` is of use.
class FieldReader {
 public:
  explicit FieldReader(std::string_view text) : text_(text) {}

  /// Takes the next field. False when the text is at its end, or when the field is no number.
  bool next(core::Number& into);
  /// For the end, after the last field: false when that was closed by a comma, or when anything but
  /// blank lines follows.
  bool finish();
  /// Notes that the field just taken holds a value that cannot be used, as "line 2: `what`: 3".
  /// Always false.
  bool refuse(std::string_view what, const core::Number& value);

  /// What is wrong, and in which line.
  const std::string& error() const { return error_; }

 private:
  bool fail(std::string_view what);
  bool failField(std::string_view field, std::string_view what);
  /// Passes "\r\n" or "\n", if one is here. False at a return without a line feed, but for the text's
  /// last byte, which has lost it.
  bool passLineEnd();

  std::string_view text_;
  std::size_t at_ = 0;
  int line_ = 1, field_ = 1;            // those that begin at at_
  int takenLine_ = 1, takenField_ = 1;  // those of the field just taken
  bool lineClosed_ = false;             // the field just taken was closed by the end of a line
  std::string error_;
};

constexpr bool isWholeWithin(double value, double low, double high) {
  return value >= low && value <= high &&
         value == static_cast<double>(static_cast<long long>(value));
}

/// Text from a file made fit for a message: at most `limit` characters, with a mark for what
/// is no character or has no picture.
std::string plainText(std::string_view text, int limit);

/// The name of a file for messages: without its folders.
std::string plainName(const std::string& path);

/// Turns what `platform/files.h` reports of `path` into a message that names the file without its
/// folders.
std::string withPlainName(const std::string& path, std::string_view error);

}  // namespace store
