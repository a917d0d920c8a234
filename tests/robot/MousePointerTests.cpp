// SPDX-License-Identifier: MIT
#include "cardwright/robot/widgets/MousePointer.h"

#include <gtest/gtest.h>

namespace cardwright::robot {
namespace {

TEST(PointerNumbers, MatchThePlatform) {
  QWidget widget;
  EXPECT_EQ(PointerNumber(widget), 0);
  for (const auto& [shape, number] :
       {std::pair{Qt::ArrowCursor, 1}, std::pair{Qt::CrossCursor, 2}, std::pair{Qt::SizeBDiagCursor, 6},
        std::pair{Qt::SizeVerCursor, 7}, std::pair{Qt::SizeFDiagCursor, 8}, std::pair{Qt::SizeHorCursor, 9},
        std::pair{Qt::WaitCursor, 11}, std::pair{Qt::SizeAllCursor, 15}, std::pair{Qt::OpenHandCursor, 99}}) {
    widget.setCursor(shape);
    EXPECT_EQ(PointerNumber(widget), number);
  }
}

}  // namespace
}  // namespace cardwright::robot
