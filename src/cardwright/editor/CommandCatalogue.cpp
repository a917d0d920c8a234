// SPDX-License-Identifier: MIT
#include "cardwright/editor/CommandCatalogue.h"

#include <utility>

namespace cardwright {

namespace {

constexpr std::u16string_view kUnknownCategory = u"Sconosciuta";

Text CategoryOf(const CatalogueRow& row) {
  if (!row.isRequest) return kUnknownCategory;
  return Text(*row.isRequest ? u"Request/" : u"Command/") + row.category.value_or(Text());
}

std::vector<CompletionRow> RowsOf(const std::vector<CatalogueRow>& rows, bool requests) {
  std::vector<CompletionRow> list;
  for (const CatalogueRow& row : rows)
    if (row.syntax && row.isRequest == requests) list.push_back({Text(Trim(*row.syntax)), requests});
  return list;
}

// Each row ends in a blank, so that the name of a command without arguments is a whole word too.
bool BeginsWithWord(std::u16string_view syntax, std::u16string_view word) {
  return syntax.size() > word.size() && syntax[word.size()] == u' ' &&
         EqualsNoCase(syntax.substr(0, word.size()), word);
}

}  // namespace

CommandCatalogue::CommandCatalogue(std::vector<CatalogueRow> rows)
    : m_Rows(std::move(rows)), m_Commands(RowsOf(m_Rows, false)), m_Requests(RowsOf(m_Rows, true)) {}

std::optional<CommandDescription> CommandCatalogue::Lookup(std::u16string_view word) const {
  for (const CatalogueRow& row : m_Rows) {
    if (!row.syntax || !BeginsWithWord(*row.syntax, word)) continue;
    return CommandDescription{CategoryOf(row), *row.syntax + u" ", row.description.value_or(Text())};
  }
  return std::nullopt;
}

}  // namespace cardwright
