// SPDX-License-Identifier: MIT
#include "cardwright/robot/input/Mouse.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <algorithm>
#include <numeric>

#include "cardwright/automation/Errors.h"
#include "robot/EventRecorder.h"

namespace cardwright::robot {
namespace {

TEST(MouseTest, PressesAndReleasesWithTheButtonDownBetween) {
  EventRecorder window;
  Mouse mouse;
  mouse.Click(window, {5, 6});
  EXPECT_EQ(window.Take(), "press1/1@5,6 release1/0@5,6 ");
  mouse.Click(window, {5, 6}, {Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier});
  EXPECT_EQ(window.Take(), "press1/1@5,6+3 release1/0@5,6+3 ") << "two clicks are no double click";
}

TEST(MouseTest, ClicksTwiceForADoubleClick) {
  EventRecorder window;
  Mouse().DoubleClick(window, {5, 6});
  EXPECT_EQ(window.Take(), "press1/1@5,6 release1/0@5,6 double1/1@5,6 release1/0@5,6 ");
}

TEST(MouseTest, OpensTheContextMenuWithTheRightButton) {
  EventRecorder window;
  Mouse().Click(window, {5, 6}, {Qt::RightButton, Qt::NoModifier});
  EXPECT_EQ(window.Take(), "press2/2@5,6 menu release2/0@5,6 ");
}

TEST(MouseTest, DragsInEqualSteps) {
  EventRecorder window;
  Mouse().Drag(window, {10, 10}, {30, 20}, {}, 2);
  EXPECT_EQ(window.Take(), "press1/1@10,10 move0/1@20,15 move0/1@30,20 release1/0@30,20 ");
}

TEST(MouseTest, ContinuesInsideALoopThatWaitsForTheRelease) {
  EventRecorder window;
  window.onPress = [] {
    QElapsedTimer waiting;
    waiting.start();
    while (QGuiApplication::mouseButtons() && waiting.elapsed() < 5000)
      QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_LT(waiting.elapsed(), 5000);
  };
  Mouse().Drag(window, {0, 0}, {8, 0}, {}, 1);
  EXPECT_EQ(window.Take(), "press1/1@0,0 move0/1@8,0 release1/0@8,0 ");
}

TEST(MouseTest, SendsAPollingLoopOneMoveATurn) {
  EventRecorder window;
  std::vector<std::size_t> turns;
  window.onPress = [&] {
    window.Take();
    while (QGuiApplication::mouseButtons()) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      const std::string log = window.Take();
      turns.push_back(static_cast<std::size_t>(std::count(log.begin(), log.end(), ' ')));
    }
  };
  Mouse().Drag(window, {0, 0}, {80, 40}, {}, 8);
  EXPECT_EQ(std::accumulate(turns.begin(), turns.end(), std::size_t{0}), 9U) << "eight moves and the release";
  EXPECT_LE(*std::max_element(turns.begin(), turns.end()), 1U);
}

TEST(MouseTest, FailsForHiddenTargets) {
  EventRecorder window;
  EXPECT_THROW(Mouse().Click(window, {5, 500}), Error);
  window.hide();
  EXPECT_THROW(Mouse().Click(window, {5, 5}), Error);
  EXPECT_EQ(window.Take(), "");
}

TEST(MouseTest, CanCloseTheWindowThatItPresses) {
  auto* window = new EventRecorder;
  const QPointer<QWidget> watch = window;
  window->onPress = [window] { window->deleteLater(); };
  Mouse().Click(*window, {5, 5});
  EXPECT_FALSE(watch);
  EventRecorder next;
  Mouse().Click(next, {1, 1});
  EXPECT_EQ(next.Take(), "press1/1@1,1 release1/0@1,1 ");
}

}  // namespace
}  // namespace cardwright::robot
