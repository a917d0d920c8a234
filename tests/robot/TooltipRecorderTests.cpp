// SPDX-License-Identifier: MIT
#include "cardwright/robot/dialogs/TooltipRecorder.h"

#include <gtest/gtest.h>

#include <QWidget>

namespace cardwright::robot {
namespace {

TEST(TooltipRecorderTest, KeepsTheTooltipOfADrag) {
  const TooltipRecorder tooltips;
  QWidget tip;
  tip.setObjectName(QStringLiteral("frmTooltip"));
  tip.setWindowTitle(QStringLiteral(" 8, 16 "));
  QWidget other;
  other.setWindowTitle(QStringLiteral("other"));
  EXPECT_EQ(tooltips.Last(), u" 8, 16 ");
}

}  // namespace
}  // namespace cardwright::robot
