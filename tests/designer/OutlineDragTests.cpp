// SPDX-License-Identifier: MIT
#include "cardwright/designer/OutlineDrag.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace cardwright {

void PrintTo(const ScreenRect& rect, std::ostream* out) {
  *out << rect.left << ',' << rect.top << ',' << rect.right << ',' << rect.bottom;
}

namespace {

using enum DragMode;
constexpr MinimumSize kAnyControl{7, 19};
constexpr MinimumSize kFrameOrList{7, 0};
constexpr MinimumSize kNewControl{};
constexpr ScreenRect kContainer{0, 0, 400, 300};
constexpr ScreenRect kStart{100, 100, 160, 140};

struct Step {
  DragMode mode;
  int dx, dy;
  ScreenRect expected;
};

void ExpectMoves(const std::vector<Step>& moves, MinimumSize minimum, int gridStep = 0,
                 ScreenRect start = kStart, ScreenRect container = kContainer) {
  for (const Step& move : moves) {
    const ScreenPoint grip{start.left + 13, start.top + 7};
    OutlineDrag drag({move.mode, start, grip, container, gridStep, minimum});
    const bool changed = drag.MoveTo({grip.x + move.dx, grip.y + move.dy});
    EXPECT_EQ(drag.Current(), move.expected)
        << "mode " << static_cast<int>(move.mode) << " by " << move.dx << ',' << move.dy;
    EXPECT_EQ(changed, drag.Current() != start);
    EXPECT_EQ(drag.Start(), start);
  }
}

TEST(OutlineDrag, MovesTheEdgesOfTheMode) {
  ExpectMoves({{DragMode::Move, 10, 5, {110, 105, 170, 145}},
               {BottomRight, 10, 5, {100, 100, 170, 145}},
               {TopLeft, 10, 5, {110, 105, 160, 140}},
               {Top, 10, 5, {100, 105, 160, 140}},
               {TopRight, 10, 5, {100, 105, 170, 140}},
               {Left, 10, 5, {110, 100, 160, 140}},
               {Right, 10, 5, {100, 100, 170, 140}},
               {BottomLeft, 10, 5, {110, 100, 160, 145}},
               {Bottom, 10, 5, {100, 100, 160, 145}}},
              kAnyControl);
}

TEST(OutlineDrag, KeepsTheMinimumSizePerAxis) {
  ExpectMoves({{BottomRight, -53, 3, {100, 100, 107, 143}}, {BottomRight, -54, 3, {100, 100, 160, 143}},
               {BottomRight, 3, -21, {100, 100, 163, 119}}, {BottomRight, 3, -22, {100, 100, 163, 140}},
               {TopLeft, 53, 3, {153, 103, 160, 140}},      {TopLeft, 54, 3, {100, 103, 160, 140}},
               {TopLeft, 3, 21, {103, 121, 160, 140}},      {TopLeft, 3, 22, {103, 100, 160, 140}},
               {Top, 0, 21, {100, 121, 160, 140}},          {Top, 0, 22, {100, 100, 160, 140}},
               {TopRight, -54, 3, {100, 103, 160, 140}},    {TopRight, 3, 22, {100, 100, 163, 140}},
               {Left, 53, 0, {153, 100, 160, 140}},         {Left, 54, 0, {100, 100, 160, 140}},
               {Right, -53, 0, {100, 100, 107, 140}},       {Right, -54, 0, {100, 100, 160, 140}},
               {BottomLeft, 54, 3, {100, 100, 160, 143}},   {BottomLeft, 3, -22, {103, 100, 160, 140}},
               {Bottom, 0, -21, {100, 100, 160, 119}},      {Bottom, 0, -22, {100, 100, 160, 140}}},
              kAnyControl);
}

TEST(OutlineDrag, StaysInsideTheContainerPerAxis) {
  ExpectMoves({{DragMode::Move, -100, -100, {0, 0, 60, 40}},
               {DragMode::Move, -101, 3, {100, 103, 160, 143}},
               {DragMode::Move, 3, -101, {103, 100, 163, 140}},
               {DragMode::Move, 240, 160, {340, 260, 400, 300}},
               {DragMode::Move, 241, 3, {100, 103, 160, 143}},
               {DragMode::Move, 3, 161, {103, 100, 163, 140}},
               {BottomRight, 240, 160, {100, 100, 400, 300}},
               {BottomRight, 241, 3, {100, 100, 160, 143}},
               {BottomRight, 3, 161, {100, 100, 163, 140}},
               {TopLeft, -100, -100, {0, 0, 160, 140}},
               {TopLeft, -101, 3, {100, 103, 160, 140}},
               {TopLeft, 3, -101, {103, 100, 160, 140}},
               {Top, 0, -101, {100, 100, 160, 140}},
               {TopRight, 241, 3, {100, 103, 160, 140}},
               {TopRight, 3, -101, {100, 100, 163, 140}},
               {Left, -101, 0, {100, 100, 160, 140}},
               {Right, 241, 0, {100, 100, 160, 140}},
               {BottomLeft, -101, 3, {100, 100, 160, 143}},
               {BottomLeft, 3, 161, {103, 100, 160, 140}},
               {Bottom, 0, 161, {100, 100, 160, 140}}},
              kAnyControl);
}

TEST(OutlineDrag, SwapsTopAndBottomOfAFrameWhenTheyCross) {
  ExpectMoves({{Top, 0, 60, {100, 140, 160, 160}},
               {Bottom, 0, -60, {100, 80, 160, 100}},
               {TopLeft, 3, 60, {103, 140, 160, 160}},
               {BottomRight, 3, -60, {100, 80, 163, 100}},
               {TopRight, 3, 60, {100, 140, 163, 160}},
               {BottomLeft, 3, -60, {103, 80, 160, 100}},
               // The minimum width is tested before the edges are put in order.
               {Right, -70, 0, {100, 100, 160, 140}},
               {Left, 70, 0, {100, 100, 160, 140}}},
              kFrameOrList);
}

TEST(OutlineDrag, SwapsTheEdgesOfANewRectangleInBothAxes) {
  ExpectMoves({{BottomRight, -30, -20, {170, 130, 200, 150}},
               {BottomRight, 30, -20, {200, 130, 230, 150}},
               {BottomRight, -30, 20, {170, 150, 200, 170}},
               {BottomRight, 1, 0, {200, 150, 201, 150}},
               {BottomRight, -201, -151, {200, 150, 200, 150}}},
              kNewControl, 0, {200, 150, 200, 150});
}

// The container's corner is at 10, 20: columns of the grid at 10, 18 and so on, rows at 20, 28.
TEST(OutlineDrag, StaysPutUntilTheMouseReachesAGridPoint) {
  const ScreenRect container{10, 20, 410, 320};
  const ScreenRect start{103, 100, 163, 140};  // left off the grid, right too, top on it, bottom on it
  ExpectMoves({{DragMode::Move, 2, 0, {103, 100, 163, 140}},
               {DragMode::Move, 3, 0, {106, 100, 166, 140}},  // a move ignores the right edge
               {DragMode::Move, 4, 0, {103, 100, 163, 140}},
               {DragMode::Move, 3, 7, {106, 100, 166, 140}},
               {DragMode::Move, 3, 8, {106, 108, 166, 148}},
               {BottomRight, 6, 7, {103, 100, 163, 140}},
               {BottomRight, 7, 8, {103, 100, 170, 148}},
               {TopLeft, 2, 3, {103, 100, 163, 140}},
               {TopLeft, 3, 8, {106, 108, 163, 140}},
               {Top, 0, 8, {103, 108, 163, 140}},
               {TopRight, 7, -8, {103, 92, 170, 140}},
               {Left, 3, 0, {106, 100, 163, 140}},
               {Right, 7, 0, {103, 100, 170, 140}},
               {Right, 8, 0, {103, 100, 163, 140}},
               {BottomLeft, -5, 8, {98, 100, 163, 148}},
               {Bottom, 0, -8, {103, 100, 163, 132}}},
              kAnyControl, 8, start, container);
}

TEST(OutlineDrag, SnapsANewRectangleToTheContainersGrid) {
  OutlineDrag drag({BottomRight, {104, 104, 104, 104}, {104, 104}, kContainer, 8, kNewControl});
  EXPECT_FALSE(drag.MoveTo({109, 104}));
  EXPECT_TRUE(drag.MoveTo({112, 121}));
  EXPECT_EQ(drag.Current(), (ScreenRect{104, 104, 112, 104}));
  EXPECT_TRUE(drag.MoveTo({88, 120}));
  EXPECT_EQ(drag.Current(), (ScreenRect{88, 104, 104, 120}));
}

TEST(OutlineDrag, KeepsTheLastAcceptedPosition) {
  OutlineDrag drag({DragMode::Move, kStart, {120, 120}, kContainer, 0, kAnyControl});
  EXPECT_TRUE(drag.MoveTo({50, 110}));
  EXPECT_TRUE(drag.MoveTo({10, 100}));
  EXPECT_EQ(drag.Current(), (ScreenRect{30, 80, 90, 120}));
  EXPECT_FALSE(drag.MoveTo({10, 100}));
  EXPECT_TRUE(drag.MoveTo({20, 100}));
  EXPECT_EQ(drag.Current(), (ScreenRect{0, 80, 60, 120}));
}

TEST(OutlineDrag, LetsAControlOutsideTheContainerReturnPerAxis) {
  const ScreenRect outside{380, 100, 440, 140};
  ExpectMoves({{DragMode::Move, -10, 5, {380, 105, 440, 145}},
               {DragMode::Move, -40, 5, {340, 105, 400, 145}},
               {BottomRight, -41, 0, {380, 100, 399, 140}}},
              kAnyControl, 0, outside);
}

}  // namespace
}  // namespace cardwright
