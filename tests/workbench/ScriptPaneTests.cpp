// SPDX-License-Identifier: MIT
// The script of the form in its pane.

#include <QAbstractItemView>
#include <QInputDialog>
#include <QTextBlock>

#include "cardwright/storage/ProjectReader.h"
#include "cardwright/vbscript/VbScriptEngine.h"
#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

class ScriptPaneTest : public WorkbenchTest {
 protected:
  ScriptPaneTest() {
    bench->Project().Insert(ControlTypeEnum::ctCommandButton);
    Type(QStringLiteral("Name"), QStringLiteral("cmdToday"));
    RecordStep();
    QTest::qWait(5);
  }
  ScriptPane& Pane() { return bench->Script(); }
  QPlainTextEdit& Editor() { return Pane().Editor(); }
  QString Content() { return qt::ToQString(bench->Project().GetScript().content); }
  static QStringList Entries(const QComboBox& combo) {
    QStringList entries;
    for (int i = 0; i < combo.count(); ++i) entries += combo.itemText(i);
    return entries;
  }
  /// Opens the list and picks an entry, by keys.
  static void Pick(QComboBox& combo, const QString& entry) {
    combo.setFocus();
    combo.showPopup();
    QTest::keyClick(&combo, Qt::Key_Home);
    for (int steps = combo.findText(entry); steps > 0; --steps) QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Return);
  }
  void TypeLine(const QString& line) {
    QTest::keyClicks(&Editor(), line);
    QTest::keyClick(&Editor(), Qt::Key_Return);
  }
};

TEST_F(ScriptPaneTest, WritesTheProcedureOfAChosenEvent) {
  Pick(Pane().Controls(), QStringLiteral("cmdToday"));
  Pick(Pane().Events(), QStringLiteral("OnClick"));
  QTest::keyClicks(&Editor(), QStringLiteral("x = 1"));
  EXPECT_EQ(Content().simplified(), QStringLiteral("Sub cmdToday_OnClick() x = 1 End Sub"));
  const QString file = PathOf(QStringLiteral("form.cwf"));
  ASSERT_EQ(bench->Project().Save(file), QString());
  const auto project = ProjectReader::Open(qt::FromQString(file));
  ASSERT_TRUE(project);
  EXPECT_EQ(project->Script().language, u"VBScript");
  EXPECT_EQ(qt::ToQString(project->Script().content).simplified(), Content().simplified());
}

TEST_F(ScriptPaneTest, FollowsAddedRenamedAndDeletedControls) {
  const QStringList before = Entries(Pane().Controls());
  EXPECT_EQ(before,
            (QStringList{QStringLiteral("(generale)"), QStringLiteral("cmdToday"), QStringLiteral("Form")}));
  Type(QStringLiteral("Name"), QStringLiteral("cmdNow"));
  RecordStep();
  QTest::qWait(5);
  EXPECT_EQ(Entries(Pane().Controls()),
            QStringList(before).replaceInStrings(QStringLiteral("cmdToday"), QStringLiteral("cmdNow")));
  Trigger("mnuUndo");
  EXPECT_EQ(Entries(Pane().Controls()), before);
  Select(QStringLiteral("cmdToday"));
  Trigger("mnuDelete");
  EXPECT_EQ(Entries(Pane().Controls()).size(), 2);
}

TEST_F(ScriptPaneTest, LeavesTheKeyboardWhereTheUserWorks) {
  bench->Grid().EditRow(QStringLiteral("Text"));
  QTest::keyClick(&bench->Grid().View(), Qt::Key_F2);
  QWidget* const cell = QApplication::focusWidget();
  ASSERT_TRUE(bench->Grid().isAncestorOf(cell));
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  cell->setFocus();
  RecordStep();
  QTest::qWait(5);
  EXPECT_EQ(Pane().Controls().count(), 4);
  EXPECT_FALSE(Pane().isAncestorOf(QApplication::focusWidget()));
  EXPECT_TRUE(Pane().isEnabled());
}

TEST_F(ScriptPaneTest, OpensTheDefaultEventByADoubleClick) {
  Designer().CurrentControl()->SetLeft(40);
  Designer().CurrentControl()->SetTop(40);
  RecordStep();
  QWindow* const window = bench->windowHandle();
  const QPoint onButton = bench->Stage().Designer().mapTo(bench.get(), QPoint(50, 50));
  QTest::mouseDClick(window, Qt::LeftButton, {}, onButton);
  QTest::qWait(20);
  EXPECT_EQ(Content().simplified(), QStringLiteral("Sub cmdToday_OnClick() End Sub"));
  EXPECT_EQ(QApplication::focusWidget(), &Editor());
  EXPECT_EQ(Editor().textCursor().block().previous().text(), QStringLiteral("Sub cmdToday_OnClick()"));
  const QPoint onForm = bench->Stage().Designer().mapTo(bench.get(), QPoint(300, 250));
  QTest::mouseDClick(window, Qt::LeftButton, {}, onForm);
  QTest::qWait(20);
  EXPECT_TRUE(Content().contains(QStringLiteral("Sub Form_Initialize()"))) << Content().toStdString();
}

TEST_F(ScriptPaneTest, UndoesALineTogetherWithItsSpelling) {
  Editor().setFocus();
  TypeLine(QStringLiteral("dim a"));
  TypeLine(QStringLiteral("dim b"));
  EXPECT_EQ(Content(), QStringLiteral("Dim a\r\nDim b\r\n"));
  Trigger("mnuUndo");
  EXPECT_EQ(Content(), QStringLiteral("Dim a\r\n"));
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("Dim a\n"));
  Trigger("mnuUndo");
  EXPECT_EQ(Content(), QString());
  Trigger("mnuRedo");
  Trigger("mnuRedo");
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("Dim a\nDim b\n"));
}

TEST_F(ScriptPaneTest, ChangesTheLanguage) {
  Editor().setPlainText(QStringLiteral("var x;"));
  Pick(Pane().Language(), QStringLiteral("JScript"));
  RecordStep();
  EXPECT_EQ(bench->Project().GetScript(), (Script{u"JScript", u"var x;"}));
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("var x;"));
  Trigger("mnuUndo");
  EXPECT_EQ(Pane().Language().currentText(), QStringLiteral("VBScript"));
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("var x;"));
  Trigger("mnuRedo");
  EXPECT_EQ(Pane().Language().currentText(), QStringLiteral("JScript"));
}

TEST_F(ScriptPaneTest, LeavesAnEmptyScriptEmpty) {
  bench->Project().New();
  EXPECT_EQ(Content(), QString());
  EXPECT_EQ(Editor().toPlainText(), QString());
  EXPECT_FALSE(bench->isWindowModified());
}

TEST_F(ScriptPaneTest, KeepsAnUnknownLanguageWithoutAMessage) {
  const QString file = PathOf(QStringLiteral("other.cwf"));
  bench->Project().SetScript({u"PerlScript", u"  print 1;"});
  ASSERT_EQ(bench->Project().Save(file), QString());
  ASSERT_TRUE(bench->OpenProject(file));
  EXPECT_EQ(Pane().Language().currentText(), QStringLiteral("PerlScript"));
  EXPECT_TRUE(Editor().toPlainText().startsWith(QStringLiteral("  print 1;")));
  EXPECT_FALSE(bench->isWindowModified());
}

TEST_F(ScriptPaneTest, HasNoSaveButtonOfItsOwn) {
  const auto* const save = Pane().findChild<QAction*>(QStringLiteral("save"));
  ASSERT_NE(save, nullptr);
  EXPECT_FALSE(save->isVisible());
}

TEST_F(ScriptPaneTest, UnderlinesTheFirstErrorWithItsMessage) {
  Pane().CheckWith({vbscript::Language()});
  Editor().setPlainText(QStringLiteral("Option Explicit\nSub A()\n  If 1 Then (\nEnd Sub\n"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Pane().FaultMark().Message().isEmpty(); }));
  const QList<QTextEdit::ExtraSelection> marks = Editor().extraSelections();
  ASSERT_EQ(marks.size(), 1);
  EXPECT_EQ(marks[0].cursor.blockNumber(), 2);
  EXPECT_EQ(marks[0].format.underlineStyle(), QTextCharFormat::WaveUnderline);
  Editor().setPlainText(QStringLiteral("Sub A()\nEnd Sub\n"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Pane().FaultMark().Message().isEmpty(); }));
  EXPECT_TRUE(Editor().extraSelections().isEmpty());
}

TEST_F(ScriptPaneTest, ShowsBracketsBesideTheUnderlinedError) {
  Pane().CheckWith({vbscript::Language()});
  Editor().setPlainText(QStringLiteral("x = (1)\nIf\n"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !Pane().FaultMark().Message().isEmpty(); }));
  Editor().moveCursor(QTextCursor::Start);
  Editor().moveCursor(QTextCursor::EndOfLine);
  EXPECT_EQ(Editor().extraSelections().size(), 3);
}

TEST_F(ScriptPaneTest, TogglesCommentsOfTheSelectedLines) {
  Editor().setPlainText(QStringLiteral("a = 1\n\n  b = 2\nc = 3"));
  Editor().setFocus();
  Editor().moveCursor(QTextCursor::Start);
  for (int i = 0; i < 3; ++i) Editor().moveCursor(QTextCursor::Down, QTextCursor::KeepAnchor);
  QTest::keyClick(&Editor(), Qt::Key_Slash, Qt::ControlModifier);
  EXPECT_EQ(Content(), QStringLiteral("'a = 1\r\n\r\n  'b = 2\r\nc = 3"));
  QTest::keyClick(&Editor(), Qt::Key_Slash, Qt::ControlModifier);
  EXPECT_EQ(Content(), QStringLiteral("a = 1\r\n\r\n  b = 2\r\nc = 3"));
}

TEST_F(ScriptPaneTest, GoesToALine) {
  Editor().setPlainText(QStringLiteral("a = 1\nb = 2\nc = 3"));
  Editor().setFocus();
  qt::Meet<QInputDialog>([](QInputDialog& dialog) {
    dialog.setIntValue(3);
    dialog.accept();
  });
  QTest::keyClick(&Editor(), Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(Editor().textCursor().blockNumber(), 2);
  EXPECT_TRUE(bench->Action(QStringLiteral("mnuGrid"))->isChecked());
}

}  // namespace
}  // namespace cardwright::workbench
