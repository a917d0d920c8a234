// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "cardwright/qt/desktop/QtDesktop.h"
#include "qt/Form.h"

namespace cardwright::qt {
namespace {

struct Stroke {
  const char* title;
  int key;
  Qt::KeyboardModifiers modifiers;
  bool isRepeated;
  bool isBreak;
};

class BreakStrokes : public testing::TestWithParam<Stroke> {};

TEST_P(BreakStrokes, AreDistinguishedFromOtherKeys) {
  QtDesktop desktop;
  QLineEdit field;
  EXPECT_FALSE(desktop.BreakPressed());
  QCoreApplication::postEvent(&field, new QKeyEvent(QEvent::KeyPress, GetParam().key, GetParam().modifiers,
                                                    {}, GetParam().isRepeated));
  EXPECT_EQ(desktop.BreakPressed(), GetParam().isBreak);
  EXPECT_FALSE(desktop.BreakPressed());
}

INSTANTIATE_TEST_SUITE_P(, BreakStrokes,
                         testing::Values(Stroke{"Cancel", Qt::Key_Cancel, {}, false, true},
                                         Stroke{"CtrlCancel", Qt::Key_Cancel, Qt::ControlModifier, false,
                                                true},
                                         Stroke{"CtrlPause", Qt::Key_Pause, Qt::ControlModifier, false, true},
                                         Stroke{"Pause", Qt::Key_Pause, {}, false, false},
                                         Stroke{"Repeated", Qt::Key_Cancel, Qt::ControlModifier, true, false},
                                         Stroke{"CtrlC", Qt::Key_C, Qt::ControlModifier, false, false},
                                         Stroke{"Esc", Qt::Key_Escape, {}, false, false}),
                         [](const auto& one) { return one.param.title; });

TEST(BreakPressed, RecognizesTheX11KeySymbolOfCtrlPause) {
  QtDesktop desktop;
  QLineEdit field;
  QCoreApplication::postEvent(
      &field, new QKeyEvent(QEvent::KeyPress, Qt::Key_unknown, Qt::ControlModifier, 127, 0xFF6B, 4));
  EXPECT_TRUE(desktop.BreakPressed());
}

TEST(BreakPressed, DropsAllOtherInput) {
  QtDesktop desktop;
  QWidget window;
  QLineEdit field(&window);
  QPushButton button(&window);
  QSignalSpy clicks(&button, &QPushButton::clicked);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QCoreApplication::postEvent(&field, new QKeyEvent(QEvent::KeyPress, Qt::Key_X, {}, "x"));
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
    QCoreApplication::postEvent(
        &button, new QMouseEvent(type, QPointF(5, 5), button.mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                                 Qt::LeftButton, {}));
  QCoreApplication::postEvent(window.windowHandle(), new QCloseEvent);
  EXPECT_FALSE(desktop.BreakPressed());
  EXPECT_EQ(field.text(), "");
  EXPECT_EQ(clicks.count(), 0);
  EXPECT_TRUE(window.isVisible());
  QCoreApplication::processEvents();
  EXPECT_EQ(field.text(), "") << "it is ignored, not deferred";
}

TEST(BreakPressed, HoldsTimersBack) {
  QtDesktop desktop;
  int count = 0;
  QTimer::singleShot(1, [&] { ++count; });
  QTest::qSleep(5);
  desktop.BreakPressed();
  EXPECT_EQ(count, 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return count == 1; }));
}

TEST(BreakPressed, LetsWindowsPaintThemselves) {
  struct Painted : QWidget {
    void paintEvent(QPaintEvent*) override { ++count; }
    int count = 0;
  } window;
  QtDesktop desktop;
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QCoreApplication::processEvents();
  window.count = 0;
  window.update();
  desktop.BreakPressed();
  EXPECT_EQ(window.count, 1);
}

}  // namespace
}  // namespace cardwright::qt
