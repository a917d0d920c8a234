// SPDX-License-Identifier: MIT
#include <QTreeWidget>

#include "qt/Form.h"

namespace cardwright::qt {

class ListView : public testing::Test {
 protected:
  ListView() {
    list->Move(10, 10, 150, 120);
    for (const auto* text : {u"one", u"two", u"three"}) list->AddRow(text);
    list->SetListener(&listener);
    form.Show();
    listener.Take();
  }
  ~ListView() override { list->SetListener(nullptr); }

  QTreeWidget& Tree() { return NativeAs<QTreeWidget>(*list); }
  QRect RowRect(int row) { return Tree().visualItemRect(Tree().topLevelItem(row - 1)); }
  void ClickAt(QPoint at) { QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, at); }
  void ClickRow(int row) { ClickAt(QPoint(60, RowRect(row).center().y())); }
  void ClickMark(int row) { ClickAt(QPoint(RowRect(row).left() + 9, RowRect(row).center().y())); }
  /// What was told, without the presses and releases.
  std::string Told() {
    std::erase_if(listener.log,
                  [](const std::string& l) { return l.starts_with("down") || l.starts_with("up"); });
    return listener.Take();
  }

  Form form;
  Ref<ListViewWidget> list = form.Add<ListViewWidget>(u"MSComctlLib.ListViewCtrl.2", u"l");
  Listener listener;
};

TEST_F(ListView, CountsRowsFromOne) {
  EXPECT_EQ(list->RowCount(), 3);
  EXPECT_EQ(list->RowText(1), u"one");
  list->SetRowText(3, u"drei");
  EXPECT_EQ(list->RowText(3), u"drei");
  list->RemoveRow(1);
  EXPECT_EQ(list->RowText(1), u"two");
  EXPECT_EQ(ErrorOf([&] { list->RowText(0); }), 9);
  EXPECT_EQ(ErrorOf([&] { list->RowText(3); }), 9);
  EXPECT_EQ(ErrorOf([&] { list->SetSelectedRow(-1); }), 9);
  EXPECT_EQ(ErrorOf([&] { list->RemoveRow(3); }), 9);
  EXPECT_EQ(ErrorOf([&] { list->IsRowChecked(9); }), 9);
  list->Clear();
  EXPECT_EQ(list->RowCount(), 0);
  EXPECT_EQ(Told(), "");
}

TEST_F(ListView, SelectsOneRowByCodeWithoutAClick) {
  EXPECT_EQ(list->SelectedRow(), 0);
  list->SetSelectedRow(2);
  EXPECT_EQ(list->SelectedRow(), 2);
  list->SetSelectedRow(0);
  EXPECT_EQ(list->SelectedRow(), 0);
  list->SetSelectedRow(3);
  list->RemoveRow(1);
  EXPECT_EQ(list->SelectedRow(), 2);
  list->RemoveRow(2);
  EXPECT_EQ(list->SelectedRow(), 0);
  EXPECT_EQ(Told(), "");
}

TEST_F(ListView, ClicksAfterTheSelectionHasMoved) {
  int selected = 0;
  listener.onClick = [&] { selected = list->SelectedRow(); };
  ClickRow(2);
  EXPECT_EQ(selected, 2);
  EXPECT_EQ(Told(), "click");
  ClickAt(QPoint(60, 100));  // under the last row
  EXPECT_EQ(Told(), "click");
}

TEST_F(ListView, FiresItemCheckWhenTheUserTogglesABox) {
  list->SetCheckBoxes(true);
  EXPECT_TRUE(list->HasCheckBoxes());
  ClickMark(2);
  EXPECT_TRUE(list->IsRowChecked(2));
  EXPECT_FALSE(list->IsRowChecked(1));
  EXPECT_EQ(Told(), "check2 click");
  ClickMark(2);
  EXPECT_FALSE(list->IsRowChecked(2));
  EXPECT_EQ(Told(), "check2 click");
  list->SetSelectedRow(1);
  Tree().setFocus();
  Told();
  QTest::keyClick(&Tree(), Qt::Key_Space);
  EXPECT_TRUE(list->IsRowChecked(1));
  EXPECT_EQ(Told(), "key32 char32 check1");
}

TEST_F(ListView, FiresNoItemCheckWhenCodeSetsABox) {
  list->SetCheckBoxes(true);
  list->SetRowChecked(1, true);
  list->SetRowText(1, u"uno");
  EXPECT_TRUE(list->IsRowChecked(1));
  EXPECT_EQ(Tree().topLevelItem(0)->checkState(0), Qt::Checked);
  EXPECT_EQ(Told(), "");
}

TEST_F(ListView, KeepsMarksWhileTheBoxesAreHidden) {
  list->SetRowChecked(3, true);
  ClickMark(1);
  EXPECT_FALSE(list->IsRowChecked(1));
  EXPECT_EQ(Told(), "click");
  list->SetCheckBoxes(true);
  EXPECT_EQ(Tree().topLevelItem(2)->checkState(0), Qt::Checked);
  list->AddRow(u"four");
  EXPECT_FALSE(list->IsRowChecked(4));
  list->SetCheckBoxes(false);
  EXPECT_FALSE(Tree().topLevelItem(2)->data(0, Qt::CheckStateRole).isValid());
  EXPECT_TRUE(list->IsRowChecked(3));
}

TEST_F(ListView, HasAColumnOfItsOwnWidth) {
  list->SetColumnWidth(146.4F);
  EXPECT_EQ(list->ColumnWidth(), 146.4F);
  EXPECT_EQ(Tree().columnWidth(0), 146);
  EXPECT_EQ(ErrorOf([&] { list->SetColumnWidth(-1); }), 380);
}

TEST_F(ListView, MayBeRemovedByItsOwnCheck) {
  list->SetCheckBoxes(true);
  const QPointer<QWidget> native(&Tree());
  listener.onItemCheck = [&] {
    form.surface.Remove(u"l");
    list = nullptr;
  };
  QWidget* viewport = Tree().viewport();
  const QPoint at(RowRect(1).left() + 9, RowRect(1).center().y());
  QTest::mouseClick(viewport, Qt::LeftButton, {}, at);
  EXPECT_EQ(Told(), "check1");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(native);
  list = form.Add<ListViewWidget>(u"MSComctlLib.ListViewCtrl.2", u"l");
}

}  // namespace cardwright::qt
