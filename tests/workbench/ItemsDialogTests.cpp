// SPDX-License-Identifier: MIT
// The dialog for the items of a list, with real keys; a cell may be open when a command is given.

#include <QClipboard>

#include "cardwright/model/CItems.h"
#include "workbench/PropertyGridTest.h"
#include "workbench/grid/ItemsDialog.h"

namespace cardwright::workbench {
namespace {

Ref<CItems> ItemsOf(std::initializer_list<const char16_t*> texts) {
  auto items = MakeRef<CItems>();
  for (const char16_t* text : texts) {
    auto item = MakeRef<CItem>();
    item->m_Text = text;
    item->m_Value = text;
    items->Add(item);
  }
  return items;
}

class ItemsDialogTest : public testing::Test {
 protected:
  ItemsDialogTest() {
    dialog.show();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    table->setFocus();
  }
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
  }
  /// A button pressed by its letter acts after a moment.
  static void PressLetter(Qt::Key key) {
    Press(key, Qt::AltModifier);
    QTest::qWait(150);
  }
  void Write(const char* text) {
    for (; *text; ++text) QTest::keyClick(dialog.windowHandle(), *text);
  }
  /// Opens a cell and types into it without committing.
  void WriteInto(int row, int column, const char* text) {
    table->setCurrentCell(row, column);
    Press(Qt::Key_F2);
    Press(Qt::Key_A, Qt::ControlModifier);
    Write(text);
    ASSERT_NE(table->indexWidget(table->currentIndex()), nullptr);
  }
  QStringList Texts() { return Column(0); }
  QStringList Values() { return Column(1); }
  QStringList Column(int column) {
    dialog.Store(*items);
    QStringList texts;
    for (std::int32_t i = 1; i <= items->Count(); ++i) {
      const Ref<CItem> item = items->Item(Variant(i));
      texts += qt::ToQString(column == 0 ? item->m_Text : item->m_Value);
    }
    return texts;
  }
  QPushButton& Button(const QString& name) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>())
      if (button->accessibleName() == name) return *button;
    ADD_FAILURE() << "no button " << name.toStdString();
    return *dialog.findChild<QPushButton*>();
  }

  Ref<CItems> items = ItemsOf({u"a", u"b", u"c"});
  QWidget owner;
  ItemsDialog dialog{owner, *items};
  QTableWidget* table = dialog.findChild<QTableWidget*>();
};

struct Command {
  Qt::Key key;
  const char* button;
  QStringList texts;
};
void PrintTo(const Command& command, std::ostream* out) { *out << command.button; }

class ItemsCommandTest : public ItemsDialogTest, public testing::WithParamInterface<Command> {
 protected:
  ItemsCommandTest() { QApplication::clipboard()->setText(QStringLiteral("x\ny\n")); }
};

TEST_P(ItemsCommandTest, CommitsTheOpenCellFirstByItsLetter) {
  WriteInto(1, 0, "new");
  PressLetter(GetParam().key);
  EXPECT_EQ(Texts(), GetParam().texts);
}

TEST_P(ItemsCommandTest, CommitsTheOpenCellFirstByItsButton) {
  WriteInto(1, 0, "new");
  QTest::mouseClick(&Button(QLatin1String(GetParam().button)), Qt::LeftButton);
  EXPECT_EQ(Texts(), GetParam().texts);
}

INSTANTIATE_TEST_SUITE_P(Dialog, ItemsCommandTest,
                         testing::Values(Command{Qt::Key_U, "Move up", {"new", "a", "c"}},
                                         Command{Qt::Key_D, "Move down", {"a", "c", "new"}},
                                         Command{Qt::Key_A, "Add", {"a", "new", "", "c"}},
                                         Command{Qt::Key_R, "Remove", {"a", "c"}},
                                         Command{Qt::Key_P, "Paste lines", {"a", "new", "x", "y", "c"}}));

TEST_F(ItemsDialogTest, CommitsTheOpenCellBeforeOk) {
  WriteInto(2, 1, "last");
  PressLetter(Qt::Key_O);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(Values(), QStringList({"a", "b", "last"}));
}

TEST_F(ItemsDialogTest, EnterCommitsTheCellAndThenTheDialog) {
  WriteInto(0, 0, "first");
  Press(Qt::Key_Return);
  QTest::qWait(5);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(Texts(), QStringList({"first", "b", "c"}));
  Press(Qt::Key_Return);
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(ItemsDialogTest, TabGoesToTheNextCell) {
  WriteInto(0, 0, "good");
  Press(Qt::Key_Tab);
  Press(Qt::Key_A, Qt::ControlModifier);
  Write("G");
  Press(Qt::Key_Tab);
  Press(Qt::Key_Escape);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(Texts(), QStringList({"good", "b", "c"}));
  EXPECT_EQ(Values(), QStringList({"G", "b", "c"}));
}

TEST_F(ItemsDialogTest, InsertAddsAnItemAndDeleteRemovesTheCurrentOne) {
  table->setCurrentCell(0, 0);
  Press(Qt::Key_Insert);
  Write("new");
  Press(Qt::Key_Return);
  QTest::qWait(5);
  EXPECT_EQ(Texts(), QStringList({"a", "new", "b", "c"}));
  table->setCurrentCell(2, 0);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Texts(), QStringList({"a", "new", "c"}));
}

TEST_F(ItemsDialogTest, PastesSeveralLinesAsOneLine) {
  QApplication::clipboard()->setText(QStringLiteral("one\r\ntwo"));
  WriteInto(0, 0, "");
  Press(Qt::Key_V, Qt::ControlModifier);
  Press(Qt::Key_Return);
  QTest::qWait(5);
  EXPECT_EQ(Texts(), QStringList({"one two", "b", "c"}));
}

TEST_F(ItemsDialogTest, NamesTheOpenCellForScreenReaders) {
  EXPECT_EQ(table->accessibleName(), QStringLiteral("Items"));
  WriteInto(1, 1, "B");
  EXPECT_EQ(QApplication::focusWidget()->accessibleName(), QStringLiteral("Value of the attribute, item 2"));
}

TEST_F(PropertyGridTest, ChangesItemsInTheirDialog) {
  const Ref<IControl> box = Add(ControlTypeEnum::ctComboBox);
  QApplication::clipboard()->setText(QStringLiteral("good\tG\npoor\n"));
  MeetByKeys<ItemsDialog>([](ItemsDialog&) {
    Press(Qt::Key_V, Qt::ControlModifier);
    Press(Qt::Key_U, Qt::AltModifier);
    QTest::qWait(150);  // a button pressed by its letter acts after a moment
    Press(Qt::Key_O, Qt::AltModifier);
  });
  GoTo(QStringLiteral("Items"));
  PressAndWait(Qt::Key_F4);
  ASSERT_EQ(ValueOf(QStringLiteral("Items")), QStringLiteral("2 items"));
  const Variant value = box->PropertyValue(u"Items");
  const auto& items = dynamic_cast<const CItems&>(*value.ObjectPtr());
  EXPECT_EQ(items.Item(Variant(1))->m_Text, u"poor");
  EXPECT_EQ(items.Item(Variant(2))->m_Value, u"G");
}

}  // namespace
}  // namespace cardwright::workbench
