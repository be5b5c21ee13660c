// The fields of the saved-game record, in the order of the file: what the writer, the reader and
// the taking over of a record all walk, so that they cannot disagree.
#pragma once

#include "core/game_state.h"
#include "core/vocabulary.h"
#include "store/text_form.h"

namespace store {

/// Limits of a value by which the program would leave its tables. Unset counts as 0.
struct Rule {
  bool (*allows)(double value);
  const char* what;  // what a message says of a value outside them, before a colon and the value
};

inline constexpr Rule kTileCode{[](double v) {
                                  return isWholeWithin(v, 0, core::kLastCode) &&
                                         core::isTileCode(static_cast<int>(v));
                                },
                                "no such tile code"};
inline constexpr Rule kFlag{[](double v) { return v == 0 || v == 1; }, "neither 0 nor 1"};
inline constexpr Rule kServiceCount{[](double v) { return isWholeWithin(v, 0, core::kServices); },
                                    "no such number of services"};
inline constexpr Rule kSmallWhole{[](double v) { return isWholeWithin(v, -32768, 32767); },
                                  "no whole number of 16 bits"};

/// One field of the head lines, or the end of a line.
struct HeadField {
  enum class Kind { programValue, gameNumber, reserved, demolishFlag, endOfLine };

  constexpr HeadField(core::Number core::ProgramValues::*member)  // NOLINT: a row of a table
      : kind(Kind::programValue), value(member) {}
  constexpr HeadField(core::Number core::GameState::*member)  // NOLINT
      : kind(Kind::gameNumber), number(member) {}
  constexpr HeadField(Kind plain, int n = 0) : kind(plain), index(n) {}  // NOLINT

  friend constexpr bool operator==(const HeadField&, const HeadField&) = default;

  Kind kind;
  core::Number core::ProgramValues::*value = nullptr;
  core::Number core::GameState::*number = nullptr;
  int index = 0;  // of a reserved number
};

namespace head {

using G = core::GameState;
using V = core::ProgramValues;
inline constexpr HeadField kEnd = HeadField::Kind::endOfLine;
inline constexpr HeadField kDemolishFlag = HeadField::Kind::demolishFlag;
constexpr HeadField reserved(int n) {
  return {HeadField::Kind::reserved, n};
}

// The ratings appear in two orders, and a name that comes twice is written twice and read twice: the
// later copy decides.
// clang-format off
inline constexpr HeadField kFields[] = {
    // 1
    &V::gMission, &G::currentTool, reserved(1), &G::gold, &G::housingCapacity, &G::population,
    &G::newsTicks, kEnd,
    // 2
    &V::gMapSize, &V::gFertility, &V::gYear, &G::month, &V::gSoundOn, &G::farmAnimationOn,
    &G::hoverLabel, &G::freeWalkerSlot, kEnd,
    // 3
    &G::buildingHousing, &G::historyIndex, &G::famineState, &G::roadNeighbourCount, reserved(2),
    reserved(3), &G::churchUnlocked, &G::schoolUnlocked, &G::doctorUnlocked, &G::tavernUnlocked, kEnd,
    // 4
    &G::taxPerTick, &G::maintenancePerTick, &G::ticksPerMonth, kDemolishFlag, kEnd,
    // 5
    &G::walkersOn, reserved(4), kDemolishFlag, reserved(5), &G::scratchCount, &G::walkersOn,
    reserved(6), &G::cellOriginX, &G::cellOriginY, kEnd,
    // 6
    &G::withAccess, &G::withoutAccess, &G::ratingIndex, &G::overlayView, &G::farmCount, &G::food,
    &G::nextBuildingId, reserved(7), reserved(8), kEnd,
    // 7
    reserved(9), &G::constructionThisMonth, &G::nextBuildingId, reserved(5), reserved(6), reserved(7),
    reserved(8), &G::marketRating, &G::churchRating, &G::schoolRating, &G::doctorRating,
    &G::tavernRating, kEnd,
    // 8
    reserved(10), &G::taxThisMonth, reserved(11), &G::maintenanceThisMonth, &G::maintenancePerMonth,
    reserved(12), reserved(13), reserved(10), &G::taxThisMonth, reserved(11), kEnd,
    // 9
    reserved(14), reserved(15), &G::cellX, &G::cellY, &G::i, &G::j, &G::currentTool, &G::gold,
    &G::population, &G::housingCapacity, reserved(1), &G::month, &G::k, &G::newsTicks, &G::l,
    &G::farmCount, &G::food, &G::reachedMission, kEnd,
    // 10
    &G::marketRating, &G::churchRating, &G::tavernRating, &G::doctorRating, &G::schoolRating,
    &G::famineState, kEnd,
    // 11
    &G::taxRate, &G::historyIndex, &G::tickOfMonth, &G::monthLength, kEnd,
};

struct NumberRule {
  HeadField field;
  Rule rule;
};
inline constexpr NumberRule kRules[] = {
    // 11 is found in a game that was saved in the last second of the last mission.
    {&V::gMission,      {[](double v) { return isWholeWithin(v, 1, 11) || isWholeWithin(v, 15, 16) ||
                                               isWholeWithin(v, 20, 29); },  "no such mission"}},
    {&V::gMapSize,      {[](double v) { return isWholeWithin(v, 4, 28) &&
                                               static_cast<int>(v) % 2 == 0; },
                                                                             "no such map size"}},
    {&G::month,         {[](double v) { return isWholeWithin(v, 1, 12); },   "no such month"}},
    {&G::historyIndex,  {[](double v) { return isWholeWithin(v, 1, 43); },   "no such history month"}},
    {&G::currentTool,   {[](double v) { return isWholeWithin(v, 1, 99) &&
                                               core::isTool(static_cast<int>(v)); },
                                                                             "no such tool"}},
    {&G::ticksPerMonth, {[](double v) { return isWholeWithin(v, 1, 1000000000); },
                                                                             "no such speed"}},
    {&G::monthLength,   {[](double v) { return isWholeWithin(v, 1, 1000000000); },
                                                                             "no such month length"}},
    {&G::taxRate,       {[](double v) { return v >= 0 && v <= 30; },         "no such tax rate"}},
};
// clang-format on

/// The rule of a number of the head lines, or null.
inline const Rule* ruleOf(const HeadField& field) {
  if (field.kind == HeadField::Kind::demolishFlag) return &kSmallWhole;
  for (const NumberRule& row : kRules) {
    if (row.field == field) return &row.rule;
  }
  return nullptr;
}

}  // namespace head

/// Calls `visit(place, rule)` for each field of the record and `visit.endLine()` behind each line.
/// `place(state)` gives the field's variable in a state, which has members `game` and `values`;
/// `rule` is null where every number will do. Ends, with false, at the first visit that returns
/// false.
template <class Visitor>
bool walkRecord(Visitor& visit) {
  using G = core::GameState;

  const auto number = [&](const HeadField& field) {
    const Rule* const rule = head::ruleOf(field);
    switch (field.kind) {
      case HeadField::Kind::programValue:
        return visit(
            [&](auto& s) -> auto& { return s.values.*field.value; }, rule);
      case HeadField::Kind::gameNumber:
        return visit(
            [&](auto& s) -> auto& { return s.game.*field.number; }, rule);
      case HeadField::Kind::reserved:
        return visit(
            [&](auto& s) -> auto& { return s.game.reserved[field.index]; }, rule);
      case HeadField::Kind::demolishFlag:
        return visit(
            [](auto& s) -> auto& { return s.game.demolishFlag; }, rule);
      case HeadField::Kind::endOfLine:
        break;
    }
    visit.endLine();
    return true;
  };
  for (const HeadField& field : head::kFields) {
    if (!number(field)) return false;
  }

  // Deliberate: the cell block goes column by column and over 36 x 36 cells, the layers of the services
  // at the end go row by row and over 31 x 31.
  for (int x = 0; x <= 35; ++x) {
    for (int y = 0; y <= 35; ++y) {
      const auto cell = [&](auto grid, const Rule* rule) {
        return visit(
            [&](auto& s) -> auto& { return (s.game.*grid)(x, y); }, rule);
      };
      if (!(cell(&G::tileCode, &kTileCode) && cell(&G::cellCapacity, nullptr) &&
            cell(&G::marketCover, &kFlag) && cell(&G::schoolCover, &kFlag) &&
            cell(&G::tavernCover, &kFlag) && cell(&G::churchCover, &kFlag) &&
            cell(&G::doctorCover, &kFlag) && cell(&G::cellServices, &kServiceCount) &&
            cell(&G::cellTall, &kFlag) && cell(&G::cellDirty, &kFlag) &&
            cell(&G::buildingId, nullptr))) {
        return false;
      }
      visit.endLine();
    }
  }

  const auto line = [&](auto place, const Rule* rule) {
    if (!visit(place, rule)) return false;
    visit.endLine();
    return true;
  };
  for (int column = -4; column <= 50; ++column) {
    for (int row = 1; row <= 18; ++row) {
      if (!line(
              [&](auto& s) -> auto& { return s.game.history(column, row); }, nullptr))
        return false;
    }
  }
  for (int n = 1; n <= core::kTools; ++n) {
    if (!line(
            [&](auto& s) -> auto& { return s.game.toolUnlocked[n]; }, &kFlag))
      return false;
  }
  for (int k = 1; k <= core::kServices; ++k) {
    for (int y = 0; y <= core::kLastCell; ++y) {
      for (int x = 0; x <= core::kLastCell; ++x) {
        if (!line(
                [&](auto& s) -> auto& { return s.game.roadService[k](x, y); }, &kFlag) ||
            !line(
                [&](auto& s) -> auto& { return s.game.cellService[k](x, y); }, &kFlag)) {
          return false;
        }
      }
    }
  }
  return true;
}

}  // namespace store
