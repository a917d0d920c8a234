// SPDX-License-Identifier: MIT
#include "cardwright/platform/Files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "automation/Printing.h"
#include "platform/SyncCount.h"

namespace cardwright {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
 protected:
  Files() {
    std::string name = (fs::temp_directory_path() / "cardwright-files-XXXXXX").string();
    m_Folder = ::mkdtemp(name.data());
  }
  ~Files() override {
    fs::permissions(m_Folder, fs::perms::owner_all);
    fs::remove_all(m_Folder);
  }

  fs::path Path(const char* name) const { return m_Folder / name; }
  fs::path Written(const char* name, std::string_view bytes, mode_t mode = 0644) const {
    EXPECT_TRUE(ReplaceFile(Path(name), bytes));
    EXPECT_EQ(::chmod(Path(name).c_str(), mode), 0);
    return Path(name);
  }
  static mode_t Mode(const fs::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
  }
  std::size_t Entries() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(m_Folder), fs::directory_iterator()));
  }

  fs::path m_Folder;
};

TEST_F(Files, ReplaceFileWritesANewFileAndReplacesAnOldOne) {
  const std::string bytes("\0\r\n\xFF", 4);
  EXPECT_TRUE(ReplaceFile(Path("new"), bytes));
  EXPECT_EQ(ReadFile(Path("new")), bytes);
  EXPECT_TRUE(ReplaceFile(Path("new"), ""));
  EXPECT_EQ(ReadFile(Path("new")), "");
  EXPECT_EQ(Entries(), 1u);
}

TEST_F(Files, ReplaceFileSyncsOnlyForPowerLossDurability) {
  const fs::path file = Written("file", "old");
  g_SyncCount = 0;
  EXPECT_TRUE(ReplaceFile(file, "new", Durability::Crash));
  EXPECT_EQ(g_SyncCount, 0);
  EXPECT_EQ(ReadFile(file), "new");
  EXPECT_TRUE(ReplaceFile(file, "newer", Durability::PowerLoss));
  EXPECT_EQ(g_SyncCount, 2);  // the file, then the folder that names it
  EXPECT_EQ(ReadFile(file), "newer");
  EXPECT_EQ(Entries(), 1u);
}

TEST_F(Files, ReplaceFileGivesANewFileTheUsualMode) {
  const mode_t mask = ::umask(027);
  EXPECT_TRUE(ReplaceFile(Path("new"), "x"));
  ::umask(mask);
  EXPECT_EQ(Mode(Path("new")), 0640u);
}

TEST_F(Files, ReplaceFileKeepsTheMode) {
  for (const mode_t mode : {0600u, 0664u, 0755u}) {
    const fs::path file = Written("kept", "old", mode);
    EXPECT_TRUE(ReplaceFile(file, "new"));
    EXPECT_EQ(Mode(file), mode);
    EXPECT_EQ(ReadFile(file), "new");
  }
}

TEST_F(Files, ReplaceFileFollowsLinks) {
  fs::create_directory(Path("sub"));
  fs::create_symlink("sub/target", Path("link"));
  fs::create_symlink("link", Path("chain"));
  EXPECT_TRUE(ReplaceFile(Path("chain"), "through a link to nothing yet"));
  EXPECT_TRUE(ReplaceFile(Path("chain"), "again"));
  EXPECT_EQ(ReadFile(Path("sub/target")), "again");
  EXPECT_TRUE(fs::is_symlink(Path("chain")));
  EXPECT_TRUE(fs::is_symlink(Path("link")));
}

TEST_F(Files, ReplaceFileRefusesLinksInACircle) {
  fs::create_symlink("b", Path("a"));
  fs::create_symlink("a", Path("b"));
  EXPECT_FALSE(ReplaceFile(Path("a"), "x"));
  EXPECT_TRUE(fs::is_symlink(Path("a")));
}

TEST_F(Files, ReplaceFileRefusesAReadOnlyFile) {
  const fs::path file = Written("locked", "old", 0444);
  EXPECT_TRUE(IsReadOnly(FromPath(file)));
  EXPECT_FALSE(ReplaceFile(file, "new"));
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(Entries(), 1u);
}

TEST_F(Files, ReplaceFileRefusesFoldersAndMissingFolders) {
  EXPECT_FALSE(ReplaceFile(m_Folder, "x"));
  EXPECT_FALSE(ReplaceFile(Path("none/file"), "x"));
  EXPECT_FALSE(ReplaceFile("", "x"));
  EXPECT_FALSE(ReplaceFile("/dev/null", "x"));
  EXPECT_EQ(Entries(), 0u);
}

TEST_F(Files, ReplaceFileKeepsTheOldFileInAReadOnlyFolder) {
  const fs::path file = Written("file", "old");
  // A privileged user may write to a closed folder; the kernel's own files are closed to that one too.
  if (::geteuid() == 0) {
    EXPECT_FALSE(ReplaceFile("/proc/version", "x"));
    EXPECT_FALSE(ReplaceFile("/proc/self/comm", "x"));
    return;
  }
  fs::permissions(m_Folder, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_FALSE(ReplaceFile(file, "new"));
  EXPECT_EQ(ReadFile(file), "old");
}

TEST_F(Files, ReadFileFailsForFoldersAndMissingFiles) {
  EXPECT_EQ(ReadFile(Path("none")), std::nullopt);
  EXPECT_EQ(ReadFile(m_Folder), std::nullopt);
}

TEST_F(Files, ReadFileReadsFilesOfUnknownSize) {
  const auto version = ReadFile("/proc/self/status");
  ASSERT_TRUE(version);
  EXPECT_NE(version->find("Name:"), std::string::npos);
}

TEST_F(Files, ReadFileReadsLongFiles) {
  const std::string bytes(300000, 'x');
  EXPECT_EQ(ReadFile(Written("long", bytes)), bytes);
}

TEST_F(Files, FileExistsAndFolderExistsDistinguish) {
  const Text file = FromPath(Written("città.txt", ""));
  EXPECT_TRUE(FileExists(file));
  EXPECT_FALSE(FolderExists(file));
  EXPECT_FALSE(FileExists(FromPath(m_Folder)));
  EXPECT_TRUE(FolderExists(FromPath(m_Folder)));
  EXPECT_FALSE(FileExists(FromPath(Path("none"))));
  EXPECT_FALSE(FolderExists(u""));
  EXPECT_FALSE(IsReadOnly(file));
  EXPECT_FALSE(IsReadOnly(FromPath(Path("none"))));
}

TEST(ToPath, IsEmptyForAPathWithNulOrLoneSurrogate) {
  EXPECT_EQ(ToPath(u"/a/ö\U0001F600"), fs::path("/a/\xC3\xB6\xF0\x9F\x98\x80"));
  EXPECT_TRUE(ToPath(std::u16string_view(u"a\0b", 3)).empty());
  const char16_t surrogates[] = {u'a', 0xD800, u'b', 0};
  EXPECT_TRUE(ToPath(surrogates).empty());
  const char16_t low[] = {0xDC00, 0};
  EXPECT_TRUE(ToPath(low).empty());
  EXPECT_FALSE(FileExists(surrogates));
}

TEST(BuildPath, PutsOneSeparatorBetweenTheParts) {
  const char16_t* cases[][3] = {{u"/a", u"b", u"/a/b"},   {u"/a/", u"b", u"/a/b"}, {u"/a", u"/b", u"/a/b"},
                                {u"/a/", u"/b", u"/a/b"}, {u"/", u"b", u"/b"},     {u"", u"b", u"b"},
                                {u"a", u"", u"a"},        {u"", u"", u""}};
  for (const auto& c : cases) EXPECT_EQ(BuildPath(c[0], c[1]), c[2]);
}

TEST(GetParentFolderName, UsesTheTextOnly) {
  const char16_t* cases[][2] = {{u"/a/b", u"/a"}, {u"/a/b/", u"/a"}, {u"/a", u"/"}, {u"/", u""},
                                {u"a", u""},      {u"a/b", u"a"},    {u"", u""},    {u"a//b", u"a"}};
  for (const auto& c : cases) EXPECT_EQ(GetParentFolderName(c[0]), c[1]) << Text(c[0]).ToUtf8();
}

}  // namespace
}  // namespace cardwright
