// Records for tests, made and taken apart without the code under test.
#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "core/new_game.h"
#include "store/record.h"

namespace support {

/// A new game of the first mission.
inline std::unique_ptr<store::Record> newGame() {
  auto record = std::make_unique<store::Record>();
  record->values.gStartMoney = 2;
  core::resetGame(record->game, record->values);
  record->values.gMission = 1;
  record->values.gMapSize = 18;
  record->values.gFertility = 1.2;
  record->values.gYear = 1715;
  return record;
}

inline std::string textOf(const store::Record& record) {
  std::string text;
  store::composeRecord(record.game, record.values, text);
  return text;
}

using Lines = std::vector<std::vector<std::string>>;

/// The fields of each line; what stands behind the last line feed is a line too, mostly empty.
inline Lines split(const std::string& text) {
  Lines lines(1, std::vector<std::string>(1));
  for (const char c : text) {
    if (c == '\n') {
      lines.emplace_back(1);
    } else if (c == ',') {
      lines.back().emplace_back();
    } else if (c != '\r') {
      lines.back().back() += c;
    }
  }
  lines.pop_back();
  return lines;
}

inline std::string join(const Lines& lines, const std::string& end = "\r\n") {
  std::string text;
  for (const auto& line : lines) {
    for (std::size_t n = 0; n < line.size(); ++n) (text += n > 0 ? "," : "") += line[n];
    text += end;
  }
  return text;
}

inline std::string line(const Lines& lines, int number) {
  std::string text = join({lines.at(static_cast<std::size_t>(number - 1))}, "");
  return text;
}

/// The record with one field replaced, counted from 1 as messages count.
inline std::string withField(Lines lines, int line, int field, const std::string& value) {
  lines.at(static_cast<std::size_t>(line - 1)).at(static_cast<std::size_t>(field - 1)) = value;
  return join(lines);
}

/// Empty when the text is a sound record.
inline std::string faultOf(const std::string& text, store::Record& into) {
  std::string error;
  return store::parseRecord(text, into, error) ? "" : error;
}

}  // namespace support
