// What can be built: one row for each kind, with everything that the game needs to know about it.
//
// A building is the set of cells with one building id. Its anchor is the cell with the lowest x and
// y; scans recognise the building by the anchor's code.
#pragma once

#include <array>
#include <string_view>

#include "core/game_state.h"
#include "platform/text.h"

namespace core {

// Tools that code names. 7 demolishes, 10 is the info mode; the others place a building.
inline constexpr int kResidenceTool = 1;
inline constexpr int kDemolishTool = 7;
inline constexpr int kRoadTool = 8;
inline constexpr int kFarmTool = 9;
inline constexpr int kInfoTool = 10;

/// The keys of the palette, from 0, have the tools in their order but for the info mode.
constexpr int keyOfTool(int tool) {
  return tool < kInfoTool ? tool - 1 : tool - 2;
}
constexpr int toolOfKey(int key) {
  return key < kInfoTool - 1 ? key + 1 : key + 2;
}

struct CellOffset {
  int x;
  int y;
};
/// The four cells of a 2x2 building in the order in which tables name them.
inline constexpr std::array<CellOffset, 4> kBlock{{{0, 0}, {1, 0}, {0, 1}, {1, 1}}};
/// The eight cells beside a 2x2 building that share an edge with it.
inline constexpr std::array<CellOffset, 8> kRingOfBlock{
    {{-1, 0}, {-1, 1}, {0, -1}, {1, -1}, {0, 2}, {1, 2}, {2, 1}, {2, 0}}};
/// The four neighbours of a cell.
inline constexpr std::array<CellOffset, 4> kNeighbours{{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};

/// Pictures and tall flags of the cells of a building: of a block in the order of kBlock, of
/// any other building the first for all its cells.
struct Look {
  std::array<int, 4> images;
  std::array<int, 4> tall;
};
inline constexpr Look kTent{{4, 4, 4, 4}, {0, 0, 0, 0}};
inline constexpr Look kHouse{{19, 35, 33, 34}, {0, 0, 0, 0}};
inline constexpr Look kApartment{{3, 5, 6, 7}, {1, 0, 0, 0}};

/// When a tool appears in the palette, and where a saved game keeps that.
struct Unlocking {
  int population = 0;  // reached at this many people; 0 for a tool that is there from the start
  int toolFlag = 0;    // entry of toolUnlocked
  Number City::*reached = nullptr;
};

struct Building {
  int tool;     // that places it
  int service;  // 1..5, which is also the number of its access view; 0 for none
  int code;     // tile code of the anchor; the other cells count up from it
  int side;     // footprint in cells
  int price;    // gold, paid once
  int upkeep;   // gold a month
  int reach;    // cells each way from every cell of the building
  Look look;    // as placed
  Unlocking unlocking;
  constexpr int paletteKey() const { return keyOfTool(tool); }
  std::string_view name;      // in the palette's captions
  std::string_view capitals;  // in the info mode
  std::string_view word;      // in a sentence
  std::string_view access;    // its access view
  const char* viewKey;        // caption of the key of its access view
  int bookRow;                // row of the monthly book that keeps its rating
};

// clang-format off
inline constexpr auto kBuildings = std::to_array<Building>({
    // tool service code side price upkeep reach  look
    {  1,   0,      11,  2,   10,    0,    0,   kTent, {},
       "House", "TENT", "residence", {}, nullptr, 0},
    {  2,   1,      21,  2,   40,   50,    5,   {{ 8,  9, 10, 11}, {1, 1, 1, 0}}, {},
       "Market", "MARKET", "market", "Market access", "M", 10},
    {  3,   2,      31,  2,   75,   50,    6,   {{25, 31, 26, 30}, {1, 1, 1, 0}},
       {250, 2, &City::schoolUnlocked}, "School", "SCHOOL", "school", "School access", "S", 11},
    {  4,   3,      41,  2,   50,   50,    4,   {{44, 46, 45, 47}, {1, 1, 1, 0}},
       {1000, 4, &City::tavernUnlocked}, "Tavern", "TAVERN", "tavern", "Tavern access", "T", 14},
    {  5,   4,      51,  2,   60,   50,    5,   {{14, 32, 18, 15}, {1, 1, 1, 0}},
       {100, 1, &City::churchUnlocked}, "Church", "CHURCH", "church", "Church access", "C", 12},
    {  6,   5,       6,  1,   40,   50,    4,   {{12, 12, 12, 12}, {1, 1, 1, 1}},
       {500, 3, &City::doctorUnlocked}, "Doctor", "DOCTOR", "doctor", "Doctor access", "D", 13},
    {  8,   0,       7,  1,    5,    0,    0,   {{ 1,  1,  1,  1}, {0, 0, 0, 0}}, {},
       "Road", "ROAD", "road", {}, nullptr, 0},
    {  9,   0,      81,  3,   30,   20,    0,   {{13, 13, 13, 13}, {0, 0, 0, 0}}, {},
       "Farm", "FARM", "farm", {}, nullptr, 0},
});
// clang-format on

/// The building that a tool places; null for a tool that places none.
constexpr const Building* buildingOfTool(int tool) {
  for (const Building& building : kBuildings) {
    if (building.tool == tool) return &building;
  }
  return nullptr;
}
/// Whether there is such a tool.
constexpr bool isTool(int tool) {
  return tool == kDemolishTool || tool == kInfoTool || buildingOfTool(tool) != nullptr;
}
/// The building of service k, 1..5.
constexpr const Building& buildingOfService(int k) {
  for (const Building& building : kBuildings) {
    if (building.service == k) return building;
  }
  return kBuildings[0];
}

// Tile codes.
inline constexpr int kEmptyCode = 0;
inline constexpr int kDoctorCode = buildingOfService(kDoctor).code;
inline constexpr int kRoadCode = buildingOfTool(kRoadTool)->code;
inline constexpr int kResidenceCode = buildingOfTool(kResidenceTool)->code;
inline constexpr int kFarmCode = buildingOfTool(kFarmTool)->code;

inline constexpr int kLastCode = kFarmCode + 8;

/// The row of each tile code 0 .. 89, found once; -1 for none.
inline constexpr auto kRowOfCode = [] {
  std::array<signed char, kLastCode + 1> rows{};
  rows.fill(-1);
  for (std::size_t row = 0; row < kBuildings.size(); ++row) {
    const Building& building = kBuildings[row];
    for (int piece = 0; piece < building.side * building.side; ++piece) {
      rows[building.code + piece] = static_cast<signed char>(row);
    }
  }
  return rows;
}();

/// The building that a tile code belongs to; null for bare land and for numbers that are no code.
constexpr const Building* buildingOfCode(int code) {
  if (code < 0 || code > kLastCode) return nullptr;
  const int row = kRowOfCode[code];
  return row < 0 ? nullptr : &kBuildings[row];
}
constexpr bool isTileCode(int code) {
  return code == kEmptyCode || buildingOfCode(code) != nullptr;
}
constexpr bool isResidenceCode(int code) {
  return code >= kResidenceCode && code < kResidenceCode + 4;
}
constexpr bool isFarmCode(int code) {
  return code >= kFarmCode && code < kFarmCode + 9;
}
/// The service of a building's cell, 1..5; 0 for a cell of no service building.
constexpr int serviceOfCode(int code) {
  const Building* building = buildingOfCode(code);
  return building == nullptr ? 0 : building->service;
}

/// Writes the notice that a building has been unlocked.
void writeUnlockNotice(platform::Text& into, const Building& building);

}  // namespace core
