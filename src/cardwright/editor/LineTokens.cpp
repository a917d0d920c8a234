// SPDX-License-Identifier: MIT
#include "cardwright/editor/LineTokens.h"

#include <algorithm>

namespace cardwright {

namespace {

constexpr bool IsBlank(char16_t c) noexcept { return c == u' ' || c == u'\t'; }
constexpr bool IsHexDigit(char16_t c) noexcept {
  return IsDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}
constexpr bool IsAsciiLetter(char16_t c) noexcept {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

std::vector<Text> WordsOf(std::u16string_view list) {
  std::vector<Text> words;
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t begin = list.find_first_not_of(u' ', at);
    if (begin == list.npos) break;
    const std::size_t end = std::min(list.find(u' ', begin), list.size());
    words.push_back(list.substr(begin, end - begin));
    at = end;
  }
  return words;
}

// The longest first, so that "<=" is not read as "<".
std::vector<Text> SignsOf(std::u16string_view list) {
  std::vector<Text> signs = WordsOf(list);
  std::ranges::stable_sort(signs, [](const Text& a, const Text& b) { return a.Size() > b.Size(); });
  return signs;
}

}  // namespace

// Letters of every script, without the blanks and signs among the characters beyond ASCII.
bool IsNameCharacter(char16_t c) noexcept {
  if (c < 0x80) return IsDigit(c) || IsAsciiLetter(c) || c == u'_';
  if (c < 0xC0) return c == 0xAA || c == 0xB5 || c == 0xBA;
  const bool isSign = c == 0xD7 || c == 0xF7 || (c >= 0x2000 && c <= 0x206F) ||
                      (c >= 0x3000 && c <= 0x3004) || (c >= 0xFF00 && c <= 0xFF0F) || c == 0xFEFF ||
                      c == 0x1680;
  return !isSign;
}

LanguageWords::LanguageWords(const LexipadLanguage& language)
    : m_Operators(SignsOf(language.operators)),
      m_Separators(SignsOf(language.separators)),
      m_Remarks(SignsOf(language.remarks)),
      m_Quotes(Replace(language.stringQuotes, u" ", u"")),
      m_RemarkKeyword(language.remarkKeyword),
      m_BlockStart(language.remarkBlocksStart),
      m_BlockEnd(language.remarkBlocksEnd),
      m_OperatorsFormat(language.operatorsFormat),
      m_SeparatorsFormat(language.separatorsFormat),
      m_ChangeCase(language.changeCase),
      m_CaseSensitive(language.caseSensitive),
      m_IsBasic(language.translateMode == 0) {
  AddWords(language.keywords, LexemeKind::Keyword);
  AddWords(language.constants, LexemeKind::Constant);
}

// A word that is in both lists is a keyword. The last spelling of a list counts: names are learned so.
void LanguageWords::AddWords(std::u16string_view list, LexemeKind kind) {
  for (Text& word : WordsOf(list)) {
    const auto [listed, isNew] = m_Words.try_emplace(word, Listed{kind, word});
    if (!isNew && listed->second.kind == kind) listed->second.spelling = std::move(word);
  }
}

const LanguageWords::Listed* LanguageWords::Find(std::u16string_view word) const {
  const auto found = m_Words.find(word);
  if (found == m_Words.end()) return nullptr;
  if (m_CaseSensitive && found->second.spelling.View() != word) return nullptr;
  return &found->second;
}

/// Reads one line from left to right.
class LanguageWords::Reader {
 public:
  Reader(const LanguageWords& words, std::u16string_view line) : m_Words(words), m_Line(line) {}

  LineTokens Run(bool isInRemark) {
    if (isInRemark) ReadBlockRemark(0);
    for (;;) {
      while (m_At < m_Line.size() && IsBlank(m_Line[m_At])) ++m_At;
      if (m_At >= m_Line.size()) return std::move(m_Tokens);
      ReadNext();
    }
  }

 private:
  bool StartsWith(std::u16string_view what) const {
    return !what.empty() && m_Line.substr(m_At, what.size()) == what;
  }
  const Text* SignAt(const std::vector<Text>& signs) const {
    const auto sign = std::ranges::find_if(signs, [&](const Text& each) { return StartsWith(each); });
    return sign == signs.end() ? nullptr : &*sign;
  }
  char16_t Peek(std::size_t ahead) const {
    return m_At + ahead < m_Line.size() ? m_Line[m_At + ahead] : u'\0';
  }
  void Add(LexemeKind kind, std::size_t end, bool isOpen = false) {
    m_Tokens.lexemes.push_back({kind, m_At, end - m_At, isOpen});
    m_At = end;
  }

  void ReadNext() {
    const char16_t c = m_Line[m_At];
    if (m_Words.m_Quotes.View().find(c) != std::u16string_view::npos) return ReadString(c);
    if (SignAt(m_Words.m_Remarks)) return Add(LexemeKind::Remark, m_Line.size(), true);
    if (StartsWith(m_Words.m_BlockStart)) return ReadBlockRemark(m_Words.m_BlockStart.Size());
    if (m_Words.m_IsBasic && c == u'#' && ReadBetween(u'#', LexemeKind::Number)) return;
    if (m_Words.m_IsBasic && c == u'[' && ReadBetween(u']', LexemeKind::Word)) return;
    if (IsDigit(c) || (c == u'.' && IsDigit(Peek(1)) && !FollowsName())) return ReadNumber();
    if (m_Words.m_IsBasic && c == u'&' && ReadBasedNumber()) return;
    if (IsNameCharacter(c)) return ReadWord();
    if (const Text* sign = SignAt(m_Words.m_Operators)) return Add(LexemeKind::Operator, m_At + sign->Size());
    if (const Text* sign = SignAt(m_Words.m_Separators))
      return Add(LexemeKind::Separator, m_At + sign->Size());
    Add(LexemeKind::Other, m_At + 1);
  }

  void ReadString(char16_t quote) {
    std::size_t end = m_At + 1;
    for (; end < m_Line.size(); ++end) {
      if (!m_Words.m_IsBasic && m_Line[end] == u'\\') {
        ++end;
      } else if (m_Line[end] == quote) {
        const bool isDoubled = m_Words.m_IsBasic && end + 1 < m_Line.size() && m_Line[end + 1] == quote;
        if (!isDoubled) return Add(LexemeKind::String, end + 1);
        ++end;
      }
    }
    Add(LexemeKind::String, m_Line.size(), true);
  }

  void ReadBlockRemark(std::size_t skipped) {
    const std::size_t end = m_Line.find(m_Words.m_BlockEnd.View(), m_At + skipped);
    if (end == m_Line.npos || m_Words.m_BlockEnd.IsEmpty()) {
      m_Tokens.endsInRemark = true;
      return Add(LexemeKind::Remark, m_Line.size(), true);
    }
    Add(LexemeKind::Remark, end + m_Words.m_BlockEnd.Size());
  }

  // "#1/2/2003#" and "[my name]", which hold what would else be operators.
  bool ReadBetween(char16_t close, LexemeKind kind) {
    const std::size_t end = m_Line.find(close, m_At + 1);
    if (end == m_Line.npos) return false;
    Add(kind, end + 1);
    return true;
  }

  bool FollowsName() const {
    return m_At > 0 && (IsNameCharacter(m_Line[m_At - 1]) || m_Line[m_At - 1] == u')');
  }

  void ReadNumber() {
    std::size_t end = m_At;
    const auto more = [&](auto&& isPart) {
      while (end < m_Line.size() && isPart(m_Line[end])) ++end;
    };
    if (m_Line[end] == u'0' && (Peek(1) == u'x' || Peek(1) == u'X')) {
      end += 2;
      more(IsHexDigit);
    } else {
      more([](char16_t c) { return IsDigit(c) || c == u'.'; });
      if (end + 1 < m_Line.size() && (m_Line[end] == u'e' || m_Line[end] == u'E')) {
        const bool isSigned = m_Line[end + 1] == u'+' || m_Line[end + 1] == u'-';
        const std::size_t digits = end + (isSigned ? 2 : 1);
        if (digits < m_Line.size() && IsDigit(m_Line[digits])) {
          end = digits;
          more([](char16_t c) { return IsDigit(c); });
        }
      }
    }
    Add(LexemeKind::Number, end);
  }

  // "&HFF&" and "&O17"; "a&b" joins two texts.
  bool ReadBasedNumber() {
    const char16_t base = Peek(1);
    const bool isBased = base == u'h' || base == u'H' || base == u'o' || base == u'O';
    if (!isBased || !IsHexDigit(Peek(2)) || FollowsName()) return false;
    std::size_t end = m_At + 2;
    while (end < m_Line.size() && IsHexDigit(m_Line[end])) ++end;
    if (end < m_Line.size() && m_Line[end] == u'&') ++end;
    Add(LexemeKind::Number, end);
    return true;
  }

  void ReadWord() {
    std::size_t end = m_At;
    while (end < m_Line.size() && IsNameCharacter(m_Line[end])) ++end;
    const std::u16string_view word = m_Line.substr(m_At, end - m_At);
    if (!m_Words.m_RemarkKeyword.IsEmpty() && EqualsNoCase(word, m_Words.m_RemarkKeyword) &&
        BeginsStatement())
      return Add(LexemeKind::Remark, m_Line.size(), true);
    const Listed* listed = m_Words.Find(word);
    Add(listed ? listed->kind : LexemeKind::Word, end);
  }

  bool BeginsStatement() const {
    if (m_Tokens.lexemes.empty()) return true;
    const Lexeme& last = m_Tokens.lexemes.back();
    return m_Line.substr(last.start, last.length) == u":";
  }

  const LanguageWords& m_Words;
  const std::u16string_view m_Line;
  LineTokens m_Tokens;
  std::size_t m_At = 0;
};

LineTokens LanguageWords::Read(std::u16string_view line, bool isInRemark) const {
  return Reader(*this, line).Run(isInRemark);
}

}  // namespace cardwright
