// SPDX-License-Identifier: MIT
// Opening and saving: nothing is lost, and failures are reported.

#include "workbench/WorkbenchTest.h"
#include "workbench/project/Stacking.h"

namespace cardwright::workbench {
namespace {

class ProjectTest : public WorkbenchTest {
 protected:
  /// Opens a project, saves it under another name and returns the new file.
  QByteArray OpenedAndSaved(const QString& path) {
    EXPECT_TRUE(bench->OpenProject(path));
    const QString copy = PathOf(QStringLiteral("copy.cwf"));
    EXPECT_EQ(bench->Project().Save(copy), QString());
    return Read(copy);
  }
};

class ExampleProjectTest : public ProjectTest, public testing::WithParamInterface<const char*> {};

// By the rules of the format, the script gets another line break with each save.
TEST_P(ExampleProjectTest, RoundTripsByteForByte) {
  const QByteArray before = Read(Example(GetParam()));
  ASSERT_FALSE(before.isEmpty());
  EXPECT_EQ(OpenedAndSaved(Example(GetParam())), before + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleProjectTest,
                         testing::Values("well-inspection.cwf", "map-symbol.cwf"));

TEST_F(ProjectTest, DoesNotGrowWhenSavedRepeatedly) {
  const QByteArray once = OpenedAndSaved(Example("well-inspection.cwf"));
  const QString copy = PathOf(QStringLiteral("copy.cwf"));
  ASSERT_EQ(bench->Project().Save(copy), QString());
  EXPECT_EQ(Read(copy), once);
}

TEST_F(ProjectTest, IsSavedWithTheValueBeingEdited) {
  const QString path = PathOf(QStringLiteral("form.cwf"));
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  ASSERT_EQ(bench->Project().Save(path), QString());
  bench->Grid().EditRow(QStringLiteral("Text"));
  QTest::keyClick(&bench->Grid().View(), Qt::Key_F2);
  ASSERT_TRUE(QApplication::focusWidget());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("still typed"));
  Trigger("mnuSave");
  EXPECT_TRUE(Read(path).contains("Text=still typed"));
}

TEST_F(ProjectTest, IsUnchangedAfterUndo) {
  const QByteArray before = OpenedAndSaved(Example("well-inspection.cwf"));
  Select(QStringLiteral("lblName"));
  Type(QStringLiteral("Left"), QStringLiteral("500"));
  RecordStep();
  EXPECT_NE(bench->Project().Bytes(), before);
  Trigger("mnuUndo");
  EXPECT_EQ(bench->Project().Bytes(), before);
}

TEST_F(ProjectTest, KeepsTheScriptWhileAFormIsFilledIn) {
  ASSERT_TRUE(bench->OpenProject(Example("well-inspection.cwf")));
  const QByteArray before = bench->Project().Bytes();
  ASSERT_TRUE(bench->OpenData(Example("wells.gpkg")));
  bench->Features().ChooseFeature(QStringLiteral("3"));
  Trigger("mnuFill");
  ASSERT_NE(bench->Run(), nullptr);
  EXPECT_EQ(bench->Project().Bytes(), before);
  bench->Run()->Form().Object()->Cancel();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !bench->Run(); }));
  EXPECT_EQ(bench->Project().Bytes(), before);
}

TEST_F(ProjectTest, ReportsAMissingFileAndAFileWithoutAForm) {
  QString text;
  AnswerBox(QStringLiteral("OK"), &text);
  EXPECT_FALSE(bench->OpenProject(PathOf(QStringLiteral("none.cwf"))));
  EXPECT_TRUE(text.contains(QStringLiteral("none.cwf")));
  Write(PathOf(QStringLiteral("letter.txt")), "Dear all,\r\n");
  AnswerBox(QStringLiteral("OK"), &text);
  EXPECT_FALSE(bench->OpenProject(PathOf(QStringLiteral("letter.txt"))));
  EXPECT_TRUE(text.contains(QStringLiteral("letter.txt")));
  EXPECT_EQ(bench->Project().Path(), QString());
}

/// Removes a file just before it is read into a new designer.
class FileTaker final : public QObject {
 public:
  explicit FileTaker(QString path) : m_Path(std::move(path)) { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Show && dynamic_cast<qt::FormDesigner*>(object)) QFile::remove(m_Path);
    return false;
  }

 private:
  QString m_Path;
};

TEST_F(ProjectTest, StaysOpenIfAnotherOneCannotBeRead) {
  const QString mine = PathOf(QStringLiteral("mine.cwf"));
  const QString gone = PathOf(QStringLiteral("gone.cwf"));
  Write(gone, Read(Example("well-inspection.cwf")));
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  ASSERT_EQ(bench->Project().Save(mine), QString());
  Type(QStringLiteral("Text"), QStringLiteral("mine"));
  const QByteArray before = bench->Project().Bytes();
  {
    const FileTaker taker(gone);
    QString text;
    AnswerBox(QStringLiteral("OK"), &text);
    EXPECT_FALSE(bench->OpenProject(gone));
    EXPECT_TRUE(text.contains(QStringLiteral("gone.cwf"))) << text.toStdString();
  }
  ASSERT_FALSE(QFile::exists(gone));
  EXPECT_EQ(bench->Project().Path(), mine);
  EXPECT_EQ(bench->Project().Bytes(), before);
  EXPECT_TRUE(bench->isWindowModified());
  Trigger("mnuUndo");
  EXPECT_FALSE(bench->isWindowModified());
}

TEST_F(ProjectTest, ReportsControlsThatCouldNotBeRead) {
  Write(PathOf(QStringLiteral("odd.cwf")),
        "[FORM]\r\nControlsNumber= 2\r\n[CONTROLS_1]\r\nType=Label\r\n"
        "[CONTROLS_2]\r\nType=Sundial\r\n");
  QString text;
  AnswerBox(QStringLiteral("OK"), &text);
  EXPECT_TRUE(bench->OpenProject(PathOf(QStringLiteral("odd.cwf"))));
  EXPECT_TRUE(text.contains(QStringLiteral("1 control"))) << text.toStdString();
}

TEST_F(ProjectTest, IsNotDeletedBySavingAnEmptyForm) {
  const QString path = PathOf(QStringLiteral("form.cwf"));
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  ASSERT_EQ(bench->Project().Save(path), QString());
  Trigger("mnuDelete");
  EXPECT_FALSE(bench->Project().Save(path).isEmpty());
  EXPECT_TRUE(QFile::exists(path));
}

TEST_F(ProjectTest, ReportsAFileThatCouldNotBeWritten) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  EXPECT_FALSE(bench->Project().Save(PathOf(QStringLiteral("no/such/form.cwf"))).isEmpty());
  QDir(folder.path()).mkdir(QStringLiteral("is.cwf"));
  EXPECT_FALSE(bench->Project().Save(PathOf(QStringLiteral("is.cwf"))).isEmpty());
  EXPECT_TRUE(bench->Project().IsModified());
}

TEST_F(ProjectTest, ShowsFileAndModifiedMarkInTheTitle) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  RecordStep();
  EXPECT_TRUE(bench->isWindowModified());
  ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("form.cwf"))), QString());
  EXPECT_TRUE(bench->windowTitle().startsWith(QStringLiteral("form.cwf[*]")));
  EXPECT_FALSE(bench->isWindowModified());
}

TEST_F(ProjectTest, AsksBeforeDiscardingUnsavedChanges) {
  bench->Project().Insert(ControlTypeEnum::ctLabel);
  ASSERT_EQ(bench->Project().Save(PathOf(QStringLiteral("form.cwf"))), QString());
  Type(QStringLiteral("Text"), QStringLiteral("changed"));
  AnswerBox(QStringLiteral("Cancel"));
  EXPECT_FALSE(bench->close());
  AnswerBox(QStringLiteral("Save"));
  EXPECT_TRUE(bench->close());
  EXPECT_TRUE(Read(PathOf(QStringLiteral("form.cwf"))).contains("Text=changed"));
}

TEST_F(ProjectTest, IsListedAmongRecentFiles) {
  ASSERT_TRUE(bench->OpenProject(Example("well-inspection.cwf")));
  auto* recent = bench->findChild<QMenu*>(QStringLiteral("mnuRecent"));
  Q_EMIT recent->aboutToShow();
  ASSERT_FALSE(recent->actions().isEmpty());
  EXPECT_TRUE(recent->actions().first()->text().contains(QStringLiteral("well-inspection.cwf")));
}

TEST_F(ProjectTest, IsRemovedFromRecentFilesIfMissing) {
  const QString path = PathOf(QStringLiteral("short-lived.cwf"));
  Write(path, Read(Example("well-inspection.cwf")));
  ASSERT_TRUE(bench->OpenProject(path));
  QFile::remove(path);
  auto* recent = bench->findChild<QMenu*>(QStringLiteral("mnuRecent"));
  const auto entry = [&]() -> QAction* {
    Q_EMIT recent->aboutToShow();
    for (QAction* action : recent->actions())
      if (action->text().contains(QStringLiteral("short-lived.cwf"))) return action;
    return nullptr;
  };
  ASSERT_TRUE(entry());
  QString text;
  AnswerBox(QStringLiteral("OK"), &text);
  entry()->trigger();
  EXPECT_TRUE(text.contains(QStringLiteral("short-lived.cwf"))) << text.toStdString();
  EXPECT_FALSE(entry());
}

class FramesTest : public ProjectTest {
 protected:
  FramesTest() {
    Add(ControlTypeEnum::ctFrame, {}, QStringLiteral("outer"));
    Add(ControlTypeEnum::ctLabel, QStringLiteral("outer"), QStringLiteral("first"));
    Add(ControlTypeEnum::ctFrame, QStringLiteral("outer"), QStringLiteral("inner"));
    Add(ControlTypeEnum::ctTextBox, QStringLiteral("inner"), QStringLiteral("deep"));
    Add(ControlTypeEnum::ctLabel, QStringLiteral("outer"), QStringLiteral("last"));
    RecordStep();
  }
  void Add(ControlTypeEnum kind, const QString& frame, const QString& name) {
    if (!frame.isEmpty()) Select(frame);
    bench->Project().Insert(kind);
    Type(QStringLiteral("Name"), name);
  }
  void Rename(const QString& name, const QString& wanted) {
    Select(name);
    Type(QStringLiteral("Name"), wanted);
    RecordStep();
  }
  /// The controls in file order, each below its frame.
  QString Order() {
    QStringList order;
    for (const Ref<IControl>& control : ControlsOf(Designer().Controls())) {
      QString path = qt::ToQString(control->UserName());
      for (const Widget* frame = ContainerOf(*control); frame; frame = frame->Container().get())
        for (const Ref<IControl>& other : ControlsOf(Designer().Controls()))
          if (other->Name() == frame->Name()) path.prepend(qt::ToQString(other->UserName()) + u'/');
      order += path;
    }
    return order.join(u' ');
  }
  void SaveAndOpen() {
    const QString path = PathOf(QStringLiteral("frames.cwf"));
    ASSERT_EQ(bench->Project().Save(path), QString());
    ASSERT_TRUE(bench->OpenProject(path));
  }
};

TEST_F(FramesTest, KeepTheirContentsAfterTheOuterOneIsRenamed) {
  Rename(QStringLiteral("outer"), QStringLiteral("hull"));
  const auto* const wanted = u"Form hull hull/first hull/inner hull/inner/deep hull/last";
  EXPECT_EQ(Order(), wanted);
  SaveAndOpen();
  EXPECT_EQ(Order(), wanted);
}

TEST_F(FramesTest, KeepTheirContentsAfterTheInnerOneIsRenamed) {
  Rename(QStringLiteral("inner"), QStringLiteral("INNER"));
  const auto* const wanted = u"Form outer outer/first outer/last outer/INNER outer/INNER/deep";
  EXPECT_EQ(Order(), wanted);
  SaveAndOpen();
  EXPECT_EQ(Order(), wanted);
}

TEST_F(FramesTest, KeepTheirContentsAfterUndoAndRedoOfARenaming) {
  const QString before = Order();
  Rename(QStringLiteral("outer"), QStringLiteral("hull"));
  Rename(QStringLiteral("hull"), QStringLiteral("hold"));
  const QString after = Order();
  Trigger("mnuUndo");
  Trigger("mnuUndo");
  EXPECT_EQ(Order(), before);
  Trigger("mnuRedo");
  Trigger("mnuRedo");
  EXPECT_EQ(Order(), after);
  SaveAndOpen();
  EXPECT_EQ(Order(), after);
}

TEST_F(ProjectTest, KeepsOtherLineEndsUntilTheScriptChanges) {
  Write(PathOf(QStringLiteral("form.cwf")),
        "[FORM]\r\nControlsNumber= 1\r\n[CONTROLS_1]\r\nType=Label\r\n[SCRIPT]\r\nvbSCRIPT\r\n' a\n' b\r\n");
  const QByteArray saved = OpenedAndSaved(PathOf(QStringLiteral("form.cwf")));
  EXPECT_TRUE(saved.endsWith("[SCRIPT]\r\nvbSCRIPT\r\n' a\n' b\r\n\r\n")) << saved.toStdString();
}

// The library's own tests check the result; here the windows must not fail.
TEST_F(ProjectTest, AcceptsAnyContent) {
  const QByteArray example = Read(Example("well-inspection.cwf"));
  std::srand(20261121);
  for (int round = 0; round < 40; ++round) {
    QByteArray bytes = example;
    for (int change = 0; change < 200; ++change)
      bytes[std::rand() % static_cast<int>(bytes.size())] = static_cast<char>(std::rand());
    bytes.replace(0, 6, "[FORM]");
    Write(PathOf(QStringLiteral("fuzzed.cwf")), bytes);
    ASSERT_EQ(bench->Project().Open(PathOf(QStringLiteral("fuzzed.cwf"))), QString());
    QTest::qWait(1);
    for (const Ref<IControl>& control : ControlsOf(Designer().Controls())) Designer().SetCtrl(control);
    bench->Project().RecordNow();
    bench->Project().Undo();
  }
}

TEST_F(ProjectTest, HandlesFiveThousandControls) {
  QByteArray bytes = "[FORM]\r\nScaleMode= 3\r\nWidth= 800\r\nHeight= 600\r\nControlsNumber= 5000\r\n";
  for (int i = 1; i <= 5000; ++i)
    bytes += QStringLiteral(
                 "[CONTROLS_%1]\r\nType=Label\r\nName=object_%1\r\nUserName=l%1\r\nText=%1\r\n"
                 "Left= %2\r\nTop= %3\r\nWidth= 40\r\nHeight= 20\r\n")
                 .arg(i)
                 .arg(i % 100 * 8)
                 .arg(i / 100 * 12)
                 .toLatin1();
  Write(PathOf(QStringLiteral("many.cwf")), bytes);
  ASSERT_TRUE(bench->OpenProject(PathOf(QStringLiteral("many.cwf"))));
  ASSERT_EQ(Designer().Controls().Count(), 5001);
  Select(QStringLiteral("l4321"));
  Trigger("mnuDelete");
  RecordStep();
  Trigger("mnuUndo");
  EXPECT_EQ(Selected(), QStringLiteral("l4321"));
}

}  // namespace
}  // namespace cardwright::workbench
