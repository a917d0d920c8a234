// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <ostream>

#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetCore.h"
#include "desktop/DataSource.h"
#include "qt/Dialogs.h"
#include "workbench/Workbench.h"
#include "workbench/grid/PropertyGrid.h"
#include "workbench/panes/ControlList.h"
#include "workbench/panes/FeaturePane.h"
#include "workbench/panes/OutputPane.h"
#include "workbench/panes/ScriptPane.h"
#include "workbench/panes/ToolBox.h"

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace cardwright::workbench {

/// A workbench in a window of its own, driven by mouse and keys.
class WorkbenchTest : public testing::Test {
 protected:
  WorkbenchTest() {
    QObject::connect(&m_Patience, &QTimer::timeout, &m_Patience, [this] { EndWhatNobodyAnswers(); });
    m_Patience.start(10000);
    Start();
  }
  ~WorkbenchTest() override {
    bench.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void Start() {
    bench.reset();
    bench = std::make_unique<Workbench>(data);
    bench->show();
    bench->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(bench.get()));
  }
  cardwright::FormDesigner& Designer() { return bench->Project().Designer(); }
  PropertyModel& Rows() { return bench->Grid().Model(); }

  /// Draws a control with the mouse between two points of the form, in pixels.
  Ref<IControl> Draw(ControlTypeEnum kind, QRect rect) {
    Choose(kind);
    DragOnForm(rect.topLeft(), rect.topLeft() + QPoint(rect.width(), rect.height()));
    return Designer().CurrentControl();
  }
  /// Clicks on a tool.
  void Choose(ControlTypeEnum kind) {
    ToolBox& tools = bench->Tools();
    for (int row = 0; row < tools.count(); ++row) {
      QListWidgetItem* item = tools.item(row);
      if (item->data(Qt::UserRole).toInt() != static_cast<int>(kind)) continue;
      tools.scrollToItem(item);
      QTest::mouseClick(tools.viewport(), Qt::LeftButton, {}, tools.visualItemRect(item).center());
    }
  }
  /// Sends events to the window: the drag polls the buttons, whose state events to widgets do not change. The
  /// press returns only when the drag has ended, so a timer sends the other events, but not before the press
  /// has been handled: a button released too early would stay down for ever.
  void DragOnForm(QPoint from, QPoint to) {
    QWidget& form = bench->Stage().Designer();
    QWindow* window = bench->windowHandle();
    const auto at = [&](QPoint place) { return form.mapTo(bench.get(), place); };
    const QPoint stops[] = {at(from + (to - from) / 2), at(to)};
    std::size_t next = 0;
    QTimer rest;
    QObject::connect(&rest, &QTimer::timeout, &rest, [&] {
      if (!(QGuiApplication::mouseButtons() & Qt::LeftButton)) return;
      if (next < std::size(stops)) return QTest::mouseMove(window, stops[next++]);
      rest.stop();
      QTest::mouseRelease(window, Qt::LeftButton, {}, stops[1]);
    });
    QTest::mouseMove(window, at(from));
    rest.start(20);
    QTest::mousePress(window, Qt::LeftButton, {}, at(from));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !rest.isActive(); }));
    QTest::qWait(20);
  }
  void ClickOnForm(QPoint place) {
    QWindow* window = bench->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, bench->Stage().Designer().mapTo(bench.get(), place));
    QTest::qWait(20);
  }

  IControl& Find(const QString& name) {
    IControl* control = FindControl(Designer().Controls(), qt::ViewOf(name));
    EXPECT_NE(control, nullptr) << name.toStdString();
    return *control;
  }
  bool Has(const QString& name) { return FindControl(Designer().Controls(), qt::ViewOf(name)) != nullptr; }
  QString Selected() { return qt::ToQString(Designer().CurrentControl()->UserName()); }
  void Select(const QString& name) { Designer().SetCtrl(Ref<IControl>(&Find(name))); }
  QString ValueOf(const QString& row) {
    return Rows().index(Rows().RowOf(row), PropertyModel::kValue).data().toString();
  }
  /// Types a value into a row of the grid and presses Enter.
  void Type(const QString& row, const QString& text) {
    bench->Grid().EditRow(row);
    QTest::keyClick(&bench->Grid().View(), Qt::Key_F2);
    QWidget* editor = QApplication::focusWidget();
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QTest::qWait(5);
  }
  /// Adds pending changes to the history.
  void RecordStep() { bench->Project().RecordNow(); }
  void Trigger(const char* action) {
    bench->Action(QLatin1String(action))->trigger();
    QTest::qWait(5);
  }
  /// Answers the next message box by the button whose text begins with `button`.
  static void AnswerBox(const QString& button, QString* text = nullptr) {
    qt::Meet<QMessageBox>([button, text](QMessageBox& box) {
      if (text) *text = box.text();
      for (QAbstractButton* each : box.buttons())
        if (each->text().remove(u'&').startsWith(button)) return each->click();
      ADD_FAILURE() << "the box has no button " << button.toStdString();
      box.reject();
    });
  }
  QString PathOf(const QString& name) { return folder.filePath(name); }
  static QByteArray Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  static QString Example(const char* name) {
    return QStringLiteral(CARDWRIGHT_SOURCE_DIR "/examples/wells/") + QLatin1String(name);
  }

  QTemporaryDir folder;
  qt::Library library;
  desktop::DataSource data{library};
  std::unique_ptr<Workbench> bench;

 private:
  /// Closes a dialog or menu that is still open at the second check: the test would never end.
  void EndWhatNobodyAnswers() {
    QWidget* const popup = QApplication::activePopupWidget();
    QWidget* const modal = popup ? popup : QApplication::activeModalWidget();
    if (modal && modal == m_Seen) {
      const auto* const box = dynamic_cast<QMessageBox*>(modal);
      ADD_FAILURE() << "nobody answers " << modal->metaObject()->className() << " "
                    << (box ? box->text() : modal->windowTitle()).toStdString();
      if (auto* const dialog = dynamic_cast<QDialog*>(modal)) {
        dialog->reject();
      } else {
        modal->close();
      }
    }
    m_Seen = modal;
  }

  QTimer m_Patience;
  QPointer<QWidget> m_Seen;
};

}  // namespace cardwright::workbench
