// SPDX-License-Identifier: MIT
#include <filesystem>

#include "TestStore.h"

namespace cardwright::orv_tests {

class ExampleOfWells : public TestStore {
 protected:
  /// A copy, so that the example stays unchanged.
  std::string Copy() {
    const std::string path = m_Folder.File("wells.gpkg");
    std::filesystem::copy_file(CARDWRIGHT_SOURCE_DIR "/examples/wells/wells.gpkg", path);
    return path;
  }
};

TEST_F(ExampleOfWells, HasTheThemesAndColumnsThatItsFormNames) {
  const auto host = Open(Copy());
  EXPECT_EQ(Request(*host, "THEME_NAMES"), "wells,aquifers,pipelines,symbols");
  EXPECT_EQ(Request(*host, "THEME_ATTRIBUTE_NAMES |wells| |POINT|"),
            "NAME,OWNER,DEPTH,DIAMETER,STATUS,AQUIFER,USE_CODE,INSPECTED,MONITORED,NOTES");
  EXPECT_EQ(Request(*host, "THEME_ATTRIBUTE |wells| |POINT| 10"), "NOTES,0,500,0");
  EXPECT_EQ(Request(*host, "THEME_ATTRIBUTE_NAMES |aquifers| |POLYGON|"), "NAME,AREA_KM2,CLASS");
  EXPECT_EQ(Request(*host, "THEME_ATTRIBUTE_NAMES |pipelines| |ARC|"), "NAME,MATERIAL,DIAMETER,LAID");
  EXPECT_EQ(Request(*host, "THEME_ATTRIBUTE_NAMES |symbols| ||"), "NAME,THEME,KIND,LABEL,COLOR,FONT,PICTURE");
}

TEST_F(ExampleOfWells, ShowsItsThirdWellInFull) {
  const auto host = Open(Copy());
  const char* const values[][2] = {
      {"NAME", "Fontana della Chiesa"},
      {"OWNER", "Comune di Sant'Andrea"},
      {"DEPTH", "61.25"},
      {"DIAMETER", "300"},
      {"STATUS", "ACTIVE"},
      {"AQUIFER", "Sandstone"},
      {"USE_CODE", "DOM"},
      {"INSPECTED", "2026-05-04"},
      {"MONITORED", "1"},
      {"NOTES", "Acqua limpida. Portata 12 l/s, già provata per 48 ore."},
  };
  Select(*host, "wells", "3");
  for (const auto& [name, value] : values) EXPECT_EQ(Get(*host, "wells", name), value);
}

}  // namespace cardwright::orv_tests
