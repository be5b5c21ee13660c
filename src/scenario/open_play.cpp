#include "scenario/open_play.h"

namespace scenario {

void setOpenPlayDefaults(core::ProgramValues& values) {
  values.gOpenDifficulty = 100;
  values.gMapSize = 24;
  values.mapSizeFactor = values.fertilityFactor = values.moneyFactor = 1;
  values.gStartMoney = 2;
  values.gFertility = 1;
}

void takeChoice(core::ProgramValues& values, int n) {
  const ChoiceBox& box = kChoiceBoxes[n];
  switch (box.choice) {
    case Choice::mapSize:
      values.gMapSize = box.value;
      values.mapSizeFactor = box.factor;
      break;
    case Choice::fertility:
      values.gFertility = box.value;
      values.fertilityFactor = box.factor;
      break;
    case Choice::money:
      values.gStartMoney = static_cast<int>(box.value);
      values.moneyFactor = box.factor;
      break;
  }
  values.gOpenDifficulty =
      ((values.fertilityFactor * values.mapSizeFactor) * 100) * values.moneyFactor;
}

}  // namespace scenario
