// SPDX-License-Identifier: MIT
// The workbench while a form is being filled in.

#include <QClipboard>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>

#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

class RunTest : public WorkbenchTest {
 protected:
  RunTest() {
    const QString source = PathOf(QStringLiteral("wells.gpkg"));
    EXPECT_TRUE(QFile::copy(Example("wells.gpkg"), source));
    EXPECT_TRUE(bench->OpenProject(Example("well-inspection.cwf")));
    EXPECT_TRUE(bench->OpenData(source));
    bench->Features().ChooseFeature(QStringLiteral("3"));
  }
  void Begin(const char* action) {
    Trigger(action);
    ASSERT_NE(bench->Run(), nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(bench->Run()));
  }
  void GoBackToTheWorkbench() {
    bench->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return bench->isActiveWindow(); }));
  }
  bool HasEnded() {
    return QTest::qWaitFor([&] { return !bench->Run(); });
  }
  QString TextOf(std::u16string_view control) {
    return qt::ToQString(FindControl(bench->Run()->Form().Object()->Controls(), control)->DisplayText());
  }
};

TEST_F(RunTest, OpensTheFormAboveTheWorkbenchOverTheStage) {
  Begin("mnuFill");
  const QWidget& run = *bench->Run();
  EXPECT_EQ(run.parentWidget(), bench.get());
  EXPECT_EQ(run.windowType(), Qt::Dialog) << "other windows may lie below their owner";
  EXPECT_FALSE(run.isModal());
  EXPECT_EQ(run.screen(), bench->screen());
  const QRect free = bench->screen()->availableGeometry();
  EXPECT_TRUE(free.contains(run.geometry()));
}

TEST_F(RunTest, KeepsTheOutputPaneEnabled) {
  Begin("mnuDebug");
  QPlainTextEdit& commands = bench->Output().Commands();
  GoBackToTheWorkbench();
  QTest::keyClick(bench.get(), Qt::Key_6, Qt::AltModifier);
  EXPECT_TRUE(bench->Output().isAncestorOf(QApplication::focusWidget()));
  EXPECT_TRUE(commands.isEnabled());
  ASSERT_FALSE(commands.toPlainText().isEmpty());
  auto* tabs = bench->Output().findChild<QTabWidget*>();
  tabs->setCurrentWidget(&commands);
  commands.setFocus();
  QTest::keyClick(&commands, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&commands, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().contains(QLatin1String("THEME_")));
  QTimer::singleShot(20, bench.get(), [] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    menu->actions().last()->trigger();
    menu->close();
  });
  Q_EMIT commands.customContextMenuRequested(QPoint(4, 4));
  EXPECT_TRUE(commands.toPlainText().isEmpty());
  bench->Run()->Form().Object()->Cancel();
  EXPECT_TRUE(HasEnded());
}

TEST_F(RunTest, DisablesAllEditing) {
  Select(QStringLiteral("txtName"));
  const QByteArray before = bench->Project().Bytes();
  Begin("mnuFill");
  GoBackToTheWorkbench();
  for (const QWidget* pane :
       {static_cast<QWidget*>(&bench->Tools()), static_cast<QWidget*>(&bench->List()),
        static_cast<QWidget*>(&bench->Grid()), static_cast<QWidget*>(&bench->Script()),
        static_cast<QWidget*>(&bench->Features()), static_cast<QWidget*>(&bench->Stage().Designer())})
    EXPECT_FALSE(pane->isEnabled()) << pane->metaObject()->className();
  struct {
    Qt::Key key;
    Qt::KeyboardModifiers with;
  } const keys[] = {{Qt::Key_Delete, {}},
                    {Qt::Key_X, Qt::ControlModifier},
                    {Qt::Key_Z, Qt::ControlModifier},
                    {Qt::Key_N, Qt::ControlModifier},
                    {Qt::Key_O, Qt::ControlModifier},
                    {Qt::Key_J, Qt::ControlModifier},
                    {Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier},
                    {Qt::Key_R, Qt::ControlModifier}};
  for (const auto& [key, with] : keys) {
    QTest::keyClick(bench.get(), key, with);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << static_cast<int>(key);
  }
  ClickOnForm({40, 40});
  bench->Run()->Form().Object()->Cancel();
  ASSERT_TRUE(HasEnded());
  EXPECT_EQ(bench->Project().Bytes(), before);
  EXPECT_EQ(Selected(), QStringLiteral("txtName"));
  EXPECT_TRUE(bench->Grid().isEnabled());
  EXPECT_TRUE(bench->Stage().Designer().isEnabled());
}

TEST_F(RunTest, RestoresTheFocus) {
  bench->Features().View().setFocus();
  Begin("mnuFill");
  bench->Run()->Form().Object()->Cancel();
  ASSERT_TRUE(HasEnded());
  GoBackToTheWorkbench();
  EXPECT_EQ(QApplication::focusWidget(), &bench->Features().View());
}

TEST_F(RunTest, EndsWhenItsWindowIsClosed) {
  Begin("mnuFill");
  bench->Run()->close();
  EXPECT_TRUE(HasEnded());
  EXPECT_TRUE(bench->isVisible());
}

TEST_F(RunTest, KeepsTheWorkbenchOpenIfTheUserContinuesTheForm) {
  Begin("mnuFill");
  AnswerBox(QStringLiteral("Cancel"));
  EXPECT_FALSE(bench->close());
  QTest::qWait(20);
  EXPECT_NE(bench->Run(), nullptr);
  EXPECT_TRUE(bench->isVisible());
  bench->Run()->Form().Object()->Cancel();
  EXPECT_TRUE(HasEnded());
  QTest::qWait(20);
  EXPECT_TRUE(bench->isVisible());
}

TEST_F(RunTest, ClosesTheFormBeforeTheWorkbench) {
  Begin("mnuDebug");
  GoBackToTheWorkbench();
  AnswerBox(QStringLiteral("Close"));
  QTest::keyClick(bench.get(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(HasEnded());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !bench->isVisible(); }));
}

TEST_F(RunTest, EndsSafelyWithADeletedWorkbench) {
  Begin("mnuFill");
  bench.reset();
  QTest::qWait(5);
  EXPECT_TRUE(data.IsOpen());
}

TEST_F(RunTest, LoadsNoValuesForANewFeature) {
  Begin("mnuFill");
  EXPECT_FALSE(TextOf(u"txtName").isEmpty());
  bench->Run()->Form().Object()->Cancel();
  ASSERT_TRUE(HasEnded());
  Begin("mnuFillNew");
  EXPECT_TRUE(TextOf(u"txtName").isEmpty());
  bench->Run()->Form().Object()->Cancel();
  EXPECT_TRUE(HasEnded());
}

TEST_F(RunTest, KeepsTheSelectionInTheOutputWhileTextIsAdded) {
  desktop::DebugPane& output = *bench->Output().Debug();
  for (int line = 0; line < 200; ++line) output.SetSelText(u"line\r\n");
  QPlainTextEdit& pane = *output.Pane();
  QTextCursor cursor(pane.document());
  cursor.select(QTextCursor::LineUnderCursor);
  pane.setTextCursor(cursor);
  const int place = pane.verticalScrollBar()->value();
  output.SetSelText(u"more\r\n");
  EXPECT_EQ(pane.textCursor().selectedText(), QStringLiteral("line"));
  EXPECT_EQ(pane.verticalScrollBar()->value(), place);
}

}  // namespace
}  // namespace cardwright::workbench
