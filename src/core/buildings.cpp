#include "core/buildings.h"

#include "core/number_text.h"

namespace core {

void writeUnlockNotice(platform::Text& into, const Building& building) {
  setCaption(into, " Congratulations, your settlement  has more than ",
             building.unlocking.population, " inhabitants,    you can now build ");
  into.append(building.word);
  into.append(".");
}

}  // namespace core
