// SPDX-License-Identifier: MIT
#include <sqlite3.h>

#include <memory>

#include "cardwright/editor/catalogue/CatalogueReaders.h"

namespace cardwright {

namespace {

constexpr int kWriterPatience = 200;  // milliseconds that a writer may hold the file
constexpr char kQuery[] = "SELECT NomeORV, Descrizione, Request, Categoria, Ordine, Nascosto FROM Funzioni";

struct CloseSqlite {
  void operator()(sqlite3* database) const noexcept { sqlite3_close(database); }
  void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, CloseSqlite>;
using Statement = std::unique_ptr<sqlite3_stmt, CloseSqlite>;

Database OpenDatabase(const std::filesystem::path& path) {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
  Database database(opened);
  if (result != SQLITE_OK) return nullptr;
  sqlite3_busy_timeout(database.get(), kWriterPatience);
  // A file from elsewhere must not run functions that its own schema names.
  sqlite3_db_config(database.get(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  return database;
}

Statement Prepare(sqlite3& database) {
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(&database, kQuery, -1, &prepared, nullptr);
  return Statement(prepared);
}

bool IsNull(sqlite3_stmt& row, int column) { return sqlite3_column_type(&row, column) == SQLITE_NULL; }

std::optional<Text> TextAt(sqlite3_stmt& row, int column) {
  if (IsNull(row, column)) return std::nullopt;
  const void* const bytes = sqlite3_column_text(&row, column);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(&row, column));
  return Text::FromUtf8(std::string_view(static_cast<const char*>(bytes), bytes ? size : 0));
}

std::optional<bool> FlagAt(sqlite3_stmt& row, int column) {
  if (IsNull(row, column)) return std::nullopt;
  return sqlite3_column_int(&row, column) != 0;
}

}  // namespace

std::vector<CatalogueEntry> ReadSqliteCatalogue(const std::filesystem::path& path) {
  const Database database = OpenDatabase(path);
  if (!database) return {};
  const Statement rows = Prepare(*database);
  if (!rows) return {};
  std::vector<CatalogueEntry> entries;
  int result = SQLITE_ROW;
  while ((result = sqlite3_step(rows.get())) == SQLITE_ROW) {
    sqlite3_stmt& row = *rows;
    entries.push_back({TextAt(row, 0), TextAt(row, 1), FlagAt(row, 2), TextAt(row, 3),
                       sqlite3_column_double(&row, 4), FlagAt(row, 5)});
  }
  return result == SQLITE_DONE ? entries : std::vector<CatalogueEntry>();
}

}  // namespace cardwright
