// The words of the map: tile codes, picture numbers, tools, buildings.
//
// A building is the set of cells with one building id. Its anchor is the cell with the lowest x and
// y, and the anchor's code stands for the building in scans.
#pragma once

#include <array>

#include "core/game_state.h"

namespace core {

// Tile codes.
inline constexpr int kEmptyCode = 0;
inline constexpr int kDoctorCode = 6;
inline constexpr int kRoadCode = 7;
inline constexpr int kResidenceCode = 11;
inline constexpr int kMarketCode = 21;
inline constexpr int kSchoolCode = 31;
inline constexpr int kTavernCode = 41;
inline constexpr int kChurchCode = 51;
inline constexpr int kFarmCode = 81;

constexpr bool isResidenceCode(int code) {
  return code >= 11 && code <= 14;
}
constexpr bool isFarmCode(int code) {
  return code > 80 && code < 90;
}
/// Codes that a cell can have.
constexpr bool isTileCode(int code) {
  return code == 0 || code == 6 || code == 7 || (code >= 81 && code <= 89) ||
         (code >= 11 && code <= 54 && code % 10 >= 1 && code % 10 <= 4);
}

/// The service of a building's cell, 1..5; 0 for a cell of no service building.
constexpr int serviceOfCode(int code) {
  if (code == kDoctorCode) return kDoctor;
  if (code % 10 < 1 || code % 10 > 4) return 0;
  switch (code / 10) {
    case 2:
      return kMarket;
    case 3:
      return kSchool;
    case 4:
      return kTavern;
    case 5:
      return kChurch;
    default:
      return 0;
  }
}

// Pictures.
inline constexpr int kGroundImage = 0;
inline constexpr int kGroundImage2 = 28;
inline constexpr int kGroundImage3 = 29;  // also the border ring
inline constexpr int kVoidImage = 20;
inline constexpr int kRoadAlongY = 1;
inline constexpr int kRoadAlongX = 2;
inline constexpr int kRoadJunction = 37;
inline constexpr int kTentImage = 4;
inline constexpr int kDoctorImage = 12;
inline constexpr int kFarmImage1 = 13;
inline constexpr int kFarmImage2 = 54;
inline constexpr int kFarmImage3 = 55;
inline constexpr int kServedImage = 16;    // access view: residence cell with the service
inline constexpr int kUnservedImage = 17;  // access view: residence cell without it
inline constexpr int kOtherImage = 58;     // access view: cell of any other building

constexpr bool isHouseImage(int image) {
  return image == 19 || image == 33 || image == 34 || image == 35;
}
constexpr bool isApartmentImage(int image) {
  return image == 3 || image == 5 || image == 6 || image == 7;
}

// Tools. 7 demolishes, 10 is the info mode; the others place a building.
inline constexpr int kResidenceTool = 1;
inline constexpr int kDoctorTool = 6;
inline constexpr int kDemolishTool = 7;
inline constexpr int kRoadTool = 8;
inline constexpr int kFarmTool = 9;
inline constexpr int kInfoTool = 10;

/// The four cells of a 2x2 building in the order in which tables name them.
struct CellOffset {
  int x;
  int y;
};
inline constexpr std::array<CellOffset, 4> kBlock{{{0, 0}, {1, 0}, {0, 1}, {1, 1}}};

/// The eight cells beside a 2x2 building that share an edge with it.
inline constexpr std::array<CellOffset, 8> kRingOfBlock{
    {{-1, 0}, {-1, 1}, {0, -1}, {1, -1}, {0, 2}, {1, 2}, {2, 1}, {2, 0}}};
/// The four neighbours of a cell.
inline constexpr std::array<CellOffset, 4> kNeighbours{{{-1, 0}, {1, 0}, {0, -1}, {0, 1}}};

/// What a 2x2 building writes on its four cells, in the order of kBlock.
struct BlockDesign {
  int firstCode;  // the cells get firstCode, +1, +2, +3
  std::array<int, 4> images;
  std::array<int, 4> tall;
};
inline constexpr BlockDesign kTent{kResidenceCode, {4, 4, 4, 4}, {0, 0, 0, 0}};
inline constexpr BlockDesign kHouse{kResidenceCode, {19, 35, 33, 34}, {0, 0, 0, 0}};
inline constexpr BlockDesign kApartment{kResidenceCode, {3, 5, 6, 7}, {1, 0, 0, 0}};
inline constexpr BlockDesign kMarketBlock{kMarketCode, {8, 9, 10, 11}, {1, 1, 1, 0}};
inline constexpr BlockDesign kSchoolBlock{kSchoolCode, {25, 31, 26, 30}, {1, 1, 1, 0}};
inline constexpr BlockDesign kTavernBlock{kTavernCode, {44, 46, 45, 47}, {1, 1, 1, 0}};
inline constexpr BlockDesign kChurchBlock{kChurchCode, {14, 32, 18, 15}, {1, 1, 1, 0}};

/// The 2x2 building that tool 1..5 places.
constexpr const BlockDesign& blockOfTool(int tool) {
  switch (tool) {
    case 2:
      return kMarketBlock;
    case 3:
      return kSchoolBlock;
    case 4:
      return kTavernBlock;
    case 5:
      return kChurchBlock;
    default:
      return kTent;
  }
}

/// The service of the building that a tool places, 1..5; 0 where it is none.
constexpr int serviceOfTool(int tool) {
  return tool == kDoctorTool ? kDoctor : serviceOfCode(blockOfTool(tool).firstCode);
}

/// One row for each tool: what it costs, and what the palette says of it.
struct ToolDesign {
  int price;            // gold, paid once
  int maintenance;      // gold a month
  int footprint;        // side in cells
  const char* current;  // palette line when the tool is picked
  const char* priceText;
};
// clang-format off
inline constexpr std::array<ToolDesign, 10> kToolDesigns{{
    //  price  upkeep  side  picked             price line
    {   10,     0,     2,   "Current:House",    "Price:10"},  //  1 residence
    {   40,    50,     2,   "Current:Market",   "Price:40"},  //  2 market
    {   75,    50,     2,   "Current:School",   "Price:75"},  //  3 school
    {   50,    50,     2,   "Current:Tavern",   "Price:50"},  //  4 tavern
    {   60,    50,     2,   "Current:Church",   "Price:60"},  //  5 church
    {   40,    50,     1,   "Current:Doctor",   "Price:40"},  //  6 doctor
    {    0,     0,     1,   "Current:Demolish", "Price:-"},   //  7 demolish
    {    5,     0,     1,   "Current:Road",     "Price:5"},   //  8 road
    {   30,    20,     3,   "Current:Farm",     "Price:30"},  //  9 farm
    {    0,     0,     1,   "",                 ""},          // 10 info mode
}};
// clang-format on
constexpr const ToolDesign& toolDesign(int tool) {
  return kToolDesigns[static_cast<std::size_t>(tool - 1)];
}

}  // namespace core
