// SPDX-License-Identifier: MIT
#include <QDirIterator>
#include <QScrollBar>
#include <QTextBlock>

#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

using HistoryTest = WorkbenchTest;

ProjectState StateOf(const char* file, const Text& script = {}) {
  ProjectState state;
  state.file = file;
  state.script.content = script;
  return state;
}

TEST(HistoryOfStates, DropsTheOldestBeyondItsLimit) {
  History history;
  history.Begin(StateOf("first"), true);
  for (std::size_t i = 0; i < History::kMaximumSteps + 10; ++i)
    history.Add(StateOf(std::to_string(i).c_str()));
  std::size_t steps = 0;
  for (; history.CanUndo(); ++steps) history.Undo();
  EXPECT_EQ(steps, History::kMaximumSteps);
  EXPECT_FALSE(history.IsSaved());
}

TEST(HistoryOfStates, IsModifiedAfterTheSavedStateIsDropped) {
  History history;
  history.Begin(StateOf("a"), false);
  history.Add(StateOf("b"));
  history.MarkSaved();
  history.Undo();
  history.Add(StateOf("c"));
  EXPECT_FALSE(history.IsSaved());
  history.Undo();
  EXPECT_FALSE(history.IsSaved());
}

TEST(HistoryOfStates, KeepsTheStepsOfTheFormDespiteMuchTyping) {
  History history;
  history.Begin(StateOf("0"), true);
  for (const char* form : {"1", "2", "3"}) history.Add(StateOf(form));
  for (int line = 1; line <= 1000; ++line) {
    history.AddTyped(StateOf("3", ToText(line)));
    history.EndTyping();
  }
  std::vector<QByteArray> forms{history.Current().file};
  while (history.CanUndo())
    if (const QByteArray& form = history.Undo().file; form != forms.back()) forms.push_back(form);
  EXPECT_EQ(forms, (std::vector<QByteArray>{"3", "2", "1", "0"}));
  EXPECT_TRUE(history.IsSaved());
}

TEST(HistoryOfStates, MergesTypingIntoOneStepUntilItEnds) {
  History history;
  history.Begin(StateOf("form"), true);
  for (const char16_t* typed : {u"S", u"Su", u"Sub"}) history.AddTyped(StateOf("form", typed));
  history.EndTyping();
  history.AddTyped(StateOf("form", u"Sub A"));
  EXPECT_EQ(history.Undo().script.content, u"Sub");
  EXPECT_EQ(history.Undo().script.content, u"");
  history.AddTyped(StateOf("form", u"x"));
  EXPECT_FALSE(history.CanRedo());
}

TEST(HistoryOfStates, UndoesTypingToTheSavedScriptFirst) {
  History history;
  history.Begin(StateOf("form"), false);
  history.AddTyped(StateOf("form", u"a"));
  history.MarkSaved();
  history.AddTyped(StateOf("form", u"ab"));
  EXPECT_FALSE(history.IsSaved());
  history.AddTyped(StateOf("form", u"a"));  // the typed text is deleted again
  EXPECT_TRUE(history.IsSaved());
  EXPECT_FALSE(history.CanRedo());
  EXPECT_TRUE(history.Undo().script.content.IsEmpty());
}

TEST_F(HistoryTest, UndoesAndRedoesAHundredStepsWithTheSelection) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Name"), QStringLiteral("lblA"));
  bench->Project().Insert(ControlTypeEnum::ctTextBox);
  Type(QStringLiteral("Name"), QStringLiteral("txtB"));
  RecordStep();
  constexpr int kSteps = 120;
  for (int i = 1; i <= kSteps; ++i) {
    Select(i % 2 ? QStringLiteral("lblA") : QStringLiteral("txtB"));
    Designer().CurrentControl()->SetLeft(static_cast<float>(10 + i));
    RecordStep();
  }
  for (int i = kSteps; i > 1; --i) {
    EXPECT_EQ(Designer().CurrentControl()->Left(), 10 + i);
    bench->Project().Undo();
    ASSERT_EQ(Selected(), i % 2 ? QStringLiteral("lblA") : QStringLiteral("txtB")) << i;
    bench->Project().Redo();
    bench->Project().Undo();
    Select(i % 2 ? QStringLiteral("txtB") : QStringLiteral("lblA"));
  }
  for (int i = 2; i <= kSteps; ++i) bench->Project().Redo();
  EXPECT_EQ(Find(QStringLiteral("txtB")).Left(), 10 + kSteps);
  EXPECT_FALSE(bench->Project().CanRedo());
}

TEST_F(HistoryTest, UndoesToAFormWithoutControlsAndItsSettings) {
  Type(QStringLiteral("Text"), QStringLiteral("Inspection"));
  RecordStep();
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  RecordStep();
  bench->Project().Undo();
  EXPECT_TRUE(bench->Project().IsEmpty());
  EXPECT_EQ(bench->Stage().Caption(), QStringLiteral("Inspection"));
  bench->Project().Undo();
  EXPECT_EQ(bench->Stage().Caption(), QStringLiteral("Form"));
  bench->Project().Redo();
  bench->Project().Redo();
  EXPECT_EQ(Designer().Controls().Count(), 2);
}

TEST_F(HistoryTest, RestoresAndSelectsADeletedControl) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  const QString name = Selected();
  RecordStep();
  Trigger("mnuDelete");
  EXPECT_FALSE(Has(name));
  Trigger("mnuUndo");
  EXPECT_TRUE(Has(name));
  EXPECT_EQ(Selected(), name);
}

TEST_F(HistoryTest, KeepsTheClipboard) {
  bench->Project().Insert(ControlTypeEnum::ctCommandButton);
  Trigger("mnuCopy");
  RecordStep();
  Trigger("mnuUndo");
  EXPECT_TRUE(bench->Project().IsEmpty());
  ASSERT_TRUE(bench->Action(QStringLiteral("mnuPaste"))->isEnabled());
  Trigger("mnuPaste");
  EXPECT_EQ(Designer().Controls().Count(), 2);
}

TEST_F(HistoryTest, UndoesChangesOfTheScript) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  RecordStep();
  bench->Script().Editor().setPlainText(QStringLiteral("Sub Form_Initialize()\nEnd Sub\n"));
  RecordStep();
  EXPECT_EQ(bench->Project().GetScript().content, u"Sub Form_Initialize()\r\nEnd Sub\r\n");
  Trigger("mnuUndo");
  EXPECT_EQ(bench->Script().Editor().toPlainText(), QString());
  Trigger("mnuRedo");
  EXPECT_EQ(bench->Script().Editor().toPlainText(), QStringLiteral("Sub Form_Initialize()\nEnd Sub\n"));
}

class TypingTest : public HistoryTest {
 protected:
  TypingTest() {
    bench->Project().Insert(ControlTypeEnum::ctLabel);
    RecordStep();
  }
  QPlainTextEdit& Editor() { return bench->Script().Editor(); }
  /// Types with a short pause after each character.
  void TypeScript(const QString& text) {
    for (const QChar character : text) {
      if (character == u'\n') {
        QTest::keyClick(&Editor(), Qt::Key_Return);
      } else {
        QTest::keyClicks(&Editor(), QString(character));
      }
      QTest::qWait(160);
    }
  }
};

TEST_F(TypingTest, IsOneStepForEachLine) {
  TypeScript(QStringLiteral("one\ntwo"));
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("one\n"));
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QString());
  EXPECT_TRUE(Has(QStringLiteral("object_1")));
  Trigger("mnuUndo");
  EXPECT_FALSE(Has(QStringLiteral("object_1")));
  for (int step = 0; step < 3; ++step) Trigger("mnuRedo");
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("one\ntwo"));
}

TEST_F(TypingTest, RecordsEverythingWithoutAPause) {
  Designer().CurrentControl()->SetLeft(77);
  QTest::keyClicks(&Editor(), QStringLiteral("a"));
  QTest::keyClick(&Editor(), Qt::Key_Return);
  QTest::keyClicks(&Editor(), QStringLiteral("b"));
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("a\nb"));
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("a\n"));
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QString());
  EXPECT_EQ(Find(QStringLiteral("object_1")).Left(), 77);
}

TEST_F(TypingTest, BeginsAnotherStepAfterALongPause) {
  TypeScript(QStringLiteral("a"));
  QTest::qWait(3100);
  TypeScript(QStringLiteral("b"));
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("a"));
}

TEST_F(TypingTest, BeginsAnotherStepAfterAStepOfTheForm) {
  TypeScript(QStringLiteral("a"));
  Designer().CurrentControl()->SetLeft(77);
  QTest::keyClicks(&Editor(), QStringLiteral("b"));
  RecordStep();
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("a"));
  EXPECT_EQ(Find(QStringLiteral("object_1")).Left(), 77);
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("a"));
  EXPECT_NE(Find(QStringLiteral("object_1")).Left(), 77);
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QString());
}

TEST_F(TypingTest, KeepsTheEditorPositionWhenUndoneOnTheForm) {
  QStringList lines;
  for (int line = 0; line < 200; ++line) lines += QStringLiteral("' line %1").arg(line);
  Editor().setPlainText(lines.join(u'\n'));
  QTextCursor cursor(Editor().document()->findBlockByNumber(120));
  Editor().setTextCursor(cursor);
  Editor().centerCursor();
  RecordStep();
  QTest::keyClicks(&Editor(), QStringLiteral("typed"));
  RecordStep();
  const int scrolled = Editor().verticalScrollBar()->value();
  ASSERT_GT(scrolled, 0);
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), lines.join(u'\n'));
  EXPECT_EQ(Editor().textCursor().blockNumber(), 120);
  EXPECT_EQ(Editor().verticalScrollBar()->value(), scrolled);
  Editor().undo();
  EXPECT_TRUE(Editor().toPlainText().contains(QStringLiteral("typed' line 120")));
}

TEST_F(TypingTest, IsUndoneWithoutReplacingTheDesigner) {
  QTest::keyClicks(&Editor(), QStringLiteral("a"));
  const cardwright::FormDesigner* before = &Designer();
  Trigger("mnuUndo");
  EXPECT_EQ(Editor().toPlainText(), QString());
  EXPECT_EQ(&Designer(), before);
  Trigger("mnuRedo");
  EXPECT_EQ(bench->Project().GetScript().content, u"a");
}

TEST_F(TypingTest, WritesNoProjectForAPause) {
  ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("form.cwf"))), QString());
  QElapsedTimer since;
  since.start();
  const auto steps = [] {
    QStringList times;
    for (QDirIterator at(qEnvironmentVariable("XDG_RUNTIME_DIR"), {QStringLiteral("step.cwf")}, QDir::Files,
                         QDirIterator::Subdirectories);
         at.hasNext();)
      times += at.next() + QFileInfo(at.filePath()).lastModified().toString(Qt::ISODateWithMs);
    return times;
  };
  const QStringList before = steps();
  ASSERT_FALSE(before.isEmpty());
  TypeScript(QStringLiteral("bc"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return bench->isWindowModified(); }));
  if (since.elapsed() > 2500) GTEST_SKIP() << "the machine is too slow: the work may have been kept by now";
  EXPECT_EQ(steps(), before);
}

TEST_F(HistoryTest, UndoesAndRedoesEveryClassFromTheToolBox) {
  std::vector<QString> texts;
  const auto text = [this] {
    const Ref<IControl> last(AsControl(Designer().Controls().Item(Variant(Designer().Controls().Count()))));
    return qt::ToQString(last->UserName() + u" " + ToText(last->PropertyValue(Variant(u"Text"))));
  };
  for (int kind = 1; kind <= 14; ++kind) {
    texts.push_back(text());
    bench->Project().Insert(static_cast<ControlTypeEnum>(kind));
    RecordStep();
  }
  const QString end = text();
  for (auto before = texts.rbegin(); before != texts.rend(); ++before) {
    Trigger("mnuUndo");
    EXPECT_EQ(text(), *before);
  }
  EXPECT_FALSE(bench->Project().CanUndo());
  for (std::size_t step = 1; step < texts.size(); ++step) {
    Trigger("mnuRedo");
    EXPECT_EQ(text(), texts[step]);
  }
  Trigger("mnuRedo");
  EXPECT_EQ(text(), end);
  EXPECT_FALSE(bench->Project().CanRedo());
}

TEST_F(HistoryTest, KeepsTheLock) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  RecordStep();
  const auto isLocked = [&] { return bench->Action(QStringLiteral("mnuLock"))->isChecked(); };
  Trigger("mnuLock");
  Type(QStringLiteral("Text"), QStringLiteral("locked"));
  Trigger("mnuUndo");
  EXPECT_TRUE(isLocked());
  EXPECT_FALSE(bench->Action(QStringLiteral("mnuForeground"))->isEnabled());
  Trigger("mnuUndo");  // to the form without controls, which cannot be locked
  EXPECT_FALSE(isLocked());
  Trigger("mnuRedo");
  Trigger("mnuRedo");
  EXPECT_TRUE(isLocked());
  Trigger("mnuLock");
  Trigger("mnuUndo");
  EXPECT_FALSE(isLocked());
  Trigger("mnuLock");
  bench->Project().New();
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  EXPECT_FALSE(isLocked());
}

TEST_F(HistoryTest, RecognizesTheSavedState) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("a.cwf"))), QString());
  EXPECT_FALSE(bench->isWindowModified());
  Type(QStringLiteral("Text"), QStringLiteral("other"));
  RecordStep();
  EXPECT_TRUE(bench->isWindowModified());
  Trigger("mnuUndo");
  EXPECT_FALSE(bench->isWindowModified());
}

}  // namespace
}  // namespace cardwright::workbench
