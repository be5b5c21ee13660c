// The values of a game by their names, for looking at them and for setting up a test.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/game_state.h"

namespace driver {

/// Where named values are found. `game` is null while no game is open.
struct State {
  core::GameState* game;
  core::ProgramValues* values;
};

/// Reads a value; unset ones read 0. False, with the reason in `error`, for an unknown name or indices
/// that do not fit.
bool getValue(State state, std::string_view name, std::span<const int> indices, double& value,
              std::string& error);
/// Writes a value, and does nothing else.
bool setValue(State state, std::string_view name, std::span<const int> indices, double value,
              std::string& error);

}  // namespace driver
