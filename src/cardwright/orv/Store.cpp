// SPDX-License-Identifier: MIT
#include "cardwright/orv/Store.h"

#include <mutex>

#include "cardwright/automation/Errors.h"
#include "cardwright/orv/CommandError.h"
#include "cardwright/orv/ErrorTrap.h"
#include "cardwright/orv/Sql.h"

namespace cardwright::orv {

namespace {

// How long a user is made to wait for another program's lock. The library's own twenty seconds are too long.
constexpr const char* kBusyTimeout = "PRAGMA busy_timeout=1500";

// With the word TRANSACTION the library passes these on. It takes a bare COMMIT or ROLLBACK for the end of a
// transaction of its own, does nothing, and leaves the one that SQL began open.
constexpr const char *kCommit = "COMMIT TRANSACTION", *kRollBack = "ROLLBACK TRANSACTION";

void RegisterDrivers() {
  static std::once_flag once;
  std::call_once(once, GDALAllRegister);
}

GDALDatasetUniquePtr OpenData(const std::string& source, unsigned access) {
  // Without this option tables that other programs made stay hidden. The sign "@" keeps drivers that do not
  // know it from complaining.
  const char* const options[] = {"@LIST_ALL_TABLES=YES", nullptr};
  return GDALDatasetUniquePtr(
      GDALDataset::Open(source.c_str(), GDAL_OF_VECTOR | access, nullptr, options, nullptr));
}

}  // namespace

void RaiseNotOpened(const Text& source, const Text& reason) {
  Raise(static_cast<int>(ErrorNumber::FileNotFound),
        u"The feature store \"" + source + u"\" cannot be opened. " + reason);
}

Store::Store(const Text& source, bool readOnly) : m_IsReadOnly(readOnly) {
  RegisterDrivers();
  if (source.View().find(u'\0') != std::u16string_view::npos)
    RaiseNotOpened(source, u"Its name holds a NUL character.");
  const std::string name = source.ToUtf8();
  ErrorTrap trap;
  if (!readOnly) m_Data = OpenData(name, GDAL_OF_UPDATE);
  if (!m_Data) {
    ErrorTrap readTrap;
    m_Data = OpenData(name, GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR);
    m_IsReadOnly = true;
    if (!m_Data) RaiseNotOpened(source, readTrap.Reason());
  }
  const std::string driver = m_Data->GetDriverName();
  m_IsGeoPackage = driver == "GPKG";
  m_HasSqliteSql = m_IsGeoPackage || driver == "SQLite";
  if (m_HasSqliteSql) QueryIntegers(kBusyTimeout);
}

OGRFeatureUniquePtr Store::ReadFeature(OGRLayer& layer, std::int64_t id) {
  const ErrorTrap trap;  // some drivers report a missing feature as a failure
  OGRFeatureUniquePtr feature(layer.GetFeature(id));
  // The library does not report a lock here; a query does.
  if (!feature && m_HasSqliteSql &&
      !QueryIntegers("SELECT 1 FROM " + SqlTable(layer) + " WHERE " + SqlKey(layer) + " = " +
                     std::to_string(id))
           .empty())
    feature.reset(layer.GetFeature(id));
  return feature;
}

void Store::Execute(const std::string& statement) {
  ErrorTrap trap;
  OGRLayer* const result = m_Data->ExecuteSQL(statement.c_str(), nullptr, nullptr);
  if (result) m_Data->ReleaseResultSet(result);
  if (trap.HasFailed()) Fail(trap.Reason());
}

std::vector<std::int64_t> Store::QueryIntegers(const std::string& query) {
  ErrorTrap trap;
  std::vector<std::int64_t> numbers;
  OGRLayer* const result = m_Data->ExecuteSQL(query.c_str(), nullptr, nullptr);
  if (result) {
    while (const OGRFeatureUniquePtr row{result->GetNextFeature()})
      numbers.push_back(row->GetFieldAsInteger64(0));
    m_Data->ReleaseResultSet(result);  // an open cursor would keep other programs from writing
  }
  if (trap.HasFailed()) Fail(trap.Reason());
  return numbers;
}

WriteTransaction::WriteTransaction(Store& store) : m_Store(store) { m_Store.Execute("BEGIN IMMEDIATE"); }

WriteTransaction::~WriteTransaction() {
  if (!m_IsOpen) return;
  try {
    m_Store.Execute(kRollBack);
  } catch (const CommandError&) {
    // The statement that failed may have ended the transaction itself.
  }
}

void WriteTransaction::Commit() {
  m_Store.Execute(kCommit);
  m_IsOpen = false;
}

}  // namespace cardwright::orv
