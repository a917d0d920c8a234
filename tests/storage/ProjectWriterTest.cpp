// SPDX-License-Identifier: MIT
#include "cardwright/storage/ProjectWriter.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>
#include <numeric>
#include <random>

#include "automation/Printing.h"
#include "cardwright/storage/CIni.h"
#include "cardwright/storage/ProjectFile.h"
#include "platform/SyncCount.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

Ref<CIni> IniOf(const Text& fileName) {
  auto opened = MakeRef<CIni>();
  opened->SetFileName(fileName);
  return opened;
}

Ref<Picture> Ramp(int width, int height) {
  std::vector<OleColor> pixels(static_cast<std::size_t>(width * height));
  std::iota(pixels.begin(), pixels.end(), 1);
  return MakeRef<Picture>(width, height, pixels);
}

class ProjectWriterTest : public testing::Test {
 protected:
  TempFolder folder;
  Text name = folder.Put("a.ini", "[A]\r\nk=1\r\n");

  std::string File() const { return folder.Get("a.ini"); }
  bool Exists(const char* file) const { return std::filesystem::exists(folder.File(file)); }
  void MakeReadOnly() const { ::chmod(folder.File("a.ini").c_str(), 0444); }
};

using ProjectWriterEdit = ProjectWriterTest;
using ProjectWriterScript = ProjectWriterTest;
using ProjectWriterImage = ProjectWriterTest;

TEST_F(ProjectWriterTest, ReplacesTheFileOnCommit) {
  ProjectWriter project = ProjectWriter::Create(name);
  project.Section(u"A").Write(u"k", 2);
  project.Section(u"B").Write(u"l", u"x");
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
  EXPECT_EQ(IniOf(name)->GetText(u"A", u"k"), u"1");
  EXPECT_TRUE(project.Commit());
  EXPECT_EQ(File(), "[A]\r\nk= 2\r\n[B]\r\nl=x\r\n");
  EXPECT_EQ(IniOf(name)->GetText(u"A", u"k"), u"2");
}

TEST_F(ProjectWriterTest, WritesTheScriptAfterAllSections) {
  ProjectWriter project = ProjectWriter::Create(name);
  project.WriteScript({u"VBScript", u"x = 1"});
  project.Section(u"FORM").Write(u"ControlsNumber", 0);
  EXPECT_TRUE(project.Commit());
  EXPECT_EQ(File(), "[FORM]\r\nControlsNumber= 0\r\n[SCRIPT]\r\nVBScript\r\nx = 1\r\n");
  EXPECT_EQ(ProjectReader::Open(name)->ScriptText(), u"VBScript\r\nx = 1\r\n");
}

TEST_F(ProjectWriterTest, PassesOverWhatCannotBeStored) {
  ProjectWriter project = ProjectWriter::Create(name);
  SectionWriter section = project.Section(u"A");
  section.Write(u"empty", Variant());
  section.Write(u"", u"no key");
  section.Write(u"object", Variant(Ref<Object>(IniOf(name))));
  section.Write(u"k", true);
  EXPECT_TRUE(project.Commit());
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
}

TEST_F(ProjectWriterTest, WaitsForTheDiskOnce) {
  const auto syncs = [](const std::function<void()>& write) {
    g_SyncCount = 0;
    write();
    return g_SyncCount;
  };
  const auto ini = IniOf(name);
  EXPECT_EQ(syncs([&] { ini->WriteValue(u"A", u"k", u"2"); }), 0);
  EXPECT_EQ(File(), "[A]\r\nk=2\r\n");
  EXPECT_EQ(syncs([&] { ini->DeleteKey(u"A", u"k"); }), 0);
  EXPECT_EQ(syncs([&] { ini->Reset(); }), 0);
  const int once = syncs([&] {
    ProjectWriter project = ProjectWriter::Create(name);
    for (std::int32_t i = 0; i < 10; ++i) project.Section(u"A").Write(u"k", i);
    project.WriteScript({u"VBScript", u"x = 1"});
    EXPECT_TRUE(project.Commit());
  });
  EXPECT_EQ(once, 2);  // the file and its folder
  EXPECT_EQ(syncs([&] { SetShowMenu(name, true); }), once);
}

TEST_F(ProjectWriterTest, FailsForAReadOnlyFile) {
  ProjectWriter project = ProjectWriter::Create(name);
  project.Section(u"A").Write(u"k", u"2");
  MakeReadOnly();
  EXPECT_FALSE(project.Commit());
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
  EXPECT_EQ(IniOf(name)->GetText(u"A", u"k"), u"1");
}

TEST_F(ProjectWriterTest, DoesNotBringBackARemovedFile) {
  ProjectWriter project = ProjectWriter::Create(name);
  project.Section(u"A").Write(u"k", u"2");
  std::filesystem::remove(folder.File("a.ini"));
  EXPECT_FALSE(project.Commit());
  EXPECT_FALSE(Exists("a.ini"));
}

TEST_F(ProjectWriterTest, FailsForAFolderThatTakesNoFile) {
  const Text comm = u"/proc/self/comm";
  ProjectWriter project = ProjectWriter::Create(comm);
  project.Section(u"A").Write(u"k", u"v");
  EXPECT_FALSE(project.Commit());
  EXPECT_EQ(IniOf(comm)->GetText(u"A", u"k"), u"");
}

TEST_F(ProjectWriterTest, FailsForANameThatIsNoPathAndAfterACommit) {
  EXPECT_FALSE(ProjectWriter::Create(u"").Commit());
  EXPECT_FALSE(ProjectWriter::Create(std::u16string_view(u"a\0b", 3)).Commit());
  ProjectWriter project = ProjectWriter::Create(name);
  EXPECT_TRUE(project.Commit());
  EXPECT_FALSE(project.Commit());
}

TEST_F(ProjectWriterTest, KeepsItsPaceOverManyKeys) {
  ProjectWriter project = ProjectWriter::Create(name);
  for (std::int32_t i = 0; i < 10000; ++i)
    project.Section(Text(u"CONTROLS_") + ToText(i / 20)).Write(Text(u"Key") + ToText(i % 20), i);
  EXPECT_TRUE(project.Commit());
  EXPECT_EQ(IniOf(name)->Sections()->Count(), 500);
  EXPECT_EQ(IniOf(name)->GetText(u"controls_499", u"KEY19"), u"9999");
}

TEST_F(ProjectWriterTest, LeavesTheFileWithoutACommit) {
  {
    ProjectWriter project = ProjectWriter::Create(name);
    project.Section(u"A").Write(u"k", u"2");
  }
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
  EXPECT_EQ(IniOf(name)->GetText(u"A", u"k"), u"1");
}

TEST_F(ProjectWriterTest, RemovesTheFileThatItCreatedWithoutACommit) {
  const Text fresh = folder.Name("new.ini");
  {
    ProjectWriter project = ProjectWriter::Create(fresh);
    project.Section(u"A").Write(u"k", u"2");
    EXPECT_TRUE(FileExists(fresh));
  }
  EXPECT_FALSE(FileExists(fresh));
  ProjectWriter project = ProjectWriter::Create(fresh);
  project.Section(u"A").Write(u"k", u"2");
  EXPECT_TRUE(project.Commit());
  EXPECT_EQ(folder.Get("new.ini"), "[A]\r\nk=2\r\n");
}

TEST_F(ProjectWriterEdit, KeepsWhatTheFileHolds) {
  folder.Put("a.ini", "; c\n[A]\r\nk=1\r\n[SCRIPT]\r\nVBScript\r\n");
  ProjectWriter project = ProjectWriter::Edit(name);
  project.Section(u"a").Write(u"l", u"x");
  EXPECT_EQ(IniOf(name)->GetText(u"A", u"l"), u"");
  EXPECT_TRUE(project.Commit(Durability::Crash));
  EXPECT_EQ(File(), "; c\n[A]\r\nk=1\r\nl=x\r\n[SCRIPT]\r\nVBScript\r\n");
}

TEST_F(ProjectWriterEdit, LeavesAFileAloneThatNothingChanges) {
  struct stat before, after;
  ::stat(folder.File("a.ini").c_str(), &before);
  ProjectWriter project = ProjectWriter::Edit(name);
  project.Section(u"A").Write(u"k", u"1");
  project.WriteImage(nullptr);
  EXPECT_TRUE(project.Commit());
  ::stat(folder.File("a.ini").c_str(), &after);
  EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(ProjectWriterEdit, DoesNotCreateAMissingFile) {
  for (const Text& missing : {Text(u""), folder.Name("missing.ini")}) {
    ProjectWriter project = ProjectWriter::Edit(missing);
    project.Section(u"A").Write(u"k", u"2");
    project.WriteScript({u"VBScript", u"x"});
    project.WriteImage(Ramp(16, 16).get());
    EXPECT_FALSE(project.Commit());
  }
  EXPECT_FALSE(Exists("missing.ini"));
}

TEST_F(ProjectWriterEdit, LeavesAReadOnlyFileAlone) {
  MakeReadOnly();
  ProjectWriter project = ProjectWriter::Edit(name);
  project.WriteScript({u"VBScript", u"x"});
  project.WriteImage(Ramp(16, 16).get());
  EXPECT_FALSE(project.Commit());
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
}

TEST_F(ProjectWriterEdit, EqualsWritingKeyByKey) {
  std::mt19937 random(7);
  const Variant values[] = {7, u"text", u"two\r\nlines", u"odd\r\n[S1]\r\nk1=x", true, u"ends\r"};
  for (int round = 0; round < 8; ++round) {
    const std::string start = "; c\n[S1]\nk1=1\n\n; of S2\n[S2]\rk2=2\r\n\nlast";
    const auto single = IniOf(folder.Put("single.ini", start));
    ProjectWriter project = ProjectWriter::Edit(folder.Put("whole.ini", start));
    for (int i = 0; i < 25; ++i) {
      const Text section = Text(u"S") + ToText(static_cast<std::int32_t>(random() % 4));
      const Text key = Text(u"k") + ToText(static_cast<std::int32_t>(random() % 6));
      const Variant& value = values[random() % 6];
      single->WriteValue(section, key, value);
      project.Section(section).Write(key, value);
    }
    ASSERT_TRUE(project.Commit());
    ASSERT_EQ(folder.Get("whole.ini"), folder.Get("single.ini")) << round;
  }
}

TEST_F(ProjectWriterScript, IsEncodedInTheCodePage) {
  ProjectWriter project = ProjectWriter::Edit(folder.Put("a.ini", "[FORM]\r\nText=x\r\n"));
  project.WriteScript({u"VBScript", u"x = \"€\""});
  EXPECT_TRUE(project.Commit());
  EXPECT_EQ(File(), "[FORM]\r\nText=x\r\n[SCRIPT]\r\nVBScript\r\nx = \"\x80\"\r\n");
}

TEST_F(ProjectWriterScript, GrowsByOneLineEndWithEachCycle) {
  Text content = u"x = 1";
  for (int cycle = 0; cycle < 3; ++cycle) {
    ProjectWriter project = ProjectWriter::Create(name);
    project.WriteScript({u"VBScript", content});
    EXPECT_TRUE(project.Commit());
    const ProjectScript read = ProjectReader::Open(name)->Script();
    EXPECT_EQ(read.language, u"VBScript");
    EXPECT_EQ(read.content, content + u"\r\n");
    content = read.content;
  }
}

TEST_F(ProjectWriterImage, IsReadBackAndReplacesTheOneBefore) {
  folder.Put("a.ini", "[FORM]\r\nText=x\r\n");
  const auto save = [&](const Picture* picture) {
    ProjectWriter project = ProjectWriter::Edit(name);
    project.WriteImage(picture);
    EXPECT_TRUE(project.Commit());
  };
  save(Ramp(20, 20).get());
  save(Ramp(16, 16).get());
  EXPECT_EQ(GetFormImage(name)->Pixels(), Ramp(16, 16)->Pixels());
  EXPECT_EQ(IniOf(name)->Keys(u"FORM_IMAGE")->Count(), 256);
  EXPECT_TRUE(File().starts_with("[FORM]\r\nText=x\r\n[FORM_IMAGE]\r\np0= 1\r\np1= 2\r\n"));
  save(nullptr);
  EXPECT_EQ(File(), "[FORM]\r\nText=x\r\n");
}

}  // namespace
}  // namespace cardwright
