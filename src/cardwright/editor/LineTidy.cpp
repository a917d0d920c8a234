// SPDX-License-Identifier: MIT
// How a line is laid out when the author has left it.

#include <string>

#include "cardwright/editor/LineTokens.h"

namespace cardwright {

namespace {

/// Where a blank is wanted beside a piece of a line. Blanks are only ever added: authors line things up.
struct Margin {
  bool before = false;
  bool after = false;
};

Margin MarginOf(BlankFormat format) {
  return {format == BlankFormat::BothSides || format == BlankFormat::Before,
          format == BlankFormat::BothSides || format == BlankFormat::After};
}

/// What comes before a sign and makes it one of two operands; else it belongs to what follows.
bool IsOperandEnd(const Lexeme& lexeme, std::u16string_view text) {
  switch (lexeme.kind) {
    case LexemeKind::Word:
    case LexemeKind::Constant:
    case LexemeKind::Number:
    case LexemeKind::String: return true;
    case LexemeKind::Other: return text == u")" || text == u"]";
    default: return false;
  }
}

bool IsSign(std::u16string_view text) { return text == u"-" || text == u"+"; }

}  // namespace

Text LanguageWords::Tidy(std::u16string_view line, bool isInRemark) const {
  const LineTokens tokens = Read(line, isInRemark);
  const auto textOf = [&](const Lexeme& lexeme) { return line.substr(lexeme.start, lexeme.length); };
  std::u16string tidy;
  std::size_t done = 0;
  const Lexeme* before = nullptr;
  Margin last;
  for (const Lexeme& lexeme : tokens.lexemes) {
    const std::u16string_view text = textOf(lexeme);
    Margin wanted;
    if (lexeme.kind == LexemeKind::Separator) wanted = MarginOf(m_SeparatorsFormat);
    if (lexeme.kind == LexemeKind::Operator && text != u".") wanted = MarginOf(m_OperatorsFormat);
    const bool belongsToNext = IsSign(text) && (!before || !IsOperandEnd(*before, textOf(*before)));
    if (belongsToNext) wanted = {};
    // Signs that touch may be one sign that the list lacks.
    const bool touchesSign = before && before->kind == LexemeKind::Operator &&
                             lexeme.kind == LexemeKind::Operator && !belongsToNext;
    const bool hasBlank = lexeme.start > done;
    tidy += line.substr(done, lexeme.start - done);
    if (before && !hasBlank && !touchesSign && (wanted.before || last.after)) tidy += u' ';
    const Listed* const listed = m_ChangeCase ? Find(text) : nullptr;
    const bool isListed = lexeme.kind == LexemeKind::Keyword || lexeme.kind == LexemeKind::Constant;
    tidy += listed && isListed ? listed->spelling.View() : text;
    done = lexeme.start + lexeme.length;
    last = wanted;
    before = &lexeme;
  }
  tidy += line.substr(done);
  return tidy;
}

}  // namespace cardwright
