// SPDX-License-Identifier: MIT
#include "cardwright/storage/IniFile.h"

#include <algorithm>

#include "cardwright/storage/IniName.h"

namespace cardwright {
namespace {

constexpr bool IsBlank(char c) noexcept { return c == ' ' || c == '\t'; }

}  // namespace

IniFile::IniFile(std::string bytes, const CodePage& page) : m_Page(&page), m_Bytes(std::move(bytes)) {
  Parse();
}

std::optional<std::string_view> IniFile::Get(std::u16string_view section, std::u16string_view key) const {
  const auto* sectionSlot = FindSection(IniName(section, *m_Page));
  if (!sectionSlot) return std::nullopt;
  const auto* keySlot = FindKey(sectionSlot->id, IniName(key, *m_Page));
  if (!keySlot) return std::nullopt;
  const Line& line = m_Lines[keySlot->id];
  std::size_t begin = line.valueBegin;
  std::size_t end = line.ContentEnd();
  while (begin < end && IsBlank(m_Bytes[begin])) ++begin;
  while (begin < end && IsBlank(m_Bytes[end - 1])) --end;
  return std::string_view(m_Bytes).substr(begin, end - begin);
}

std::vector<std::string_view> IniFile::SectionNames() const {
  std::vector<std::string_view> names;
  for (const Section& section : m_Sections) {
    if (section.header != kNone && !section.isRemoved) names.push_back(NameOf(m_Lines[section.header]));
  }
  return names;
}

std::vector<std::string_view> IniFile::KeyNames(std::u16string_view section) const {
  std::vector<std::string_view> names;
  if (const auto* slot = FindSection(IniName(section, *m_Page))) {
    for (const Id id : m_Sections[slot->id].lines) {
      if (m_Lines[id].kind == LineKind::Key) names.push_back(NameOf(m_Lines[id]));
    }
  }
  return names;
}

const std::string& IniFile::Bytes() {
  if (m_IsCompact) return m_Bytes;
  std::string bytes;
  bytes.reserve(m_Bytes.size());
  const auto copy = [&](Id id) {
    Line& line = m_Lines[id];
    const std::size_t begin = bytes.size();
    bytes.append(m_Bytes, line.begin, line.size);
    line.nameBegin += begin - line.begin;  // may wrap around on the way
    line.valueBegin += begin - line.begin;
    line.begin = begin;
  };
  for (const Section& section : m_Sections) {
    if (section.isRemoved) continue;
    if (section.header != kNone) copy(section.header);
    std::ranges::for_each(section.lines, copy);
  }
  m_Bytes = std::move(bytes);
  m_IsCompact = true;
  return m_Bytes;
}

void IniFile::Parse() {
  Bytes();
  m_IsMisread = false;
  m_Lines.clear();
  m_Sections.assign(1, Section());
  for (std::size_t at = 0; at < m_Bytes.size(); at += m_Lines.back().size) {
    const auto id = static_cast<Id>(m_Lines.size());
    Line& line = m_Lines.emplace_back(ScanLine(at));
    if (line.kind == LineKind::Header) {
      m_Sections.emplace_back().header = id;
    } else {
      line.section = static_cast<Id>(m_Sections.size() - 1);
      m_Sections.back().lines.push_back(id);
    }
  }
  for (Section& section : m_Sections) FindInsertPoint(section, section.lines.size());
  BuildIndex();
}

// From the last name to the first, so that of several of one name the first comes out on top.
void IniFile::BuildIndex() {
  const auto add = [](IniNameIndex& index, std::uint32_t hash, Id id, Id& next, auto&& isSame) {
    if (auto* slot = index.Find(hash, isSame)) {
      next = slot->id;
      index.Assign(*slot, id);
    } else {
      index.Insert(hash, id);
    }
  };
  m_SectionIndex.Reset(m_Sections.size());
  m_KeyIndex.Reset(m_Lines.size());
  for (auto section = static_cast<Id>(m_Sections.size()); section-- > 1;) {
    const Line& header = m_Lines[m_Sections[section].header];
    add(m_SectionIndex, HashOf(header, IniName::kSeed), section, m_Sections[section].next,
        [&](Id other) { return AreSame(header, m_Lines[m_Sections[other].header]); });

    const std::vector<Id>& lines = m_Sections[section].lines;
    for (std::size_t i = lines.size(); i-- > 0;) {
      Line& line = m_Lines[lines[i]];
      if (line.kind != LineKind::Key) continue;
      add(m_KeyIndex, HashOf(line, KeySeed(section)), lines[i], line.next,
          [&](Id other) { return AreSame(line, m_Lines[other]); });
    }
  }
}

IniFile::Line IniFile::ScanLine(std::size_t begin) const noexcept {
  Line line{.begin = begin};
  std::size_t end = begin;
  while (end < m_Bytes.size() && m_Bytes[end] != '\r' && m_Bytes[end] != '\n') ++end;
  if (end < m_Bytes.size()) line.endSize = m_Bytes.compare(end, 2, "\r\n") == 0 ? 2 : 1;
  line.size = end + line.endSize - begin;
  line.kind = ClassifyLine(line);
  return line;
}

IniFile::LineKind IniFile::ClassifyLine(Line& line) const noexcept {
  const std::string_view content = std::string_view(m_Bytes).substr(0, line.ContentEnd());
  std::size_t first = line.begin;
  while (first < content.size() && IsBlank(content[first])) ++first;
  if (first == content.size()) return LineKind::Blank;
  if (content[first] == ';') return LineKind::Comment;

  const auto isolateName = [&](std::size_t begin, std::size_t end) {
    while (begin < end && IsBlank(content[begin])) ++begin;
    while (begin < end && IsBlank(content[end - 1])) --end;
    line.nameBegin = begin;
    line.nameSize = end - begin;
  };
  if (content[first] == '[') {
    const std::size_t bracket = content.find(']', first);
    if (bracket != std::string_view::npos) {
      isolateName(first + 1, bracket);
      return LineKind::Header;
    }
  }
  const std::size_t equals = content.find('=', first);
  if (equals == std::string_view::npos) return LineKind::Foreign;
  isolateName(first, equals);
  line.valueBegin = equals + 1;
  return LineKind::Key;
}

std::string_view IniFile::NameOf(const Line& line) const noexcept {
  return std::string_view(m_Bytes).substr(line.nameBegin, line.nameSize);
}

std::uint32_t IniFile::HashOf(const Line& line, std::uint32_t seed) const noexcept {
  for (const char c : NameOf(line)) seed = IniName::Mix(seed, m_Page->Fold(static_cast<unsigned char>(c)));
  return seed;
}

// Keys of all sections share one index, so the section takes part in their hash.
std::uint32_t IniFile::KeySeed(Id section) noexcept { return IniName::kSeed ^ (section + 1) * 0x9E3779B9u; }

bool IniFile::AreSame(const Line& a, const Line& b) const noexcept {
  return a.section == b.section && std::ranges::equal(NameOf(a), NameOf(b), [&](char x, char y) {
           return m_Page->Fold(static_cast<unsigned char>(x)) == m_Page->Fold(static_cast<unsigned char>(y));
         });
}

bool IniFile::IsNamed(const Line& line, const IniName& name) const noexcept {
  return std::ranges::equal(NameOf(line), name.Folded(), [&](char own, char folded) {
    return m_Page->Fold(static_cast<unsigned char>(own)) == static_cast<unsigned char>(folded);
  });
}

const IniNameIndex::Slot* IniFile::FindSection(const IniName& name) const noexcept {
  return m_SectionIndex.Find(name.Hash(IniName::kSeed),
                             [&](Id section) { return IsNamed(m_Lines[m_Sections[section].header], name); });
}

const IniNameIndex::Slot* IniFile::FindKey(Id section, const IniName& name) const noexcept {
  return m_KeyIndex.Find(name.Hash(KeySeed(section)),
                         [&](Id id) { return m_Lines[id].section == section && IsNamed(m_Lines[id], name); });
}

}  // namespace cardwright
