#include "cardwright/storage/IniSnapshot.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"
#include "cardwright/storage/CIni.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

class IniSnapshotTest : public testing::Test {
 protected:
  void SetUp() override { ini->SetFileName(name); }

  TempFolder folder;
  Text name = folder.Put("a.ini", "[A]\r\nk=1\r\n");
  Ref<CIni> ini = MakeRef<CIni>();
};

TEST_F(IniSnapshotTest, ShowsTheFileAsItWasAtItsBegin) {
  {
    const IniSnapshot snapshot(name);
    folder.Put("a.ini", "[A]\r\nk=2\r\n");
    EXPECT_EQ(ini->GetText(u"A", u"k"), u"1");
  }
  EXPECT_EQ(ini->GetText(u"A", u"k"), u"2");
}

TEST_F(IniSnapshotTest, ChangesTheFileAsItIsByThen) {
  const IniSnapshot snapshot(name);
  folder.Put("a.ini", "[A]\r\nk=1\r\nl=new\r\n");
  ini->WriteValue(u"A", u"m", u"x");
  EXPECT_EQ(folder.Get("a.ini"), "[A]\r\nk=1\r\nl=new\r\nm=x\r\n");
  EXPECT_EQ(ini->GetText(u"A", u"l"), u"new");
}

}  // namespace
}  // namespace cardwright
