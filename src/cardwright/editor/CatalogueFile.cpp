// SPDX-License-Identifier: MIT
// Which kind of file a catalogue is, and the order of its rows.

#include <algorithm>
#include <fstream>
#include <tuple>

#include "cardwright/editor/CommandCatalogue.h"
#include "cardwright/editor/catalogue/CatalogueReaders.h"
#include "cardwright/platform/Files.h"

namespace cardwright {

namespace {

constexpr std::string_view kSqliteMark{"SQLite format 3\0", 16};
// Of Jet and of its successor, after a number, which is the version.
constexpr std::size_t kJetMarkAt = 4;
constexpr std::string_view kJetMark = "Standard Jet DB", kAceMark = "Standard ACE DB";

std::string FirstBytes(const std::filesystem::path& path) {
  std::string bytes(32, '\0');
  std::ifstream file(path, std::ios::binary);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

std::vector<CatalogueEntry> ReadEntries(const std::filesystem::path& path) {
  const std::string head = FirstBytes(path);
  if (head.starts_with(kSqliteMark)) return ReadSqliteCatalogue(path);
  const std::string_view mark = std::string_view(head).substr(std::min(kJetMarkAt, head.size()));
  if (mark.starts_with(kJetMark) || mark.starts_with(kAceMark)) return ReadJetCatalogue(path);
  return {};
}

bool ComesBefore(const CatalogueEntry& a, const CatalogueEntry& b) {
  const auto folded = [](const std::optional<Text>& text) { return ToLower(text.value_or(Text())); };
  const Text nameA = folded(a.name), nameB = folded(b.name);
  if (nameA != nameB) return nameA.View() < nameB.View();
  const Text categoryA = folded(a.category), categoryB = folded(b.category);
  if (categoryA != categoryB) return categoryA.View() < categoryB.View();
  return a.order < b.order;
}

}  // namespace

// A name that is missing reads as an empty one, as text that is joined to it makes it.
std::vector<CatalogueRow> ReadCatalogueFile(std::u16string_view path) {
  if (!FileExists(path)) return {};
  std::vector<CatalogueEntry> entries = ReadEntries(ToPath(path));
  std::erase_if(entries, [](const CatalogueEntry& entry) { return entry.isHidden.value_or(true); });
  std::ranges::stable_sort(entries, ComesBefore);
  std::vector<CatalogueRow> rows;
  rows.reserve(entries.size());
  for (CatalogueEntry& entry : entries)
    rows.push_back({entry.name.value_or(Text()) + u" ", std::move(entry.description), entry.isRequest,
                    std::move(entry.category)});
  return rows;
}

}  // namespace cardwright
