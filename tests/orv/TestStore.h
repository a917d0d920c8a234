// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <ogrsf_frmts.h>

#include <filesystem>
#include <string>
#include <vector>

#include "cardwright/orv/EmbeddedHost.h"

namespace cardwright::orv_tests {

/// A folder for the time of a test. Its name has a blank and accents, as users' folders do.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  std::string File(const std::string& name) const { return (m_Path / name).string(); }

 private:
  std::filesystem::path m_Path;
};

/// A column to create.
struct ColumnPlan {
  const char* name;
  OGRFieldType type;
  int width = 0;
  int precision = 0;
  OGRFieldSubType subtype = OFSTNone;
  bool nullable = true;
};

/// Makes and reads stores, always through a handle of its own, as another program would.
class TestStore : public ::testing::Test {
 protected:
  TestStore();

  /// "wells.gpkg": wells (points, a column of every type, features 1 to 3), areas (polygons), pipes (lines),
  /// mixed (any geometry), notes (a table without geometry).
  std::string MakeGeoPackage();
  /// One layer of points in a driver's own format, features as in `wells` but fewer columns.
  std::string MakeSimple(const char* driver, const std::string& name, const std::vector<ColumnPlan>& columns);

  /// A field as the data library prints it, "(null)" for none; a fresh handle each time.
  std::string Stored(const std::string& path, const char* layer, GIntBig id, const char* column);
  /// The geometry of a feature as text.
  std::string Geometry(const std::string& path, const char* layer, GIntBig id);
  /// Runs a statement through a handle of its own.
  void RunSql(const std::string& path, const std::string& statement);

  /// Opens the host and records the errors that it reports.
  Ref<EmbeddedHost> Open(const std::string& path,
                         EmbeddedHost::Access access = EmbeddedHost::Access::ReadWrite);
  std::string Execute(EmbeddedHost& host, const std::string& command);
  std::string Request(EmbeddedHost& host, const std::string& command);
  /// Selects a feature of a theme and makes it the current one.
  void Select(EmbeddedHost& host, const std::string& theme, const std::string& id);
  std::string Get(EmbeddedHost& host, const std::string& theme, const std::string& name);
  /// The reply of THEME_SET_ATTRIBUTE; `value` is the end of the command, with its bars.
  std::string Set(EmbeddedHost& host, const std::string& theme, const std::string& name,
                  const std::string& value);
  /// Flushes the pending values, as OK does.
  std::string Finish(EmbeddedHost& host, const std::string& theme);

  TempFolder m_Folder;
  std::vector<std::string> m_Errors;
};

/// A second open handle of a data set, to inspect it or to hold a lock.
GDALDatasetUniquePtr OpenRaw(const std::string& path, bool update = false);

}  // namespace cardwright::orv_tests
