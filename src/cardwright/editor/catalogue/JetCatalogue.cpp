// SPDX-License-Identifier: MIT
#include <mdbtools.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <string>

#include "cardwright/editor/catalogue/CatalogueReaders.h"

namespace cardwright {

namespace {

constexpr std::array kColumnNames = {"NomeORV", "Descrizione", "Request", "Categoria", "Ordine", "Nascosto"};
constexpr std::size_t kValueSize = MDB_BIND_SIZE;

struct CloseMdb {
  void operator()(MdbHandle* file) const noexcept { mdb_close(file); }
  void operator()(MdbTableDef* table) const noexcept { mdb_free_tabledef(table); }
};
using File = std::unique_ptr<MdbHandle, CloseMdb>;
using Table = std::unique_ptr<MdbTableDef, CloseMdb>;

/// One column of the row that was fetched last.
struct Column {
  std::string value = std::string(kValueSize, '\0');
  int length = 0;

  std::optional<Text> AsText() const {
    if (length <= 0) return std::nullopt;
    return Text::FromUtf8(std::string_view(value.data(), static_cast<std::size_t>(length)));
  }
  double AsNumber() const { return length <= 0 ? 0 : std::strtod(value.c_str(), nullptr); }
};
using Columns = std::array<Column, kColumnNames.size()>;

// The library takes names and paths without promising to leave them alone.
Table OpenTable(MdbHandle& file) {
  std::string name = "Funzioni";
  Table table(mdb_read_table_by_name(&file, name.data(), MDB_TABLE));
  if (!table || !mdb_read_columns(table.get())) return nullptr;
  return table;
}

bool Bind(MdbTableDef& table, Columns& columns) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::string name = kColumnNames[i];
    if (mdb_bind_column_by_name(&table, name.data(), columns[i].value.data(), &columns[i].length) < 1)
      return false;
  }
  return true;
}

CatalogueEntry EntryOf(const Columns& columns) {
  const auto& [name, description, request, category, order, hidden] = columns;
  return {name.AsText(),     description.AsText(), request.AsNumber() != 0,
          category.AsText(), order.AsNumber(),     hidden.AsNumber() != 0};
}

}  // namespace

std::vector<CatalogueEntry> ReadJetCatalogue(const std::filesystem::path& path) {
  const File file(mdb_open(path.c_str(), MDB_NOFLAGS));
  if (!file) return {};
  const Table table = OpenTable(*file);
  Columns columns;
  if (!table || !Bind(*table, columns)) return {};
  std::vector<CatalogueEntry> entries;
  mdb_rewind_table(table.get());
  while (mdb_fetch_row(table.get())) entries.push_back(EntryOf(columns));
  return entries;
}

}  // namespace cardwright
