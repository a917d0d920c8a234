// SPDX-License-Identifier: MIT
// The document: loading, reading files, saving, what is asked at the end.

#include <fstream>
#include <iterator>

#include "editor/EditorTest.h"

namespace cardwright {
namespace {

using DocumentTest = EditorTest;
const std::vector<std::string> kUnknownFormatBox = {"Unknown file format !!!|48"};

TEST_F(DocumentTest, NewEditorHasAnEmptyVbscript) {
  EXPECT_EQ(object->FileContent(), u"VBScript\r\nOption Explicit\r\n");
  EXPECT_EQ(object->Language(), u"VBScript");
  EXPECT_FALSE(object->FileModified());
  EXPECT_TRUE(object->SaveButtonVisible());
  EXPECT_TRUE(object->ToolbarVisible());
  EXPECT_EQ(object->OrvInfoSearchPath(), u"");
  EXPECT_EQ(Module().scriptLanguage, u"VBScript");
  EXPECT_EQ(surface->LanguageLabel()->DisplayText(), u"Language: VBScript");
  EXPECT_EQ(surface->PositionLabel()->DisplayText(), u"Line 2, Col 1");
}

TEST_F(DocumentTest, LoadingSplitsAtTheFirstLineEnd) {
  const struct {
    std::u16string_view document, content;
  } cases[] = {
      {u"VBScript\r\nx = 1", u"VBScript\r\nx = 1"},
      {u"jscript\rx", u"jscript\r\nx"},
      {u"JSCRIPT\nx", u"JSCRIPT\r\nx"},
      {u"VBScript\r\r\nx", u"VBScript\r\nx"},
      {u"VBScript\r\n\r\nx", u"VBScript\r\n\r\nx"},
      {u"VBScript\r\n", u"VBScript\r\n"},
      {u"\nVBScript\rx", u"VBScript\r\nx"},
  };
  for (const auto& each : cases) {
    object->SetFileContent(each.document);
    EXPECT_EQ(object->FileContent(), each.content);
    EXPECT_FALSE(object->FileModified());
  }
  EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(DocumentTest, LoadingWithoutALanguageChangesNothing) {
  object->SetFileContent(u"JScript\r\nx");
  for (const std::u16string_view document :
       {u"VBScript", u"x = 1", u"Perl\r\nx", u" VBScript\r\nx", u"\r\nx", u"VBScript\nx\r\ny"}) {
    object->SetFileContent(document);
    EXPECT_EQ(desktop.TakeBoxes(), kUnknownFormatBox);
    EXPECT_EQ(object->FileContent(), u"JScript\r\nx");
  }
}

TEST_F(DocumentTest, LoadingNothingKeepsTheTextAndTakesVbscript) {
  object->SetFileContent(u"JScript\r\nx");
  for (const std::u16string_view document : {u"", u"\r\n", u"\n"}) {
    object->SetFileContent(document);
    EXPECT_EQ(object->FileContent(), u"VBScript\r\nx");
  }
  EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(DocumentTest, NewSources) {
  object->SetNewSource(u"jscript");
  EXPECT_EQ(object->FileContent(), u"jscript\r\n");
  EXPECT_EQ(pad->SelStart(), 0);
  object->SetNewSource(u"Perl");
  EXPECT_EQ(object->Language(), u"jscript") << "a language that is not known is ignored";
  Type("x");
  EXPECT_TRUE(object->FileModified());
  object->SetNewSource(u"VBScript");
  EXPECT_EQ(object->FileContent(), u"VBScript\r\nOption Explicit\r\n");
  EXPECT_FALSE(object->FileModified());
  EXPECT_FALSE(Button(u"undo")->IsEnabled());
  EXPECT_FALSE(Button(u"redo")->IsEnabled());
  EXPECT_FALSE(pad->CanUndo());
}

TEST_F(DocumentTest, ReadsAScriptFile) {
  EXPECT_TRUE(object->ProjectRead(folder.Put("a.vbs", "vbscript\r\nx = 1\r\n")));
  EXPECT_EQ(object->FileContent(), u"vbscript\r\nx = 1\r\n");
  EXPECT_FALSE(object->FileModified());
  EXPECT_FALSE(pad->CanUndo());
  EXPECT_FALSE(object->ProjectRead(folder.Put("b.vbs", "Perl\r\nx = 1\r\n")));
  EXPECT_EQ(desktop.TakeBoxes(), kUnknownFormatBox);
  EXPECT_EQ(object->FileContent(), u"vbscript\r\nx = 1\r\n");
  EXPECT_FALSE(object->ProjectRead(folder.Name("no folder") + u"/c.vbs"));
  EXPECT_EQ(ErrorOf([&] { object->ProjectRead(folder.Name("absent.vbs")); }), 53);
}

TEST_F(DocumentTest, ReadingLeavesTheModifiedFlag) {
  Type("x");
  ASSERT_TRUE(object->FileModified());
  EXPECT_TRUE(object->ProjectRead(folder.Put("a.vbs", "JScript\r\nx\r\n")));
  EXPECT_TRUE(object->FileModified());
}

TEST_F(DocumentTest, EmptyFileIsAnEmptySourceOfTheSameLanguage) {
  object->SetFileContent(u"JScript\r\nx");
  EXPECT_TRUE(object->ProjectRead(folder.Put("empty.js", "")));
  EXPECT_EQ(object->FileContent(), u"JScript\r\n");
  Type("x");
  object->DoSave();
  EXPECT_TRUE(object->FileModified()) << "a new source has no file";
}

TEST_F(DocumentTest, EachSavingAndReadingAddsALineEnd) {
  const Text path = folder.Put("a.vbs", "VBScript\r\nx = 1");
  for (const std::string_view expected : {"VBScript\r\nx = 1\r\n", "VBScript\r\nx = 1\r\n\r\n"}) {
    ASSERT_TRUE(object->ProjectRead(path));
    object->SetFileModified(true);
    object->DoSave();
    EXPECT_FALSE(object->FileModified());
    std::ifstream file(folder.File("a.vbs"), std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), expected);
  }
}

TEST_F(DocumentTest, SavingANewSourceDoesNothing) {
  Type("x");
  object->DoSave();
  EXPECT_TRUE(object->FileModified());
  EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(DocumentTest, AsksAboutChanges) {
  EXPECT_FALSE(object->CheckModify());
  EXPECT_TRUE(desktop.TakeBoxes().empty());
  object->SetFileModified(true);
  desktop.answer = 2;
  EXPECT_TRUE(object->CheckModify());
  EXPECT_EQ(desktop.TakeBoxes(), std::vector<std::string>{"Do you want to save changes ?|547"});
  desktop.answer = 7;
  EXPECT_FALSE(object->CheckModify());
  EXPECT_TRUE(object->FileModified());
  desktop.answer = 6;
  EXPECT_TRUE(object->CheckModify()) << "there is no file to save to";
}

TEST_F(DocumentTest, HostSavesWhereTheButtonIsHidden) {
  object->SetSaveButtonVisible(false);
  object->SetFileModified(true);
  desktop.answer = 6;
  events.clear();
  EXPECT_TRUE(object->CheckModify()) << "a host that ignores the event";
  EXPECT_EQ(events, std::vector<std::string>{"UserSaveChange"});
  onEvent = [](std::u16string_view, Args args) {
    ASSERT_EQ(args.size(), 1U);
    EXPECT_TRUE(ToBoolean(args[0]));
    args[0].Deref() = Variant(false);
  };
  EXPECT_FALSE(object->CheckModify());
  EXPECT_FALSE(object->FileModified());
  object->SetFileModified(true);
  onEvent = [this](std::u16string_view, Args) { object->SetFileModified(false); };
  EXPECT_FALSE(object->CheckModify());
}

TEST_F(DocumentTest, EndKeepsTheLanguageAndPutsThePopupAside) {
  NameSettings(u"app", u"", u"global", u"");
  object->SetFileContent(u"jScript\r\n");
  object->SetFileModified(true);
  desktop.answer = 2;
  EXPECT_FALSE(object->TerminateRequested());
  EXPECT_TRUE(desktop.settings.values.empty());
  desktop.answer = 7;
  EXPECT_TRUE(object->TerminateRequested());
  EXPECT_EQ(desktop.settings.values["app/global/Language"], "jScript");
  EXPECT_TRUE(surface->Popup()->IsVisible());
  EXPECT_EQ(surface->Popup()->Left(), surface->Width());
  EXPECT_EQ(surface->Popup()->Top(), surface->Height());
}

TEST_F(DocumentTest, TextSetByCodeCountsAsAChange) {
  pad->SetContents(u"x");
  EXPECT_TRUE(object->FileModified());
  EXPECT_EQ(events, (std::vector<std::string>{"Change", "SelChange"}));
}

TEST_F(DocumentTest, UndoAndRedoFollowTheButtons) {
  Type("ab");
  EXPECT_TRUE(Button(u"undo")->IsEnabled());
  object->DoUndo();
  EXPECT_EQ(pad->Contents(), u"Option Explicit\r\n");
  EXPECT_TRUE(Button(u"redo")->IsEnabled());
  object->DoRedo();
  EXPECT_EQ(pad->Contents(), u"Option Explicit\r\nab");
  object->DoReplace();
  EXPECT_EQ(pad->Contents(), u"Option Explicit\r\nab");
}

TEST_F(DocumentTest, ToolbarAndButtonHide) {
  object->SetToolbarVisible(false);
  EXPECT_FALSE(surface->Toolbar()->IsVisible());
  EXPECT_EQ(Controls().Top(), 0);
  object->SetToolbarVisible(true);
  EXPECT_GT(Controls().Top(), 0);
  EXPECT_EQ(Controls().Width(), (surface->Width() - 150) / 2);
  EXPECT_EQ(Events().Left(), surface->Width() - Events().Width());
  EXPECT_EQ(pad->Top() + pad->Height(), surface->Height());
  object->SetSaveButtonVisible(false);
  EXPECT_FALSE(Button(u"save")->IsVisible());
  EXPECT_FALSE(Button(u"sep_save")->IsVisible());
}

}  // namespace
}  // namespace cardwright
