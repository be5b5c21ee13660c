// A game that was loaded against the file that it came from.
#include <vector>

#include "monkey/watch.h"
#include "store/record.h"

namespace monkey {

namespace {

std::vector<std::string> fieldsOf(const std::string& text) {
  std::vector<std::string> fields;
  std::string field;
  for (const char c : text) {
    if (c == '\r') continue;
    if (c != ',' && c != '\n') {
      field += c;
      continue;
    }
    fields.push_back(field);
    field.clear();
  }
  return fields;
}

constexpr int kHeadFields = 7 + 8 + 10 + 4 + 9 + 9 + 12 + 10 + 18 + 6 + 4;
constexpr int kCellFields = 11;
constexpr int kLastCellField = kHeadFields + 36 * 36 * kCellFields;

/// Fields that a load sets by itself, and those that a tick in the same moment may have touched.
bool mayDiffer(int field) {
  constexpr int kLine2 = 7, kLine3 = kLine2 + 8, kLine4 = kLine3 + 10, kLine5 = kLine4 + 4,
                kLine6 = kLine5 + 9, kLine9 = kLine6 + 9 + 12 + 10;
  switch (field) {
    case 1:            // currentTool
    case 2:            // reserved1
    case 6:            // newsTicks
    case kLine2 + 6:   // hoverLabel
    case kLine2 + 7:   // freeWalkerSlot
    case kLine4 + 3:   // demolishFlag
    case kLine5 + 2:   // demolishFlag
    case kLine5 + 4:   // scratchCount
    case kLine5 + 7:   // cellOriginX
    case kLine5 + 8:   // cellOriginY
    case kLine6 + 3:   // overlayView
    case kLine9 + 6:   // currentTool
    case kLine9 + 10:  // reserved1
    case kLine9 + 13:  // newsTicks
      return true;
    default:
      break;
  }
  if (field < kHeadFields || field >= kLastCellField) return false;
  const int inCell = (field - kHeadFields) % kCellFields;
  constexpr int kTall = 8, kDirty = 9;
  return inCell == kTall || inCell == kDirty;  // rebuilt from the codes; all marks cleared
}

}  // namespace

std::string loadFault(const std::string& file, const core::GameState& game,
                      const core::ProgramValues& values) {
  // A file in another hand's spelling is first brought to the writer's own.
  store::Record record;
  std::string error;
  if (!store::parseRecord(file, record, error)) return "a damaged game was loaded: " + error;
  std::string before;
  std::string after;
  store::composeRecord(record.game, record.values, before);
  store::composeRecord(game, values, after);
  const auto was = fieldsOf(before);
  const auto is = fieldsOf(after);
  if (was.size() != is.size()) return "the record has another length after a load";
  for (std::size_t n = 0; n < was.size(); ++n) {
    if (was[n] != is[n] && !mayDiffer(static_cast<int>(n))) {
      return "field " + std::to_string(n) + " of the record was " + was[n] +
             " in the file and is " + is[n] + " after the load";
    }
  }
  return "";
}

}  // namespace monkey
