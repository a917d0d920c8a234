// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "cardwright/storage/IniValues.h"

namespace cardwright {

class IniFile;

/// The keys of one section of a file that has been read.
class SectionReader {
 public:
  SectionReader(std::shared_ptr<const IniFile> file, std::u16string_view section)
      : m_File(std::move(file)), m_Section(section) {}

  /// Value of a key that is there, Empty for ""; none where it is missing, so that a caller makes its default
  /// only when it is needed.
  std::optional<Variant> Find(std::u16string_view key) const;
  /// Text of the key or of the fallback, at most 8191 characters; Empty where that is "".
  Variant GetValue(std::u16string_view key, const Variant& fallback) const;
  /// GetValue as a text, "" for Empty.
  Text GetText(std::u16string_view key, std::u16string_view fallback = {}) const;
  /// Names in file order. A list of more than 8191 characters is cut.
  std::vector<Text> Keys() const;

 private:
  std::shared_ptr<const IniFile> m_File;
  Text m_Section;
};

}  // namespace cardwright
