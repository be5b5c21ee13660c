// Records for tests, made and taken apart without the code under test.
#pragma once

#include <memory>
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
  record->values.gMission = 1, record->values.gMapSize = 18;
  record->values.gFertility = 1.2, record->values.gYear = 1715;
  return record;
}

inline std::string textOf(const store::Record& record) {
  std::string text;
  store::composeRecord(record.game, record.values, text);
  return text;
}

/// Empty when the text is a sound record.
inline std::string faultOf(const std::string& text, store::Record& into) {
  std::string error;
  return store::parseRecord(text, into, error) ? "" : error;
}

/// The pieces of a text in which `end` follows each piece.
inline std::vector<std::string> split(const std::string& text, const std::string& end = "\r\n") {
  std::vector<std::string> pieces;
  for (std::size_t at = 0, next; (next = text.find(end, at)) != std::string::npos;
       at = next + end.size()) {
    pieces.push_back(text.substr(at, next - at));
  }
  return pieces;
}

inline std::string join(const std::vector<std::string>& pieces, const std::string& end = "\r\n") {
  std::string text;
  for (const std::string& piece : pieces) text += piece + end;
  return text;
}

/// The record with one field replaced; line and field are counted from 1 as in messages.
inline std::string withField(std::vector<std::string> lines, int line, int field,
                             const std::string& value) {
  std::string& changed = lines.at(static_cast<std::size_t>(line - 1));
  auto fields = split(changed + ",", ",");
  fields.at(static_cast<std::size_t>(field - 1)) = value;
  changed = join(fields, ",");
  changed.pop_back();
  return join(lines);
}

}  // namespace support
