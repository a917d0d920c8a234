// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <csignal>

#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

class RecoveryTest : public WorkbenchTest {
 protected:
  RecoveryTest() {
    bench->Project().Insert(ControlTypeEnum::ctLabel);
    EXPECT_EQ(bench->Project().Save(project), QString());
    Type(QStringLiteral("Text"), QStringLiteral("not saved"));
    RecordStep();
  }
  /// Leaves the file as a crashed program does: it exists and nobody uses it.
  void LeaveWork() {
    const QString work = Recovery::FileFor(project);
    {
      Recovery recovery;
      recovery.Keep(project, bench->Project().Bytes());
      ASSERT_TRUE(QFile::copy(work, work + QStringLiteral(".copy")));
    }
    ASSERT_TRUE(QFile::rename(work + QStringLiteral(".copy"), work));
    ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("elsewhere.cwf"))), QString());
    Start();
  }

  const QString project = PathOf(QStringLiteral("form.cwf"));
};

TEST_F(RecoveryTest, IsSavedBesideTheProjectWithinSeconds) {
  const QString work = Recovery::FileFor(project);
  EXPECT_EQ(QFileInfo(work).absolutePath(), QFileInfo(project).absolutePath());
  EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(work); }, 30000));
  EXPECT_TRUE(Read(work).contains("Text=not saved"));
}

TEST_F(RecoveryTest, IsRemovedWhenTheProjectIsSaved) {
  const QString work = Recovery::FileFor(project);
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(work); }, 30000));
  ASSERT_EQ(bench->Project().Save(project), QString());
  EXPECT_FALSE(QFile::exists(work));
}

TEST_F(RecoveryTest, IsNotOfferedWhileAnotherProgramUsesIt) {
  Recovery recovery;
  recovery.Keep(project, "[FORM]\r\n");
  EXPECT_TRUE(Recovery::LeftOn(project).empty());
  recovery.Drop();
}

TEST_F(RecoveryTest, IsOfferedWithItsDateAndRestored) {
  LeaveWork();
  QString text;
  AnswerBox(QStringLiteral("Restore"), &text);
  ASSERT_TRUE(bench->OpenProject(project));
  EXPECT_TRUE(text.contains(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat)))
      << text.toStdString();
  EXPECT_EQ(ToText(Find(QStringLiteral("object_1")).PropertyValue(u"Text")), u"not saved");
  EXPECT_TRUE(bench->isWindowModified());
  EXPECT_EQ(bench->Project().Path(), project);
  ASSERT_EQ(bench->Project().Save(project), QString());
  EXPECT_FALSE(QFile::exists(Recovery::FileFor(project)));
  EXPECT_TRUE(Read(project).contains("Text=not saved"));
}

TEST_F(RecoveryTest, IsAnOrdinaryProjectAfterRestoring) {
  LeaveWork();
  Write(Recovery::FileFor(project),
        "[FORM]\r\nControlsNumber= 2\r\n[CONTROLS_1]\r\nType=Label\r\n"
        "[CONTROLS_2]\r\nType=Sundial\r\n");
  QString remark;
  AnswerBox(QStringLiteral("Restore"));
  QTimer::singleShot(0, bench.get(), [&] { AnswerBox(QStringLiteral("OK"), &remark); });
  ASSERT_TRUE(bench->OpenProject(project));
  EXPECT_TRUE(remark.contains(QStringLiteral("1 control"))) << remark.toStdString();
  auto* recent = bench->findChild<QMenu*>(QStringLiteral("mnuRecent"));
  Q_EMIT recent->aboutToShow();
  EXPECT_TRUE(recent->actions().first()->text().contains(project));
}

TEST_F(RecoveryTest, SurvivesAKilledProgram) {
  const QString work = Recovery::FileFor(project);
  const auto die = [&] {
    ::alarm(60);  // if the file is never written
    if (QTest::qWaitFor([&] { return QFile::exists(work); }, 20000)) ::kill(::getpid(), SIGKILL);
  };
  EXPECT_EXIT(die(), testing::KilledBySignal(SIGKILL), "");
  ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("elsewhere.cwf"))), QString());
  ASSERT_TRUE(QFile::exists(work));
  AnswerBox(QStringLiteral("Restore"));
  ASSERT_TRUE(bench->OpenProject(project));
  EXPECT_EQ(ToText(Find(QStringLiteral("object_1")).PropertyValue(u"Text")), u"not saved");
  EXPECT_TRUE(bench->isWindowModified());
}

TEST_F(RecoveryTest, IsRemovedWhenDiscarded) {
  LeaveWork();
  AnswerBox(QStringLiteral("Discard"));
  ASSERT_TRUE(bench->OpenProject(project));
  EXPECT_FALSE(QFile::exists(Recovery::FileFor(project)));
  EXPECT_FALSE(bench->isWindowModified());
}

TEST_F(RecoveryTest, IsKeptForLater) {
  LeaveWork();
  const auto askLater = [this] {
    AnswerBox(QStringLiteral("Ask"));
    ASSERT_TRUE(bench->OpenProject(project));
    ASSERT_EQ(Recovery::LeftOn(project).size(), 1U);
    EXPECT_TRUE(Read(Recovery::LeftOn(project).front().file).contains("Text=not saved"));
  };
  askLater();
  bench->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(bench.get()));
  Select(QStringLiteral("object_1"));
  Type(QStringLiteral("Text"), QStringLiteral("begun anew"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(Recovery::FileFor(project)); }, 30000));
  ASSERT_EQ(bench->Project().Save(project), QString());
  askLater();
}

}  // namespace
}  // namespace cardwright::workbench
