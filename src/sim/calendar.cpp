#include "sim/calendar.h"

namespace sim {

void beginMonth(core::City& city, core::ProgramValues& values) {
  if (city.monthLength != city.ticksPerMonth) city.monthLength = city.ticksPerMonth;
  city.historyIndex += 1;
  city.month += 1;
  if (city.month == 13) {
    values.gYear += 1;
    city.month = 1;
  }
  city.constructionThisMonth = 0;
  city.maintenanceThisMonth = 0;
  city.taxThisMonth = 0;
  city.tickOfMonth = 0;
}

}  // namespace sim
