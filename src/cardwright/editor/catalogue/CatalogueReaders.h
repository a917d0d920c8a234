// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// A row of a catalogue's table "Funzioni" as it is stored.
struct CatalogueEntry {
  std::optional<Text> name;
  std::optional<Text> description;
  std::optional<bool> isRequest;
  std::optional<Text> category;
  double order = 0;
  std::optional<bool> isHidden;
};

/// @name Readers by the kind of the file. Empty where the file is damaged, or lacks the table or a column.
/// @{
std::vector<CatalogueEntry> ReadJetCatalogue(const std::filesystem::path& path);
std::vector<CatalogueEntry> ReadSqliteCatalogue(const std::filesystem::path& path);
/// @}

}  // namespace cardwright
