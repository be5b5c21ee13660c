// The saved-game record: a text file of numbers that holds a whole running game but its pictures.
//
// A record is read and checked whole before a single value of the running game changes. What is
// checked beyond the form are the values by which the program would leave its tables; every other
// number is taken as the file has it.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/game_state.h"

namespace store {

/// What a record holds: the state, and the five values of the program that it contains.
struct Record {
  core::GameState game;
  core::ProgramValues values;
};

/// Composes the record of a game as text, 11917 lines.
void composeRecord(const core::GameState& game, const core::ProgramValues& values,
                   std::string& into);

/// Reads a record from text. False, with what is wrong (and in which line) in `error`, when the text
/// is no whole and sound record; `into` is then of no use.
bool parseRecord(std::string_view text, Record& into, std::string& error);

/// Both with the file around them. `error` begins with the file's name.
bool saveGame(const std::string& path, const core::GameState& game,
              const core::ProgramValues& values, std::string& error);
/// Returns null, with `error` set, when the file cannot be taken over.
std::unique_ptr<Record> readGame(const std::string& path, std::string& error);

/// Takes a record over into the running game: every value that the record holds, and nothing else
/// (pictures, walkers, cursor, music, quake stay).
void applyRecord(const Record& record, core::GameState& game, core::ProgramValues& values);

}  // namespace store
