// SPDX-License-Identifier: MIT
// Shortcuts of the window, with real keys in the focused widget.

#include <QMenuBar>
#include <QPlainTextEdit>
#include <map>

#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

class ShortcutTest : public WorkbenchTest {
 protected:
  ShortcutTest() {
    bench->Project().Insert(ControlTypeEnum::ctLabel);
    name = Selected();
    RecordStep();
    QTest::qWait(5);
  }
  /// Sends a key to the focused widget.
  static void Press(Qt::Key key, Qt::KeyboardModifiers with = {}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, with);
    QTest::qWait(5);
  }
  void GoToForm() {
    bench->Stage().Designer().setFocus();
    Designer().SetCtrl(Designer().CurrentControl());
  }
  QPlainTextEdit& Editor() { return *bench->Script().findChild<QPlainTextEdit*>(); }
  void OpenCopyOfData() {
    const QString source = PathOf(QStringLiteral("wells.gpkg"));
    ASSERT_TRUE(QFile::copy(Example("wells.gpkg"), source));
    ASSERT_TRUE(bench->OpenData(source));
  }
  void ShowScript() { Press(Qt::Key_4, Qt::AltModifier); }
  /// The actions of a menu and its submenus.
  static void Collect(const QMenu& menu, QList<QAction*>& actions) {
    for (QAction* action : menu.actions()) {
      if (action->menu()) {
        Collect(*action->menu(), actions);
      } else if (!action->isSeparator()) {
        actions += action;
      }
    }
  }
  QList<QMenu*> Menus() {
    QList<QMenu*> menus;
    for (const QAction* action : bench->menuBar()->actions()) menus += action->menu();
    return menus;
  }
  static QString MnemonicOf(const QAction& action) {
    const QString text = QString(action.text()).remove(QLatin1String("&&"));
    const qsizetype at = text.indexOf(u'&');
    return at < 0 ? QString() : text.mid(at + 1, 1).toUpper();
  }

  QString name;
};

TEST_F(ShortcutTest, AreUnique) {
  std::map<QString, QString> taken;
  QList<QAction*> actions;
  for (const QMenu* menu : Menus()) Collect(*menu, actions);
  int keys = 0;
  for (const QAction* action : actions) {
    for (const QKeySequence& key : action->shortcuts()) {
      const auto [at, isNew] = taken.emplace(key.toString(), action->text());
      EXPECT_TRUE(isNew) << key.toString().toStdString() << ": " << action->text().toStdString() << " and "
                         << at->second.toStdString();
      ++keys;
    }
  }
  EXPECT_GT(keys, 25);
}

TEST_F(ShortcutTest, HaveUniqueLettersPerMenu) {
  QList<QList<QAction*>> lists = {bench->menuBar()->actions()};
  for (const QMenu* menu : Menus()) lists += menu->actions();
  for (const QList<QAction*>& list : lists) {
    std::map<QString, QString> taken;
    for (const QAction* action : list) {
      const QString letter = MnemonicOf(*action);
      if (letter.isEmpty()) continue;
      const auto [at, isNew] = taken.emplace(letter, action->text());
      EXPECT_TRUE(isNew) << action->text().toStdString() << " and " << at->second.toStdString();
    }
  }
}

TEST_F(ShortcutTest, TriggerEveryCommand) {
  QList<QAction*> actions;
  for (const QMenu* menu : Menus()) Collect(*menu, actions);
  for (QAction* action : actions) {
    if (action->shortcuts().isEmpty()) continue;
    // The commands themselves are not run: they would open dialogs.
    action->disconnect(SIGNAL(triggered(bool)));
    int reached = 0;
    QObject::connect(action, &QAction::triggered, bench.get(), [&reached] { ++reached; });
    for (const QKeySequence& key : action->shortcuts()) {
      GoToForm();
      action->setEnabled(true);
      reached = 0;
      Press(key[0].key(), key[0].keyboardModifiers());
      EXPECT_EQ(reached, 1) << key.toString().toStdString() << ' ' << action->text().toStdString();
    }
    action->disconnect(bench.get());
  }
}

TEST_F(ShortcutTest, DeleteAControlOnTheFormAndInTheList) {
  GoToForm();
  Press(Qt::Key_Delete);
  EXPECT_FALSE(Has(name));
  Trigger("mnuUndo");
  QTest::qWait(5);
  ASSERT_TRUE(Has(name));
  bench->List().setFocus();
  Select(name);
  bench->List().setFocus();
  Press(Qt::Key_Delete);
  EXPECT_FALSE(Has(name));
}

TEST_F(ShortcutTest, DoNotDeleteAControlInTextsAndTables) {
  OpenCopyOfData();
  for (const Qt::Key pane : {Qt::Key_1, Qt::Key_3, Qt::Key_4, Qt::Key_5, Qt::Key_6}) {
    Select(name);
    Press(pane, Qt::AltModifier);
    Press(Qt::Key_Delete);
    Press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_TRUE(Has(name)) << static_cast<int>(pane);
  }
  bench->Features().View().setFocus();
  Press(Qt::Key_Delete);
  EXPECT_TRUE(Has(name));
}

TEST_F(ShortcutTest, SaveTheValueBeingEdited) {
  const QString file = PathOf(QStringLiteral("typed.cwf"));
  ASSERT_EQ(bench->Project().Save(file), QString());
  bench->Grid().EditRow(QStringLiteral("Text"));
  Press(Qt::Key_F2);
  Press(Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Typed just now"));
  Press(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(Read(file).contains("Typed just now"));
  EXPECT_FALSE(bench->isWindowModified());
}

TEST_F(ShortcutTest, AnswerTheQuestionAboutUnsavedChanges) {
  const QString file = PathOf(QStringLiteral("left.cwf"));
  ASSERT_EQ(bench->Project().Save(file), QString());
  const auto leave = [&](Qt::Key letter) {
    qt::Meet<QMessageBox>([letter](QMessageBox& box) { QTest::keyClick(&box, letter); });
    Press(Qt::Key_N, Qt::ControlModifier);
    bench->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(bench.get()));
    return bench->Project().Path().isEmpty();
  };
  Type(QStringLiteral("Text"), QStringLiteral("first"));
  EXPECT_FALSE(leave(Qt::Key_C));
  EXPECT_FALSE(Read(file).contains("first"));
  EXPECT_TRUE(leave(Qt::Key_S));
  EXPECT_TRUE(Read(file).contains("first"));
  ASSERT_TRUE(bench->OpenProject(file));
  Select(name);
  Type(QStringLiteral("Text"), QStringLiteral("second"));
  EXPECT_TRUE(leave(Qt::Key_D));
  EXPECT_FALSE(Read(file).contains("second"));
}

TEST_F(ShortcutTest, F4FocusesTheGrid) {
  GoToForm();
  Press(Qt::Key_F4);
  EXPECT_TRUE(bench->Grid().isAncestorOf(QApplication::focusWidget()));
  EXPECT_EQ(Selected(), name);
}

TEST_F(ShortcutTest, UndoStepsOfTheFormOnTheForm) {
  GoToForm();
  Press(Qt::Key_Delete);
  RecordStep();
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(Has(name));
  GoToForm();
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_FALSE(Has(name));
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_FALSE(Has(name));
}

TEST_F(ShortcutTest, UndoTypingInTheScript) {
  ShowScript();
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Sub A()"));
  RecordStep();
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(Editor().toPlainText().isEmpty());
  EXPECT_TRUE(Has(name));
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Editor().toPlainText(), QStringLiteral("Sub A()"));
  EXPECT_EQ(QApplication::focusWidget(), &Editor());
}

TEST_F(ShortcutTest, LockFromAnyPane) {
  bench->List().setFocus();
  Press(Qt::Key_L, Qt::ControlModifier);
  EXPECT_TRUE(bench->Action(QStringLiteral("mnuLock"))->isChecked());
  ShowScript();
  Press(Qt::Key_L, Qt::ControlModifier);
  EXPECT_FALSE(bench->Action(QStringLiteral("mnuLock"))->isChecked());
}

TEST_F(ShortcutTest, RunTheFormWithTheValueBeingEdited) {
  ASSERT_TRUE(bench->OpenProject(Example("well-inspection.cwf")));
  OpenCopyOfData();
  Select(QStringLiteral("Form"));
  bench->Grid().EditRow(QStringLiteral("Text"));
  Press(Qt::Key_F2);
  Press(Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Just typed"));
  Press(Qt::Key_R, Qt::ControlModifier);
  ASSERT_NE(bench->Run(), nullptr);
  EXPECT_EQ(bench->Run()->windowTitle(), QStringLiteral("Just typed"));
  bench->Run()->Form().Object()->Cancel();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !bench->Run(); }));
}

TEST_F(ShortcutTest, ListThePanesInOrder) {
  QStringList shown;
  QStringList toggled;
  QList<QAction*> actions;
  Collect(*Menus().last(), actions);
  for (const QAction* action : actions) {
    if (action->text().startsWith(u'&') && action->text().at(1).isDigit()) shown += action->text().mid(3);
    if (action->text().startsWith(QLatin1String("Show "))) toggled += action->text().mid(5);
  }
  EXPECT_EQ(shown.size(), 6);
  EXPECT_EQ(toggled, shown);
}

}  // namespace
}  // namespace cardwright::workbench
