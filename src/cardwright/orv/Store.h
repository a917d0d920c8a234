// SPDX-License-Identifier: MIT
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

/// An open data set, and SQL for the formats whose SQL is SQLite's.
class Store {
 public:
  /// Error 53 where the source cannot be opened.
  Store(const Text& source, bool readOnly);

  GDALDataset& Data() noexcept { return *m_Data; }
  bool IsReadOnly() const noexcept { return m_IsReadOnly; }
  /// Whether the native SQL is SQLite's, so that single columns can be updated.
  bool HasSqliteSql() const noexcept { return m_HasSqliteSql; }
  bool IsGeoPackage() const noexcept { return m_IsGeoPackage; }

  /// The feature of that id; null where there is none. Fails where the store is locked.
  OGRFeatureUniquePtr ReadFeature(OGRLayer& layer, std::int64_t id);
  /// Executes a statement. Fails with the library's message.
  void Execute(const std::string& statement);
  /// The first column of a query's result, as whole numbers.
  std::vector<std::int64_t> QueryIntegers(const std::string& query);

 private:
  GDALDatasetUniquePtr m_Data;
  bool m_IsReadOnly;
  bool m_IsGeoPackage = false;
  bool m_HasSqliteSql = false;
};

/// A transaction in SQLite's SQL that takes the write lock at once. It is rolled back unless committed.
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

}  // namespace cardwright::orv
