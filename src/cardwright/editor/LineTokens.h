// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

#include "cardwright/editor/Lexipad.h"

namespace cardwright {

/// What a piece of a line is.
enum class LexemeKind : std::uint8_t {
  Word,
  Keyword,
  Constant,
  Number,  ///< a date literal too
  String,
  Remark,
  Operator,
  Separator,
  Other,
};

/// A piece of a line. Spaces are between the pieces and belong to none.
struct Lexeme {
  LexemeKind kind;
  std::size_t start;
  std::size_t length;
  bool isOpen = false;  ///< a string or a remark that nothing closes before the line's end
};

/// The pieces of a line, from left to right.
struct LineTokens {
  std::vector<Lexeme> lexemes;
  bool endsInRemark = false;  ///< a remark over several lines goes on in the next one
};

/// The word lists of a language made ready for reading lines.
class LanguageWords {
 public:
  explicit LanguageWords(const LexipadLanguage& language);

  /// The pieces of a line; `isInRemark` where the line before it ended in a remark over several lines.
  LineTokens Read(std::u16string_view line, bool isInRemark) const;
  /// The line with keywords and constants in their lists' case, if the language wants that, and blanks around
  /// operators and separators as it wants them. Strings, remarks and the blanks that are there stay; a tidy
  /// line is left as it is.
  Text Tidy(std::u16string_view line, bool isInRemark) const;

  bool HasRemarkBlocks() const noexcept { return !m_BlockStart.IsEmpty(); }

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::u16string_view word) const noexcept { return HashNoCase(word); }
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(std::u16string_view a, std::u16string_view b) const noexcept {
      return EqualsNoCase(a, b);
    }
  };
  struct Listed {
    LexemeKind kind;
    Text spelling;
  };
  class Reader;

  void AddWords(std::u16string_view list, LexemeKind kind);
  const Listed* Find(std::u16string_view word) const;

  std::unordered_map<Text, Listed, Hash, Equal> m_Words;
  std::vector<Text> m_Operators;   // the longest first
  std::vector<Text> m_Separators;  // likewise
  std::vector<Text> m_Remarks;
  Text m_Quotes;
  Text m_RemarkKeyword;
  Text m_BlockStart;
  Text m_BlockEnd;
  BlankFormat m_OperatorsFormat;
  BlankFormat m_SeparatorsFormat;
  bool m_ChangeCase;
  bool m_CaseSensitive;
  bool m_IsBasic;  // dates between "#", names between brackets, quotes doubled; else "\" keeps a quote
};

/// Whether a character can be part of a name; an underscore can.
bool IsNameCharacter(char16_t c) noexcept;

}  // namespace cardwright
