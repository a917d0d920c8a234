// SPDX-License-Identifier: MIT
// The changing half of IniFile. Each change leaves the image as it would be after reading the changed
// bytes; the rare one that cannot be sure of that has them read again (m_IsMisread).

#include <algorithm>

#include "cardwright/storage/IniFile.h"

namespace cardwright {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

bool IniFile::Set(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
  const IniName sectionName(section, *m_Page);
  const IniName keyName(key, *m_Page);
  const std::string valueBytes = m_Page->Encode(value);

  const auto* sectionSlot = FindSection(sectionName);
  const auto* keySlot = sectionSlot ? FindKey(sectionSlot->id, keyName) : nullptr;
  bool isChanged = true;
  if (keySlot) {
    isChanged = ReplaceValue(sectionSlot->id, keySlot->id, valueBytes);
  } else {
    const std::string header = "[" + m_Page->Encode(IniName::Trim(section)) + "]";
    const Id id = sectionSlot ? sectionSlot->id : AddSection(sectionName, header);
    AddKey(id, keyName, m_Page->Encode(IniName::Trim(key)) + "=" + valueBytes);
  }
  ReparseIfMisread();
  return isChanged;
}

bool IniFile::DeleteKey(std::u16string_view section, std::u16string_view key) {
  const auto* sectionSlot = FindSection(IniName(section, *m_Page));
  const auto* found = sectionSlot ? FindKey(sectionSlot->id, IniName(key, *m_Page)) : nullptr;
  if (!found) return false;

  const Id sectionId = sectionSlot->id;
  const Id id = found->id;
  m_KeyIndex.Assign(*found, m_Lines[id].next);
  Section& owner = m_Sections[sectionId];
  const auto at = static_cast<std::size_t>(std::ranges::find(owner.lines, id) - owner.lines.begin());
  owner.lines.erase(owner.lines.begin() + static_cast<std::ptrdiff_t>(at));
  FindInsertPoint(owner, owner.insertAt - 1);  // a key is always before the insert point

  CheckSeam(at > 0 ? owner.lines[at - 1] : owner.header);
  m_IsCompact = false;
  ReparseIfMisread();
  return true;
}

bool IniFile::DeleteSection(std::u16string_view section) {
  const auto* found = FindSection(IniName(section, *m_Page));
  if (!found) return false;

  const Id sectionId = found->id;
  Section& removed = m_Sections[sectionId];
  m_SectionIndex.Assign(*found, removed.next);
  for (const Id id : removed.lines) {
    const Line& line = m_Lines[id];
    if (line.kind != LineKind::Key) continue;
    const auto* slot =
        m_KeyIndex.Find(HashOf(line, KeySeed(sectionId)), [&](Id other) { return other == id; });
    if (slot) m_KeyIndex.Assign(*slot, kNone);
  }
  removed.isRemoved = true;
  removed.lines.clear();

  CheckSeam(LastLineBefore(sectionId));
  m_IsCompact = false;
  ReparseIfMisread();
  return true;
}

bool IniFile::Append(std::string_view bytes) {
  if (bytes.empty()) return false;
  Bytes();
  m_Bytes += bytes;
  Parse();
  return true;
}

bool IniFile::Clear() {
  if (Bytes().empty()) return false;
  m_Bytes.clear();
  Parse();
  return true;
}

// The key keeps its spelling and the line its end.
bool IniFile::ReplaceValue(Id section, Id id, std::string_view value) {
  const Line old = m_Lines[id];
  const std::string_view bytes = m_Bytes;
  if (bytes.substr(old.valueBegin, old.ContentEnd() - old.valueBegin) == value) return false;

  std::string text(bytes.substr(old.begin, old.valueBegin - old.begin));
  text += value;
  text += bytes.substr(old.ContentEnd(), old.endSize);
  const std::vector<Line> lines = WriteLines(text);
  m_Lines[id] = lines.front();
  m_Lines[id].section = section;
  m_Lines[id].next = old.next;
  if (lines.size() > 1) {
    Section& owner = m_Sections[section];
    const auto at = static_cast<std::size_t>(std::ranges::find(owner.lines, id) - owner.lines.begin()) + 1;
    InsertLines(section, at, std::span(lines).subspan(1));
  }
  return true;
}

void IniFile::AddKey(Id section, const IniName& name, std::string_view text) {
  const std::size_t at = m_Sections[section].insertAt;
  const Id before = at > 0 ? m_Sections[section].lines[at - 1] : m_Sections[section].header;
  EndLine(before);

  const std::vector<Line> lines = WriteLines(std::string(text).append(kLineEnd));
  const auto id = static_cast<Id>(m_Lines.size());
  m_Lines.push_back(lines.front());
  m_Lines[id].section = section;
  Section& owner = m_Sections[section];
  owner.lines.insert(owner.lines.begin() + static_cast<std::ptrdiff_t>(at), id);
  owner.insertAt = at + 1;
  if (lines.front().kind == LineKind::Key && IsNamed(lines.front(), name)) {
    m_KeyIndex.Insert(name.Hash(KeySeed(section)), id);
  } else {
    m_IsMisread = true;  // a name that begins like a comment, holds a "=" or the like
  }
  if (lines.size() > 1) InsertLines(section, at + 1, std::span(lines).subspan(1));
}

// After the first line of a value.
void IniFile::InsertLines(Id section, std::size_t at, std::span<const Line> lines) {
  Section& owner = m_Sections[section];
  std::vector<Id> ids;
  for (const Line& line : lines) {
    if (line.kind == LineKind::Key || line.kind == LineKind::Header) m_IsMisread = true;
    ids.push_back(static_cast<Id>(m_Lines.size()));
    m_Lines.push_back(line);
    m_Lines.back().section = section;
  }
  owner.lines.insert(owner.lines.begin() + static_cast<std::ptrdiff_t>(at), ids.begin(), ids.end());
  if (at == owner.insertAt) {
    FindInsertPoint(owner, at + ids.size());
  } else {
    owner.insertAt += ids.size();
  }
}

IniFile::Id IniFile::AddSection(const IniName& name, std::string_view text) {
  while (m_Sections.back().isRemoved) m_Sections.pop_back();
  EndLine(LastLineBefore(m_Sections.size()));

  const std::vector<Line> lines = WriteLines(std::string(text).append(kLineEnd));
  const auto section = static_cast<Id>(m_Sections.size());
  m_Sections.emplace_back().header = static_cast<Id>(m_Lines.size());
  m_Lines.push_back(lines.front());
  if (lines.size() == 1 && lines.front().kind == LineKind::Header && IsNamed(lines.front(), name)) {
    m_SectionIndex.Insert(name.Hash(IniName::kSeed), section);
  } else {
    m_IsMisread = true;  // a name with a bracket or a line break in it
    InsertLines(section, 0, std::span(lines).subspan(1));
    m_Sections[section].insertAt = lines.size() - 1;
  }
  return section;
}

std::vector<IniFile::Line> IniFile::WriteLines(std::string_view text) {
  std::size_t at = m_Bytes.size();
  m_Bytes += text;
  m_IsCompact = false;
  std::vector<Line> lines;
  for (; at < m_Bytes.size(); at += lines.back().size) lines.push_back(ScanLine(at));
  return lines;
}

// Only the last line of a file can be without an end.
void IniFile::EndLine(Id id) {
  if (id == kNone || m_Lines[id].endSize != 0) return;
  Line& line = m_Lines[id];
  const std::size_t begin = m_Bytes.size();
  m_Bytes.append(std::string(m_Bytes, line.begin, line.size)).append(kLineEnd);
  m_IsCompact = false;
  line.nameBegin += begin - line.begin;
  line.valueBegin += begin - line.begin;
  line.begin = begin;
  line.endSize = static_cast<std::uint8_t>(kLineEnd.size());
  line.size += kLineEnd.size();
}

// A new key follows the last line that is neither blank nor a comment, since those at the end of a section
// mostly belong to the next one, while foreign lines may be the rest of a value. In a section without such a
// line it follows the comment under the header. No such line follows `from`.
void IniFile::FindInsertPoint(Section& section, std::size_t from) const noexcept {
  const auto kind = [&](std::size_t i) { return m_Lines[section.lines[i]].kind; };
  std::size_t at = from;
  while (at > 0 && (kind(at - 1) == LineKind::Blank || kind(at - 1) == LineKind::Comment)) --at;
  if (at == 0) {
    while (at < section.lines.size() && kind(at) != LineKind::Blank) ++at;
  }
  section.insertAt = at;
}

IniFile::Id IniFile::LastLineBefore(std::size_t section) const noexcept {
  while (section-- > 0) {
    const Section& candidate = m_Sections[section];
    if (candidate.isRemoved) continue;
    if (!candidate.lines.empty()) return candidate.lines.back();
    if (candidate.header != kNone) return candidate.header;
  }
  return kNone;
}

// A lone CR directly before a line of a lone LF would be read as one line end with it.
void IniFile::CheckSeam(Id before) noexcept {
  if (before == kNone) return;
  const Line& line = m_Lines[before];
  if (line.endSize == 1 && m_Bytes[line.ContentEnd()] == '\r') m_IsMisread = true;
}

void IniFile::ReparseIfMisread() {
  if (m_IsMisread) Parse();
}

}  // namespace cardwright
