// SPDX-License-Identifier: MIT
#include <QImage>

#include "Form.h"

namespace cardwright::qt {
namespace {

class PictureBox : public ::testing::Test {
 protected:
  PictureBox() : surface(canvas), box(surface.Add(u"VB.PictureBox", u"handle", nullptr)) {
    canvas.resize(100, 100);
    box->Move(10, 10, 7, 7);
    box->SetVisible(true);
  }
  PictureWidget& Box() { return dynamic_cast<PictureWidget&>(*box); }
  QColor PixelAt(int x, int y) { return canvas.grab().toImage().pixelColor(10 + x, 10 + y); }

  QWidget canvas;
  QtSurface surface;
  Ref<Widget> box;
};

TEST_F(PictureBox, KeepsADrawnBoxOnItsBackground) {
  Box().SetAutoRedraw(true);
  Box().SetBackColor(Rgb(0, 0, 255));
  Box().DrawBox(0, 0, Box().ScaleWidth() - 1, Box().ScaleHeight() - 1, Rgb(255, 0, 0));
  for (int again = 0; again < 2; ++again) {
    EXPECT_EQ(PixelAt(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(PixelAt(6, 6), QColor(255, 0, 0));
    EXPECT_EQ(PixelAt(3, 3), QColor(0, 0, 255));
  }
}

TEST_F(PictureBox, DrawsInItsOwnScale) {
  Box().SetAutoRedraw(true);
  Box().SetScale(ScaleMode::Twips);
  EXPECT_EQ(Box().ScaleWidth(), 105);
  Box().DrawBox(0, 0, 90, 90, Rgb(255, 0, 0));
  EXPECT_EQ(PixelAt(6, 3), QColor(255, 0, 0));
}

TEST_F(PictureBox, LosesItsDrawingWithClsANewBackgroundOrARepaintWithoutAutoRedraw) {
  Box().SetAutoRedraw(true);
  Box().DrawBox(0, 0, 6, 6, Rgb(255, 0, 0));
  Box().Cls();
  EXPECT_NE(PixelAt(0, 0), QColor(255, 0, 0));
  Box().DrawBox(0, 0, 6, 6, Rgb(255, 0, 0));
  Box().SetBackColor(Rgb(0, 255, 0));
  EXPECT_EQ(PixelAt(0, 0), QColor(0, 255, 0));
  Box().SetAutoRedraw(false);
  Box().DrawBox(0, 0, 6, 6, Rgb(255, 0, 0));
  EXPECT_EQ(PixelAt(0, 0), QColor(255, 0, 0));
  EXPECT_EQ(PixelAt(0, 0), QColor(0, 255, 0));
}

}  // namespace
}  // namespace cardwright::qt
