// SPDX-License-Identifier: MIT
// The list of controls while the form changes.

#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

class ControlListTest : public WorkbenchTest {
 protected:
  ControlListTest() {
    bench->Project().Insert(ControlTypeEnum::ctFrame);
    frame = Selected();
    bench->Project().Insert(ControlTypeEnum::ctLabel);
    inside = Selected();
    RecordStep();
    QTest::qWait(5);
  }
  QTreeWidgetItem* Row(const QString& name) {
    for (QTreeWidgetItemIterator at(&bench->List()); *at; ++at)
      if ((*at)->text(0) == name) return *at;
    return nullptr;
  }
  bool IsOpen(const QString& name) {
    const QTreeWidgetItem* row = Row(name);
    EXPECT_NE(row, nullptr) << name.toStdString();
    return row && row->isExpanded();
  }
  QString frame, inside;
};

TEST_F(ControlListTest, LeavesAClosedFrameClosed) {
  Row(frame)->setExpanded(false);
  Type(QStringLiteral("Text"), QStringLiteral("changed"));
  RecordStep();
  QTest::qWait(5);
  EXPECT_FALSE(IsOpen(frame));
  Select(QStringLiteral("Form"));
  bench->Project().Insert(ControlTypeEnum::ctTextBox);
  RecordStep();
  QTest::qWait(5);
  EXPECT_FALSE(IsOpen(frame));
  Trigger("mnuUndo");
  EXPECT_FALSE(IsOpen(frame));
}

TEST_F(ControlListTest, KeepsARenamedFrameClosedEvenWithTheSelectedControlInside) {
  Select(frame);
  Row(frame)->setExpanded(false);
  Type(QStringLiteral("Name"), QStringLiteral("fraSite"));
  RecordStep();
  QTest::qWait(5);
  EXPECT_FALSE(IsOpen(QStringLiteral("fraSite")));
  Select(inside);
  EXPECT_TRUE(IsOpen(QStringLiteral("fraSite")));
  Row(QStringLiteral("fraSite"))->setExpanded(false);
  Type(QStringLiteral("Name"), QStringLiteral("lblSite"));
  RecordStep();
  QTest::qWait(5);
  EXPECT_FALSE(IsOpen(QStringLiteral("fraSite")));
}

TEST_F(ControlListTest, KeepsItsRowsIfNothingTheyShowHasChanged) {
  const QTreeWidgetItem* row = Row(inside);
  Select(inside);
  Type(QStringLiteral("Left"), QStringLiteral("40"));
  RecordStep();
  QTest::qWait(5);
  EXPECT_EQ(Row(inside), row);
  Trigger("mnuUndo");
  EXPECT_EQ(Row(inside), row);
  bench->List().setFocus();
  bench->List().setCurrentItem(Row(frame));  // the row refers to the current control, not the former one
  EXPECT_EQ(Selected(), frame);
  bench->List().setCurrentItem(Row(inside));
  Trigger("mnuDelete");
  EXPECT_FALSE(Has(inside));
}

TEST_F(ControlListTest, ShowsANewFormWithAllFramesOpen) {
  Row(frame)->setExpanded(false);
  ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("form.cwf"))), QString());
  ASSERT_TRUE(bench->OpenProject(PathOf(QStringLiteral("form.cwf"))));
  QTest::qWait(5);
  EXPECT_TRUE(IsOpen(frame));
}

}  // namespace
}  // namespace cardwright::workbench
