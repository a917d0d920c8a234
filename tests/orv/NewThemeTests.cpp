// SPDX-License-Identifier: MIT
#include "TestStore.h"

namespace cardwright::orv_tests {

class NewTheme : public TestStore {
 protected:
  std::string m_Path = MakeGeoPackage();
  Ref<EmbeddedHost> m_Host = Open(m_Path);

  std::string Create(const std::string& name, const std::string& type) {
    return Execute(*m_Host, "THEME_CREATE |" + name + "| |" + type + "|");
  }
};

TEST_F(NewTheme, HasTheRequestedFeatureType) {
  struct Row {
    const char *name, *type, *kind;
    OGRwkbGeometryType geometry;
  };
  const Row rows[] = {{"springs", "POINT", "POINT", wkbPoint},
                      {"ditches è", "arc", "ARC", wkbMultiLineString},
                      {"Field's \"plan\"", "Polygon", "POLYGON", wkbMultiPolygon},
                      {"visits", "", "", wkbNone}};
  for (const Row& row : rows) {
    EXPECT_EQ(Create(row.name, row.type), "") << row.name;
    const auto data = OpenRaw(m_Path);
    OGRLayer* const layer = data->GetLayerByName(row.name);
    ASSERT_TRUE(layer) << row.name;
    EXPECT_EQ(layer->GetGeomType(), row.geometry) << row.name;
    EXPECT_EQ(layer->GetLayerDefn()->GetFieldCount(), 0) << row.name;
  }
  EXPECT_EQ(Request(*m_Host, "THEME_NAMES"),
            "wells,areas,pipes,mixed,notes,springs,ditches è,Field's \"plan\",visits");
  EXPECT_EQ(Request(*m_Host, "THEME_FEATURE_TYPES"), "POINT,POLYGON,ARC,ANY,,POINT,ARC,POLYGON,");
  EXPECT_EQ(Request(*m_Host, "THEME_NUMBER |SPRINGS|"), "1");
  EXPECT_EQ(Request(*m_Host, "THEME_ATTRIBUTE_NUMBER |springs| |POINT|"), "0");
  EXPECT_TRUE(m_Errors.empty());
}

TEST_F(NewTheme, AcceptsFeaturesOfOtherPrograms) {
  EXPECT_EQ(Create("springs", "POINT"), "");
  m_Host = nullptr;
  RunSql(m_Path, "ALTER TABLE springs ADD COLUMN NAME TEXT(20)");
  RunSql(m_Path, "INSERT INTO springs(NAME) VALUES ('Alta')");
  m_Host = Open(m_Path);
  Select(*m_Host, "springs", "1");
  EXPECT_EQ(Get(*m_Host, "springs", "NAME"), "Alta");
}

TEST_F(NewTheme, TakesTheReferenceSystemOfTheStore) {
  RunSql(m_Path, "UPDATE gpkg_geometry_columns SET srs_id = 4326 WHERE table_name = 'areas'");
  m_Host = Open(m_Path);
  EXPECT_EQ(Create("springs", "POINT"), "");
  const auto data = OpenRaw(m_Path);
  const OGRSpatialReference* const reference = data->GetLayerByName("springs")->GetSpatialRef();
  ASSERT_TRUE(reference);
  EXPECT_TRUE(reference->IsGeographic());
}

TEST_F(NewTheme, TrimsItsName) {
  EXPECT_EQ(Create("  springs ", " point "), "");
  EXPECT_EQ(Request(*m_Host, "THEME_NUMBER |springs|"), "1");
}

TEST_F(NewTheme, FailsForAnInvalidNameOrType) {
  struct Row {
    std::string name, type, reason;
  };
  const Row rows[] = {{"", "POINT", "needs a name"},
                      {"   ", "POINT", "needs a name"},
                      {"WELLS", "POINT", "There is a theme \"WELLS\" already."},
                      {"notes", "", "already"},
                      {"a,b", "POINT", "comma"},
                      {"a|b", "POINT", ""},
                      {"a\nb", "POINT", "control"},
                      {std::string("a\0b", 3), "POINT", "control"},
                      {"gpkg_contents", "POINT", "belong to the store"},
                      {"SQLITE_x", "POINT", "belong to the store"},
                      {"rtree_wells_geom", "POINT", "belong to the store"},
                      {"springs", "CIRCLE", "no feature type"},
                      {"springs", "ANY", "no feature type"}};
  for (const Row& row : rows) {
    const std::string reply = Create(row.name, row.type);
    EXPECT_EQ(reply.rfind("ERROR: ", 0), 0u) << row.name << " -> " << reply;
    EXPECT_NE(reply.find(row.reason), std::string::npos) << row.name << " -> " << reply;
  }
  EXPECT_EQ(Request(*m_Host, "THEME_NAMES"), "wells,areas,pipes,mixed,notes");
  EXPECT_EQ(OpenRaw(m_Path)->GetLayerCount(), 5);
  EXPECT_EQ(m_Errors.size(), std::size(rows));
}

TEST_F(NewTheme, FailsInAReadOnlyStore) {
  m_Host = Open(m_Path, EmbeddedHost::Access::ReadOnly);
  EXPECT_EQ(Create("springs", "POINT"), "ERROR: The store is open for reading only.");
}

TEST_F(NewTheme, FailsWhileTheStoreIsLocked) {
  {
    const auto other = OpenRaw(m_Path, true);
    other->ExecuteSQL("BEGIN IMMEDIATE", nullptr, nullptr);
    EXPECT_EQ(Create("springs", "POINT"), "ERROR: Another program has locked the store.");
    other->ExecuteSQL("ROLLBACK TRANSACTION", nullptr, nullptr);
  }
  EXPECT_EQ(Request(*m_Host, "THEME_NUMBER |springs|"), "0");
  EXPECT_EQ(Create("springs", "POINT"), "");
}

TEST_F(NewTheme, FlushesPendingValuesFirst) {
  Select(*m_Host, "wells", "3");
  EXPECT_EQ(Set(*m_Host, "wells", "DIAMETER", "301"), "");
  EXPECT_EQ(Create("springs", "POINT"), "");
  EXPECT_EQ(Stored(m_Path, "wells", 3, "DIAMETER"), "301");
}

TEST_F(NewTheme, KeepsItsNameInOtherFormats) {
  for (const char* driver : {"SQLite", "ESRI Shapefile"}) {
    const std::string path =
        MakeSimple(driver, std::string("other ") + driver,
                   {{"NAME", OFTString, 20}, {"DEPTH", OFTReal}, {"DIAMETER", OFTInteger}});
    m_Host = Open(path);
    EXPECT_EQ(Create("Spring's Heads", "POINT"), "") << driver;
    EXPECT_EQ(Request(*m_Host, "THEME_NUMBER |Spring's Heads|"), "1") << driver;
    m_Host = nullptr;
    EXPECT_TRUE(OpenRaw(path)->GetLayerByName("Spring's Heads")) << driver;
  }
}

TEST_F(NewTheme, FeatureTypesLeaveOutUnlistedThemes) {
  RunSql(m_Path, "CREATE TABLE \"a,b\"(word TEXT)");
  m_Host = Open(m_Path);
  EXPECT_EQ(Request(*m_Host, "THEME_NAMES"), "wells,areas,pipes,mixed,notes");
  EXPECT_EQ(Request(*m_Host, "THEME_FEATURE_TYPES"), "POINT,POLYGON,ARC,ANY,");
}

}  // namespace cardwright::orv_tests
