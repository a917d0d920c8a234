// SPDX-License-Identifier: MIT
#include "cardwright/jscript/syntax/Rewriter.h"

#include <algorithm>
#include <unordered_map>

#include "cardwright/jscript/syntax/ConditionalCode.h"
#include "cardwright/jscript/syntax/Tokenizer.h"

namespace cardwright::jscript {
namespace {

constexpr std::u16string_view kAssignments[] = {u"=",  u"+=", u"-=", u"*=",  u"/=",  u"%=",
                                                u"&=", u"|=", u"^=", u"<<=", u">>=", u">>>="};

class SourceRewriter {
 public:
  explicit SourceRewriter(std::u16string_view source) : m_Conditional(RunConditionalCode(source)) {
    m_Tokens = Tokenize(m_Conditional.text);
    m_Edits = std::move(m_Conditional.values);
    for (std::size_t k = 0; k < m_Tokens.size(); ++k) {
      if (m_Tokens[k].kind == TokenKind::Name) m_Names[Spelling(k)].push_back(k);
      m_IsStrict |= Spelling(k) == u"'use strict'" || Spelling(k) == u"\"use strict\"";
    }
  }

  Rewritten Write() {
    for (std::size_t k = 0; k < m_Tokens.size(); ++k) Visit(k);
    std::ranges::stable_sort(m_Edits, {}, &TextEdit::position);
    Rewritten result;
    result.text = ApplyEdits(m_Conditional.text, m_Edits);
    result.sourceMap = SourceMap(m_Conditional.text, m_Edits);
    result.functions = std::move(m_Functions);
    return result;
  }

 private:
  std::u16string_view Spelling(std::size_t index) const noexcept {
    if (index >= m_Tokens.size()) return {};
    const Token& token = m_Tokens[index];
    return std::u16string_view(m_Conditional.text).substr(token.begin, token.end - token.begin);
  }
  std::size_t Partner(std::size_t index) const noexcept {
    return index < m_Tokens.size() && m_Tokens[index].partner >= 0
               ? static_cast<std::size_t>(m_Tokens[index].partner)
               : kNone;
  }
  void Insert(std::size_t position, std::u16string text) {
    m_Edits.push_back({position, 0, std::move(text)});
  }
  void Put(std::size_t token, std::u16string text) {
    m_Edits.push_back({m_Tokens[token].begin, m_Tokens[token].end - m_Tokens[token].begin, std::move(text)});
  }

  void Visit(std::size_t at);
  void VisitFunction(std::size_t at);
  void WriteMemberFunction(std::size_t at, std::size_t lastName, std::size_t body);
  void ExportName(std::size_t at, std::size_t body);
  bool IsKnownElsewhere(std::size_t name, std::size_t body);
  bool IsMemberName(std::size_t at) const;
  bool IsDeclared(std::size_t at) const;
  void VisitCall(std::size_t open, std::size_t close);
  std::size_t ChainStart(std::size_t last) const;
  bool IsAssignment(std::size_t at) const;

  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  ConditionalResult m_Conditional;
  std::vector<Token> m_Tokens;
  std::vector<TextEdit> m_Edits;
  std::vector<std::u16string> m_Functions;
  int m_Depth = 0;  // of curly brackets
  std::unordered_map<std::u16string_view, std::vector<std::size_t>> m_Names;
  bool m_IsStrict = false;
};

void SourceRewriter::Visit(std::size_t at) {
  const Token& token = m_Tokens[at];
  const std::u16string_view word = Spelling(at);
  if (word == u"{") ++m_Depth;
  if (word == u"}") --m_Depth;
  if (token.kind == TokenKind::Keyword) {
    if (word == u"function") return VisitFunction(at);
    const std::size_t head = Partner(at + 1);
    if (word == u"catch" && head != kNone && Spelling(head + 1) == u"{" && head == at + 3)
      Insert(m_Tokens[head + 1].end,
             std::u16string(hidden::kCaught) + u"(" + std::u16string(Spelling(at + 2)) + u");");
    // JScript allows an empty statement between a block and its `else`.
    if (word == u"else" && at >= 2 && Spelling(at - 1) == u";" && Spelling(at - 2) == u"}") Put(at - 1, u" ");
    return;
  }
  if (word == u"(" && token.role == Role::Call && Partner(at) != kNone) return VisitCall(at, Partner(at));
  if (word == u"]" && token.role == Role::List && at > 0 && Spelling(at - 1) == u"," &&
      Spelling(at - 2) != u"[" && Spelling(at - 2) != u",")
    Insert(token.begin, u",");
}

void SourceRewriter::VisitFunction(std::size_t at) {
  std::size_t name = at + 1;
  if (name >= m_Tokens.size()) return;
  if (Spelling(name) == u"(") {
    // JScript ignores a function statement without a name, which JavaScript refuses.
    if (m_Tokens[at].role == Role::Declaration) Insert(m_Tokens[at].begin, u"void ");
    return;
  }
  if (m_Tokens[name].kind != TokenKind::Name) return;
  std::size_t last = name;
  while (Spelling(last + 1) == u"." && last + 2 < m_Tokens.size()) last += 2;
  const std::size_t close = Partner(last + 1);
  const std::size_t body = close != kNone && Spelling(close + 1) == u"{" ? close + 1 : kNone;
  if (body == kNone || Partner(body) == kNone) return;
  if (last != name) return WriteMemberFunction(at, last, body);
  if (m_Tokens[at].role == Role::Value) return ExportName(at, body);
  if (m_Tokens[at].role != Role::Declaration) return;
  if (m_Depth == 0 && std::ranges::find(m_Functions, Spelling(name)) == m_Functions.end())
    m_Functions.emplace_back(Spelling(name));
}

// `function a.b(x) {…}` is `a.b = function(x) {…};`.
void SourceRewriter::WriteMemberFunction(std::size_t at, std::size_t lastName, std::size_t body) {
  m_Edits.push_back({m_Tokens[at].begin, 8, {}});
  Insert(m_Tokens[lastName].end, u"=function");
  if (m_Tokens[at].role == Role::Declaration) Insert(m_Tokens[Partner(body)].end, u";");
}

void SourceRewriter::ExportName(std::size_t at, std::size_t body) {
  const std::u16string name(Spelling(at + 1));
  if (IsKnownElsewhere(at + 1, body)) return;
  Insert(m_Tokens[at].begin, u"(" + name + u"=");
  Insert(m_Tokens[Partner(body)].end, u")");
}

// Whether the name must stay inside: something else has it already, or nothing outside uses it.
bool SourceRewriter::IsKnownElsewhere(std::size_t name, std::size_t body) {
  if (m_IsStrict) return true;
  const std::size_t end = Partner(body);
  bool isUsed = false;
  for (const std::size_t at : m_Names[Spelling(name)]) {
    if (at == name || IsMemberName(at)) continue;
    if (IsDeclared(at)) return true;
    isUsed |= at < name || at > end;
  }
  return !isUsed;
}

bool SourceRewriter::IsMemberName(std::size_t at) const {
  const std::u16string_view before = at > 0 ? Spelling(at - 1) : std::u16string_view();
  return before == u"." || before == u"?." ||
         (Spelling(at + 1) == u":" && before != u"?" && before != u"case");
}

// Whether the name is declared, assigned or a parameter there, and so means something else.
bool SourceRewriter::IsDeclared(std::size_t at) const {
  if (IsAssignment(at + 1)) return true;
  for (std::size_t open = at; open > 0; --open) {
    const std::u16string_view before = Spelling(open - 1);
    if (before == u"(") return m_Tokens[open - 1].role == Role::Parameters;
    if (before == u"function" || before == u"class") return open == at;
    if (before == u"var" || before == u"let" || before == u"const") return true;
    if (before != u"," && m_Tokens[open - 1].kind != TokenKind::Name) return false;
  }
  return false;
}

bool SourceRewriter::IsAssignment(std::size_t at) const {
  return at < m_Tokens.size() && m_Tokens[at].kind == TokenKind::Punctuator &&
         std::ranges::find(kAssignments, Spelling(at)) != std::end(kAssignments);
}

// The first token of the operand that ends with `last`, as `a` of `a.b[1](2).c`; kNone where the operand
// cannot be assigned to.
std::size_t SourceRewriter::ChainStart(std::size_t last) const {
  for (std::size_t at = last;;) {
    const std::u16string_view word = Spelling(at);
    if (word == u")" || word == u"]") {
      const std::size_t open = Partner(at);
      if (open == kNone) return kNone;
      const bool goesOn = m_Tokens[open].role == Role::Call || m_Tokens[open].role == Role::Index;
      if (!goesOn) return open;
      if (open == 0) return kNone;
      at = open - 1;
      continue;
    }
    const bool isWord = m_Tokens[at].kind == TokenKind::Name || word == u"this";
    if (!isWord) return kNone;
    if (at < 2 || Spelling(at - 1) != u".") return at;
    at -= 2;
  }
}

void SourceRewriter::VisitCall(std::size_t open, std::size_t close) {
  const std::size_t callee = open - 1;
  const bool isMember = callee > 0 && Spelling(callee - 1) == u".";
  if (Spelling(callee) == u"eval" && !isMember && close > open + 1) {
    Insert(m_Tokens[open].end, std::u16string(hidden::kSource) + u"(");
    Insert(m_Tokens[close].begin, u")");
  }
  const bool isStep =
      (Spelling(close + 1) == u"++" || Spelling(close + 1) == u"--") && !m_Tokens[close + 1].afterLineEnd;
  if (!IsAssignment(close + 1) && !isStep) return;
  const std::size_t start = ChainStart(callee);
  if (start == kNone || (start > 0 && Spelling(start - 1) == u"new")) return;
  const std::u16string_view separator = close == open + 1 ? u"" : u",";
  if (isMember) {
    Insert(m_Tokens[start].begin, std::u16string(hidden::kIndexedMember) + u"(");
    Put(callee - 1, u",");
    Put(callee, u"\"" + std::u16string(Spelling(callee)) + u"\"");
    Put(open, std::u16string(separator));
  } else if (Spelling(callee) == u"]" && m_Tokens[callee].role == Role::Index) {
    Insert(m_Tokens[start].begin, std::u16string(hidden::kIndexedMember) + u"(");
    Put(Partner(callee), u",");
    Put(callee, u"");
    Put(open, std::u16string(separator));
  } else {
    Insert(m_Tokens[start].begin, std::u16string(hidden::kIndexedTarget) + u"(");
    Put(open, std::u16string(separator));
  }
  Insert(m_Tokens[close].end, u".v");
}

}  // namespace

Rewritten Rewrite(std::u16string_view source) { return SourceRewriter(source).Write(); }

}  // namespace cardwright::jscript
