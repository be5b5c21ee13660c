// The words of the map: picture numbers, and what can be built (core/buildings.h).
#pragma once

#include "core/buildings.h"

namespace core {

// Pictures.
inline constexpr int kGroundImage = 0;
inline constexpr int kGroundImage2 = 28;
inline constexpr int kGroundImage3 = 29;  // also the border ring
inline constexpr int kVoidImage = 20;
inline constexpr int kRoadAlongY = 1;
inline constexpr int kRoadAlongX = 2;
inline constexpr int kRoadJunction = 37;
inline constexpr int kTentImage = kTent.images[0];
inline constexpr int kDoctorImage = buildingOfService(kDoctor).look.images[0];
inline constexpr int kFarmImage1 = buildingOfTool(kFarmTool)->look.images[0];
inline constexpr int kFarmImage2 = 54;
inline constexpr int kFarmImage3 = 55;
inline constexpr int kServedImage = 16;    // access view: residence cell with the service
inline constexpr int kUnservedImage = 17;  // access view: residence cell without it
inline constexpr int kOtherImage = 58;     // access view: cell of any other building

constexpr bool shows(const Look& look, int image) {
  for (const int piece : look.images) {
    if (piece == image) return true;
  }
  return false;
}
constexpr bool isHouseImage(int image) {
  return shows(kHouse, image);
}
constexpr bool isApartmentImage(int image) {
  return shows(kApartment, image);
}

}  // namespace core
