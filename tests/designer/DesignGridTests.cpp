// SPDX-License-Identifier: MIT
#include "cardwright/designer/DesignGrid.h"

#include "designer/DesignerTest.h"

namespace cardwright {
namespace {

class GridTest : public DesignerTest {
 protected:
  GridTest() { surface->painted.clear(); }
  Lines Painted() { return std::exchange(surface->painted, {}); }
};

TEST_F(GridTest, PaintsAPointAtEachCrossing) {
  designer->SetGrid(8, false);
  EXPECT_EQ(Painted(), (Lines{"cls", "step 8 columns 0-50 rows 0-38"}));  // 300 / 8 is 37.5: half to even
}

TEST_F(GridTest, UsesGridStepForANegativeOrMissingStep) {
  designer->SetGridStep(10);
  designer->SetGrid(-5, false);
  EXPECT_EQ(Painted(), (Lines{"cls", "step 10 columns 0-40 rows 0-30"}));
  designer->SetGrid();
  EXPECT_EQ(Painted(), (Lines{"step 10 columns 0-40 rows 30-30", "step 10 columns 40-40 rows 0-30"}));
}

TEST_F(GridTest, PaintsOnlyNewRowsAndColumnsWhenTheSurfaceGrows) {
  designer->SetGridStep(10);
  designer->SetGrid();
  Painted();
  surface->Resize(500, 300);
  EXPECT_EQ(Painted(), (Lines{"step 10 columns 0-50 rows 30-30", "step 10 columns 40-50 rows 0-30"}));
}

TEST_F(GridTest, RepaintsAllForResetOrAnotherStep) {
  designer->SetGrid(10, false);
  Painted();
  designer->SetGrid(10, true);
  EXPECT_EQ(Painted(), (Lines{"cls", "step 10 columns 0-40 rows 0-30"}));
  designer->SetGrid(20, false);
  EXPECT_EQ(Painted(), (Lines{"cls", "step 20 columns 0-20 rows 0-15"}));
}

TEST_F(GridTest, ClearsForAStepOfZeroAndRepaintsForTheOldStep) {
  designer->SetGrid(10, false);
  Painted();
  designer->SetGrid(0, false);
  EXPECT_EQ(Painted(), (Lines{"cls"}));
  designer->SetGrid(10, false);
  EXPECT_EQ(Painted(), (Lines{"step 10 columns 0-40 rows 0-30"}));
}

TEST_F(GridTest, TakesTheStepInPixelsInEveryScale) {
  surface->SetScale(ScaleMode::Twips);
  designer->SetGrid(8, false);
  EXPECT_EQ(Painted(), (Lines{"cls", "step 120 columns 0-50 rows 0-38"}));
}

TEST_F(GridTest, DoesNotChangeGridStep) {
  designer->SetGrid(20, false);
  EXPECT_EQ(designer->GridStep(), 8);
}

TEST_F(GridTest, PaintsRegardlessOfGridAlignment) {
  designer->SetGridAlignment(true);
  EXPECT_EQ(Painted(), Lines{});
  designer->SetGrid(8, true);
  EXPECT_FALSE(Painted().empty());
}

TEST_F(GridTest, RepaintsWhenTheBackColorChanges) {
  Find(u"form").SetBackColor(0x123456);
  EXPECT_EQ(surface->backColor, 0x123456);
  EXPECT_EQ(Painted().front(), "cls");
}

TEST_F(GridTest, PaintsNoPointsForANegativeGridStep) {
  designer->SetGridStep(-8);
  designer->SetGrid();
  for (const std::string& line : Painted())
    EXPECT_TRUE(line == "cls" || line.find("0--") != line.npos) << line;
}

TEST_F(GridTest, RaisesOverflowForAStepBeyondInteger) {
  surface->SetScale(ScaleMode::Twips);
  EXPECT_EQ(ErrorOf([&] { designer->SetGrid(3000, false); }), 6);
}

TEST_F(GridTest, AcceptsAnEmptyAndAHugeSurface) {
  surface->Resize(0, 0);
  designer->SetGrid(8, true);
  surface->Resize(1e30F, -5);
  designer->SetGrid(1, true);
  EXPECT_EQ(surface->painted.back(), "step 1 columns 0-1000000 rows 0--5");
}

}  // namespace
}  // namespace cardwright
