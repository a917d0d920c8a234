// SPDX-License-Identifier: MIT
// Menus, keys, the tool box, the list of controls.

#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

class EditingTest : public WorkbenchTest {
 protected:
  void AddTwo() {
    bench->Project().Insert(ControlTypeEnum::ctLabel);
    first = Selected();
    bench->Project().Insert(ControlTypeEnum::ctTextBox);
    second = Selected();
    RecordStep();
    QTest::qWait(5);
  }
  QStringList Listed() {
    QStringList names;
    for (QTreeWidgetItemIterator at(&bench->List()); *at; ++at) names += (*at)->text(0);
    return names;
  }
  QString first, second;
};

TEST_F(EditingTest, ListsTheFrontControlFirst) {
  AddTwo();
  EXPECT_EQ(Listed(), (QStringList{QStringLiteral("Form"), second, first}));
  Select(first);
  Trigger("mnuForeground");
  EXPECT_EQ(Listed(), (QStringList{QStringLiteral("Form"), first, second}));
  RecordStep();
  Trigger("mnuBackground");
  EXPECT_EQ(Listed(), (QStringList{QStringLiteral("Form"), second, first}));
  RecordStep();
  Trigger("mnuUndo");
  QTest::qWait(5);
  EXPECT_EQ(Listed(), (QStringList{QStringLiteral("Form"), first, second}));
}

TEST_F(EditingTest, ListsTheControlsOfAFrameBelowIt) {
  bench->Project().Insert(ControlTypeEnum::ctFrame);
  const QString frame = Selected();
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  QTest::qWait(5);
  RecordStep();
  QTest::qWait(5);
  const QTreeWidgetItem* form = bench->List().topLevelItem(0);
  ASSERT_EQ(form->childCount(), 1);
  EXPECT_EQ(form->child(0)->text(0), frame);
  EXPECT_EQ(form->child(0)->childCount(), 1);
}

TEST_F(EditingTest, SelectsByKeyboardInTheListAndKeepsTheFocusThere) {
  AddTwo();
  bench->List().setFocus();
  bench->List().setCurrentItem(bench->List().topLevelItem(0));
  QTest::keyClick(&bench->List(), Qt::Key_Down);
  EXPECT_EQ(Selected(), second);
  EXPECT_EQ(QApplication::focusWidget(), &bench->List());
  QTest::keyClick(&bench->List(), Qt::Key_Down);
  EXPECT_EQ(Selected(), first);
}

TEST_F(EditingTest, AddsAControlByKeyboardFromTheToolBox) {
  ToolBox& tools = bench->Tools();
  tools.setFocus();
  tools.setCurrentRow(2);
  QTest::keyClick(&tools, Qt::Key_Return);
  EXPECT_EQ(Designer().Controls().Count(), 2);
  EXPECT_GT(Designer().CurrentControl()->Width(), 50);
  EXPECT_EQ(tools.Kind(), ControlTypeEnum::ctDefault);
  EXPECT_EQ(QApplication::focusWidget(), &tools);
}

TEST_F(EditingTest, CopiesAndPastesFromTheMenu) {
  AddTwo();
  EXPECT_FALSE(bench->Action(QStringLiteral("mnuPaste"))->isEnabled());
  Trigger("mnuCopy");
  EXPECT_TRUE(bench->Action(QStringLiteral("mnuPaste"))->isEnabled());
  Trigger("mnuPaste");
  EXPECT_EQ(Designer().Controls().Count(), 4);
  EXPECT_EQ(Designer().CurrentControl()->Left(), 0);
}

TEST_F(EditingTest, ReturnsToTheSelectionToolWhenTheFormIsSelected) {
  AddTwo();
  Choose(ControlTypeEnum::ctLabel);
  EXPECT_NE(bench->Tools().currentRow(), 0);
  Designer().SetCtrl(Ref<IControl>(&Find(QStringLiteral("Form"))));
  EXPECT_TRUE(QTest::qWaitFor([&] { return bench->Tools().currentRow() == 0; }));
}

TEST_F(EditingTest, ShowsAPastedControlThatEqualsTheCopiedOne) {
  bench->Project().Insert(ControlTypeEnum::ctComboBox);
  Designer().CurrentControl()->SetLeft(0);
  Designer().CurrentControl()->SetTop(0);
  Trigger("mnuCopy");
  const Ref<IControl> copied = Designer().CurrentControl();
  Trigger("mnuPaste");
  ASSERT_NE(Designer().CurrentControl(), copied);
  EXPECT_EQ(Rows().Control(), Designer().CurrentControl());
}

TEST_F(EditingTest, DeletesByTheDeleteKeyOnTheForm) {
  AddTwo();
  ClickOnForm({static_cast<int>(Find(first).Left()) + 4, static_cast<int>(Find(first).Top()) + 4});
  EXPECT_EQ(Selected(), first);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
  EXPECT_FALSE(Has(first));
}

TEST_F(EditingTest, DoesNotDeleteByTheDeleteKeyInAnotherPane) {
  AddTwo();
  for (QTableView* table : {&bench->Grid().View(), &bench->Features().View()}) {
    table->window()->activateWindow();
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_TRUE(Has(second));
  }
}

TEST_F(EditingTest, AddsAControlAtTheTopIfThereIsNoRoomBelow) {
  AddTwo();
  Find(second).SetTop(Designer().GetSurface()->Height() - Find(second).Height());
  Select(second);
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  EXPECT_LT(Designer().CurrentControl()->Top(), Find(second).Top());
}

TEST_F(EditingTest, DoesNotDeleteWhileAValueIsEdited) {
  AddTwo();
  bench->Grid().EditRow(QStringLiteral("Text"));
  QTest::keyClick(&bench->Grid().View(), Qt::Key_F2);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
  EXPECT_TRUE(Has(second));
}

TEST_F(EditingTest, DisablesControlCommandsForTheForm) {
  AddTwo();
  Select(QStringLiteral("Form"));
  for (const char* name : {"mnuCut", "mnuCopy", "mnuDelete", "mnuForeground", "mnuCenterAcross"})
    EXPECT_FALSE(bench->Action(QLatin1String(name))->isEnabled()) << name;
}

TEST_F(EditingTest, ShowsTheLockStateOfTheDesigner) {
  Trigger("mnuLock");
  EXPECT_FALSE(bench->Action(QStringLiteral("mnuLock"))->isChecked());
  AddTwo();
  Trigger("mnuLock");
  EXPECT_TRUE(bench->Action(QStringLiteral("mnuLock"))->isChecked());
  EXPECT_FALSE(bench->Action(QStringLiteral("mnuForeground"))->isEnabled());
  Select(first);
  EXPECT_FALSE(bench->Action(QStringLiteral("mnuForeground"))->isEnabled());
  Trigger("mnuLock");
  EXPECT_TRUE(bench->Action(QStringLiteral("mnuForeground"))->isEnabled());
  EXPECT_FALSE(bench->Action(QStringLiteral("mnuLock"))->isChecked());
}

TEST_F(EditingTest, CentersTheSelectedControl) {
  AddTwo();
  Trigger("mnuCenterAcross");
  const IControl& box = Find(second);
  EXPECT_EQ(box.Left(), (static_cast<float>(bench->Stage().Designer().width()) - box.Width()) / 2);
}

TEST_F(EditingTest, NamesEveryPaneForScreenReaders) {
  AddTwo();
  Type(QStringLiteral("Name"), QStringLiteral("txtDepth"));
  RecordStep();
  QTest::qWait(5);
  const Ref<Object> bound = Find(QStringLiteral("txtDepth")).BoundObject();
  const auto* core = dynamic_cast<const qt::WidgetCore*>(bound.get());
  EXPECT_EQ(core->Native()->accessibleName(), QStringLiteral("txtDepth"));
}

TEST_F(EditingTest, FocusesEveryPaneByAShortcut) {
  struct {
    Qt::Key key;
    QWidget* pane;
  } const panes[] = {{Qt::Key_1, &bench->Tools()},    {Qt::Key_2, &bench->List()},
                     {Qt::Key_3, &bench->Grid()},     {Qt::Key_4, &bench->Script()},
                     {Qt::Key_5, &bench->Features()}, {Qt::Key_6, &bench->Output()}};
  for (const auto& [key, pane] : panes) {
    QTest::keyClick(bench.get(), key, Qt::AltModifier);
    const QWidget* focus = QApplication::focusWidget();
    EXPECT_TRUE(focus && (focus == pane || pane->isAncestorOf(focus))) << static_cast<int>(key);
  }
}

}  // namespace
}  // namespace cardwright::workbench
