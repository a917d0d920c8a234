// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FileSystemObject.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <ctime>

#include "cardwright/automation/Calendar.h"
#include "hosting/Calls.h"
#include "hosting/TestFolder.h"

namespace cardwright::testing {
namespace {

class FileSystemObjectTest : public ::testing::Test {
 protected:
  Variant Call(std::u16string_view member, std::initializer_list<Variant> args = {}) {
    return CallMethod(*m_Files, member, args);
  }
  int ErrorOfCall(std::u16string_view member, std::initializer_list<Variant> args = {}) {
    return ErrorOf([&] { Call(member, args); });
  }
  /// Names in a folder's collection, joined by commas.
  std::string Names(Object& folder, std::u16string_view collection) {
    std::string names;
    const auto walk = ObjectOf(GetProperty(folder, collection))->Enumerate();
    for (Variant entry; walk->Next(entry);)
      names += (names.empty() ? "" : ",") + Utf8Of(GetProperty(RequireObject(entry), u"Name"));
    return names;
  }
  Text Backslashed(const Text& path) { return Replace(path, u"/", u"\\"); }

  TestFolder m_Folder;
  const Ref<FileSystemObject> m_Files = MakeRef<FileSystemObject>();
};

struct PathCase {
  const char16_t* member;
  const char16_t* path;
  const char* result;
};
void PrintTo(const PathCase& c, std::ostream* out) {
  *out << Text(c.member).ToUtf8() << "(" << Text(c.path).ToUtf8() << ")";
}
class PathPartsTest : public ::testing::TestWithParam<PathCase> {};

TEST_P(PathPartsTest, LooksAtTheTextOnly) {
  const auto files = MakeRef<FileSystemObject>();
  EXPECT_EQ(Utf8Of(CallMethod(*files, GetParam().member, {GetParam().path})), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    FileSystemObject, PathPartsTest,
    ::testing::Values(
        PathCase{u"GetFileName", u"/a/b.txt", "b.txt"}, PathCase{u"GetFileName", u"a\\b.txt", "b.txt"},
        PathCase{u"GetFileName", u"/a/b/", "b"}, PathCase{u"GetFileName", u"", ""},
        PathCase{u"GetBaseName", u"/a/b.c.txt", "b.c"}, PathCase{u"GetBaseName", u"/a.d/b", "b"},
        PathCase{u"GetExtensionName", u"/a/b.c.txt", "txt"}, PathCase{u"GetExtensionName", u"/a.d/b", ""},
        PathCase{u"GetParentFolderName", u"/a/b.txt", "/a"},
        PathCase{u"GetParentFolderName", u"\\a\\b\\", "\\a"}, PathCase{u"GetParentFolderName", u"/a", "/"},
        PathCase{u"GetParentFolderName", u"/", ""}, PathCase{u"GetParentFolderName", u"a", ""},
        PathCase{u"GetAbsolutePathName", u"/a/./b/../c", "/a/c"},
        PathCase{u"GetAbsolutePathName", u"\\a\\b\\", "/a/b"}, PathCase{u"GetDriveName", u"/a", ""}));

TEST_F(FileSystemObjectTest, BuildsPathsWithOneSeparator) {
  EXPECT_EQ(Utf8Of(Call(u"BuildPath", {u"/a", u"b"})), "/a/b");
  EXPECT_EQ(Utf8Of(Call(u"BuildPath", {u"/a/", u"b"})), "/a/b");
  EXPECT_EQ(Utf8Of(Call(u"BuildPath", {u"a\\", u"b"})), "a\\b");
  EXPECT_EQ(Utf8Of(Call(u"BuildPath", {u"", u"b"})), "b");
}

TEST_F(FileSystemObjectTest, TakesRelativePathsFromTheCurrentFolder) {
  const Text here = ToText(Call(u"GetAbsolutePathName", {u""}));
  EXPECT_EQ(Utf8Of(Call(u"GetAbsolutePathName", {u"x"})), here.ToUtf8() + "/x");
}

TEST_F(FileSystemObjectTest, DistinguishesFilesFromFolders) {
  const Text file = m_Folder.Write("sub/a.txt", "");
  EXPECT_TRUE(ToBoolean(Call(u"FileExists", {file})));
  EXPECT_TRUE(ToBoolean(Call(u"FileExists", {Backslashed(file)})));
  EXPECT_FALSE(ToBoolean(Call(u"FolderExists", {file})));
  EXPECT_TRUE(ToBoolean(Call(u"FolderExists", {m_Folder / "sub"})));
  EXPECT_FALSE(ToBoolean(Call(u"FileExists", {m_Folder / "sub"})));
  EXPECT_FALSE(ToBoolean(Call(u"FileExists", {u""})));
}

TEST_F(FileSystemObjectTest, RaisesThePlatformsErrorsForFilesThatCannotBeOpened) {
  m_Folder.Write("there", "");
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {m_Folder / "none"}), 53);
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {m_Folder / "none/none"}), 76);
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {m_Folder / "there/none"}), 76);
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {m_Folder.Path()}), 70);
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {u""}), 5);
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {m_Folder / "there", 3}), 5);
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {m_Folder / "there", 1, false, 7}), 5);
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {std::u16string_view(u"a\0b", 3)}), 52);
  EXPECT_EQ(ErrorOfCall(u"CreateTextFile", {m_Folder / "there", false}), 58);
  EXPECT_EQ(ErrorOfCall(u"CreateTextFile", {m_Folder / "none/none"}), 76);
}

TEST_F(FileSystemObjectTest, CreatesTextFilesInEitherEncoding) {
  CallMethod(*ObjectOf(Call(u"CreateTextFile", {m_Folder / "a"})), u"Write", {u"è"});
  EXPECT_EQ(m_Folder.Read("a"), "\xE8");
  CallMethod(*ObjectOf(Call(u"CreateTextFile", {m_Folder / "a", true, true})), u"Write", {u"è"});
  EXPECT_EQ(m_Folder.Read("a"), std::string("\xFF\xFE\xE8\0", 4));
}

TEST_F(FileSystemObjectTest, ReturnsTheFactsOfAFile) {
  const Text path = m_Folder.Write("some name.TXT", "12345");
  const Ref<Object> file = ObjectOf(Call(u"GetFile", {Backslashed(path)}));
  EXPECT_EQ(Utf8Of(Variant(file)), path.ToUtf8());
  EXPECT_EQ(ToText(GetProperty(*file, u"Path")), path);
  EXPECT_EQ(Utf8Of(GetProperty(*file, u"Name")), "some name.TXT");
  EXPECT_EQ(Utf8Of(GetProperty(*file, u"Type")), "TXT File");
  EXPECT_EQ(ToLong(GetProperty(*file, u"Size")), 5);
  EXPECT_EQ(GetProperty(*file, u"Size").Type(), VarType::Long);
  EXPECT_EQ(ToText(GetProperty(*ObjectOf(GetProperty(*file, u"ParentFolder")), u"Path")), m_Folder.Path());
  EXPECT_EQ(ErrorOfCall(u"GetFile", {m_Folder / "none"}), 53);
  EXPECT_EQ(ErrorOfCall(u"GetFile", {m_Folder / "none/none"}), 76);
}

TEST_F(FileSystemObjectTest, ReturnsDateLastModifiedInLocalTime) {
  const Text path = m_Folder.Write("a", "");
  const std::timespec times[2] = {{86'400, 0}, {1'000'000'000, 0}};
  ASSERT_EQ(utimensat(AT_FDCWD, path.ToUtf8().c_str(), times, 0), 0);
  const Variant changed = GetProperty(*ObjectOf(Call(u"GetFile", {path})), u"DateLastModified");
  ASSERT_EQ(changed.Type(), VarType::Date);
  const std::time_t seconds = 1'000'000'000;
  const std::tm local = *std::localtime(&seconds);
  const CalendarTime shown = ToCalendar(ToDate(changed));
  EXPECT_EQ(shown.year, 2001);
  EXPECT_EQ(shown.day, local.tm_mday);
  EXPECT_EQ(shown.hour, local.tm_hour);
  EXPECT_EQ(shown.second, local.tm_sec);
}

TEST_F(FileSystemObjectTest, ProtectsAFileByItsAttribute) {
  const Text path = m_Folder.Write("a", "x");
  const Ref<Object> file = ObjectOf(Call(u"GetFile", {path}));
  EXPECT_EQ(ToLong(GetProperty(*file, u"Attributes")), 0);
  LetProperty(*file, u"Attributes", 1);
  EXPECT_EQ(ToLong(GetProperty(*file, u"Attributes")), 1);
  EXPECT_EQ(ErrorOfCall(u"OpenTextFile", {path, 2}), 70);
  EXPECT_EQ(ErrorOfCall(u"CreateTextFile", {path}), 70);
  EXPECT_EQ(ErrorOfCall(u"DeleteFile", {path}), 70);
  m_Folder.Write("b", "y");
  EXPECT_EQ(ErrorOfCall(u"CopyFile", {m_Folder / "b", path}), 70);
  EXPECT_EQ(m_Folder.Read("a"), "x");
  LetProperty(*file, u"Attributes", 0);
  Call(u"CopyFile", {m_Folder / "b", path});
  EXPECT_EQ(m_Folder.Read("a"), "y");
  LetProperty(*file, u"Attributes", 1);
  Call(u"DeleteFile", {path, true});
  EXPECT_FALSE(m_Folder.Has("a"));
  EXPECT_EQ(ErrorOf([&] { LetProperty(*file, u"Attributes", 1); }), 53);
}

TEST_F(FileSystemObjectTest, KnowsHiddenFilesFoldersAndLinks) {
  m_Folder.Write(".hidden", "");
  std::filesystem::create_symlink(".hidden", (m_Folder / "link").ToUtf8());
  const auto attributes = [&](std::u16string_view get, const char* name) {
    return ToLong(GetProperty(*ObjectOf(Call(get, {m_Folder / name})), u"Attributes"));
  };
  EXPECT_EQ(attributes(u"GetFile", ".hidden"), 2);
  EXPECT_EQ(attributes(u"GetFile", "link"), 1024);
  EXPECT_EQ(attributes(u"GetFolder", "."), 16);
}

TEST_F(FileSystemObjectTest, CopiesToANameOrIntoAFolder) {
  m_Folder.Write("a.txt", "a");
  m_Folder.Write("sub/old.txt", "old");
  Call(u"CopyFile", {m_Folder / "a.txt", m_Folder / "b.txt"});
  EXPECT_EQ(m_Folder.Read("b.txt"), "a");
  Call(u"CopyFile", {m_Folder / "a.txt", m_Folder / "sub/"});
  EXPECT_EQ(m_Folder.Read("sub/a.txt"), "a");
  EXPECT_EQ(ErrorOfCall(u"CopyFile", {m_Folder / "a.txt", m_Folder / "b.txt", false}), 58);
  EXPECT_EQ(ErrorOfCall(u"CopyFile", {m_Folder / "a.txt", m_Folder / "sub"}), 70);
  EXPECT_EQ(ErrorOfCall(u"CopyFile", {m_Folder / "a.txt", m_Folder / "a.txt"}), 70);
  EXPECT_EQ(ErrorOfCall(u"CopyFile", {m_Folder / "none", m_Folder / "c"}), 53);
  EXPECT_EQ(ErrorOfCall(u"CopyFile", {m_Folder / "a.txt", m_Folder / "none/c"}), 76);
  EXPECT_EQ(ErrorOfCall(u"CopyFile", {m_Folder / "a.txt", m_Folder / "none/"}), 76);
}

TEST_F(FileSystemObjectTest, TakesWildcardsInTheLastPart) {
  for (const char* name : {"a1.txt", "a2.txt", "b.dat", "plain"}) m_Folder.Write(name, name);
  std::filesystem::create_directory((m_Folder / "to").ToUtf8());
  Call(u"CopyFile", {m_Folder / "a?.txt", m_Folder / "to"});
  Ref<Object> to = ObjectOf(Call(u"GetFolder", {m_Folder / "to"}));
  EXPECT_EQ(Names(*to, u"Files"), "a1.txt,a2.txt");
  Call(u"MoveFile", {Backslashed(m_Folder / "*.dat"), m_Folder / "to"});
  EXPECT_EQ(Names(*to, u"Files"), "a1.txt,a2.txt,b.dat");
  EXPECT_FALSE(m_Folder.Has("b.dat"));
  Call(u"DeleteFile", {m_Folder / "to/*2*"});
  EXPECT_EQ(Names(*to, u"Files"), "a1.txt,b.dat");
  Call(u"DeleteFile", {m_Folder / "*.*"});
  EXPECT_EQ(Names(*ObjectOf(Call(u"GetFolder", {m_Folder.Path()})), u"Files"), "");
  EXPECT_EQ(Names(*to, u"Files"), "a1.txt,b.dat");
  EXPECT_EQ(ErrorOfCall(u"DeleteFile", {m_Folder / "*.none"}), 53);
  EXPECT_EQ(ErrorOfCall(u"DeleteFile", {m_Folder / "none/*"}), 76);
}

TEST_F(FileSystemObjectTest, MovesOnlyToWhereNothingIs) {
  m_Folder.Write("a", "a");
  m_Folder.Write("b", "b");
  EXPECT_EQ(ErrorOfCall(u"MoveFile", {m_Folder / "a", m_Folder / "b"}), 58);
  EXPECT_EQ(ErrorOfCall(u"MoveFile", {m_Folder / "none", m_Folder / "c"}), 53);
  EXPECT_EQ(ErrorOfCall(u"MoveFile", {m_Folder / "a", m_Folder / "none/c"}), 76);
  Call(u"MoveFile", {m_Folder / "a", m_Folder / "c"});
  EXPECT_EQ(m_Folder.Read("c"), "a");
  EXPECT_FALSE(m_Folder.Has("a"));
}

TEST_F(FileSystemObjectTest, CreatesCopiesMovesAndDeletesFolders) {
  EXPECT_EQ(ToText(GetProperty(*ObjectOf(Call(u"CreateFolder", {m_Folder / "new"})), u"Path")),
            m_Folder / "new");
  EXPECT_EQ(ErrorOfCall(u"CreateFolder", {m_Folder / "new"}), 58);
  EXPECT_EQ(ErrorOfCall(u"CreateFolder", {m_Folder / "none/new"}), 76);
  m_Folder.Write("new/deep/a", "a");
  Call(u"CopyFolder", {m_Folder / "new", m_Folder / "copy"});
  EXPECT_EQ(m_Folder.Read("copy/deep/a"), "a");
  EXPECT_EQ(ErrorOfCall(u"CopyFolder", {m_Folder / "new", m_Folder / "new/inside"}), 70);
  EXPECT_EQ(ErrorOfCall(u"MoveFolder", {m_Folder / "new", m_Folder / "copy"}), 58);
  Call(u"MoveFolder", {m_Folder / "new", m_Folder / "moved"});
  EXPECT_EQ(m_Folder.Read("moved/deep/a"), "a");
  LetProperty(*ObjectOf(Call(u"GetFile", {m_Folder / "moved/deep/a"})), u"Attributes", 1);
  EXPECT_EQ(ErrorOfCall(u"DeleteFolder", {m_Folder / "moved"}), 70);
  Call(u"DeleteFolder", {m_Folder / "moved", true});
  EXPECT_FALSE(m_Folder.Has("moved"));
  EXPECT_EQ(ErrorOfCall(u"DeleteFolder", {m_Folder / "moved"}), 76);
}

TEST_F(FileSystemObjectTest, ReturnsTheFactsOfAFolder) {
  m_Folder.Write("top/b.txt", "12");
  m_Folder.Write("top/a.txt", "345");
  m_Folder.Write("top/sub/c.txt", "6789");
  const Ref<Object> folder = ObjectOf(Call(u"GetFolder", {m_Folder / "top"}));
  EXPECT_EQ(Names(*folder, u"Files"), "a.txt,b.txt");
  EXPECT_EQ(Names(*folder, u"SubFolders"), "sub");
  EXPECT_EQ(ToLong(GetProperty(*folder, u"Size")), 9);
  const Ref<Object> files = ObjectOf(GetProperty(*folder, u"Files"));
  EXPECT_EQ(ToLong(GetProperty(*files, u"Count")), 2);
  EXPECT_EQ(ToLong(GetProperty(*ObjectOf(GetProperty(*files, u"Item", {u"b.txt"})), u"Size")), 2);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*files, u"Item", {u"none"}); }), 53);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*files, u"Add", {u"x"}); }), 438);
  CallMethod(*ObjectOf(GetProperty(*folder, u"SubFolders")), u"Add", {u"more"});
  EXPECT_TRUE(m_Folder.Has("top/more"));
  EXPECT_EQ(ErrorOfCall(u"GetFolder", {m_Folder / "none"}), 76);
}

TEST_F(FileSystemObjectTest, RenamesMovesAndDeletesThroughTheFileItself) {
  m_Folder.Write("a", "text");
  std::filesystem::create_directory((m_Folder / "to").ToUtf8());
  const Ref<Object> file = ObjectOf(Call(u"GetFile", {m_Folder / "a"}));
  LetProperty(*file, u"Name", u"b");
  EXPECT_TRUE(m_Folder.Has("b"));
  EXPECT_EQ(ErrorOf([&] { LetProperty(*file, u"Name", u"to/b"); }), 5);
  CallMethod(*file, u"Copy", {m_Folder / "c"});
  EXPECT_EQ(ErrorOf([&] { CallMethod(*file, u"Copy", {m_Folder / "c", false}); }), 58);
  CallMethod(*file, u"Move", {m_Folder / "to/"});
  EXPECT_EQ(ToText(GetProperty(*file, u"Path")), m_Folder / "to/b");
  EXPECT_EQ(Utf8Of(CallMethod(*ObjectOf(CallMethod(*file, u"OpenAsTextStream")), u"ReadAll")), "text");
  CallMethod(*file, u"Delete");
  EXPECT_FALSE(m_Folder.Has("to/b"));
}

TEST_F(FileSystemObjectTest, HasSpecialFoldersAndTemporaryNames) {
  const Text temporary = ToText(Call(u"GetSpecialFolder", {2}));
  EXPECT_EQ(temporary.ToUtf8(), std::filesystem::temp_directory_path().string());
  EXPECT_TRUE(ToBoolean(Call(u"FolderExists", {Call(u"GetSpecialFolder", {0})})));
  EXPECT_TRUE(ToBoolean(Call(u"FolderExists", {Call(u"GetSpecialFolder", {1})})));
  EXPECT_EQ(ErrorOfCall(u"GetSpecialFolder", {3}), 5);
  const std::string name = Utf8Of(Call(u"GetTempName"));
  EXPECT_TRUE(name.starts_with("rad") && name.ends_with(".tmp") && name.size() == 12) << name;
  EXPECT_NE(Utf8Of(Call(u"GetTempName")), name);
}

}  // namespace
}  // namespace cardwright::testing
