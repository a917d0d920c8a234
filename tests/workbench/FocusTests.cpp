// SPDX-License-Identifier: MIT
// How the workbench shows the keyboard focus.

#include <QContextMenuEvent>

#include "workbench/WorkbenchTest.h"
#include "workbench/panes/PaneFrame.h"

namespace cardwright::workbench {
namespace {

class FocusTest : public WorkbenchTest {
 protected:
  /// By the shortcut of each pane in turn.
  static constexpr Qt::Key kPanes[] = {Qt::Key_0, Qt::Key_1, Qt::Key_2, Qt::Key_3,
                                       Qt::Key_4, Qt::Key_5, Qt::Key_6};
  void GoTo(Qt::Key pane) { QTest::keyClick(QApplication::focusWidget(), pane, Qt::AltModifier); }
  PaneFrame* Focused() {
    PaneFrame* found = nullptr;
    for (PaneFrame* frame : bench->findChildren<PaneFrame*>()) {
      if (!frame->HasKeyboard()) continue;
      EXPECT_EQ(found, nullptr) << "two panes look as if they had the keyboard";
      found = frame;
    }
    return found;
  }
  /// The colour of a pixel of the frame.
  static QColor FrameColor(PaneFrame& frame) {
    return frame.grab().toImage().pixelColor(0, frame.height() / 2);
  }
  static QColor SelectionIn(const QWidget& pane) {
    return pane.palette().color(QPalette::Active, QPalette::Highlight);
  }
};

TEST_F(FocusTest, FramesOnlyTheFocusedPane) {
  bench->List().setFocus();
  const QColor mark = bench->palette().color(QPalette::Active, QPalette::Highlight);
  for (const Qt::Key pane : kPanes) {
    GoTo(pane);
    PaneFrame* const frame = Focused();
    ASSERT_NE(frame, nullptr) << static_cast<int>(pane);
    for (PaneFrame* other : bench->findChildren<PaneFrame*>()) {
      EXPECT_EQ(FrameColor(*other) == mark, other == frame) << static_cast<int>(pane);
    }
  }
}

TEST_F(FocusTest, ShowsSelectionsGreyWithoutFocus) {
  const QColor mark = bench->palette().color(QPalette::Active, QPalette::Highlight);
  bench->List().setFocus();
  EXPECT_EQ(SelectionIn(bench->List()), mark);
  for (const QWidget* pane : {static_cast<QWidget*>(&bench->Tools()),
                              static_cast<QWidget*>(&bench->Grid().View()), &bench->Stage().Title()}) {
    const QColor grey = SelectionIn(*pane);
    EXPECT_EQ(grey.saturation(), 0);
    EXPECT_EQ(grey.red(), qGray(mark.rgb()));
  }
}

TEST_F(FocusTest, DoesNotChangeTheColorsOfTheForm) {
  bench->List().setFocus();
  EXPECT_EQ(SelectionIn(bench->Stage().Designer()),
            bench->palette().color(QPalette::Active, QPalette::Highlight));
}

TEST_F(FocusTest, HighlightsTheTitleOfTheFormWithFocus) {
  bench->List().setFocus();
  const auto background = [&] { return bench->Stage().Title().grab().toImage().pixelColor(2, 2); };
  EXPECT_EQ(background().saturation(), 0);
  GoTo(Qt::Key_0);
  EXPECT_EQ(background(), bench->palette().color(QPalette::Active, QPalette::Highlight));
}

TEST_F(FocusTest, FollowsAPaletteChange) {
  bench->List().setFocus();
  QPalette other = bench->palette();
  other.setColor(QPalette::Highlight, QColor(0xa0, 0x20, 0x20));
  bench->setPalette(other);
  EXPECT_EQ(SelectionIn(bench->List()), QColor(0xa0, 0x20, 0x20));
  const int grey = qGray(0xa0, 0x20, 0x20);
  EXPECT_EQ(SelectionIn(bench->Tools()), QColor(grey, grey, grey));
}

TEST_F(FocusTest, OpensTheMenuOfTheSelectedControlByKeyboard) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  const Ref<IControl> label = Designer().CurrentControl();
  const auto* const core = dynamic_cast<const qt::WidgetCore*>(label->BoundObject().get());
  ASSERT_NE(core, nullptr);
  GoTo(Qt::Key_0);
  const auto press = [&](bool isMenuKey) {
    QStringList offered;
    QPoint place;
    QTimer::singleShot(20, bench.get(), [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (!menu) return;
      place = menu->pos();
      for (const QAction* action : menu->actions())
        if (action->isEnabled()) offered += action->objectName();
      menu->close();
    });
    QWidget* focus = QApplication::focusWidget();
    if (isMenuKey) {
      QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
      QCoreApplication::sendEvent(focus, &event);
    } else {
      QTest::keyClick(focus, Qt::Key_F10, Qt::ShiftModifier);
    }
    QTest::qWait(40);
    EXPECT_TRUE(offered.contains(QStringLiteral("mnuCut"))) << isMenuKey;
    EXPECT_TRUE(offered.contains(QStringLiteral("mnuForeground"))) << isMenuKey;
    const QRect widget(core->Native()->mapToGlobal(QPoint()), core->Native()->size());
    EXPECT_TRUE(widget.contains(place)) << isMenuKey;
  };
  press(true);
  press(false);
  EXPECT_EQ(Designer().CurrentControl(), label);
}

TEST_F(FocusTest, OpensTheMenuOfTheSelectedFormByKeyboard) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  Select(QStringLiteral("Form"));
  GoTo(Qt::Key_0);
  bool canCut = true;
  bool isOpen = false;
  QTimer::singleShot(20, bench.get(), [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    isOpen = true;
    for (const QAction* action : menu->actions())
      if (action->objectName() == u"mnuCut") canCut = action->isEnabled();
    menu->close();
  });
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10, Qt::ShiftModifier);
  QTest::qWait(40);
  EXPECT_TRUE(isOpen);
  EXPECT_FALSE(canCut);
}

}  // namespace
}  // namespace cardwright::workbench
