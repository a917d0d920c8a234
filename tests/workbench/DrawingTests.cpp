// SPDX-License-Identifier: MIT
// Forms drawn with the mouse, bound, saved, and filled in.

#include "cardwright/qt/FormInput.h"
#include "workbench/WorkbenchTest.h"
#include "workbench/project/KindName.h"

namespace cardwright::workbench {
namespace {

using DrawingTest = WorkbenchTest;

TEST_F(DrawingTest, DrawsEveryClassWithTheMouse) {
  bench->Action(QStringLiteral("mnuSnap"))->trigger();
  bench->Stage().Designer().resize(900, 700);
  int made = 0;
  for (const ClassTable* kind : ControlClasses()) {
    const QPoint at(20 + (made % 3) * 130, 20 + (made / 3) * 52);
    const Ref<IControl> control = Draw(kind->type, QRect(at, QSize(112, 32)));
    ASSERT_EQ(ClassOf(*control).type, kind->type) << kind->design.displayName;
    EXPECT_EQ(control->Left(), at.x()) << kind->design.displayName;
    EXPECT_EQ(control->Top(), at.y()) << kind->design.displayName;
    EXPECT_EQ(control->Width(), 112) << kind->design.displayName;
    EXPECT_EQ(bench->Tools().Kind(), ControlTypeEnum::ctDefault) << kind->design.displayName;
    ++made;
  }
  EXPECT_EQ(Designer().Controls().Count(), made + 1);
}

TEST_F(DrawingTest, SnapsADragToTheGrid) {
  const Ref<IControl> label = Draw(ControlTypeEnum::ctLabel, QRect(16, 16, 80, 24));
  Trigger("mnuSnap");
  Trigger("mnuSnap");
  ASSERT_TRUE(Designer().GridAlignment());
  // A position off the grid is refused, not rounded; none on it is missed.
  DragOnForm({56, 28}, {56 + 21, 28 + 13});
  EXPECT_EQ(label->Left(), 32);
  EXPECT_EQ(label->Top(), 24);
}

TEST_F(DrawingTest, DrawsIntoTheFrameUnderTheMouse) {
  Draw(ControlTypeEnum::ctFrame, QRect(16, 16, 240, 160));
  const Ref<IControl> frame = Designer().CurrentControl();
  Draw(ControlTypeEnum::ctTextBox, QRect(48, 64, 96, 24));
  const Ref<Object> bound = Designer().CurrentControl()->BoundObject();
  const auto& widget = dynamic_cast<const Widget&>(*bound);
  EXPECT_EQ(Ref<Object>(widget.Container()), frame->BoundObject());
}

TEST_F(DrawingTest, PaintsTheGridBlackExceptOnADarkBackground) {
  const auto pointOn = [&](OleColor background) {
    Designer().GetSurface()->SetBackColor(background);
    return bench->Stage().Designer().grab().toImage().pixelColor(8, 8);
  };
  EXPECT_EQ(pointOn(0xFFFFFF), QColor(Qt::black));
  EXPECT_EQ(pointOn(0x808080), QColor(Qt::black));
  EXPECT_GT(pointOn(0x2E2D2D).lightness(), 128);
}

TEST_F(DrawingTest, ResizesTheFormByItsEdge) {
  const QSize before = bench->Stage().Designer().size();
  bench->Stage().Designer().resize(before + QSize(40, 24));
  bench->Grid().EditRow(QStringLiteral("Width"));
  EXPECT_EQ(ValueOf(QStringLiteral("Width")), QString::number(before.width() + 40));
  EXPECT_TRUE(QTest::qWaitFor([&] { return bench->Project().CanUndo(); }, 2000));
}

TEST_F(DrawingTest, CreatesABoundFormThatCanBeFilledIn) {
  ASSERT_TRUE(QFile::copy(Example("wells.gpkg"), PathOf(QStringLiteral("wells.gpkg"))));
  ASSERT_TRUE(bench->OpenData(PathOf(QStringLiteral("wells.gpkg"))));
  auto* themes = bench->findChild<QMenu*>(QStringLiteral("mnuThemes"));
  Q_EMIT themes->aboutToShow();
  for (QAction* action : themes->actions())
    if (action->text() == u"wells") action->trigger();
  Type(QStringLiteral("Text"), QStringLiteral("Inspection"));
  Draw(ControlTypeEnum::ctLabel, QRect(16, 16, 80, 24));
  Type(QStringLiteral("Text"), QStringLiteral("Name"));
  Draw(ControlTypeEnum::ctTextBox, QRect(104, 16, 200, 24));
  Type(QStringLiteral("Name"), QStringLiteral("txtName"));
  Type(QStringLiteral("Attribute"), QStringLiteral("NAME"));
  const QString file = PathOf(QStringLiteral("drawn.cwf"));
  ASSERT_EQ(bench->Project().Save(file), QString());
  EXPECT_TRUE(Read(file).contains("ThemeName=wells"));

  bench.reset();
  {
    QWidget window;
    qt::FormInput form(&window);
    ASSERT_TRUE(form.ProjectRead(file));
    form.SetFeatureID(QStringLiteral("3"));
    IControl* name = FindControl(form.Object()->Controls(), u"txtName");
    ASSERT_NE(name, nullptr);
    EXPECT_FALSE(name->DisplayText().IsEmpty());
    name->SetPropertyValue(u"Text", Variant(u"Drawn well"));
    form.Object()->Ok();
  }
  data.Log().Execute(u"APPLICATION_REDRAW");
  EXPECT_TRUE(data.TakeRefusals().isEmpty());
  data.Log().Execute(u"THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 3 NEW");
  data.Log().Execute(u"THEME_MOVEFIRST |wells| |POINT|");
  EXPECT_EQ(data.Log().Request(u"THEME_GET_ATTRIBUTE |wells| |POINT| |NAME|"), u"Drawn well");
}

}  // namespace
}  // namespace cardwright::workbench
