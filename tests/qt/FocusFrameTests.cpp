// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QImage>

#include "Form.h"

namespace cardwright::qt {
namespace {

class FocusFrame : public ::testing::TestWithParam<const char16_t*> {};

TEST_P(FocusFrame, IsDrawnRoundTheFieldThatHasTheFocus) {
  QWidget canvas;
  QtSurface surface(canvas);
  const Ref<Widget> field = surface.Add(GetParam(), u"field", nullptr);
  const Ref<Widget> other = surface.Add(u"vb.textbox", u"other", nullptr);
  field->Move(10, 10, 100, 60);
  other->Move(10, 80, 100, 20);
  field->SetVisible(true);
  other->SetVisible(true);
  canvas.show();
  canvas.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&canvas));
  const QColor highlight = canvas.palette().color(QPalette::Highlight);
  field->SetFocus();
  EXPECT_EQ(canvas.grab().toImage().pixelColor(10, 40), highlight);
  other->SetFocus();
  EXPECT_NE(canvas.grab().toImage().pixelColor(10, 40), highlight);
}

INSTANTIATE_TEST_SUITE_P(Scrolling, FocusFrame,
                         ::testing::Values(u"MSComctlLib.ListViewCtrl.2",
                                           u"CardwrightCtrl.MultilineTextBox"));

}  // namespace
}  // namespace cardwright::qt
