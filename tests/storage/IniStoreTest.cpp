// SPDX-License-Identifier: MIT
// What others do to a file is noticed at the next call, however they do it.

#include "cardwright/storage/IniStore.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <thread>

#include "automation/Printing.h"
#include "cardwright/storage/CIni.h"
#include "storage/TempFolder.h"

namespace cardwright {
namespace {

using namespace std::chrono_literals;

class IniStoreTest : public testing::Test {
 protected:
  void SetUp() override {
    ini->SetFileName(folder.Put("a.ini", "[A]\r\nk=1\r\n"));
    EXPECT_EQ(Value(), u"1");
  }
  Text Value() const { return ini->GetText(u"A", u"k", u"none"); }
  std::filesystem::path File() const { return folder.File("a.ini"); }
  /// Long enough for the image to be trusted without a look at the file.
  static void Settle() { std::this_thread::sleep_for(60ms); }

  TempFolder folder;
  Ref<CIni> ini = MakeRef<CIni>();
};

using IniStoreNotices = IniStoreTest;
using IniStoreOpen = IniStoreTest;

TEST_F(IniStoreNotices, AChangeOfTheSameSizeWithinOneTickOfTheClock) {
  for (int i = 0; i < 2000; ++i) {
    const std::string value = std::to_string(i % 10);
    folder.Put("a.ini", "[A]\r\nk=" + value + "\r\n");
    ASSERT_EQ(Value().ToUtf8(), value) << i;
  }
}

// Writing through a mapping stamps the file at the first touch of a page and not at the next one.
TEST_F(IniStoreNotices, AChangeThatLeavesTheSameStamp) {
  const int file = ::open(File().c_str(), O_RDWR);
  ASSERT_GE(file, 0);
  void* mapping = ::mmap(nullptr, 9, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  ASSERT_NE(mapping, MAP_FAILED);
  char* digit = static_cast<char*>(mapping) + 7;
  bool isTold = false;
  for (int attempt = 0; attempt < 100 && !isTold; ++attempt) {
    ::msync(mapping, 9, MS_SYNC);  // the next touch is a first one again
    *digit = '3';
    std::this_thread::sleep_for(5ms);  // the clock goes on, by less than the margin
    EXPECT_EQ(Value(), u"3");
    const auto stamp = FileStamp::Of(File());
    if (stamp->IsSettledAt(FileStamp::Now())) continue;  // took too long to tell anything
    *digit = '4';
    isTold = FileStamp::Of(File()) == stamp;
    EXPECT_EQ(Value(), u"4");
  }
  EXPECT_TRUE(isTold);
  ::munmap(mapping, 9);
  ::close(file);
}

TEST_F(IniStoreNotices, AChangeOfTheSameSizeAfterALongTime) {
  Settle();
  EXPECT_EQ(Value(), u"1");
  EXPECT_EQ(Value(), u"1");
  folder.Put("a.ini", "[A]\r\nk=2\r\n");
  EXPECT_EQ(Value(), u"2");
}

TEST_F(IniStoreNotices, AFilePutBackWithItsOldTimesAndSize) {
  struct stat before;
  ASSERT_EQ(::stat(File().c_str(), &before), 0);
  Settle();
  EXPECT_EQ(Value(), u"1");
  folder.Put("a.ini", "[A]\r\nk=2\r\n");
  const timespec times[2] = {before.st_atim, before.st_mtim};
  ASSERT_EQ(::utimensat(AT_FDCWD, File().c_str(), times, 0), 0);
  EXPECT_EQ(Value(), u"2");
}

TEST_F(IniStoreNotices, AFileWithTimesInTheFuture) {
  const timespec times[2] = {{4000000000, 0}, {4000000000, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, File().c_str(), times, 0), 0);
  Settle();
  EXPECT_EQ(Value(), u"1");
  folder.Put("a.ini", "[A]\r\nk=2\r\n");
  ASSERT_EQ(::utimensat(AT_FDCWD, File().c_str(), times, 0), 0);
  EXPECT_EQ(Value(), u"2");
}

TEST_F(IniStoreNotices, AnotherFileInItsPlace) {
  for (const bool isSettled : {false, true}) {
    folder.Put("b.ini", "[A]\r\nk=2\r\n");
    if (isSettled) Settle();
    folder.Put("a.ini", "[A]\r\nk=1\r\n");
    if (isSettled) Settle();
    EXPECT_EQ(Value(), u"1");
    std::filesystem::rename(folder.File("b.ini"), File());
    EXPECT_EQ(Value(), u"2");
  }
}

TEST_F(IniStoreNotices, ALinkThatLeadsElsewhere) {
  folder.Put("b.ini", "[A]\r\nk=2\r\n");
  std::filesystem::create_symlink("a.ini", folder.File("l.ini"));
  ini->SetFileName(folder.Name("l.ini"));
  EXPECT_EQ(Value(), u"1");
  std::filesystem::remove(folder.File("l.ini"));
  std::filesystem::create_symlink("b.ini", folder.File("l.ini"));
  EXPECT_EQ(Value(), u"2");
  ini->WriteValue(u"A", u"k", u"3");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.File("l.ini")));
  EXPECT_EQ(folder.Get("b.ini"), "[A]\r\nk=3\r\n");
}

TEST_F(IniStoreNotices, ThatAFileIsCutGoneOrBack) {
  std::filesystem::resize_file(File(), 0);
  EXPECT_EQ(Value(), u"none");
  std::filesystem::remove(File());
  EXPECT_EQ(Value(), u"none");
  std::filesystem::create_directory(File());
  EXPECT_EQ(Value(), u"none");
  std::filesystem::remove(File());
  folder.Put("a.ini", "[A]\r\nk=3\r\n");
  EXPECT_EQ(Value(), u"3");
}

TEST_F(IniStoreNotices, ChangesOfOthersBeforeItsOwn) {
  Settle();
  EXPECT_EQ(Value(), u"1");
  folder.Put("a.ini", "[A]\r\nk=2\r\nl=5\r\n");
  ini->WriteValue(u"A", u"k", u"3");
  EXPECT_EQ(folder.Get("a.ini"), "[A]\r\nk=3\r\nl=5\r\n");
}

TEST_F(IniStoreNotices, AnotherCodePage) {
  folder.Put("a.ini", "[A]\r\nk=\xE6\r\n\xE6=2\r\n");
  EXPECT_EQ(Value(), u"æ");
  CodePage::Select("windows-1251");
  EXPECT_EQ(Value(), u"ж");
  EXPECT_EQ(ini->GetText(u"A", u"Ж"), u"2");
  CodePage::Select("windows-1252");
  EXPECT_EQ(ini->GetText(u"A", u"Æ"), u"2");
}

TEST_F(IniStoreNotices, WhatAnotherThreadWrites) {
  std::atomic<int> written = 0;
  std::thread writer([&, name = folder.Name("a.ini").ToUtf8()] {
    const auto other = MakeRef<CIni>();
    other->SetFileName(Text::FromUtf8(name));
    for (int i = 1; i <= 60; ++i) {
      other->WriteValue(u"A", u"k", i);
      written = i;
    }
  });
  bool isCurrent = true;
  int seen = 0;
  while (seen < 60) {
    const int before = written;
    const int value = static_cast<int>(Val(Value()));
    isCurrent = isCurrent && value >= std::max(seen, before);
    seen = std::max(seen, value);
    if (!isCurrent) break;
  }
  writer.join();
  EXPECT_TRUE(isCurrent) << seen;
}

TEST_F(IniStoreOpen, KeepsObjectsApartThatUseManyFiles) {
  std::vector<Ref<CIni>> all;
  for (int i = 0; i < 100; ++i) {
    const std::string number = std::to_string(i);
    all.push_back(MakeRef<CIni>());
    all.back()->SetFileName(folder.Put(number, "[A]\r\nk=" + number + "\r\n"));
  }
  for (int i = 0; i < 100; ++i) EXPECT_EQ(all[i]->GetText(u"A", u"k").ToUtf8(), std::to_string(i));
  EXPECT_EQ(Value(), u"1");
}

TEST(FileStampIsSettledAt, AsksForAMarginThatFitsTheClock) {
  constexpr std::int64_t kMillisecond = 1'000'000, kSecond = 1000 * kMillisecond;
  constexpr std::int64_t kFine = 1000 * kSecond + 123 * kMillisecond, kWhole = 1000 * kSecond;
  const struct {
    std::int64_t modified, changed, now;
    bool isSettled;
  } rows[] = {
      {kFine, kFine, kFine, false},
      {kFine, kFine, kFine + 10 * kMillisecond, false},
      {kFine, kFine, kFine + 20 * kMillisecond, true},
      {kWhole, kWhole, kWhole + 2 * kSecond, false},
      {kWhole, kWhole, kWhole + 3 * kSecond, true},
      {0, kFine, kFine + 10 * kMillisecond, false},
      {0, kFine, kFine + 20 * kMillisecond, true},
      {kFine + 9 * kSecond, kFine, kFine + kSecond, true},
      {kFine, kFine + 9 * kSecond, kFine + kSecond, false},
  };
  for (const auto& row : rows) {
    const FileStamp stamp{.modified = row.modified, .changed = row.changed};
    EXPECT_EQ(stamp.IsSettledAt(row.now), row.isSettled)
        << row.modified << " " << row.changed << " " << row.now;
  }
}

}  // namespace
}  // namespace cardwright
