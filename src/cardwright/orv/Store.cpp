#include "cardwright/orv/Store.h"

#include <mutex>

#include "cardwright/automation/Errors.h"
#include "cardwright/orv/ErrorTrap.h"
#include "cardwright/orv/Refusal.h"

namespace cardwright::orv {

namespace {

// A person waits about this long for another program's lock; the library's own twenty seconds are too many.
constexpr const char* kBusyTimeout = "PRAGMA busy_timeout=1500";

// The word TRANSACTION keeps the library from taking these for the end of a transaction of its own: it
// answers a bare COMMIT or ROLLBACK by doing nothing, and the one begun in SQL would stay open.
constexpr const char *kCommit = "COMMIT TRANSACTION", *kRollBack = "ROLLBACK TRANSACTION";

void RegisterDrivers() {
  static std::once_flag once;
  std::call_once(once, GDALAllRegister);
}

GDALDatasetUniquePtr OpenData(const std::string& source, unsigned access) {
  // With the sign "@" drivers that do not know the option stay silent. Without the option, tables made by
  // others stay hidden.
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
  m_SpeaksSqlite = m_IsGeoPackage || driver == "SQLite";
  if (m_SpeaksSqlite) Numbers(kBusyTimeout);
}

OGRFeatureUniquePtr Store::ReadFeature(OGRLayer& layer, std::int64_t id) {
  const ErrorTrap trap;  // some drivers report an id that is not there as a failure
  OGRFeatureUniquePtr feature(layer.GetFeature(id));
  // The library says nothing of a lock here; a query does.
  if (!feature && m_SpeaksSqlite &&
      !Numbers("SELECT 1 FROM " + SqlTable(layer) + " WHERE " + SqlKey(layer) + " = " + std::to_string(id))
           .empty())
    feature.reset(layer.GetFeature(id));
  return feature;
}

void Store::Run(const std::string& statement) {
  ErrorTrap trap;
  OGRLayer* const result = m_Data->ExecuteSQL(statement.c_str(), nullptr, nullptr);
  if (result) m_Data->ReleaseResultSet(result);
  if (trap.HasFailed()) Refuse(trap.Reason());
}

std::vector<std::int64_t> Store::Numbers(const std::string& query) {
  ErrorTrap trap;
  std::vector<std::int64_t> numbers;
  OGRLayer* const result = m_Data->ExecuteSQL(query.c_str(), nullptr, nullptr);
  if (result) {
    while (const OGRFeatureUniquePtr row{result->GetNextFeature()})
      numbers.push_back(row->GetFieldAsInteger64(0));
    m_Data->ReleaseResultSet(result);  // an open cursor would keep other programs from writing
  }
  if (trap.HasFailed()) Refuse(trap.Reason());
  return numbers;
}

WriteTransaction::WriteTransaction(Store& store) : m_Store(store) { m_Store.Run("BEGIN IMMEDIATE"); }

WriteTransaction::~WriteTransaction() {
  if (!m_IsOpen) return;
  try {
    m_Store.Run(kRollBack);
  } catch (const Refusal&) {
    // Where the statement that failed has ended the transaction itself there is nothing left to roll back.
  }
}

void WriteTransaction::Commit() {
  m_Store.Run(kCommit);
  m_IsOpen = false;
}

std::string SqlName(const std::string& name) {
  std::string quoted = "\"";
  for (const char c : name) {
    quoted += c;
    if (c == '"') quoted += c;
  }
  return quoted += '"';
}

std::string SqlTable(OGRLayer& layer) { return SqlName(layer.GetName()); }

std::string SqlKey(OGRLayer& layer) {
  const std::string column = layer.GetFIDColumn();
  return column.empty() ? "rowid" : SqlName(column);
}

}  // namespace cardwright::orv
