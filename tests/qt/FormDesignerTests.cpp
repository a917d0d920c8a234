// SPDX-License-Identifier: MIT
#include "cardwright/qt/FormDesigner.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>
#include <fstream>

#include "Form.h"
#include "cardwright/qt/surface/QtDesignSurface.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::qt {
namespace {

using Steps = std::vector<std::function<void()>>;

/// A designer of 400 x 300 in a window, and a hand on the mouse.
class DesignerTest : public ::testing::Test {
 protected:
  DesignerTest() {
    window->resize(400, 300);
    designer->setGeometry(0, 0, 400, 300);
    EXPECT_TRUE(ShowActive(*window));
  }
  ~DesignerTest() override { delete window.data(); }

  cardwright::FormDesigner& Object() { return *object; }
  QPoint At(QWidget& widget, QPoint at) { return widget.mapTo(window.data(), at); }
  QWidget& Handle(int index) {
    auto& surface = dynamic_cast<QtDesignSurface&>(*Object().GetSurface());
    return NativeOf(surface.Handle(index));
  }

  /// Presses at a point of the window, takes a step in each turn of the loop that this begins, and lets go.
  void Stroke(QPoint from, Steps steps) {
    QTimer hand;
    std::size_t next = 0;
    const auto act = [&] {
      if (next == steps.size()) {
        hand.stop();
        if (window) QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, last);
        return;
      }
      steps[next++]();
    };
    QObject::connect(&hand, &QTimer::timeout, act);
    hand.start(1);
    last = from;
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, from);
    while (hand.isActive()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  std::function<void()> To(QPoint at) {
    return [this, at] {
      last = at;
      if (window) QTest::mouseMove(window->windowHandle(), at);
    };
  }
  void Drag(QPoint from, QPoint to) { Stroke(from, {To((from + to) / 2), To(to)}); }

  Ref<IControl> Draw(ControlTypeEnum kind, QRect place) {
    Object().SetControlTypeToAdd(kind);
    Drag(place.topLeft(), place.topLeft() + QPoint(place.width(), place.height()));
    return Object().CurrentControl();
  }
  std::string PlaceOf(const IControl& control) {
    const auto whole = [](float value) { return std::to_string(static_cast<int>(value)); };
    return whole(control.Left()) + "," + whole(control.Top()) + " " + whole(control.Width()) + "x" +
           whole(control.Height());
  }
  int Outlines() {
    int shown = 0;
    for (const QObject* child : designer->children()) {
      const auto* edge = qobject_cast<const QWidget*>(child);
      shown += edge && edge->testAttribute(Qt::WA_TransparentForMouseEvents) && edge->isVisible();
    }
    return shown;
  }

  QPointer<QWidget> window = new QWidget;
  QPointer<FormDesigner> designer = new FormDesigner(window);
  const Ref<cardwright::FormDesigner> object = designer->Object();
  QPoint last;
};

TEST_F(DesignerTest, DrawsAControlWhereTheMouseWent) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  EXPECT_EQ(box->TypeName(), Text(u"CTextBox"));
  EXPECT_EQ(PlaceOf(*box), "40,50 100x30");
  EXPECT_EQ(Object().ControlTypeToAdd(), ControlTypeEnum::ctDefault);
  EXPECT_TRUE(Handle(0).isVisible());
  EXPECT_EQ(Outlines(), 0);
}

TEST_F(DesignerTest, NotifiesItsHostBySignals) {
  QStringList told;
  const auto note = [&told](const QString& what) { told += what; };
  QObject::connect(designer, &FormDesigner::StateChanged,
                   [&](const QString& state) { note("state " + state); });
  QObject::connect(designer, &FormDesigner::CurrObjectChanged,
                   [&](const IControl* control) { note("current " + ToQString(control->UserName())); });
  QObject::connect(designer, &FormDesigner::PropertyChanged, [&](int index, const Variant& value) {
    note(QStringLiteral("property %1 %2").arg(index).arg(ToLong(value)));
  });
  QObject::connect(designer, &FormDesigner::ObjectRemoved,
                   [&](const QString& name) { note("removed " + name); });
  QObject::connect(designer, &FormDesigner::RefreshPropertyList, [&] { note("refresh"); });
  QObject::connect(designer, &FormDesigner::ControlsLocked,
                   [&](bool locked) { note(locked ? "lock" : "unlock"); });
  QObject::connect(designer, &FormDesigner::MenuStateChanged,
                   [&](const QString& name, bool on) { note(name + (on ? " on" : " off")); });
  QObject::connect(designer, &FormDesigner::ControlNameChanged,
                   [&](const QString& before, const QString& now) { note(before + " is " + now); });
  QObject::connect(designer, &FormDesigner::EnableKeyDeleteChanged,
                   [&](bool on) { note(on ? "key" : "no key"); });
  const Ref<IControl> label = Draw(ControlTypeEnum::ctLabel, {40, 50, 100, 30});
  EXPECT_EQ(told.join(u'|').toStdString(), "property 8 -2147483630|current object_1|state Default");
  told.clear();
  const QPoint mover = At(Handle(0), {3, 3});
  Drag(mover, mover + QPoint(8, 0));
  EXPECT_TRUE(told.join(u'|').contains(QStringLiteral("48")));
  told.clear();
  Object().ChangeControlName(label, u"lblName");
  Object().LockUnlock();
  Object().LockUnlock();
  designer->SetEnableKeyDelete(false);
  designer->setProperty("EnableKeyDelete", true);
  Object().Delete();
  EXPECT_EQ(told.join(u'|').toStdString(),
            "object_1 is lblName|mnuForeground off|mnuBackground off|lock|mnuForeground on|mnuBackground "
            "on|unlock|no key|key|removed object_1|current Form|refresh");
  told.clear();
  QObject::connect(designer, &FormDesigner::Resize, [&] { note("resize"); });
  QObject::connect(designer, &FormDesigner::NeedResize, [&](float width, float height) {
    note(QStringLiteral("need %1 %2").arg(width).arg(height));
  });
  designer->resize(410, 300);
  const QSize outer = QSize(410, 300) + window->frameGeometry().size() - window->size();
  EXPECT_EQ(told.join(u'|'), QStringLiteral("property 3 %1|property 4 %2|resize|need %3 %4")
                                 .arg(outer.width())
                                 .arg(outer.height())
                                 .arg(outer.width() * 15)
                                 .arg(outer.height() * 15));
  EXPECT_EQ(designer->sizeHint(), QSize(410, 300));
}

TEST_F(DesignerTest, ListsAttributesAsTexts) {
  QStringList attributes{QStringLiteral("before")};
  QObject::connect(designer, &FormDesigner::AttribsList, [&](const QStringList& list) { attributes = list; });
  Object().RaiseAttribsList({u"NAME", u"DEPTH"});
  EXPECT_EQ(attributes, (QStringList{QStringLiteral("NAME"), QStringLiteral("DEPTH")}));
  Object().RaiseAttribsList({});
  EXPECT_TRUE(attributes.isEmpty());
}

TEST_F(DesignerTest, MovesAControlByItsMiddleAndShowsWhereTo) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  QString tip;
  int outlines = 0;
  Stroke(from, {To(from + QPoint(5, 5)), To(from + QPoint(20, 10)), [&] {
                  const auto* label = designer->findChild<QLabel*>(QStringLiteral("lblPixel"));
                  tip = label ? label->text() : QStringLiteral("none");
                  outlines = Outlines();
                  EXPECT_FALSE(Handle(0).isVisible());
                }});
  EXPECT_EQ(PlaceOf(*box), "60,60 100x30");
  EXPECT_EQ(tip, QStringLiteral(" 60, 60 "));
  EXPECT_EQ(outlines, 4);
  EXPECT_EQ(Outlines(), 0);
  EXPECT_EQ(designer->findChild<QLabel*>(QStringLiteral("lblPixel")), nullptr);
  EXPECT_TRUE(Handle(0).isVisible());
}

TEST_F(DesignerTest, SizesAControlByEachHandle) {
  struct Case {
    int handle;
    const char* place;
  };
  for (const Case& c : {Case{1, "100,100 112x48"}, Case{2, "112,108 88x32"}, Case{3, "100,108 100x32"},
                        Case{4, "100,108 112x32"}, Case{5, "112,100 88x40"}, Case{6, "100,100 112x40"},
                        Case{7, "112,100 88x48"}, Case{8, "100,100 100x48"}}) {
    const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {100, 100, 100, 40});
    const QPoint from = At(Handle(c.handle), {3, 3});
    Drag(from, from + QPoint(12, 8));
    EXPECT_EQ(PlaceOf(*box), c.place) << c.handle;
    Object().Delete();
  }
}

TEST_F(DesignerTest, AClickOnAHandleMovesNothingAndSelectsAgain) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  Stroke(At(Handle(0), {3, 3}), {});
  EXPECT_EQ(PlaceOf(*box), "40,50 100x30");
  EXPECT_EQ(Object().CurrentControl(), box);
}

TEST_F(DesignerTest, StaysInsideTheSurfaceWhereTheMouseLeavesTheWindow) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  Stroke(from, {To(from + QPoint(-40, -50)), To({-500, -500}), To({5000, 5000})});
  EXPECT_EQ(PlaceOf(*box), "0,0 100x30");
  const QPoint corner = At(Handle(1), {3, 3});
  Stroke(corner, {To(corner + QPoint(50, 50)), To({5000, 5000})});
  EXPECT_EQ(PlaceOf(*box), "0,0 150x80");
}

TEST_F(DesignerTest, AFastDragEndsAtTheLastPosition) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  Stroke(from, {[&] {
           To(from + QPoint(16, 8))();
           QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, last);
           To(from + QPoint(60, 60))();
           last = from + QPoint(16, 8);
         }});
  EXPECT_EQ(PlaceOf(*box), "56,58 100x30");
}

TEST_F(DesignerTest, DrawsIntoAFrame) {
  const Ref<IControl> frame = Draw(ControlTypeEnum::ctFrame, {100, 100, 200, 150});
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {120, 130, 80, 24});
  EXPECT_EQ(PlaceOf(*box), "20,30 80x24");
  const auto& widget = dynamic_cast<Widget&>(*box->BoundObject());
  EXPECT_EQ(widget.Container().get(), frame->BoundObject().get());
  EXPECT_EQ(Handle(0).parentWidget(), &NativeOf(dynamic_cast<Widget&>(*frame->BoundObject())));
  const QPoint from = At(Handle(0), {3, 3});
  Drag(from, from + QPoint(10, 10));
  EXPECT_EQ(PlaceOf(*box), "30,40 80x24");
  EXPECT_EQ(Object().Controls().Count(), 3);
}

TEST_F(DesignerTest, AClickSelectsAndTheBareSurfaceSelectsTheForm) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const Ref<IControl> label = Draw(ControlTypeEnum::ctLabel, {40, 100, 100, 30});
  Stroke({45, 55}, {});
  EXPECT_EQ(Object().CurrentControl(), box);
  Stroke({60, 110}, {});
  EXPECT_EQ(Object().CurrentControl(), label);
  Stroke({300, 250}, {});
  EXPECT_EQ(Object().CurrentControl()->TypeName(), Text(u"CForm"));
  EXPECT_FALSE(Handle(0).isVisible());
}

TEST_F(DesignerTest, ParksTheFocusWhereNothingIsTyped) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  Stroke({45, 55}, {});
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("picInvisible"));
  QTest::keyClick(window->windowHandle(), Qt::Key_X);
  EXPECT_EQ(box->DisplayText(), Text(u"Text1"));
}

TEST_F(DesignerTest, SelectsAFrameThatIsGivenTheFocus) {
  for (const bool hasContents : {false, true}) {
    const Ref<IControl> frame = Draw(ControlTypeEnum::ctFrame, {40, 50, 200, 100});
    if (hasContents) Draw(ControlTypeEnum::ctTextBox, {60, 80, 100, 30});
    Object().SetCtrl(Ref<IControl>(AsControl(Object().Controls().Item(Variant(1)))));
    dynamic_cast<Widget&>(*frame->BoundObject()).SetFocus();
    EXPECT_EQ(Object().CurrentControl(), frame) << hasContents;
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("picInvisible"));
    Object().Delete();
  }
}

TEST_F(DesignerTest, TheDeleteKeyDeletesWhereItMay) {
  Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  designer->SetEnableKeyDelete(false);
  QTest::keyClick(window->windowHandle(), Qt::Key_Delete);
  EXPECT_EQ(Object().Controls().Count(), 2);
  designer->SetEnableKeyDelete(true);
  QTest::keyClick(window->windowHandle(), Qt::Key_Delete);
  EXPECT_EQ(Object().Controls().Count(), 1);
}

TEST_F(DesignerTest, TabGoesFromControlToControl) {
  const Ref<IControl> one = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const Ref<IControl> two = Draw(ControlTypeEnum::ctCheckBox, {40, 100, 100, 30});
  Object().SetCtrl(one);
  QTest::keyClick(window->windowHandle(), Qt::Key_Tab);
  EXPECT_EQ(Object().CurrentControl(), two);
  QTest::keyClick(window->windowHandle(), Qt::Key_Backtab);
  EXPECT_EQ(Object().CurrentControl(), one);
}

TEST_F(DesignerTest, LockedControlsStayAndHaveOtherHandles) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QColor before = Handle(1).grab().toImage().pixelColor(3, 3);
  Object().LockUnlock();
  EXPECT_NE(Handle(1).grab().toImage().pixelColor(3, 3), before);
  const QPoint from = At(Handle(0), {3, 3});
  Drag(from, from + QPoint(20, 20));
  EXPECT_EQ(PlaceOf(*box), "40,50 100x30");
}

TEST_F(DesignerTest, ShowsThePointerOfEachHandleAndTheCrossWhileDrawing) {
  Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 40});
  constexpr Qt::CursorShape kShapes[] = {Qt::SizeAllCursor, Qt::SizeFDiagCursor, Qt::SizeFDiagCursor,
                                         Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor,
                                         Qt::SizeHorCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor};
  for (int i = 0; i < 9; ++i) {
    To(At(Handle(i), {3, 3}))();
    EXPECT_EQ(designer->cursor().shape(), kShapes[i]) << i;
    EXPECT_EQ(Handle(i).cursor().shape(), kShapes[i]) << i;
  }
  To({60, 60})();
  EXPECT_EQ(designer->cursor().shape(), Qt::ArrowCursor);
  Object().SetControlTypeToAdd(ControlTypeEnum::ctLabel);
  To({300, 250})();
  EXPECT_EQ(designer->cursor().shape(), Qt::CrossCursor);
}

TEST_F(DesignerTest, TheRightButtonOpensTheMenuOfWhatIsUnderIt) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const auto open = [&](QPoint at) {
    QString entries;
    QTimer::singleShot(20, [&] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (!menu) return;
      for (const QAction* entry : menu->actions())
        entries +=
            QStringLiteral("%1%2 ").arg(QLatin1String(entry->isEnabled() ? "" : "!"), entry->objectName());
      menu->close();
    });
    QTest::mousePress(window->windowHandle(), Qt::RightButton, {}, at);
    QTest::mouseRelease(window->windowHandle(), Qt::RightButton, {}, at);
    return entries.toStdString();
  };
  EXPECT_EQ(open({50, 60}),
            "mnuCut mnuCopy mnuPaste mnuSep mnuDelete mnuSep1 mnuForeground mnuBackground mnuSep2 mnuLock "
            "mnuSep3 mnuProps ");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);  // no menu of the widget's own after it
  EXPECT_EQ(open({300, 250}), "!mnuCut !mnuCopy mnuPaste mnuSep mnuLock mnuSep3 mnuProps ");
  EXPECT_FALSE(Handle(0).isVisible());
  EXPECT_EQ(Object().CurrentControl(), box);
}

TEST_F(DesignerTest, RemeasuresWhenItsWindowGetsItsFrameLate) {
  QWidget late(nullptr, Qt::FramelessWindowHint);
  late.resize(500, 400);
  auto* const inside = new FormDesigner(&late);
  cardwright::FormDesigner& form = *inside->Object();
  form.SetOuterSize(400, 300);
  std::vector<QSizeF> needed;
  QObject::connect(inside, &FormDesigner::NeedResize,
                   [&](float width, float height) { needed.emplace_back(width / 15, height / 15); });
  const auto measured = [&] { return QSizeF(form.OuterWidth(), form.OuterHeight()); };
  late.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&late));
  form.SetOuterSize(420, 310);  // a project that is read as soon as the window is seen
  EXPECT_EQ(inside->size(), QSize(420, 310));
  late.windowHandle()->setFlag(Qt::FramelessWindowHint, false);
  late.windowHandle()->resize(510, 400);  // the toolkit asks for the frame with the window's next change
  ASSERT_TRUE(QTest::qWaitFor([&] { return inside->width() < 420; }));
  EXPECT_EQ(measured(), QSizeF(420, 310));
  EXPECT_EQ(needed.back(), measured());

  // A size that the host gave: the frame comes on top of it, and the form is as large as both.
  late.hide();
  late.windowHandle()->setFlag(Qt::FramelessWindowHint);
  inside->resize(400, 300);
  late.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&late));
  late.windowHandle()->setFlag(Qt::FramelessWindowHint, false);
  late.windowHandle()->resize(500, 400);
  ASSERT_TRUE(QTest::qWaitFor([&] { return needed.back().width() > 400; }));
  EXPECT_EQ(needed.back(), measured());
  form.SetOuterSize(400, 300);
  EXPECT_LT(inside->width(), 400) << "400 is not what it measures";
}

// What may happen in the middle of a drag.

TEST_F(DesignerTest, ADragEndsWithTheControlThatItMoves) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  Stroke(from, {To(from + QPoint(10, 10)), [&] { Object().Delete(); }, To(from + QPoint(20, 20))});
  EXPECT_EQ(Object().Controls().Count(), 1);
  EXPECT_EQ(Outlines(), 0);
  EXPECT_FALSE(Module().designDragging);
  EXPECT_FALSE(Handle(0).isVisible());
}

TEST_F(DesignerTest, ADragEndsWithTheContainerThatItRunsIn) {
  const Ref<IControl> frame = Draw(ControlTypeEnum::ctFrame, {100, 100, 200, 150});
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {120, 130, 80, 24});
  const QPoint from = At(Handle(0), {3, 3});
  Stroke(from, {To(from + QPoint(10, 10)), [&] { Object().GetSurface()->Remove(frame->Name()); },
                To(from + QPoint(20, 20))});
  EXPECT_EQ(Outlines(), 0);
  EXPECT_FALSE(Module().designDragging);
  Draw(ControlTypeEnum::ctLabel, {10, 10, 60, 20});
  EXPECT_EQ(Handle(0).parentWidget(), designer.data());
  EXPECT_TRUE(Handle(0).isVisible());
}

TEST_F(DesignerTest, ADrawingEndsWithTheFrameThatItRunsIn) {
  const Ref<IControl> frame = Draw(ControlTypeEnum::ctFrame, {100, 100, 200, 150});
  Object().SetControlTypeToAdd(ControlTypeEnum::ctTextBox);
  Stroke({120, 130}, {To({140, 150}), [&] { Object().GetSurface()->Remove(frame->Name()); }, To({180, 170})});
  EXPECT_EQ(Outlines(), 0);
  EXPECT_FALSE(Module().designDragging);
}

TEST_F(DesignerTest, ADragEndsWhereItsWindowIsHidden) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  bool isThere = false;
  Stroke(from,
         {To(from + QPoint(16, 8)), [&] { window->close(); }, [&] { isThere = Module().designDragging; }});
  EXPECT_FALSE(isThere);
  EXPECT_EQ(PlaceOf(*box), "56,58 100x30");
  EXPECT_EQ(Outlines(), 0);
}

TEST_F(DesignerTest, ADragEndsWhereAnotherWindowComesInBetween) {
  Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  QWidget other;
  bool isThere = true;
  Stroke(from, {To(from + QPoint(16, 8)), [&] { EXPECT_TRUE(ShowActive(other)); },
                [&] { isThere = Module().designDragging; }});
  EXPECT_FALSE(isThere);
}

TEST_F(DesignerTest, ADragEndsWhereADialogComesInBetween) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  QDialog dialog(window);
  bool isThere = true;
  Stroke(from, {To(from + QPoint(16, 8)), [&] { dialog.open(); }, [&] { isThere = Module().designDragging; },
                [&] { dialog.close(); }, To(from + QPoint(90, 90))});
  EXPECT_FALSE(isThere);
  EXPECT_EQ(PlaceOf(*box), "56,58 100x30");
  EXPECT_EQ(Outlines(), 0);
}

TEST_F(DesignerTest, ADragGoesOnWhereTheFocusGoesElsewhereInItsWindow) {
  auto* const field = new QLineEdit(window);
  field->setGeometry(0, 0, 20, 20);
  field->show();
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  Stroke(from, {To(from + QPoint(16, 8)), [&] { field->setFocus(); }, To(from + QPoint(32, 8))});
  EXPECT_EQ(PlaceOf(*box), "72,58 100x30");
}

// The button is known to be up whoever gets the release.
TEST_F(DesignerTest, ADragEndsWhereAMenuTakesTheRelease) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  QMenu menu;
  menu.addAction(QStringLiteral("entry"));
  Stroke(from, {To(from + QPoint(16, 8)), [&] { menu.popup(window->mapToGlobal(QPoint(0, 0))); }});
  EXPECT_FALSE(Module().designDragging);
  EXPECT_EQ(PlaceOf(*box), "56,58 100x30");
  EXPECT_EQ(Outlines(), 0);
}

TEST_F(DesignerTest, ADragEndsWithTheWindow) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  Stroke(from, {To(from + QPoint(16, 8)), [&] { delete window.data(); }});
  EXPECT_EQ(designer, nullptr);
  EXPECT_FALSE(Module().designDragging);
  EXPECT_EQ(object->CurrentControl(), nullptr);
  EXPECT_EQ(object->WindowHandle(), 0);
}

TEST_F(DesignerTest, ADrawingEndsWithTheWindow) {
  Object().SetControlTypeToAdd(ControlTypeEnum::ctTextBox);
  Stroke({20, 20}, {To({60, 60}), [&] { delete window.data(); }});
  EXPECT_EQ(designer, nullptr);
  EXPECT_FALSE(Module().designDragging);
}

TEST_F(DesignerTest, AHostMayEndTheDesignerInAnySignal) {
  QObject::connect(designer, &FormDesigner::StateChanged, [&] { window->deleteLater(); });
  const Ref<Collection> controls = object->ControlCollection();
  Object().SetControlTypeToAdd(ControlTypeEnum::ctTextBox);
  Drag({20, 20}, {80, 60});
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(designer, nullptr);
  EXPECT_EQ(controls->Count(), 2);
  EXPECT_EQ(object->Controls().Count(), 0);
}

TEST_F(DesignerTest, AResizeDuringADragIsHarmless) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  const QPoint from = At(Handle(0), {3, 3});
  Stroke(from, {To(from + QPoint(16, 8)), [&] { designer->resize(0, 0); }, To(from + QPoint(32, 8)),
                [&] { designer->resize(600, 500); }, To(from + QPoint(48, 8))});
  EXPECT_EQ(PlaceOf(*box), "88,58 100x30");
}

TEST_F(DesignerTest, PastesWhatIsGone) {
  Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  Object().Cut();
  EXPECT_EQ(Object().Controls().Count(), 1);
  Object().Paste();
  Object().Paste();
  EXPECT_EQ(Object().Controls().Count(), 3);
  EXPECT_EQ(PlaceOf(*Object().CurrentControl()), "0,0 100x30");
}

TEST_F(DesignerTest, ASurfaceWithoutASizeTakesWhatIsDrawnAndPasted) {
  Draw(ControlTypeEnum::ctTextBox, {40, 50, 100, 30});
  Object().Copy();
  designer->resize(0, 0);
  Object().SetCtrl(Ref<IControl>(AsControl(Object().Controls().Item(Variant(1)))));
  Object().Paste();
  EXPECT_EQ(Object().Controls().Count(), 3);
  designer->resize(400, 300);
  EXPECT_TRUE(Handle(0).isVisible());
}

// The toolkit's layout took minutes, with text in a box that has no room beside its scroll bar.
TEST_F(DesignerTest, AMultilineTextBoxIsAsNarrowAsItIsDrawn) {
  const Ref<IControl> box = Draw(ControlTypeEnum::ctTextBoxMultiline, {40, 50, 10, 40});
  QElapsedTimer time;
  time.start();
  for (float width = 7; width < 20; ++width) {
    box->SetWidth(width);
    for (int turn = 0; turn < 7; ++turn) QCoreApplication::processEvents();
  }
  EXPECT_LT(time.elapsed(), 2000);
  EXPECT_EQ(PlaceOf(*box), "40,50 19x40");
}

TEST_F(DesignerTest, TableViewersAreOnlyDrawn) {
  const Ref<IControl> before = Object().CurrentControl();
  EXPECT_EQ(Draw(ControlTypeEnum::ctDbTableViewer, {40, 50, 100, 80}), before);
  EXPECT_EQ(Object().Controls().Count(), 1);
  const Ref<Widget> viewer = Object().GetSurface()->Find(u"object_1");
  ASSERT_NE(viewer, nullptr);
  EXPECT_EQ(viewer->TypeName(), Text(u"DbTableViewer"));
  EXPECT_EQ(viewer->Height(), 80);
}

TEST_F(DesignerTest, AThousandFramesWithinEachOtherAreShownSavedAndDeleted) {
  constexpr int kFrames = 1000;
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("nested.cwf"));
  {
    std::ofstream file(path.toStdString(), std::ios::binary);
    file << "[FORM]\r\nScaleMode=3\r\nWidth=400\r\nHeight=300\r\nControlsNumber=" << kFrames << "\r\n";
    for (int i = 1; i <= kFrames; ++i) {
      file << "[CONTROLS_" << i << "]\r\nType=Frame\r\nName=object_" << i << "\r\nUserName=frame" << i
           << "\r\nLeft=1\r\nTop=1\r\nWidth=300\r\nHeight=200\r\n";
      if (i > 1) file << "Container=object_" << i - 1 << "\r\n";
    }
  }
  ASSERT_TRUE(designer->ProjectRead(path));
  window->grab();
  EXPECT_TRUE(designer->ProjectSave(path));
  const auto frames = ControlsOf(Object().Controls());
  ASSERT_EQ(frames.size(), kFrames + 1U);
  Object().SetCtrl(frames.back());
  Object().Copy();
  Object().Paste();
  EXPECT_EQ(Object().Controls().Count(), kFrames + 2);
  const QPoint from = At(Handle(1), {3, 3});
  Drag(from, from - QPoint(8, 8));
  Object().SetCtrl(frames[1]);
  Object().Delete();
  EXPECT_EQ(Object().GetSurface()->Find(u"object_2"), nullptr);
  EXPECT_EQ(Object().CurrentControl()->TypeName(), Text(u"CForm"));
}

TEST_F(DesignerTest, FiveThousandControlsAreSelectedAndMoved) {
  for (int i = 0; i < 5000; ++i) {
    Object().Place(
        {.type = ControlTypeEnum::ctLabel, .rectangle = {0, 0, 20, 20}, .container = {}, .source = nullptr});
  }
  EXPECT_EQ(Object().Controls().Count(), 5001);
  const Ref<IControl> latest = Object().CurrentControl();
  const QPoint from = At(Handle(0), {3, 3});
  Drag(from, from + QPoint(40, 40));
  EXPECT_EQ(PlaceOf(*latest), "40,40 20x20");
}

}  // namespace
}  // namespace cardwright::qt
