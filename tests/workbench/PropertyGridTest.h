// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QLineEdit>

#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {

/// The property grid of a shown workbench, with real keys: they go to the window, whose shortcuts are handled
/// first.
class PropertyGridTest : public WorkbenchTest {
 protected:
  Ref<IControl> Add(ControlTypeEnum kind) {
    bench->Project().Insert(kind);
    return Designer().CurrentControl();
  }
  void SelectForm() { Designer().SetCtrl(Ref<IControl>(&Find(QStringLiteral("Form")))); }
  QTableView& View() { return bench->Grid().View(); }
  QString Notice() { return bench->Grid().Notice(); }
  bool IsRefused(const QString& row) { return Rows().IsRefused(Rows().RowOf(row)); }

  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
  }
  /// Also processes the events that follow, such as the end of editing.
  static void PressAndWait(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    Press(key, modifiers);
    QTest::qWait(5);
  }
  static void KeyIn(const QString& text) {
    for (const QChar c : text) QTest::keyClick(QGuiApplication::focusWindow(), c.toLatin1());
  }
  /// Focuses a row.
  void GoTo(const QString& row) { bench->Grid().EditRow(row); }
  /// Opens the editor of a row and returns the focused widget.
  QWidget* Edit(const QString& row) {
    GoTo(row);
    Press(Qt::Key_F2);
    return QApplication::focusWidget();
  }
  /// The open editor, or null.
  QWidget* Editor() { return View().indexWidget(View().currentIndex()); }
  template <class Kind>
  Kind* EditorAs() {
    return qobject_cast<Kind*>(Editor());
  }
  QString CurrentRow() { return Rows().NameOf(View().currentIndex().row()); }

  /// Answers the next dialog of a class by keys.
  template <class Dialog>
  static void MeetByKeys(std::function<void(Dialog& dialog)> answer) {
    qt::Meet<Dialog>([answer = std::move(answer)](Dialog& dialog) {
      // Being active is not enough: it is active as soon as its owner is.
      ASSERT_TRUE(QTest::qWaitFor([&] { return QGuiApplication::focusWindow() == dialog.windowHandle(); }));
      answer(dialog);
    });
  }
  /// Chooses from the list of a row's editor.
  void Pick(const QString& row, const QString& text) {
    GoTo(row);
    Press(Qt::Key_F4);
    auto* combo = EditorAs<QComboBox>();
    ASSERT_NE(combo, nullptr);
    const int at = combo->findText(text);
    ASSERT_GE(at, 0) << text.toStdString();
    combo->view()->setCurrentIndex(combo->model()->index(at, 0));
    PressAndWait(Qt::Key_Return);
    ASSERT_EQ(Editor(), nullptr);
  }
};

}  // namespace cardwright::workbench
