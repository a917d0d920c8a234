// SPDX-License-Identifier: MIT
// Catalogues of host commands: files of both kinds, files that are none, looking a command up.

#include <cstdlib>

#include "cardwright/editor/CommandCatalogue.h"
#include "editor/CatalogueFixture.h"
#include "editor/EditorTest.h"

namespace cardwright {
namespace {

class CatalogueTest : public testing::Test {
 protected:
  std::vector<CatalogueRow> Read(const std::string& statements) const {
    return ReadCatalogueFile(MakeCatalogue(folder, statements));
  }
  static std::string Syntaxes(const std::vector<CatalogueRow>& rows) {
    std::string all;
    for (const CatalogueRow& row : rows) all += row.syntax->ToUtf8() + ";";
    return all;
  }

  TempFolder folder;
};

TEST_F(CatalogueTest, RowsInTheirOrderWithoutHiddenOnes) {
  EXPECT_EQ(Syntaxes(Read(SomeCommands())),
            "APPLICATION_REDRAW ;IT'S |x| ;THEME_NUMBER |theme| ;THEME_SELECT |theme| id ;");
}

TEST_F(CatalogueTest, LooksAWordUp) {
  const CommandCatalogue catalogue(Read(SomeCommands()));
  const auto found = catalogue.Lookup(u"theme_number");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->category, u"Request/Themes");
  EXPECT_EQ(found->syntax, u"THEME_NUMBER |theme|  ");
  EXPECT_EQ(found->tip, u"");
  EXPECT_TRUE(catalogue.Lookup(u"APPLICATION_REDRAW")) << "a command without arguments";
  EXPECT_TRUE(catalogue.Lookup(u"it's"));
  EXPECT_FALSE(catalogue.Lookup(u"THEME_NUM"));
  EXPECT_FALSE(catalogue.Lookup(u"SECRET"));
  EXPECT_FALSE(CommandCatalogue().Lookup(u"THEME_NUMBER"));
}

TEST_F(CatalogueTest, FilesThatAreNoCatalogueAreEmpty) {
  EXPECT_TRUE(ReadCatalogueFile(folder.Name("absent.mdb")).empty());
  EXPECT_TRUE(ReadCatalogueFile(folder.Name("")).empty()) << "a folder";
  EXPECT_TRUE(ReadCatalogueFile(folder.Put("empty.mdb", "")).empty());
  EXPECT_TRUE(ReadCatalogueFile(folder.Put("text.mdb", "no database")).empty());
  EXPECT_TRUE(
      ReadCatalogueFile(folder.Put("jet.mdb", std::string_view("\0\1\0\0Standard Jet DB\0", 20))).empty());
  EXPECT_TRUE(ReadCatalogueFile(folder.Put("jet2.mdb", std::string("\0\1\0\0Standard Jet DB", 19) +
                                                           std::string(8192, '\xFF')))
                  .empty());
  EXPECT_TRUE(
      ReadCatalogueFile(folder.Put("sq.db", std::string("SQLite format 3\0", 16) + std::string(4096, '\x7F')))
          .empty());
  EXPECT_TRUE(Read("CREATE TABLE Other (a);").empty());
  EXPECT_TRUE(Read("CREATE TABLE Funzioni (NomeORV TEXT, Request INTEGER);"
                   "INSERT INTO Funzioni VALUES ('A', 0);")
                  .empty())
      << "a column is missing";
}

TEST_F(CatalogueTest, OddValues) {
  const CommandCatalogue catalogue(
      Read("CREATE TABLE Funzioni (NomeORV, Descrizione, Request, Categoria, Ordine, Nascosto);"
           "INSERT INTO Funzioni VALUES (NULL, 'x', 0, 'C', 1, 0), ('B a', 7, NULL, 'C', 'one', 0),"
           "('C', x'FF00', -1, 3, NULL, 0), ('D', 'x', 1, 'C', 1, NULL);"));
  EXPECT_EQ(catalogue.Lookup(u"B")->category, u"Sconosciuta");
  EXPECT_EQ(catalogue.Lookup(u"C")->category, u"Request/3");
  EXPECT_FALSE(catalogue.Lookup(u"D")) << "neither hidden nor not";
}

/// Catalogues that people have, from the folder that CARDWRIGHT_CATALOGUES names.
class JetCatalogueTest : public testing::Test {
 protected:
  void SetUp() override {
    const char* const folder = std::getenv("CARDWRIGHT_CATALOGUES");
    if (!folder) GTEST_SKIP() << "CARDWRIGHT_CATALOGUES does not name a folder with catalogue.mdb";
    path = Text::FromUtf8(folder) + u"/catalogue.mdb";
  }

  Text path;
};

TEST_F(JetCatalogueTest, FifteenRows) {
  const std::vector<CatalogueRow> rows = ReadCatalogueFile(path);
  EXPECT_LE(rows.size(), 15U);
  ASSERT_FALSE(rows.empty());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_TRUE(rows[i].syntax->View().ends_with(u' '));
    const Text& before = *rows[i == 0 ? 0 : i - 1].syntax;
    EXPECT_LE(ToLower(before).View(), ToLower(*rows[i].syntax).View());
  }
  const CommandCatalogue catalogue(rows);
  EXPECT_FALSE(catalogue.ListRows(true).empty());
  EXPECT_FALSE(catalogue.ListRows(false).empty());
}

}  // namespace
}  // namespace cardwright
