// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "cardwright/qt/dialogs/PathLists.h"

namespace cardwright::qt {

namespace {

QString Nul(const char* text) { return QString::fromUtf8(text).replace(u'#', QChar::Null); }

struct ListRow {
  const char* list;   // '#' for NUL
  const char* files;  // separated by ' '
};
constexpr ListRow kLists[] = {
    {"", ""},
    {"/a/b.txt", "/a/b.txt"},
    {"/a#b.txt#c.txt", "/a/b.txt /a/c.txt"},
    {"/#b.txt#c.txt", "/b.txt /c.txt"},
    {"/a##b.txt#", "/a/b.txt"},
    {"/a#b.txt#/c/d.txt", "/a/b.txt /c/d.txt"},
    {"#", ""},
};

}  // namespace

TEST(PathList, SplitsIntoFilesWithTheirFolder) {
  for (const ListRow& row : kLists)
    EXPECT_EQ(SplitPathList(Nul(row.list)).join(u' ').toStdString(), row.files) << row.list;
}

TEST(PathList, JoinsFilesOfOneFolder) {
  EXPECT_EQ(JoinPathList({}), "");
  EXPECT_EQ(JoinPathList({"/a/b.txt"}), "/a/b.txt");
  EXPECT_EQ(JoinPathList({"/a/b.txt", "/a/c.txt"}), Nul("/a#b.txt#c.txt"));
  EXPECT_EQ(JoinPathList({"/b.txt", "/c.txt"}), Nul("/#b.txt#c.txt"));
  EXPECT_EQ(JoinPathList({"/a/b.txt", "/x/c.txt"}), "/a/b.txt");
}

TEST(PathList, IsShownInQuotesAndTypedBackTheSame) {
  struct Row {
    const char *list, *shown;
  };
  const Row rows[] = {
      {"", ""},
      {"/a/b c.txt", "/a/b c.txt"},
      {"/a#b.txt#c d.txt", "\"/a/b.txt\" \"c d.txt\""},
      {"/a#say \"so\".txt#c.txt", "\"/a/say \"\"so\"\".txt\" \"c.txt\""},
      {"/citt\xC3\xA0#\xC3\xA8.txt#b", "\"/citt\xC3\xA0/\xC3\xA8.txt\" \"b\""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ShownPaths(Nul(row.list)).toStdString(), row.shown);
    EXPECT_EQ(TypedPaths(QString::fromUtf8(row.shown)), Nul(row.list)) << row.shown;
  }
}

TEST(PathList, LeavesOtherTextAsItWasTyped) {
  for (const char* text :
       {"\"/a/b.txt\"", "\"/a\" x", "\"/a\" \"b", "a \"b\" \"c\"", "\"\" \"\"", "\"", " /a "})
    EXPECT_EQ(TypedPaths(QString::fromUtf8(text)), QString::fromUtf8(text));
}

TEST(Filters, AreThoseOfTheToolkit) {
  struct Row {
    const char *filter, *names;
  };
  const Row rows[] = {
      {"", ""},
      {"Texts|*.txt", "Texts (*.txt)"},
      {"Texts|*.txt;*.csv|All files|*.*", "Texts (*.txt *.csv)|All files (*)"},
      {"Texts|txt;.csv; *.md ", "Texts (*.txt *.csv *.md)"},
      {"Texts (*.txt)|*.txt", "Texts (*.txt)"},
      {"Pictures (old)|*.bmp", "Pictures (old) (*.bmp)"},
      {"|*.txt", "*.txt (*.txt)"},
      {"Texts|", ""},
      {"Texts", ""},
      {"Texts|*.txt|Odd", "Texts (*.txt)"},
      {"Bad|(*.txt)|Good|*.t?t", "Good (*.t?t)"},
      {"||||", ""},
  };
  for (const Row& row : rows)
    EXPECT_EQ(NameFilters(QString::fromUtf8(row.filter)).join(u'|').toStdString(), row.names) << row.filter;
  EXPECT_EQ(NamePatterns("A|*.txt;*.csv|B|*.txt").join(u' '), "*.txt *.csv");
}

TEST(Filters, GiveTheSuffixOfANewFile) {
  EXPECT_EQ(SuffixOf("Texts (*.txt *.csv)"), "txt");
  EXPECT_EQ(SuffixOf("Archives (*.tar.gz)"), "tar.gz");
  EXPECT_EQ(SuffixOf("All files (*)"), "");
  EXPECT_EQ(SuffixOf("Odd (*.t?t)"), "");
  EXPECT_EQ(SuffixOf(""), "");
}

}  // namespace cardwright::qt
