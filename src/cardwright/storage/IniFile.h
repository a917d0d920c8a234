// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cardwright/storage/CodePage.h"
#include "cardwright/storage/IniName.h"
#include "cardwright/storage/IniNameIndex.h"

namespace cardwright {

/// The text of one INI file in memory: its lines as bytes, an index of its sections and keys by name, and the
/// operations of the platform's private profile calls. Names match whatever their case; the first section of
/// a name and the first key of a name in it count. Blanks and tabs around names and values do not belong to
/// them, quotes do. A line that is no section header and no key, be it a comment (";"), foreign text or
/// nothing, is kept byte by byte in its place.
class IniFile {
 public:
  explicit IniFile(std::string bytes = {}, const CodePage& page = CodePage::Current());

  const CodePage& Page() const noexcept { return *m_Page; }

  /// Bytes of the value; none where there is no such section or key. Valid until the next change.
  std::optional<std::string_view> Get(std::u16string_view section, std::u16string_view key) const;
  /// Names in file order, a repeated one as often as the file has it. Valid until the next change.
  std::vector<std::string_view> SectionNames() const;
  std::vector<std::string_view> KeyNames(std::u16string_view section) const;

  /// Writes one key. A new key goes after the last one of its section, a new section to the end. A value
  /// with a line break is written unchanged, so only its first line reads back. Like the other changes it
  /// returns false if the file has the value already.
  bool Set(std::u16string_view section, std::u16string_view key, std::u16string_view value);
  /// Removes the first key of that name.
  bool DeleteKey(std::u16string_view section, std::u16string_view key);
  /// Removes the first section of that name with all its lines.
  bool DeleteSection(std::u16string_view section);
  /// Appends bytes, whatever they are.
  bool Append(std::string_view bytes);
  bool Clear();

  /// The whole file. Valid until the next change.
  const std::string& Bytes();

 private:
  using Id = std::uint32_t;
  static constexpr Id kNone = IniNameIndex::kNone;

  enum class LineKind : std::uint8_t { Header, Key, Comment, Blank, Foreign };
  struct Line {
    std::size_t begin = 0;  // in m_Bytes
    std::size_t size = 0;   // with the line end
    std::size_t nameBegin = 0;
    std::size_t nameSize = 0;
    std::size_t valueBegin = 0;  // after the "="
    Id section = 0;
    Id next = kNone;           // further key of the same name in the section
    std::uint8_t endSize = 0;  // of the line end
    LineKind kind = LineKind::Foreign;

    std::size_t ContentEnd() const noexcept { return begin + size - endSize; }
  };
  struct Section {
    Id header = kNone;  // none for the lines before the first header
    Id next = kNone;    // further section of the same name
    bool isRemoved = false;
    std::size_t insertAt = 0;  // where a new key goes among the lines
    std::vector<Id> lines;
  };

  void Parse();
  void BuildIndex();
  Line ScanLine(std::size_t begin) const noexcept;
  LineKind ClassifyLine(Line& line) const noexcept;
  std::string_view NameOf(const Line& line) const noexcept;
  std::uint32_t HashOf(const Line& line, std::uint32_t seed) const noexcept;
  bool AreSame(const Line& a, const Line& b) const noexcept;
  bool IsNamed(const Line& line, const IniName& name) const noexcept;
  const IniNameIndex::Slot* FindSection(const IniName& name) const noexcept;
  const IniNameIndex::Slot* FindKey(Id section, const IniName& name) const noexcept;
  static std::uint32_t KeySeed(Id section) noexcept;

  std::vector<Line> WriteLines(std::string_view text);
  void EndLine(Id id);
  bool ReplaceValue(Id section, Id id, std::string_view value);
  void AddKey(Id section, const IniName& name, std::string_view text);
  Id AddSection(const IniName& name, std::string_view text);
  void InsertLines(Id section, std::size_t at, std::span<const Line> lines);
  void FindInsertPoint(Section& section, std::size_t from) const noexcept;
  Id LastLineBefore(std::size_t section) const noexcept;
  void CheckSeam(Id before) noexcept;
  void ReparseIfMisread();

  const CodePage* m_Page;
  std::string m_Bytes;       // what the lines refer to
  bool m_IsCompact = true;   // m_Bytes is the file; else it holds lines out of order and old ones
  bool m_IsMisread = false;  // parsing the bytes again would find other lines
  std::vector<Line> m_Lines;
  std::vector<Section> m_Sections;  // in file order; the first one has no header
  IniNameIndex m_SectionIndex;
  IniNameIndex m_KeyIndex;
};

}  // namespace cardwright
