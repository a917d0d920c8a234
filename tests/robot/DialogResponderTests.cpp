// SPDX-License-Identifier: MIT
#include "cardwright/robot/dialogs/DialogResponder.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QColorDialog>
#include <QDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <filesystem>
#include <fstream>

#include "cardwright/robot/widgets/WidgetPart.h"
#include "robot/EventRecorder.h"

namespace cardwright::robot {
namespace {

class DialogResponderTest : public testing::Test {
 protected:
  Mouse mouse;
  DialogResponder responder{mouse};
  Answers& answers = responder.Queue();
};

TEST_F(DialogResponderTest, PressesTheQueuedOrTheDefaultButton) {
  const auto ask = [] {
    return QMessageBox::question(nullptr, {}, QStringLiteral("?"), QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No);
  };
  EXPECT_EQ(ask(), QMessageBox::No);
  answers.boxes = {6, 1, 99};
  EXPECT_EQ(ask(), QMessageBox::Yes);
  EXPECT_EQ(ask(), QMessageBox::No) << "a button that the box does not have";
  EXPECT_EQ(ask(), QMessageBox::No);
  EXPECT_TRUE(answers.boxes.empty());
}

TEST_F(DialogResponderTest, ChoosesFilesColoursAndFonts) {
  const auto path = std::filesystem::temp_directory_path() / "cardwright-attendant.txt";
  std::ofstream(path) << "x";
  const QString file = QString::fromStdString(path.string());
  EXPECT_EQ(QFileDialog::getOpenFileName(), QString());
  answers.files = {Text::FromUtf8(path.string()), u""};
  EXPECT_EQ(QFileDialog::getOpenFileName(), file);
  EXPECT_EQ(QFileDialog::getOpenFileName(), QString());
  std::filesystem::remove(path);

  EXPECT_FALSE(QColorDialog::getColor().isValid());
  answers.colors = {0x030201, -1};
  EXPECT_EQ(QColorDialog::getColor(), QColor(1, 2, 3));
  EXPECT_FALSE(QColorDialog::getColor().isValid());

  bool isChosen = true;
  QFontDialog::getFont(&isChosen);
  EXPECT_FALSE(isChosen);
  answers.fonts = {{u"DejaVu Sans", 12}};
  const QFont font = QFontDialog::getFont(&isChosen);
  EXPECT_TRUE(isChosen);
  EXPECT_EQ(font.family(), QStringLiteral("DejaVu Sans"));
  EXPECT_EQ(font.pointSize(), 12);
}

TEST_F(DialogResponderTest, ChoosesSeveralFilesOfAFolder) {
  const auto folder = std::filesystem::temp_directory_path() / "cardwright attendant";
  std::filesystem::create_directory(folder);
  for (const char* name : {"a.txt", "b c.txt"}) std::ofstream(folder / name) << "x";
  const Text path = Text::FromUtf8(folder.string());
  answers.files = {path + Text(std::u16string(u"\0a.txt\0b c.txt", 14))};
  const QString start = QString::fromStdString(folder.string());
  EXPECT_EQ(QFileDialog::getOpenFileNames(), QStringList({start + "/a.txt", start + "/b c.txt"}));
  answers.files = {path};
  EXPECT_EQ(QFileDialog::getExistingDirectory(), start);
  std::filesystem::remove_all(folder);
}

TEST_F(DialogResponderTest, ChoosesInAMenuThatAPressOpened) {
  EventRecorder window;
  QStringList chosen;
  window.onPress = [&] {
    QMenu menu;
    for (const char* name : {"mnuA", "mnuB", "mnuC"}) menu.addAction(name)->setObjectName(name);
    const QAction* item = menu.exec(window.mapToGlobal(QPoint(5, 5)));
    chosen += item ? item->objectName() : QStringLiteral("none");
  };
  answers.menus = {u"mnuC", u"", u"mnuA"};
  for (int i = 0; i < 4; ++i) mouse.Click(window, {5, 5}, {Qt::RightButton, Qt::NoModifier});
  EXPECT_EQ(chosen.join(u' ').toStdString(), "mnuC none mnuA none");
}

TEST_F(DialogResponderTest, ClosesAFileDialogThatRejectsItsAnswer) {
  answers.files = {u"/no/such/file"};
  EXPECT_EQ(QFileDialog::getOpenFileName(), QString());
  const auto path = std::filesystem::temp_directory_path() / "cardwright-attendant-old.txt";
  std::ofstream(path) << "x";
  const Text old = Text::FromUtf8(path.string());
  answers.files = {old, old};
  answers.boxes = {7, 6};
  EXPECT_EQ(QFileDialog::getSaveFileName(), QString()) << "not to be written over";
  EXPECT_EQ(QFileDialog::getSaveFileName(), QString::fromStdString(path.string()));
  std::filesystem::remove(path);
}

/// A procedure as a script passes it.
class Procedure final : public TableObject {
 public:
  explicit Procedure(std::function<void(WidgetPart&)> run) : m_Run(std::move(run)) {}
  Text TypeName() const override { return u"Procedure"; }
  void Run(Ref<WidgetPart> dialog) { m_Run(*dialog); }

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {Method<&Procedure::Run>(u"Run")};
    static const MemberTable table(kMembers, u"Run");
    return table;
  }

 private:
  std::function<void(WidgetPart&)> m_Run;
};

class DialogProcedures : public DialogResponderTest {
 protected:
  DialogProcedures() {
    dialog.setObjectName(QStringLiteral("frmPlan"));
    dialog.setWindowTitle(QStringLiteral("Plan"));
    edit->setObjectName(QStringLiteral("txtName"));
    edit->setText(QStringLiteral("old"));
  }
  void OnDialog(const Text& name, std::function<void(WidgetPart&)> run) {
    responder.SetProcedure(name, MakeRef<Procedure>(std::move(run)));
  }
  QDialog dialog;
  QLineEdit* edit = new QLineEdit(&dialog);
};

TEST_F(DialogProcedures, IsDismissedWithoutAProcedure) {
  EXPECT_EQ(dialog.exec(), QDialog::Rejected);
  OnDialog(u"frmOther", [](WidgetPart&) { FAIL(); });
  EXPECT_EQ(dialog.exec(), QDialog::Rejected);
  responder.RaisePendingError();
}

TEST_F(DialogProcedures, IsPassedToItsProcedureEachTime) {
  int calls = 0;
  OnDialog(u"FRMPLAN", [&](WidgetPart& part) {
    ++calls;
    EXPECT_EQ(part.Name(), u"frmPlan");
    EXPECT_EQ(part.Text(), u"Plan");
    EXPECT_EQ(part.Child(u"TXTNAME")->Text(), u"old");
    EXPECT_FALSE(part.Child(u"txtOther"));
    EXPECT_FALSE(part.Child(u""));
    dialog.accept();
  });
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  responder.SetProcedure(u"frmPlan", nullptr);
  EXPECT_EQ(dialog.exec(), QDialog::Rejected);
  EXPECT_EQ(calls, 2);
}

TEST_F(DialogProcedures, ClosesAfterItsProcedureAndKeepsTheError) {
  Ref<WidgetPart> kept;
  OnDialog(u"frmPlan", [&](WidgetPart& part) {
    kept = &part;
    Raise(ErrorNumber::TypeMismatch);
  });
  EXPECT_EQ(dialog.exec(), QDialog::Rejected);
  EXPECT_EQ(kept->Name(), u"frmPlan");
  EXPECT_THROW(responder.RaisePendingError(), Error);
  responder.RaisePendingError();
}

class PopupMenus : public DialogResponderTest {
 protected:
  PopupMenus() {
    Add("mnuCut", "Cu&t\tCtrl+X");
    Add("mnuPaste", "&Paste")->setEnabled(false);
    menu.addSeparator();
    Add("mnuHidden", "Hidden")->setVisible(false);
    Add("", "&Lock");
  }
  QAction* Add(const char* name, const char* caption) {
    QAction* action = menu.addAction(QString::fromUtf8(caption));
    action->setObjectName(QString::fromUtf8(name));
    return action;
  }
  std::string Chosen() {
    const QAction* action = menu.exec(QPoint(10, 10));
    return action ? action->text().toStdString() : "";
  }
  EventRecorder window;
  QMenu menu{&window};
};

TEST_F(PopupMenus, IsDismissedWithoutAnAnswer) {
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(responder.LastMenu(), u"mnuCut=Cu&t;!mnuPaste=&Paste;-;=&Lock");
  answers.menus = {u"MNUCUT", u"", u"mnuPaste", u"mnuHidden", u"lock"};
  EXPECT_EQ(Chosen(), "Cu&t\tCtrl+X");
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Chosen(), "&Lock");
}

TEST_F(PopupMenus, CanOpenDuringAPress) {
  answers.menus = {u"mnuCut"};
  std::string chosen;
  window.onPress = [&] { chosen = Chosen(); };
  mouse.Click(window, {5, 5});
  EXPECT_EQ(chosen, "Cu&t\tCtrl+X");
}

}  // namespace
}  // namespace cardwright::robot
