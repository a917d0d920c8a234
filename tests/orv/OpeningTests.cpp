// SPDX-License-Identifier: MIT
#include <fstream>

#include "TestStore.h"
#include "cardwright/automation/Errors.h"

namespace cardwright::orv_tests {

using EmbeddedHostOpen = TestStore;

Text DescriptionOfOpening(const std::string& path) {
  try {
    EmbeddedHost::Open(Text::FromUtf8(path));
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 53);
    return error.Description();
  }
  ADD_FAILURE() << "opened: " << path;
  return {};
}

TEST_F(EmbeddedHostOpen, RaisesError53ForAMissingStore) {
  const std::string path = m_Folder.File("è qui.gpkg");
  const std::string text = DescriptionOfOpening(path).ToUtf8();
  EXPECT_NE(text.find(path), std::string::npos) << text;
  EXPECT_NE(text.find("No such file"), std::string::npos) << text;
}

TEST_F(EmbeddedHostOpen, RaisesError53ForAFileThatIsNoStore) {
  const std::string path = m_Folder.File("text.gpkg");
  std::ofstream(path) << "not a store at all";
  EXPECT_FALSE(DescriptionOfOpening(path).IsEmpty());
}

TEST_F(EmbeddedHostOpen, RaisesError53ForANameWithNul) {
  EXPECT_THROW(EmbeddedHost::Open(Text(std::u16string_view(u"a\0b.gpkg", 8))), Error);
}

TEST_F(EmbeddedHostOpen, OpensAReadOnlyStoreAndRejectsWrites) {
  const std::string path = MakeGeoPackage();
  const auto host = Open(path, EmbeddedHost::Access::ReadOnly);
  EXPECT_TRUE(host->IsReadOnly());
  Select(*host, "wells", "3");
  EXPECT_EQ(Get(*host, "wells", "NAME"), "Chiesa");
  EXPECT_EQ(Set(*host, "wells", "NAME", "|Nuova|"), "ERROR: The store is open for reading only.");
  EXPECT_EQ(Set(*host, "wells", "DEPTH", "1"), "ERROR: The store is open for reading only.");
  Finish(*host, "wells");
  ASSERT_EQ(m_Errors.size(), 1u);
  EXPECT_EQ(m_Errors[0],
            "Nothing was stored in feature 3 of \"wells\".\r\nThe store is open for reading only.");
  EXPECT_EQ(Stored(path, "wells", 3, "NAME"), "Chiesa");
}

TEST_F(EmbeddedHostOpen, AcceptsUnchangedValuesInAReadOnlyStore) {
  const auto host = Open(MakeGeoPackage(), EmbeddedHost::Access::ReadOnly);
  Select(*host, "wells", "3");
  EXPECT_EQ(Set(*host, "wells", "NAME", "|Chiesa|"), "");
  EXPECT_EQ(Finish(*host, "wells"), "");
  EXPECT_TRUE(m_Errors.empty());
}

TEST_F(EmbeddedHostOpen, OpensFormatsThatCannotBeWrittenReadOnly) {
  const std::string path = m_Folder.File("track.gpx");
  std::ofstream(path) << "<?xml version=\"1.0\"?><gpx version=\"1.1\" creator=\"t\" "
                         "xmlns=\"http://www.topografix.com/GPX/1/1\"><wpt lat=\"45\" lon=\"9\">"
                         "<name>Sorgente</name></wpt></gpx>";
  const auto host = Open(path);
  EXPECT_TRUE(host->IsReadOnly());
  Select(*host, "waypoints", "0");
  EXPECT_EQ(Get(*host, "waypoints", "name"), "Sorgente");
}

}  // namespace cardwright::orv_tests
