#include "cardwright/storage/IniBatch.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>
#include <random>

#include "automation/Printing.h"
#include "cardwright/platform/Files.h"
#include "cardwright/storage/CIni.h"
#include "cardwright/storage/ProjectFile.h"
#include "platform/SyncCount.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

class IniBatchTest : public testing::Test {
 protected:
  TempFolder folder;
  Text name = folder.Put("a.ini", "[A]\r\nk=1\r\n");
  Ref<CIni> ini = Open(name);

  static Ref<CIni> Open(const Text& fileName) {
    auto opened = MakeRef<CIni>();
    opened->SetFileName(fileName);
    return opened;
  }
  std::string File() const { return folder.Get("a.ini"); }
};

using IniBatchCommit = IniBatchTest;
using IniBatchWithoutCommit = IniBatchTest;

TEST_F(IniBatchCommit, PutsEverythingOnDiskAtOnce) {
  IniBatch batch(name);
  ini->WriteValue(u"A", u"k", 2);
  Open(name)->WriteValue(u"B", u"l", u"x");
  EXPECT_EQ(ini->GetText(u"B", u"l"), u"x");
  EXPECT_EQ(Open(name)->GetText(u"A", u"k"), u"2");
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
  EXPECT_TRUE(batch.Commit());
  EXPECT_EQ(File(), "[A]\r\nk= 2\r\n[B]\r\nl=x\r\n");
  ini->WriteValue(u"A", u"k", 3);
  EXPECT_EQ(File(), "[A]\r\nk= 3\r\n[B]\r\nl=x\r\n");
}

TEST_F(IniBatchCommit, TakesTheScriptTailWithIt) {
  IniBatch batch(name);
  ini->Reset();
  ini->WriteValue(u"FORM", u"ControlsNumber", 0);
  WriteScriptSection(name, u"VBScript", u"x = 1");
  EXPECT_EQ(ReadScriptSection(name), u"VBScript\r\nx = 1\r\n");
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
  EXPECT_TRUE(batch.Commit());
  EXPECT_EQ(File(), "[FORM]\r\nControlsNumber= 0\r\n[SCRIPT]\r\nVBScript\r\nx = 1\r\n");
}

TEST_F(IniBatchCommit, WaitsForTheDiskOnceWhereASingleWriteDoesNot) {
  const auto syncs = [](const std::function<void()>& write) {
    g_SyncCount = 0;
    write();
    return g_SyncCount;
  };
  EXPECT_EQ(syncs([&] { ini->WriteValue(u"A", u"k", u"2"); }), 0);
  EXPECT_EQ(File(), "[A]\r\nk=2\r\n");
  EXPECT_EQ(syncs([&] { ini->DeleteKey(u"A", u"k"); }), 0);
  EXPECT_EQ(syncs([&] { ini->Reset(); }), 0);
  const int once = syncs([&] {
    IniBatch batch(name);
    for (std::int32_t i = 0; i < 10; ++i) ini->WriteValue(u"A", u"k", i);
    EXPECT_TRUE(batch.Commit());
  });
  EXPECT_EQ(once, 2);  // the file and its folder
  EXPECT_EQ(syncs([&] { SetShowMenu(name, true); }), once);
  EXPECT_EQ(syncs([&] { WriteScriptSection(name, u"VBScript", u"x = 1"); }), once);
}

TEST_F(IniBatchCommit, LeavesAFileAloneThatNothingChanges) {
  struct stat before, after;
  ::stat(folder.File("a.ini").c_str(), &before);
  IniBatch batch(name);
  ini->WriteValue(u"A", u"k", u"1");
  EXPECT_TRUE(ini->DeleteSection(u"missing"));
  EXPECT_TRUE(batch.Commit());
  ::stat(folder.File("a.ini").c_str(), &after);
  EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(IniBatchCommit, WaitsForTheOutermostOfSeveral) {
  IniBatch outer(name);
  {
    IniBatch inner(name);
    ini->WriteValue(u"A", u"k", u"2");
    EXPECT_TRUE(inner.Commit());
  }
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"2");
  EXPECT_TRUE(outer.Commit());
  EXPECT_EQ(File(), "[A]\r\nk=2\r\n");
}

TEST_F(IniBatchCommit, FailsWhereTheFileCannotBeWritten) {
  {
    IniBatch batch(name);
    ini->WriteValue(u"A", u"k", u"2");
    ::chmod(folder.File("a.ini").c_str(), 0444);
    ini->WriteValue(u"A", u"k", u"3");
    EXPECT_EQ(ini->GetText(u"A", u"k"), u"2");
    EXPECT_FALSE(ini->DeleteKey(u"A", u"k"));
    EXPECT_FALSE(batch.Commit());
  }
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"1");
}

TEST_F(IniBatchCommit, DoesNotBringBackAFileThatIsGone) {
  IniBatch batch(name);
  ini->WriteValue(u"A", u"k", u"2");
  std::filesystem::remove(folder.File("a.ini"));
  EXPECT_FALSE(batch.Commit());
  EXPECT_FALSE(std::filesystem::exists(folder.File("a.ini")));
}

TEST_F(IniBatchCommit, FailsForAFolderThatTakesNoFile) {
  const Text comm = u"/proc/self/comm";
  IniBatch batch(comm);
  Open(comm)->WriteValue(u"A", u"k", u"v");
  EXPECT_EQ(Open(comm)->GetText(u"A", u"k"), u"v");
  EXPECT_FALSE(batch.Commit());
  EXPECT_EQ(Open(comm)->GetText(u"A", u"k"), u"");
}

TEST_F(IniBatchCommit, IsFalseForANameThatIsNoPathAndAfterTheEnd) {
  EXPECT_FALSE(IniBatch(u"").Commit());
  EXPECT_FALSE(IniBatch(std::u16string_view(u"a\0b", 3)).Commit());
  IniBatch batch(name);
  EXPECT_TRUE(batch.Commit());
  EXPECT_FALSE(batch.Commit());
}

TEST_F(IniBatchCommit, EqualsWritingKeyByKey) {
  std::mt19937 random(7);
  const auto pick = [&](std::uint32_t below) { return static_cast<std::int32_t>(random() % below); };
  const auto step = [&](CIni& target, std::mt19937 dice) {
    const auto choose = [&](std::uint32_t below) { return static_cast<std::int32_t>(dice() % below); };
    const Text section = Text(u"S") + ToText(choose(4));
    const Text key = Text(u"k") + ToText(choose(6));
    const Variant values[] = {choose(1000),           u"text", u"two\r\nlines",
                              u"odd\r\n[S1]\r\nk1=x", true,    u"ends\r"};
    switch (choose(10)) {
      case 0: return static_cast<void>(target.DeleteSection(section));
      case 1: return static_cast<void>(target.DeleteKey(section, key));
      default: return target.WriteValue(section, key, values[choose(6)]);
    }
  };
  for (int round = 0; round < 8; ++round) {
    const std::string start = "; c\n[S1]\nk1=1\n\n; of S2\n[S2]\rk2=2\r\n\nlast";
    const auto single = Open(folder.Put("single.ini", start));
    const auto batched = Open(folder.Put("batch.ini", start));
    std::vector<std::mt19937> dice;
    for (int i = 0; i < 25; ++i) dice.emplace_back(static_cast<unsigned>(pick(1000000)));
    for (const auto& die : dice) step(*single, die);
    IniBatch batch(folder.Name("batch.ini"));
    for (const auto& die : dice) step(*batched, die);
    ASSERT_TRUE(batch.Commit());
    ASSERT_EQ(folder.Get("batch.ini"), folder.Get("single.ini")) << round;
  }
}

TEST_F(IniBatchCommit, KeepsItsPaceOverManyKeys) {
  IniBatch batch(name);
  for (std::int32_t i = 0; i < 10000; ++i) {
    ini->WriteValue(Text(u"CONTROLS_") + ToText(i / 20), Text(u"Key") + ToText(i % 20), i);
  }
  EXPECT_TRUE(batch.Commit());
  EXPECT_EQ(Open(name)->Sections()->Count(), 501);
  EXPECT_EQ(ini->GetText(u"controls_499", u"KEY19"), u"9999");
}

TEST_F(IniBatchWithoutCommit, LeavesTheOldFile) {
  {
    IniBatch batch(name);
    ini->Reset();
    ini->WriteValue(u"A", u"k", u"2");
    EXPECT_EQ(ini->GetText(u"A", u"k"), u"2");
  }
  EXPECT_EQ(File(), "[A]\r\nk=1\r\n");
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"1");
}

TEST_F(IniBatchWithoutCommit, TakesBackTheEmptyFileThatNamingItMade) {
  const Text fresh = folder.Name("new.ini");
  {
    IniBatch batch(fresh);
    Open(fresh)->WriteValue(u"A", u"k", u"2");
    EXPECT_TRUE(FileExists(fresh));
  }
  EXPECT_FALSE(FileExists(fresh));
  {
    IniBatch batch(fresh);
    Open(fresh)->WriteValue(u"A", u"k", u"2");
    EXPECT_TRUE(batch.Commit());
  }
  EXPECT_EQ(folder.Get("new.ini"), "[A]\r\nk=2\r\n");
}

TEST_F(IniBatchWithoutCommit, LeavesAnInnerBatchToTheOuter) {
  IniBatch outer(name);
  {
    IniBatch inner(name);
    ini->WriteValue(u"A", u"k", u"2");
  }
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"2");
  EXPECT_TRUE(outer.Commit());
  EXPECT_EQ(File(), "[A]\r\nk=2\r\n");
}

}  // namespace
}  // namespace cardwright
