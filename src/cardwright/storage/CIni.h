// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "cardwright/automation/Collection.h"
#include "cardwright/automation/MemberTable.h"

namespace cardwright {

class IniStore;

/// Reads and writes files of INI form. Every call goes to the file as it is at that moment; nothing written
/// by another object or program is missed. A write leaves the old file or the new one whatever ends the
/// program, but does not wait for the disk.
class CIni final : public TableObject {
 public:
  /// An object without a file.
  CIni();
  ~CIni() override;

  Text TypeName() const override { return u"CIni"; }

  /// Creates the file empty where it is missing. A blank name, or one under which no file can be made, leaves
  /// FileName empty.
  void SetFileName(const Text& fileName);
  /// Path of the file; "" without one.
  Text FileName() const { return m_FileName; }

  /// Text of the key, at most 8191 characters, or of the default; Empty where that is "". In a numeric text
  /// commas become points. Error 5 without a file name.
  Variant GetValue(const Text& section, const Text& key, std::optional<Variant> defaultValue = {}) const;
  /// What GetValue gives for a key that is there; none where it is missing, so that a caller makes its
  /// default only when it is needed.
  std::optional<Variant> Find(std::u16string_view section, std::u16string_view key) const;
  /// GetValue as a text, "" for Empty.
  Text GetText(std::u16string_view section, std::u16string_view key, std::u16string_view fallback = {}) const;
  /// Never fails visibly: without a file name, a key or a value, or where the file cannot be written, it does
  /// nothing.
  void WriteValue(const Text& section, const Text& key, const Variant& value);
  /// Names in file order. Error 5 without a file name. A list of more than 8190 characters is cut.
  Ref<Collection> Sections() const;
  /// Names in file order. Error 5 without a file name or a section. A list of more than 8191 characters is
  /// cut.
  Ref<Collection> Keys(const Text& section) const;
  /// False where the file cannot be written. Error 5 without a file name or a section.
  bool DeleteSection(const Text& section);
  /// False where the file cannot be written. Error 5 without a file name, a section or a key.
  bool DeleteKey(const Text& section, const Text& key);
  /// Empties the file if it is there.
  void Reset();

 protected:
  const MemberTable& Members() const override;

 private:
  void RequireFile() const;

  Text m_FileName;
  Ref<IniStore> m_Store;  // exactly while m_FileName is not empty
};

}  // namespace cardwright
