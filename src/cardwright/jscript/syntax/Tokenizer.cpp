// SPDX-License-Identifier: MIT
#include "cardwright/jscript/syntax/Tokenizer.h"

#include <algorithm>
#include <array>

#include "cardwright/jscript/syntax/CharacterClasses.h"

namespace cardwright::jscript {
namespace {

constexpr std::array<std::u16string_view, 37> kKeywords = {
    u"break",  u"case",     u"catch",  u"class",  u"const",  u"continue",   u"debugger", u"default",
    u"delete", u"do",       u"else",   u"enum",   u"export", u"extends",    u"false",    u"finally",
    u"for",    u"function", u"if",     u"import", u"in",     u"instanceof", u"new",      u"null",
    u"return", u"super",    u"switch", u"this",   u"throw",  u"true",       u"try",      u"typeof",
    u"var",    u"void",     u"while",  u"with",   u"yield"};
static_assert(std::ranges::is_sorted(kKeywords));

// Of punctuators with the same first characters the longest comes first.
constexpr std::u16string_view kPunctuators[] = {
    u">>>=", u"...", u"===", u"!==", u"**=", u"<<=", u">>=", u">>>", u"&&=", u"||=", u"?\?=",
    u"=>",   u"==",  u"!=",  u"<=",  u">=",  u"&&",  u"||",  u"?\?", u"?.",  u"++",  u"--",
    u"+=",   u"-=",  u"*=",  u"/=",  u"%=",  u"&=",  u"|=",  u"^=",  u"<<",  u">>",  u"**"};

bool IsOneOf(std::u16string_view word, std::initializer_list<std::u16string_view> words) noexcept {
  return std::ranges::find(words, word) != words.end();
}

class Tokenizer {
 public:
  explicit Tokenizer(std::u16string_view source) : m_Source(source) {}
  std::vector<Token> Read() {
    while (SkipBlanks()) ReadToken();
    return std::move(m_Tokens);
  }

 private:
  struct Open {
    std::size_t token;
    bool isTemplate = false;
    int questions = 0;  // conditional expressions whose colon is still to come
  };

  std::u16string_view Spelling(std::size_t index) const noexcept {
    return m_Source.substr(m_Tokens[index].begin, m_Tokens[index].end - m_Tokens[index].begin);
  }
  std::u16string_view Last() const noexcept {
    return m_Tokens.empty() ? std::u16string_view() : Spelling(m_Tokens.size() - 1);
  }
  bool IsAfterOperand() const noexcept {
    return !m_Tokens.empty() && EndsOperand(m_Tokens, m_Tokens.size() - 1, m_Source);
  }
  void Add(TokenKind kind, std::size_t end, Role role = Role::None) {
    end = std::min(end, m_Source.size());
    m_Tokens.push_back(
        {kind, role, m_AfterLineEnd, static_cast<std::uint32_t>(m_At), static_cast<std::uint32_t>(end), -1});
    m_At = end;
    m_AfterLineEnd = false;
  }
  bool SkipBlanks();
  void ReadToken();
  void ReadWord();
  void ReadNumber();
  void ReadString(char16_t quote);
  void ReadTemplate();
  void ReadRegExp();
  void ReadPunctuator();
  void OpenBracket(Role role) {
    m_Open.push_back({m_Tokens.size()});
    Add(TokenKind::Punctuator, m_At + 1, role);
  }
  void CloseBracket();
  Role RoundRole() const;
  Role CurlyRole() const;
  bool IsStatementStart() const;

  std::u16string_view m_Source;
  std::size_t m_At = 0;
  bool m_AfterLineEnd = false;
  std::vector<Token> m_Tokens;
  std::vector<Open> m_Open;
};

bool Tokenizer::SkipBlanks() {
  while (m_At < m_Source.size()) {
    const char16_t c = m_Source[m_At];
    const std::u16string_view rest = m_Source.substr(m_At);
    if (IsBlank(c)) {
      m_AfterLineEnd |= IsLineEnd(c);
      ++m_At;
    } else if (rest.starts_with(u"//")) {
      while (m_At < m_Source.size() && !IsLineEnd(m_Source[m_At])) ++m_At;
    } else if (rest.starts_with(u"/*")) {
      const std::size_t end = std::min(m_Source.find(u"*/", m_At + 2), m_Source.size() - 2) + 2;
      m_AfterLineEnd |= std::any_of(m_Source.begin() + static_cast<std::ptrdiff_t>(m_At),
                                    m_Source.begin() + static_cast<std::ptrdiff_t>(end), IsLineEnd);
      m_At = end;
    } else {
      return true;
    }
  }
  return false;
}

void Tokenizer::ReadToken() {
  const char16_t c = m_Source[m_At];
  const char16_t next = m_At + 1 < m_Source.size() ? m_Source[m_At + 1] : u'\0';
  if (StartsName(c)) return ReadWord();
  if (IsDigit(c) || (c == u'.' && IsDigit(next))) return ReadNumber();
  if (c == u'"' || c == u'\'') return ReadString(c);
  if (c == u'`') {
    ++m_At;
    return ReadTemplate();
  }
  if (c == u'/' && !IsAfterOperand()) return ReadRegExp();
  ReadPunctuator();
}

void Tokenizer::ReadWord() {
  std::size_t end = m_At + 1;
  while (end < m_Source.size() && ContinuesName(m_Source[end])) ++end;
  const std::u16string_view word = m_Source.substr(m_At, end - m_At);
  const bool isMember = Last() == u"." || Last() == u"?.";
  if (isMember || !std::ranges::binary_search(kKeywords, word)) return Add(TokenKind::Name, end);
  Role role = Role::None;
  // Asynchronous functions are no JScript; they are left as they are.
  const bool isNewer = Last() == u"async" && !m_AfterLineEnd;
  if (word == u"function" && !isNewer) role = IsStatementStart() ? Role::Declaration : Role::Value;
  Add(TokenKind::Keyword, end, role);
}

void Tokenizer::ReadNumber() {
  std::size_t end = m_At + 1;
  const auto goesOn = [&] {
    const char16_t c = m_Source[end], before = m_Source[end - 1];
    if ((c == u'+' || c == u'-') && (before == u'e' || before == u'E'))
      return m_Source[m_At] != u'0' || (m_Source[m_At + 1] | 0x20) != u'x';
    return ContinuesName(c) || c == u'.';
  };
  while (end < m_Source.size() && goesOn()) ++end;
  Add(TokenKind::Number, end);
}

void Tokenizer::ReadString(char16_t quote) {
  std::size_t end = m_At + 1;
  while (end < m_Source.size() && m_Source[end] != quote && !IsLineEnd(m_Source[end])) {
    const bool isPair = m_Source.substr(end).starts_with(u"\\\r\n");
    end += isPair ? 3 : m_Source[end] == u'\\' ? 2 : 1;
  }
  Add(TokenKind::Text, end + 1);
}

// Starts after the opening quote, or after the bracket that closes an embedded expression.
void Tokenizer::ReadTemplate() {
  std::size_t end = m_At;
  while (end < m_Source.size() && m_Source[end] != u'`') {
    if (m_Source.substr(end).starts_with(u"${")) {
      m_At = end + 1;
      OpenBracket(Role::Literal);
      m_Open.back().isTemplate = true;
      return;
    }
    end += m_Source[end] == u'\\' ? 2 : 1;
  }
  m_At = std::min(end, m_Source.size());
  Add(TokenKind::Text, m_At + 1);
}

void Tokenizer::ReadRegExp() {
  bool isInClass = false;
  std::size_t end = m_At + 1;
  for (; end < m_Source.size() && !IsLineEnd(m_Source[end]); ++end) {
    const char16_t c = m_Source[end];
    if (c == u'/' && !isInClass) break;
    if (c == u'\\') ++end;
    if (c == u'[') isInClass = true;
    if (c == u']') isInClass = false;
  }
  if (end < m_Source.size()) ++end;
  while (end < m_Source.size() && ContinuesName(m_Source[end])) ++end;
  Add(TokenKind::RegExp, end);
}

void Tokenizer::ReadPunctuator() {
  switch (m_Source[m_At]) {
    case u'(': return OpenBracket(RoundRole());
    case u'[': return OpenBracket(IsAfterOperand() ? Role::Index : Role::List);
    case u'{': return OpenBracket(CurlyRole());
    case u')':
    case u']':
    case u'}': return CloseBracket();
    default: break;
  }
  const std::u16string_view rest = m_Source.substr(m_At);
  std::size_t size = 1;
  for (const std::u16string_view sign : kPunctuators) {
    if (!rest.starts_with(sign)) continue;
    size = sign.size();
    break;
  }
  if (!m_Open.empty()) {
    if (rest.starts_with(u"?") && size == 1) ++m_Open.back().questions;
    if (rest.starts_with(u":") && m_Open.back().questions > 0) --m_Open.back().questions;
  }
  Add(TokenKind::Punctuator, m_At + size);
}

void Tokenizer::CloseBracket() {
  constexpr std::u16string_view kOpening = u"([{", kClosing = u")]}";
  const std::size_t kind = kClosing.find(m_Source[m_At]);
  // The compiler reports a bracket that closes nothing.
  if (m_Open.empty() || Spelling(m_Open.back().token)[0] != kOpening[kind])
    return Add(TokenKind::Punctuator, m_At + 1);
  const Open open = m_Open.back();
  m_Open.pop_back();
  m_Tokens[open.token].partner = static_cast<std::int32_t>(m_Tokens.size());
  Add(TokenKind::Punctuator, m_At + 1, m_Tokens[open.token].role);
  m_Tokens.back().partner = static_cast<std::int32_t>(open.token);
  if (open.isTemplate) ReadTemplate();
}

Role Tokenizer::RoundRole() const {
  if (m_Tokens.empty()) return Role::Group;
  const std::size_t last = m_Tokens.size() - 1;
  const std::u16string_view before = Last();
  if (m_Tokens[last].kind == TokenKind::Keyword) {
    if (IsOneOf(before, {u"if", u"while", u"for", u"with", u"switch", u"catch"})) return Role::Head;
    if (before == u"function") return Role::Parameters;
    return before == u"this" || before == u"super" || before == u"import" ? Role::Call : Role::Group;
  }
  if (!IsAfterOperand())
    return before == u"*" && last > 0 && Spelling(last - 1) == u"function" ? Role::Parameters : Role::Group;
  // A name after `function`, plain or with members as in `function a.b(`.
  std::size_t start = last;
  while (start >= 2 && Spelling(start - 1) == u"." && m_Tokens[start - 2].kind == TokenKind::Name) start -= 2;
  if (start > 0 && (Spelling(start - 1) == u"function" || Spelling(start - 1) == u"*") &&
      m_Tokens[start].kind == TokenKind::Name) {
    const std::size_t keyword = Spelling(start - 1) == u"*" && start > 1 ? start - 2 : start - 1;
    if (Spelling(keyword) == u"function") return Role::Parameters;
  }
  return Role::Call;
}

Role Tokenizer::CurlyRole() const {
  if (m_Tokens.empty()) return Role::Block;
  const std::size_t last = m_Tokens.size() - 1;
  const std::u16string_view before = Last();
  if (before == u"=>") return Role::ValueBody;
  if (before == u")" && m_Tokens[last].partner >= 0) {
    if (m_Tokens[last].role == Role::Parameters) {
      auto at = static_cast<std::size_t>(m_Tokens[last].partner);
      while (at > 0 && Spelling(at) != u"function") --at;
      return m_Tokens[at].role == Role::Declaration ? Role::Body : Role::ValueBody;
    }
    // After arguments it is the body of a method, or a syntax error.
    return m_Tokens[last].role == Role::Head ? Role::Block : Role::Body;
  }
  // After the name or the base of a class.
  if (m_Tokens[last].kind == TokenKind::Name && last > 0 &&
      IsOneOf(Spelling(last - 1), {u"class", u"extends"}))
    return Role::Body;
  if (before == u"class") return Role::Body;
  return IsStatementStart() || IsOneOf(before, {u"try", u"finally", u"catch", u"else", u"do"})
             ? Role::Block
             : Role::Literal;
}

bool Tokenizer::IsStatementStart() const {
  if (m_Tokens.empty()) return true;
  const Token& last = m_Tokens.back();
  const std::u16string_view before = Last();
  const bool isInStatements = m_Open.empty() || m_Tokens[m_Open.back().token].role == Role::Block ||
                              m_Tokens[m_Open.back().token].role == Role::Body ||
                              m_Tokens[m_Open.back().token].role == Role::ValueBody;
  if (before == u";") return isInStatements;
  if (before == u"{") return last.role != Role::Literal;
  if (before == u"}") return last.role != Role::Literal || last.partner < 0;
  if (before == u")")
    return last.role == Role::Head || last.afterLineEnd ||
           EndsOperand(m_Tokens, m_Tokens.size() - 1, m_Source);
  if (before == u":") return isInStatements && (m_Open.empty() || m_Open.back().questions == 0);
  if (IsOneOf(before, {u"else", u"do", u"try", u"finally"}) && last.kind == TokenKind::Keyword) return true;
  return EndsOperand(m_Tokens, m_Tokens.size() - 1, m_Source);
}

}  // namespace

std::vector<Token> Tokenize(std::u16string_view source) { return Tokenizer(source).Read(); }

bool EndsOperand(const std::vector<Token>& tokens, std::size_t index, std::u16string_view source) noexcept {
  const auto spellingOf = [&](const Token& token) {
    return source.substr(token.begin, token.end - token.begin);
  };
  const auto isStep = [&](std::size_t at) {
    const std::u16string_view spelling = spellingOf(tokens[at]);
    return tokens[at].kind == TokenKind::Punctuator && (spelling == u"++" || spelling == u"--");
  };
  // `++` and `--` after an operand belong to it.
  while (index > 0 && isStep(index) && !tokens[index].afterLineEnd) --index;
  if (isStep(index)) return false;
  const Token& token = tokens[index];
  const std::u16string_view spelling = spellingOf(token);
  if (token.kind == TokenKind::Keyword)
    return IsOneOf(spelling, {u"this", u"null", u"true", u"false", u"super"});
  if (token.kind != TokenKind::Punctuator || spelling == u"]") return true;
  if (spelling == u")") return token.role != Role::Head;
  return spelling == u"}" && (token.role == Role::Literal || token.role == Role::ValueBody);
}

}  // namespace cardwright::jscript
