// SPDX-License-Identifier: MIT
// The keys that the editor itself takes, and what follows the user's caret.

#include <QComboBox>

#include "editor/EditorTest.h"

namespace cardwright {
namespace {

using EditorKeyTest = EditorTest;

TEST_F(EditorKeyTest, EnterCopiesTheBlanksOfTheLineAbove) {
  SetScript(u"");
  Type("  a = 1\nb");
  EXPECT_EQ(pad->Contents(), u"  a = 1\r\nb") << "the first line gives no indent";
  Type("\n   c\nd");
  EXPECT_EQ(pad->Contents(), u"  a = 1\r\nb\r\n   c\r\n   d");
}

TEST_F(EditorKeyTest, TabsAreNoIndent) {
  SetScript(u"x\r\n\ty");
  pad->SetSelStart(pad->TextLength());
  Type("\nz");
  EXPECT_EQ(pad->Contents(), u"x\r\n\ty\r\nz");
}

TEST_F(EditorKeyTest, EnterWithAModifierCopiesNothing) {
  SetScript(u"x\r\n  y");
  pad->SetSelStart(pad->TextLength());
  Press(Qt::Key_Return, Qt::ControlModifier);
  Type("z");
  EXPECT_EQ(pad->Contents().View().find(u"  z"), std::u16string_view::npos);
}

TEST_F(EditorKeyTest, EscapeHidesThePopupAndShowsTheText) {
  SetScript(u"Sub Foo(a)\r\nEnd Sub\r\n");
  pad->SetSelStart(pad->TextLength());
  Type("Foo(");
  ASSERT_TRUE(surface->Popup()->IsVisible());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(surface->Popup()->IsVisible());
  EXPECT_TRUE(pad->IsVisible());
}

TEST_F(EditorKeyTest, ControlISearchesTheCallAroundTheCaret) {
  SetScript(u"Sub Foo(a, b)\r\nEnd Sub\r\nFoo(\"x y\", 2)");
  PutCaret(u"Foo(\"x");
  Press(Qt::Key_I, Qt::ControlModifier);
  EXPECT_TRUE(surface->Popup()->IsVisible());
  EXPECT_EQ(surface->PopupTip()->DisplayText(), u"Foo(a, b)");
  EXPECT_EQ(pad->Contents(), u"Sub Foo(a, b)\r\nEnd Sub\r\nFoo(\"x y\", 2)");
}

TEST_F(EditorKeyTest, F3RepeatsAndShiftF3DoesNot) {
  SetScript(u"x y x");
  WithDialog(
      "frmTrova",
      [](QDialog& dialog) {
        dialog.findChild<QComboBox*>(QStringLiteral("cmbCerca"))->setEditText(QStringLiteral("x"));
        QTest::keyClick(&dialog, Qt::Key_Return);
      },
      [this] { object->DoFind(); });
  EXPECT_EQ(pad->SelStart(), 0);
  Press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(pad->SelStart(), 0);
  Press(Qt::Key_F3);
  EXPECT_EQ(pad->SelStart(), 4);
}

TEST_F(EditorKeyTest, DownHidesATip) {
  SetScript(u"Sub Foo(a)\r\nEnd Sub\r\n");
  pad->SetSelStart(pad->TextLength());
  Type("Foo(");
  ASSERT_TRUE(surface->Popup()->IsVisible());
  Press(Qt::Key_Down);
  EXPECT_FALSE(surface->Popup()->IsVisible());
}

TEST_F(EditorKeyTest, EventsOfAKeyInTheirOrder) {
  Type("x");
  EXPECT_EQ(events, (std::vector<std::string>{"Change", "SelChange"}));
  EXPECT_TRUE(object->FileModified());
  EXPECT_EQ(surface->PositionLabel()->DisplayText(), u"Line 2, Col 2");
  EXPECT_EQ(object->CurrentLine(), 2);
  EXPECT_EQ(object->CurrentCol(), 2);
}

TEST_F(EditorKeyTest, HostMayEndTheEditorWithinItsEvents) {
  onEvent = [this](std::u16string_view, Args) {
    if (!editor) return;
    editor->deleteLater();
    editor = nullptr;
  };
  Type("x");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(ErrorOf([&] { object->FileContent(); }), 91);
}

}  // namespace
}  // namespace cardwright
