#include "robot/Attendant.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QMenu>
#include <QMessageBox>
#include <filesystem>
#include <fstream>

#include "robot/Recorder.h"

namespace cardwright::robot {
namespace {

class AttendantTest : public testing::Test {
 protected:
  Mouse mouse;
  Attendant attendant{mouse};
  Answers& answers = attendant.Queues();
};

TEST_F(AttendantTest, PressesTheButtonOrTheDefaultOne) {
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

TEST_F(AttendantTest, ChoosesFilesColoursAndFonts) {
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

class AttendedMenu : public AttendantTest {
 protected:
  AttendedMenu() {
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
  Recorder window;
  QMenu menu{&window};
};

TEST_F(AttendedMenu, IsDismissedUnlessSomethingIsQueued) {
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(attendant.LastMenu(), u"mnuCut=Cu&t;!mnuPaste=&Paste;-;=&Lock");
  answers.menus = {u"MNUCUT", u"", u"mnuPaste", u"mnuHidden", u"lock"};
  EXPECT_EQ(Chosen(), "Cu&t\tCtrl+X");
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Chosen(), "");
  EXPECT_EQ(Chosen(), "&Lock");
}

TEST_F(AttendedMenu, MayOpenInTheMiddleOfAPress) {
  answers.menus = {u"mnuCut"};
  std::string chosen;
  window.onPress = [&] { chosen = Chosen(); };
  mouse.Click(window, {5, 5});
  EXPECT_EQ(chosen, "Cu&t\tCtrl+X");
}

}  // namespace
}  // namespace cardwright::robot
