// SPDX-License-Identifier: MIT
#include "cardwright/qt/surface/QtDesignSurface.h"

#include <QDragEnterEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QWheelEvent>

#include "Form.h"

namespace cardwright::qt {
namespace {

constexpr int kCanvasLeft = 30;
constexpr int kCanvasTop = 20;

/// A window with a design surface in it.
class DesignSurfaceTest : public ::testing::Test {
 protected:
  DesignSurfaceTest() {
    window.resize(460, 340);
    canvas->setGeometry(kCanvasLeft, kCanvasTop, 400, 300);
    surface.SetBackColor(Rgb(200, 200, 200));
    surface.SetListener(&listener);
  }
  void Show() {
    ASSERT_TRUE(ShowActive(window));
    listener.Take();
  }
  Ref<Widget> Add(std::u16string_view identifier, std::u16string_view name, Widget* container = nullptr) {
    const Ref<Widget> widget = surface.Add(identifier, name, container);
    widget->SetVisible(true);
    return widget;
  }
  QColor PixelAt(int x, int y) { return canvas->grab().toImage().pixelColor(x, y); }
  void Press(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(window.windowHandle(), button, {}, QPoint(kCanvasLeft + x, kCanvasTop + y));
  }
  void Release(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(window.windowHandle(), button, {}, QPoint(kCanvasLeft + x, kCanvasTop + y));
  }
  void MoveTo(int x, int y) {
    QTest::mouseMove(window.windowHandle(), QPoint(kCanvasLeft + x, kCanvasTop + y));
  }

  QWidget window;
  QWidget* canvas = new QWidget(&window);
  QtDesignSurface surface{*canvas};
  Listener listener;
};

TEST_F(DesignSurfaceTest, FiresMouseEventsForItsBareAreaOnly) {
  Ref<Widget> box = Add(u"VB.TextBox", u"object_1");
  box->Move(100, 100, 80, 24);
  Show();
  Press(5, 6);
  Release(5, 6);
  EXPECT_EQ(listener.Take(), "down1+0@5,6 up1+0@5,6 click");
  Press(110, 110);
  Release(110, 110);
  EXPECT_EQ(listener.Take(), "");
  Press(7, 8, Qt::RightButton);
  Release(7, 8, Qt::RightButton);
  EXPECT_EQ(listener.Take(), "down2+0@7,8 up2+0@7,8");
}

TEST_F(DesignSurfaceTest, MakesNoClickOfAPressWhoseMouseWasReleased) {
  Show();
  listener.onMouseDown = [this] { surface.ReleaseMouse(); };
  Press(5, 6);
  Release(5, 6);
  EXPECT_EQ(listener.Take(), "down1+0@5,6 up1+0@5,6");
}

TEST_F(DesignSurfaceTest, FiresKeyDownForEveryFocusedWidget) {
  Ref<Widget> box = Add(u"VB.TextBox", u"object_1");
  Show();
  for (QWidget* focused : {canvas, &NativeOf(surface.FocusHolder()), &NativeOf(*box)}) {
    focused->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Delete);
    EXPECT_EQ(listener.Take(), "key46");
  }
}

TEST_F(DesignSurfaceTest, WidgetsTakeNoTyping) {
  Ref<Widget> box = Add(u"VB.TextBox", u"object_1");
  Show();
  NativeOf(*box).setFocus();
  QTest::keyClick(window.windowHandle(), Qt::Key_A);
  EXPECT_EQ(box->DisplayText(), Text());
}

TEST_F(DesignSurfaceTest, WidgetsDoNotReactToTheMouse) {
  Ref<Widget> check = Add(u"VB.CheckBox", u"object_1");
  check->Move(10, 10, 80, 20);
  Listener told;
  check->SetListener(&told);
  Show();
  Press(15, 15);
  Release(15, 15);
  EXPECT_EQ(dynamic_cast<StateWidget&>(*check).State(), 0);
  EXPECT_EQ(told.Take(), "got down1+0@5,5 up1+0@5,5 click");
}

TEST_F(DesignSurfaceTest, WidgetsIgnoreShortcutsWheelAndDrops) {
  Ref<Widget> check = Add(u"VB.CheckBox", u"object_1");
  check->SetDisplayText(u"&Monitored");
  Ref<ComboWidget> combo(dynamic_cast<ComboWidget*>(Add(u"VB.ComboBox", u"object_2").get()));
  combo->AddItem(u"one");
  combo->AddItem(u"two");
  combo->SetListIndex(0);
  Show();
  QTest::keyClick(window.windowHandle(), Qt::Key_M, Qt::AltModifier);
  EXPECT_EQ(dynamic_cast<StateWidget&>(*check).State(), 0);
  NativeOf(*combo).setFocus();
  QWheelEvent wheel({5, 5}, NativeOf(*combo).mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&NativeOf(*combo), &wheel);
  EXPECT_FALSE(wheel.isAccepted());
  EXPECT_EQ(combo->ListIndex(), 0);
  Ref<Widget> box = Add(u"VB.TextBox", u"object_3");
  QMimeData data;
  data.setText(QStringLiteral("dropped"));
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::NoButton, {});
  QCoreApplication::sendEvent(&NativeOf(*box), &enter);
  EXPECT_FALSE(enter.isAccepted());
}

TEST_F(DesignSurfaceTest, PointerAppliesToAllWidgetsOnIt) {
  Ref<Widget> box = Add(u"VB.TextBox", u"object_1");
  Ref<Widget> memo = Add(u"CardwrightCtrl.MultilineTextBox", u"object_2");
  surface.SetPointer(PointerShape::Cross);
  LetProperty(*box, u"Locked", Variant(true));
  LetProperty(*memo, u"Locked", Variant(true));
  EXPECT_EQ(NativeOf(*box).cursor().shape(), Qt::CrossCursor);
  for (const QWidget* part : NativeOf(*memo).findChildren<QWidget*>())
    EXPECT_EQ(part->cursor().shape(), Qt::CrossCursor) << part->objectName().toStdString();
  EXPECT_EQ(surface.Pointer(), PointerShape::Cross);
  surface.SetPointer(PointerShape::Default);
  EXPECT_FALSE(canvas->testAttribute(Qt::WA_SetCursor));
}

TEST_F(DesignSurfaceTest, RestoresTheScreenPointer) {
  surface.SetScreenPointer(PointerShape::Hourglass);
  surface.SetScreenPointer(PointerShape::Hourglass);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  surface.SetScreenPointer(PointerShape::Default);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(DesignSurfaceTest, FiresResizeOnceForEachChangeOfSize) {
  surface.Resize(500, 400);  // hidden
  EXPECT_EQ(listener.Take(), "resize");
  surface.Resize(500, 400);
  EXPECT_EQ(listener.Take(), "");
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  listener.Take();
  surface.Resize(300, 200);
  EXPECT_EQ(listener.Take(), "resize");
  canvas->resize(310, 200);
  EXPECT_EQ(listener.Take(), "resize");
  EXPECT_EQ(surface.Width(), 310);
}

TEST_F(DesignSurfaceTest, LeavesTheFrameItsPartOfASizeThatWasGivenBeforeItWasThere) {
  surface.Resize(350, 250);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  EXPECT_TRUE(QTest::qWaitFor([&] { return surface.Width() < 350; }));
  const FrameSize frame = surface.HostFrame();
  EXPECT_EQ(surface.Width() + frame.width, 350);
  EXPECT_EQ(surface.Height() + frame.height, 250);
  window.hide();
  surface.Resize(350, 250);
  window.show();
  QTest::qWait(50);
  EXPECT_EQ(surface.Width(), 350) << "it was there";
}

TEST_F(DesignSurfaceTest, KeepsTheSizeThatItsHostGaveItLast) {
  surface.Resize(350, 250);
  canvas->resize(320, 240);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QTest::qWait(50);
  EXPECT_EQ(surface.Width(), 320);
}

TEST_F(DesignSurfaceTest, KeepsItsGridPointsUntilCls) {
  Show();
  surface.PaintPoints({.step = 10, .firstColumn = 0, .lastColumn = 1000, .firstRow = 0, .lastRow = 1000});
  for (int again = 0; again < 2; ++again) {
    EXPECT_EQ(PixelAt(0, 0), QColor(Qt::black));
    EXPECT_EQ(PixelAt(20, 30), QColor(Qt::black));
    EXPECT_EQ(PixelAt(21, 30), QColor(200, 200, 200));
    EXPECT_EQ(PixelAt(20, 31), QColor(200, 200, 200));
  }
  surface.Resize(100, 100);
  surface.Resize(400, 300);
  EXPECT_EQ(PixelAt(200, 200), QColor(Qt::black));
  surface.Cls();
  EXPECT_EQ(PixelAt(20, 30), QColor(200, 200, 200));
}

TEST_F(DesignSurfaceTest, SetsPointsInItsScale) {
  surface.SetScale(ScaleMode::Twips);
  surface.PaintPoints({.step = 150, .firstColumn = 1, .lastColumn = 2, .firstRow = 3, .lastRow = 3});
  EXPECT_EQ(PixelAt(10, 30), QColor(Qt::black));
  EXPECT_EQ(PixelAt(20, 30), QColor(Qt::black));
  EXPECT_EQ(PixelAt(0, 30), QColor(200, 200, 200));
  EXPECT_EQ(PixelAt(30, 30), QColor(200, 200, 200));
  EXPECT_EQ(PixelAt(10, 20), QColor(200, 200, 200));
}

TEST_F(DesignSurfaceTest, IgnoresEmptyRangesOfPoints) {
  surface.PaintPoints({.step = 10, .firstColumn = 0, .lastColumn = -1, .firstRow = 0, .lastRow = 5});
  surface.PaintPoints({.step = 0, .firstColumn = 0, .lastColumn = 5, .firstRow = 0, .lastRow = 5});
  surface.PaintPoints({.step = -8, .firstColumn = 0, .lastColumn = 5, .firstRow = 0, .lastRow = 5});
  EXPECT_EQ(PixelAt(0, 0), QColor(200, 200, 200));
}

QImage Picture(QWidget& window) { return window.grab().toImage(); }

TEST_F(DesignSurfaceTest, OutlinesLeaveNoTraces) {
  Ref<Widget> box = Add(u"VB.TextBox", u"object_1");
  box->Move(20, 20, 100, 24);
  Show();
  const QImage before = Picture(window);
  const QPoint corner = canvas->mapToGlobal(QPoint(0, 0));
  for (int step = 0; step < 30; ++step) {
    surface.ShowOutline(
        ScreenRect{corner.x() + step, corner.y() + step, corner.x() + step + 60, corner.y() + 70}, 2);
    QCoreApplication::processEvents();
  }
  EXPECT_NE(Picture(window), before);
  surface.ShowOutline({}, 2);
  EXPECT_EQ(Picture(window), before);
}

TEST_F(DesignSurfaceTest, OutlinesAreVisibleOnEveryBackground) {
  Show();
  const QPoint corner = canvas->mapToGlobal(QPoint(0, 0));
  for (const OleColor ground : {Rgb(0, 0, 0), Rgb(255, 255, 255), Rgb(128, 128, 128)}) {
    surface.SetBackColor(ground);
    surface.ShowOutline(ScreenRect{corner.x() + 10, corner.y() + 10, corner.x() + 60, corner.y() + 50}, 2);
    const QImage picture = canvas->grab().toImage();
    int differing = 0;
    for (int x = 10; x < 60; ++x) differing += picture.pixelColor(x, 10) != picture.pixelColor(5, 5);
    EXPECT_GT(differing, 20);
    EXPECT_EQ(picture.pixelColor(30, 30), picture.pixelColor(5, 5));
  }
}

TEST_F(DesignSurfaceTest, OutlinesNarrowerThanThePenAreVisible) {
  Show();
  const QPoint corner = canvas->mapToGlobal(QPoint(0, 0));
  surface.ShowOutline(ScreenRect{corner.x() + 10, corner.y() + 10, corner.x() + 11, corner.y() + 11}, 2);
  EXPECT_NE(PixelAt(10, 10), QColor(200, 200, 200));
  EXPECT_EQ(PixelAt(12, 10), QColor(200, 200, 200));
}

TEST_F(DesignSurfaceTest, HandlesMoveIntoAContainerAndBackWhenItIsRemoved) {
  Ref<Widget> outer = Add(u"VB.Frame", u"object_1");
  Ref<Widget> inner = Add(u"VB.Frame", u"object_2", outer.get());
  surface.PutHandlesInto(inner.get());
  PictureWidget& handle = surface.Handle(3);
  handle.Move(5, 6, 7, 7);
  handle.SetVisible(true);
  EXPECT_EQ(handle.Container(), inner);
  EXPECT_EQ(NativeOf(handle).parentWidget(), &NativeOf(*inner));
  EXPECT_EQ(handle.Left(), 5);
  surface.Remove(u"object_1");
  EXPECT_EQ(handle.Container(), nullptr);
  EXPECT_EQ(NativeOf(handle).parentWidget(), canvas);
  EXPECT_FALSE(handle.IsVisible());
  handle.Move(1, 2, 7, 7);
  EXPECT_EQ(handle.Left(), 1);
}

TEST_F(DesignSurfaceTest, HandlesStayWhenAnotherContainerIsRemoved) {
  Ref<Widget> one = Add(u"VB.Frame", u"object_1");
  Add(u"VB.Frame", u"object_2");
  surface.PutHandlesInto(one.get());
  surface.Remove(u"object_2");
  surface.Remove(u"nobody");
  EXPECT_EQ(surface.Handle(0).Container(), one);
}

TEST_F(DesignSurfaceTest, HandlesMoveOnlyIntoFrames) {
  Ref<Widget> box = Add(u"VB.TextBox", u"object_1");
  EXPECT_EQ(ErrorOf([&] { surface.PutHandlesInto(box.get()); }), 5);
}

TEST_F(DesignSurfaceTest, OwnWidgetsAreNotFoundByName) {
  EXPECT_EQ(surface.Find(u"picResize"), nullptr);
  EXPECT_EQ(surface.Find(u"picInvisible"), nullptr);
  Add(u"VB.TextBox", u"picInvisible");
  EXPECT_NE(surface.Find(u"picInvisible"), nullptr);
  EXPECT_EQ(surface.OwnWidget(u"PICINVISIBLE", {}).get(), &surface.FocusHolder());
  EXPECT_EQ(surface.OwnWidget(u"picResize", 8).get(), &surface.Handle(8));
  EXPECT_EQ(surface.OwnWidget(u"picResize", 9), nullptr);
  EXPECT_EQ(surface.OwnWidget(u"picResize", {}), nullptr);
}

TEST_F(DesignSurfaceTest, OwnWidgetsFollowTheScale) {
  surface.Handle(0).Move(10, 20, 7, 7);
  surface.SetScale(ScaleMode::Twips);
  EXPECT_EQ(surface.Handle(0).Left(), 150);
  EXPECT_EQ(surface.Handle(0).Width(), 105);
}

TEST_F(DesignSurfaceTest, WindowRectIsInScreenPixels) {
  Ref<Widget> frame = Add(u"VB.Frame", u"object_1");
  frame->Move(40, 50, 100, 80);
  Ref<Widget> box = Add(u"VB.TextBox", u"object_2", frame.get());
  box->Move(5, 6, 50, 20);
  Show();
  const QPoint corner = canvas->mapToGlobal(QPoint(0, 0));
  const ScreenRect whole = surface.WindowRect(nullptr);
  EXPECT_EQ(whole, (ScreenRect{corner.x(), corner.y(), corner.x() + 400, corner.y() + 300}));
  EXPECT_EQ(surface.WindowRect(box.get()),
            (ScreenRect{corner.x() + 45, corner.y() + 56, corner.x() + 95, corner.y() + 76}));
  surface.Remove(u"object_2");
  EXPECT_EQ(ErrorOf([&] { surface.WindowRect(box.get()); }), 91);
}

TEST_F(DesignSurfaceTest, CursorPositionIsKnownDuringMouseDown) {
  Show();
  bool wasDown = false;
  ScreenPoint at;
  listener.onMouseDown = [&] {
    surface.ReleaseMouse();
    wasDown = surface.IsLeftButtonDown();
    at = surface.CursorPosition();
  };
  Press(50, 60);
  const QPoint expected = canvas->mapToGlobal(QPoint(50, 60));
  EXPECT_TRUE(wasDown);
  EXPECT_EQ(at, (ScreenPoint{expected.x(), expected.y()}));
  Release(50, 60);
  surface.CursorPosition();
  EXPECT_FALSE(surface.IsLeftButtonDown());
}

TEST_F(DesignSurfaceTest, APressIsLostWithTheWindow) {
  for (const auto& lose : std::vector<std::function<void()>>{[&] { canvas->hide(); }, [&] { window.hide(); },
                                                             [&] {
                                                               QEvent event(QEvent::WindowDeactivate);
                                                               QCoreApplication::sendEvent(canvas, &event);
                                                             }}) {
    canvas->show();
    Show();
    bool wasDown = true;
    listener.onMouseDown = [&] {
      surface.ReleaseMouse();
      surface.CursorPosition();
      lose();
      wasDown = surface.IsLeftButtonDown();
    };
    Press(50, 60);
    EXPECT_FALSE(wasDown);
    Release(50, 60);
  }
}

TEST_F(DesignSurfaceTest, YieldSleepsWhileTheMouseRests) {
  Show();
  int turns = 0;
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(200);
  const std::clock_t before = std::clock();
  for (; std::chrono::steady_clock::now() < end; ++turns) surface.Yield();
  const double used = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
  EXPECT_LT(turns, 60);
  EXPECT_LT(used, 0.1);
}

TEST_F(DesignSurfaceTest, YieldProcessesEvents) {
  Show();
  bool served = false;
  QTimer::singleShot(0, [&] { served = true; });
  for (int turn = 0; turn < 10 && !served; ++turn) surface.Yield();
  EXPECT_TRUE(served);
}

TEST_F(DesignSurfaceTest, TooltipShowsOneLineInItsOwnWindow) {
  Show();
  surface.ShowTooltip(u" 8, 16 ", {100, 120});
  auto* label = canvas->findChild<QLabel*>(QStringLiteral("lblPixel"));
  ASSERT_NE(label, nullptr);
  QWidget* tip = label->window();
  EXPECT_EQ(label->text(), QStringLiteral(" 8, 16 "));
  EXPECT_EQ(tip->objectName(), QStringLiteral("frmTooltip"));
  EXPECT_EQ(tip->pos(), QPoint(100, 120));
  EXPECT_EQ(tip->size(), label->size());
  EXPECT_TRUE(tip->isVisible());
  EXPECT_TRUE(window.isActiveWindow());
  surface.ShowTooltip(u" 24, 32 ", {110, 130});
  EXPECT_EQ(label->text(), QStringLiteral(" 24, 32 "));
  surface.HideTooltip();
  EXPECT_EQ(canvas->findChild<QLabel*>(QStringLiteral("lblPixel")), nullptr);
  surface.HideTooltip();
}

class DesignMenuTest : public DesignSurfaceTest {
 protected:
  DesignMenuTest() {
    items = {MakeRef<MenuItem>(u"mnuCut", u"Cut"), MakeRef<MenuItem>(u"mnuSep", u""),
             MakeRef<MenuItem>(u"mnuLock", u"Lock"), MakeRef<MenuItem>(u"mnuGone", u"Gone")};
    items[2]->m_Checked = true;
    items[3]->m_Visible = false;
  }
  Text ShowAnd(std::function<void(QMenu&)> act) {
    Show();
    QTimer::singleShot(0, [act = std::move(act)] {
      if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) act(*menu);
    });
    return surface.ShowPopupMenu(items);
  }
  std::vector<Ref<MenuItem>> items;
};

TEST_F(DesignMenuTest, ShowsItsVisibleEntries) {
  QString shown;
  EXPECT_EQ(ShowAnd([&](QMenu& menu) {
              for (const QAction* entry : menu.actions())
                shown += entry->isSeparator() ? QStringLiteral("- ")
                                              : entry->objectName() + (entry->isChecked() ? u'*' : u' ');
              menu.close();
            }),
            Text());
  EXPECT_EQ(shown.toStdString(), "mnuCut - mnuLock*");
}

TEST_F(DesignMenuTest, EitherMouseButtonSelects) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    EXPECT_EQ(ShowAnd([&](QMenu& menu) {
                const QPoint at = menu.actionGeometry(menu.actions().at(2)).center();
                QTest::mouseMove(menu.windowHandle(), at);
                QTest::mousePress(menu.windowHandle(), button, {}, at);
                QTest::mouseRelease(menu.windowHandle(), button, {}, at);
              }),
              Text(u"mnuLock"));
  }
}

TEST_F(DesignMenuTest, EndsWithTheCanvas) {
  EXPECT_EQ(ShowAnd([&](QMenu&) { delete canvas; }), Text());
  EXPECT_EQ(surface.Native(), nullptr);
}

TEST_F(DesignSurfaceTest, FailsWhereItsCanvasIsGone) {
  Ref<Widget> box = Add(u"VB.TextBox", u"object_1");
  delete canvas;
  EXPECT_EQ(ErrorOf([&] { surface.Repaint(); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.Cls(); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.SetPointer(PointerShape::Cross); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.LockRedraw(true); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.ShowOutline(ScreenRect{0, 0, 5, 5}, 2); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.Handle(0).SetVisible(true); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.PutHandlesInto(nullptr); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.WindowRect(nullptr); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.Resize(10, 10); }), 91);
  EXPECT_FALSE(surface.IsLeftButtonDown());
  surface.ShowTooltip(u"x", {0, 0});
  surface.ShowOutline({}, 2);
  surface.HideTooltip();
  surface.Yield();
}

TEST_F(DesignSurfaceTest, PaintsNothingWhileItIsLocked) {
  Show();
  surface.LockRedraw(true);
  surface.LockRedraw(true);
  surface.LockRedraw(false);
  EXPECT_FALSE(canvas->updatesEnabled());
  surface.LockRedraw(false);
  EXPECT_TRUE(canvas->updatesEnabled());
}

}  // namespace
}  // namespace cardwright::qt
