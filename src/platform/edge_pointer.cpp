#include "platform/edge_pointer.h"

#include "platform/display.h"

namespace platform {

void EdgePointer::moved(Point point, bool inside, std::int64_t now) {
  constexpr Rect kMiddle{kEdge, kEdge, kScreenWidth - 2 * kEdge, kScreenHeight - 2 * kEdge};
  const bool atEdge = inside && !kMiddle.contains(point);
  rested_ = atEdge && atEdge_ && (rested_ || now - movedAt_ >= kRest);
  atEdge_ = atEdge;
  inside_ = inside;
  movedAt_ = now;
}

}  // namespace platform
