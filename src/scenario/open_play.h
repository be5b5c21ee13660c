// Open play: a game without goals, on land of the player's choice.
#pragma once

#include <array>

#include "core/game_state.h"

namespace scenario {

/// One box of the open play panel: the choice it belongs to, the value it sets, and its factor of difficulty.
enum class Choice { mapSize, fertility, money };
struct ChoiceBox {
  Choice choice;
  double value;
  double factor;
};

// Boxes 1 to 9, in the order of their names.
inline constexpr std::array<ChoiceBox, 9> kChoiceBoxes{{
    {Choice::mapSize, 22, 1},
    {Choice::mapSize, 28, 0.65},
    {Choice::mapSize, 16, 1.75},
    {Choice::fertility, 1.2, 0.8},
    {Choice::fertility, 1, 1},
    {Choice::fertility, 0.8, 1.35},
    {Choice::money, 1, 1.2},
    {Choice::money, 2, 1},
    {Choice::money, 3, 0.85},
}};

/// What every visit to the menu begins with. The side of 24 fits none of the boxes: it is what a player
/// gets who never touched the size.
void setOpenPlayDefaults(core::ProgramValues& values);

/// Takes over the choice of box n, 0..8, and recomputes the difficulty.
void takeChoice(core::ProgramValues& values, int n);

}  // namespace scenario
