// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "cardwright/editor/EditorSurface.h"

namespace cardwright {

/// A host command as a catalogue describes it.
struct CatalogueRow {
  std::optional<Text> syntax;  ///< name, a blank, arguments; a row without arguments ends in the blank too
  std::optional<Text> description;
  std::optional<bool> isRequest;
  std::optional<Text> category;
};

/// What is known of one command.
struct CommandDescription {
  Text category;
  Text syntax;
  Text tip;
};

/// The host's commands, read once from a catalogue file and kept in memory. An absent or unreadable file is
/// an empty catalogue.
class CommandCatalogue {
 public:
  CommandCatalogue() = default;
  /// Rows in the order in which lists show them.
  explicit CommandCatalogue(std::vector<CatalogueRow> rows);

  /// The requests or the commands as rows of the pop-up's list.
  const std::vector<CompletionRow>& ListRows(bool requests) const noexcept {
    return requests ? m_Requests : m_Commands;
  }
  /// The first command that begins with the word, whatever the case, and goes on with a blank; none where
  /// there is no such command.
  std::optional<CommandDescription> Lookup(std::u16string_view word) const;

 private:
  std::vector<CatalogueRow> m_Rows;
  std::vector<CompletionRow> m_Commands;
  std::vector<CompletionRow> m_Requests;
};

/// The rows of a catalogue file that are not hidden: the table "Funzioni" of a Jet database or of an SQLite
/// file, whichever it is. Empty where the file cannot be read or has no such table.
std::vector<CatalogueRow> ReadCatalogueFile(std::u16string_view path);

}  // namespace cardwright
