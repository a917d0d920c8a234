#pragma once

#include <ogrsf_frmts.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright::orv {

/// Error 53 that names the source and the reason.
[[noreturn]] void RaiseNotOpened(const Text& source, const Text& reason);

/// An open data set, and the SQL of those that speak SQLite's.
class Store {
 public:
  /// Error 53 where the source cannot be opened.
  Store(const Text& source, bool readOnly);

  GDALDataset& Data() noexcept { return *m_Data; }
  bool IsReadOnly() const noexcept { return m_IsReadOnly; }
  /// True where the native SQL is SQLite's, so that touched columns can be updated alone.
  bool SpeaksSqlite() const noexcept { return m_SpeaksSqlite; }
  bool IsGeoPackage() const noexcept { return m_IsGeoPackage; }

  /// The feature of that id, found by its key; null where there is none, refused where the store is locked.
  OGRFeatureUniquePtr ReadFeature(OGRLayer& layer, std::int64_t id);
  /// Runs a statement; refused with the library's reason.
  void Run(const std::string& statement);
  /// The first column of what a query finds, as whole numbers.
  std::vector<std::int64_t> Numbers(const std::string& query);

 private:
  GDALDatasetUniquePtr m_Data;
  bool m_IsReadOnly;
  bool m_IsGeoPackage = false;
  bool m_SpeaksSqlite = false;
};

/// A transaction in SQLite's SQL that takes the write lock at once; rolled back unless committed.
class WriteTransaction {
 public:
  explicit WriteTransaction(Store& store);
  ~WriteTransaction();
  WriteTransaction(const WriteTransaction&) = delete;
  WriteTransaction& operator=(const WriteTransaction&) = delete;

  void Commit();

 private:
  Store& m_Store;
  bool m_IsOpen = true;
};

/// A name as SQL quotes it.
std::string SqlName(const std::string& name);
/// The table of a layer, and the column that holds its features' ids.
std::string SqlTable(OGRLayer& layer);
std::string SqlKey(OGRLayer& layer);

}  // namespace cardwright::orv
