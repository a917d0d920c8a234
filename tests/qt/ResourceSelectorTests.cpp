// SPDX-License-Identifier: MIT
#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/values/QtText.h"
#include "qt/Dialogs.h"
#include "qt/Form.h"

namespace cardwright::qt {

class Resource : public testing::Test {
 protected:
  Resource() {
    for (const char* name : {"a.txt", "b.txt", "picture.png"}) {
      QFile file(folder.filePath(name));
      EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_TRUE(QDir(folder.path()).mkdir("archive"));
    box->SetListener(&listener);
  }
  ~Resource() override { box->SetListener(nullptr); }

  QLineEdit& Edit() { return dynamic_cast<QLineEdit&>(*dynamic_cast<WidgetCore&>(*box).Part(u"edit")); }
  QWidget& Button() { return *dynamic_cast<WidgetCore&>(*box).Part(u"button"); }
  Text InFolder(const char* name) { return FromQString(folder.filePath(name)); }

  /// Presses the button; what the dialog looked like is in `seen`.
  void ChooseByButton(const QString& chosen) {
    Meet<QFileDialog>([&, chosen](QFileDialog& dialog) {
      seen = {dialog.windowTitle(), dialog.directory().absolutePath(), dialog.fileMode(), dialog.acceptMode(),
              dialog.nameFilters()};
      if (chosen.isEmpty()) return dialog.reject();
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(chosen);
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Click(Button(), Button().rect().center());
    QCoreApplication::processEvents();  // the window becomes the active one again
  }
  struct Seen {
    QString title, folder;
    QFileDialog::FileMode mode = QFileDialog::AnyFile;
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    QStringList filters;
  } seen;

  /// Drops files on the field; whether they were taken.
  bool Drop(const QStringList& files, Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& file : files) urls += QUrl::fromLocalFile(file);
    data.setUrls(urls);
    const QPoint at = Edit().rect().center();
    QDragEnterEvent enter(at, possible, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&Edit(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(at, possible, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&Edit(), &drop);
    EXPECT_NE(drop.dropAction(), Qt::MoveAction);
    return drop.isAccepted();
  }

  QTemporaryDir folder;
  Form form;
  Ref<ResourceSelectorWidget> box =
      form.AddAt<ResourceSelectorWidget>(0, u"CardwrightCtrl.ResourceSelector", u"r");
  Ref<Widget> other = form.AddAt(1, u"vb.textbox", u"t");
  Listener listener;
};

TEST_F(Resource, StartsEmptyForOneFileToOpen) {
  EXPECT_EQ(box->Path(), u"");
  EXPECT_FALSE(box->BrowseForFolder());
  EXPECT_FALSE(box->ShowSave());
  EXPECT_FALSE(box->MultiSelect());
  EXPECT_TRUE(box->IsInputTextEnabled());
  EXPECT_FALSE(box->IsLocked());
  EXPECT_EQ(box->Filter() + box->Title() + box->StartFolder(), u"");
}

TEST_F(Resource, FiresChangeOncePerNewPath) {
  box->SetPath(u"/a");
  EXPECT_EQ(listener.Take(), "change");
  box->SetPath(u"/a");
  EXPECT_EQ(listener.Take(), "");
  form.Show();
  box->SetFocus();
  listener.Take();
  QTest::keyClicks(&Edit(), "b");
  EXPECT_EQ(box->Path(), u"b/a");
  EXPECT_EQ(listener.Take(), "key66 char98 change");
}

TEST_F(Resource, AnswersThePathThatWasSetWhateverTheFieldCanShow) {
  const Text list(std::u16string(u"/città\0b.txt\0c.txt", 18));
  const Text odd(std::u16string(u"/a\nb\0", 5));
  for (const Text& path :
       {list, odd, Text(u"\r\n"), Text(std::u16string(3, u'\0')), Text(std::u16string(70000, u'x'))}) {
    box->SetPath(path);
    EXPECT_EQ(box->Path(), path);
  }
  box->SetPath(list);
  EXPECT_EQ(Edit().text(), QString::fromUtf8("\"/città/b.txt\" \"c.txt\""));
  form.Show();
  EXPECT_EQ(box->Path(), list);
  Edit().end(false);
  QTest::keyClick(&Edit(), Qt::Key_Space);
  EXPECT_EQ(box->Path(), list) << "still the same list";
  QTest::keyClick(&Edit(), Qt::Key_X);
  EXPECT_EQ(box->Path(), u"\"/città/b.txt\" \"c.txt\" x");
}

TEST_F(Resource, OpensTheDialogBetweenTheEventsOfItsButton) {
  box->SetTitle(u"Choose a photo");
  box->SetStartFolder(FromQString(folder.path()));
  box->SetFilter(u"Pictures|*.png;*.jpg|All|*.*");
  form.Show();
  ChooseByButton("picture.png");
  EXPECT_EQ(seen.title, "Choose a photo");
  EXPECT_EQ(seen.folder, folder.path());
  EXPECT_EQ(seen.mode, QFileDialog::ExistingFile);
  EXPECT_EQ(seen.acceptMode, QFileDialog::AcceptOpen);
  EXPECT_EQ(seen.filters, QStringList({"Pictures (*.png *.jpg)", "All (*)"}));
  EXPECT_EQ(box->Path(), InFolder("picture.png"));
  EXPECT_EQ(Edit().text(), folder.filePath("picture.png"));
  const std::string told = listener.Take();
  EXPECT_NE(told.find("before change after"), std::string::npos) << told;
  EXPECT_EQ(told.find("click"), std::string::npos) << told;
  EXPECT_NE(told.find("got"), std::string::npos) << told;
  EXPECT_EQ(told.find("lost"), std::string::npos) << told;
}

TEST_F(Resource, KeepsItsPathWhenTheDialogIsCancelled) {
  box->SetPath(u"/nowhere/a.txt");
  form.Show();
  listener.Take();
  ChooseByButton({});
  EXPECT_EQ(box->Path(), u"/nowhere/a.txt");
  const std::string told = listener.Take();
  EXPECT_NE(told.find("before after"), std::string::npos) << told;
}

TEST_F(Resource, BeginsInTheFolderOfItsPathIfThatIsThere) {
  struct Row {
    QString path, start, folder;
  };
  const QString here = folder.path(), inside = folder.filePath("archive");
  const Row rows[] = {{here + "/a.txt", inside, here},
                      {inside + "/gone.txt", here, inside},
                      {"/nowhere/a.txt", inside, inside},
                      {"a.txt", inside, inside},
                      {here + QChar::Null + "a.txt" + QChar::Null + "b.txt", inside, here},
                      {"", inside, inside}};
  form.Show();
  for (const Row& row : rows) {
    box->SetPath(FromQString(row.path));
    box->SetStartFolder(FromQString(row.start));
    ChooseByButton({});
    EXPECT_EQ(seen.folder, row.folder) << row.path.toStdString();
  }
  box->SetPath({});
  for (const Text& gone : {Text(u"/nowhere"), Text(std::u16string(u"/a\0b", 4)), Text(u"")}) {
    box->SetStartFolder(gone);
    ChooseByButton({});
    EXPECT_TRUE(QDir(seen.folder).exists());
  }
}

TEST_F(Resource, TakesSeveralFiles) {
  box->SetMultiSelect(true);
  box->SetStartFolder(FromQString(folder.path()));
  form.Show();
  ChooseByButton("\"a.txt\" \"b.txt\"");
  EXPECT_EQ(seen.mode, QFileDialog::ExistingFiles);
  EXPECT_EQ(box->Path(), Text(FromQString(folder.path() + QChar::Null + "a.txt" + QChar::Null + "b.txt")));
  ChooseByButton("a.txt");
  EXPECT_EQ(box->Path(), InFolder("a.txt"));
}

TEST_F(Resource, CompletesTheNameOfANewFile) {
  box->SetShowSave(true);
  box->SetMultiSelect(true);
  box->SetFilter(u"Texts|*.txt");
  box->SetStartFolder(FromQString(folder.path()));
  form.Show();
  ChooseByButton("new");
  EXPECT_EQ(seen.acceptMode, QFileDialog::AcceptSave);
  EXPECT_EQ(seen.mode, QFileDialog::AnyFile);
  EXPECT_EQ(box->Path(), InFolder("new.txt"));
}

TEST_F(Resource, ChoosesAFolderWhateverElseItIsSetTo) {
  box->SetBrowseForFolder(true);
  box->SetShowSave(true);
  box->SetMultiSelect(true);
  box->SetStartFolder(FromQString(folder.path()));
  form.Show();
  ChooseByButton("archive");
  EXPECT_EQ(seen.mode, QFileDialog::Directory);
  EXPECT_EQ(seen.acceptMode, QFileDialog::AcceptOpen);
  EXPECT_EQ(box->Path(), InFolder("archive"));
  ChooseByButton({});
  EXPECT_EQ(seen.folder, folder.filePath("archive"));
}

TEST_F(Resource, OpensTheDialogByKeysAsAListOpens) {
  form.Show();
  box->SetFocus();
  listener.Take();
  for (const auto& [key, held] :
       {std::pair(Qt::Key_F4, Qt::NoModifier), std::pair(Qt::Key_Down, Qt::AltModifier)}) {
    Meet<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    QTest::keyClick(&Edit(), key, held);
    const std::string told = listener.Take();
    EXPECT_NE(told.find("before after"), std::string::npos) << told;
  }
  QTest::keyClick(&Edit(), Qt::Key_Down);
  EXPECT_EQ(listener.Take(), "key40");
}

TEST_F(Resource, IsOneStopForTheTabKeyAndOneForTheFocus) {
  form.Show();
  box->SetFocus();
  EXPECT_EQ(QApplication::focusWidget(), &Edit());
  EXPECT_EQ(listener.Take(), "got");
  other->SetFocus();
  ChooseByButton({});
  EXPECT_EQ(QApplication::focusWidget(), &Edit());
  QTest::keyClick(&Edit(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &NativeOf(*other));
  QTest::keyClick(&NativeOf(*other), Qt::Key_Backtab);
  EXPECT_EQ(QApplication::focusWidget(), &Edit());
}

TEST_F(Resource, LosesTheFocusOnlyToAnotherWidget) {
  form.Show();
  box->SetFocus();
  listener.Take();
  Meet<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  QTest::keyClick(&Edit(), Qt::Key_F4);
  EXPECT_EQ(listener.Take(), "key115 before after");
  QCoreApplication::processEvents();
  other->SetFocus();
  EXPECT_EQ(listener.Take(), "lost");
}

TEST_F(Resource, IsClickedOnItsField) {
  form.Show();
  Click(Edit(), {10, 10});
  EXPECT_EQ(listener.Take(), "got down1+0@10,10 up1+0@10,10 click");
}

TEST_F(Resource, TakesNoTypingWhenInputTextIsDisabled) {
  box->SetInputTextEnabled(false);
  box->SetStartFolder(FromQString(folder.path()));
  form.Show();
  box->SetFocus();
  QTest::keyClicks(&Edit(), "x");
  EXPECT_EQ(box->Path(), u"");
  ChooseByButton("a.txt");
  EXPECT_EQ(box->Path(), InFolder("a.txt"));
}

TEST_F(Resource, OpensNothingAndTakesNothingWhileItIsLocked) {
  box->SetPath(u"/a");
  box->SetLocked(true);
  form.Show();
  box->SetFocus();
  listener.Take();
  QTest::keyClick(&Edit(), Qt::Key_F4);
  QTest::keyClicks(&Edit(), "x");
  Click(Button(), {5, 5});
  EXPECT_FALSE(QApplication::activeModalWidget());
  EXPECT_FALSE(Drop({folder.filePath("a.txt")}));
  EXPECT_EQ(box->Path(), u"/a");
  const std::string told = listener.Take();
  EXPECT_NE(told.find("click"), std::string::npos) << told;
  EXPECT_EQ(told.find("before"), std::string::npos) << told;
  box->SetLocked(false);
  QTest::keyClicks(&Edit(), "x");
  EXPECT_NE(box->Path(), u"/a");
}

TEST_F(Resource, TakesADroppedFileOfTheKindThatItIsFor) {
  form.Show();
  listener.Take();
  EXPECT_TRUE(Drop({folder.filePath("a.txt")}));
  EXPECT_EQ(box->Path(), InFolder("a.txt"));
  EXPECT_EQ(listener.Take(), "change");
  EXPECT_FALSE(Drop({folder.filePath("archive")}));
  EXPECT_FALSE(Drop({folder.filePath("gone.txt")}));
  EXPECT_FALSE(Drop({folder.filePath("a.txt"), folder.filePath("b.txt")}));
  box->SetMultiSelect(true);
  EXPECT_TRUE(Drop({folder.filePath("a.txt"), folder.filePath("b.txt")}));
  EXPECT_EQ(box->Path(), Text(FromQString(folder.path() + QChar::Null + "a.txt" + QChar::Null + "b.txt")));
  box->SetBrowseForFolder(true);
  EXPECT_FALSE(Drop({folder.filePath("a.txt")}));
  EXPECT_TRUE(Drop({folder.filePath("archive")}, Qt::LinkAction));
  EXPECT_EQ(box->Path(), InFolder("archive"));
}

TEST_F(Resource, CompletesATypedPathByWhatIsThere) {
  box->SetFilter(u"Texts|*.txt");
  form.Show();
  box->SetFocus();
  box->SetPath(FromQString(folder.path() + "/"));
  Edit().end(false);
  QTest::keyClicks(&Edit(), "a");
  ASSERT_TRUE(Edit().completer());
  QAbstractItemView& offered = *Edit().completer()->popup();
  ASSERT_TRUE(QTest::qWaitFor([&] { return offered.isVisible() && offered.model()->rowCount() == 2; }));
  EXPECT_EQ(offered.model()->index(0, 0).data().toString(), "archive");
  EXPECT_EQ(offered.model()->index(1, 0).data().toString(), "a.txt");
  listener.Take();
  QTest::keyClick(&offered, Qt::Key_Down);
  QTest::keyClick(&offered, Qt::Key_Down);
  QTest::keyClick(&offered, Qt::Key_Return);
  EXPECT_EQ(box->Path(), InFolder("a.txt"));
  EXPECT_FALSE(offered.isVisible());
  EXPECT_EQ(listener.Take().find("lost"), std::string::npos);
}

TEST_F(Resource, ColoursItsFieldAndItsBackground) {
  box->SetBackColor(Rgb(255, 255, 0));
  box->SetBackColorBkg(Rgb(0, 0, 255));
  EXPECT_EQ(Edit().palette().color(QPalette::Base), QColor(255, 255, 0));
  EXPECT_EQ(NativeOf(*box).palette().color(QPalette::Window), QColor(0, 0, 255));
  EXPECT_EQ(box->BackColorBkg(), Rgb(0, 0, 255));
}

TEST_F(Resource, CanBeRemovedInItsEventHandlers) {
  for (auto* event : {&listener.onBefore, &listener.onChange, &listener.onAfter}) {
    form.Show();
    box->SetListener(&listener);
    box->SetStartFolder(FromQString(folder.path()));
    *event = [&] { form.surface.Remove(box->Name()); };
    if (event == &listener.onBefore)
      Click(Button());
    else
      ChooseByButton("a.txt");
    EXPECT_EQ(ErrorOf([&] { box->Path(); }), 91);
    *event = nullptr;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    box = form.AddAt<ResourceSelectorWidget>(0, u"CardwrightCtrl.ResourceSelector", u"r");
  }
}

TEST_F(Resource, CanBeRemovedWhileItsDialogIsOpen) {
  form.Show();
  Meet<QFileDialog>([&](QFileDialog& dialog) {
    form.surface.Remove(u"r");
    dialog.reject();
  });
  Click(Button());
  EXPECT_EQ(ErrorOf([&] { box->Path(); }), 91);
}

}  // namespace cardwright::qt
