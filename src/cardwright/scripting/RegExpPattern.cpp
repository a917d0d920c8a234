// SPDX-License-Identifier: MIT
#include "cardwright/scripting/RegExpPattern.h"

#include <optional>
#include <string>

#include "cardwright/automation/Errors.h"
#include "cardwright/scripting/CodeUnitSet.h"
#include "cardwright/scripting/RegExpEscape.h"
#include "cardwright/scripting/RegExpQuantifier.h"

namespace cardwright::scripting {

namespace {

// Here the matching library calls back, so that a search can be ended: at each start, at each repetition of a
// group, and before each part that can be long.
constexpr std::u16string_view kCheckpoint = u"(?C)";

const std::u16string& NoLineTerminator() {
  static const std::u16string notation = CodeUnitSet::LineTerminators().Complement().Notation();
  return notation;
}

// The full stop matches all but line feeds: scripts that read text with CR LF rely on it matching the
// carriage return.
const std::u16string& NoLineFeed() {
  static const std::u16string notation = CodeUnitSet{{u'\n', u'\n'}}.Complement().Notation();
  return notation;
}

/// Reads a pattern once from left to right and writes its translation.
class Translator {
 public:
  Translator(std::u16string_view pattern, RegExpFlags flags) : m_Pattern(pattern), m_Flags(flags) {}

  LibraryPattern Run();

 private:
  bool AtEnd() const noexcept { return m_At == m_Pattern.size(); }
  bool LooksAt(std::u16string_view text) const noexcept { return m_Pattern.substr(m_At).starts_with(text); }

  void CountGroups();
  void Part();
  void OpenGroup();
  void CloseGroup();
  void LineStart();
  void LineEnd();
  void Escape();
  bool WordBoundary();
  bool BackReference();
  void Class();
  CodeUnitSet ClassAtom(bool& isSingle, char16_t& unit);
  void Unit(char16_t unit);
  std::optional<RegExpQuantifier> TakeQuantifier();
  void Atom(std::u16string_view notation, bool mayBeLong = false);
  void Checkpoint();

  const std::u16string_view m_Pattern;
  const RegExpFlags m_Flags;
  LibraryPattern m_Result;
  std::size_t m_At = 0;
  std::size_t m_Depth = 0;
  bool m_HasReferences = false;
};

LibraryPattern Translator::Run() {
  CountGroups();
  m_Result.foldsReferences = m_Flags.ignoreCase && m_HasReferences;
  m_Result.isCaseless = m_Flags.ignoreCase && !m_HasReferences;
  Checkpoint();
  while (!AtEnd()) Part();
  if (m_Depth > 0) Raise(ErrorNumber::RegExpExpectedParenthesis);
  return std::move(m_Result);
}

// The number of groups must be known first: a number after a backslash refers to a group anywhere in the
// pattern, and is octal where there is no such group.
void Translator::CountGroups() {
  bool inClass = false;
  for (std::size_t i = 0; i < m_Pattern.size(); ++i) {
    switch (m_Pattern[i]) {
      case u'\\':
        ++i;
        if (!inClass && i < m_Pattern.size() && m_Pattern[i] >= u'1' && m_Pattern[i] <= u'9')
          m_HasReferences = true;
        break;
      case u'[': inClass = true; break;
      case u']': inClass = false; break;
      case u'(':
        if (!inClass && m_Pattern.substr(i + 1, 1) != u"?") ++m_Result.groups;
        break;
      default: break;
    }
  }
}

void Translator::Checkpoint() {
  if (!m_Result.text.ends_with(kCheckpoint)) m_Result.text += kCheckpoint;
}

void Translator::Part() {
  const char16_t unit = m_Pattern[m_At];
  switch (unit) {
    case u'|':
      ++m_At;
      m_Result.text += u'|';
      return;
    case u'(': return OpenGroup();
    case u')': return CloseGroup();
    case u'^': return LineStart();
    case u'$': return LineEnd();
    case u'\\': return Escape();
    case u'[': return Class();
    default: break;
  }
  if (TakeQuantifier()) Raise(ErrorNumber::RegExpUnexpectedQuantifier);
  ++m_At;
  if (unit == u'.') {
    Atom(NoLineFeed());
  } else {
    Unit(unit);
  }
}

void Translator::OpenGroup() {
  for (const std::u16string_view opening : {u"(?:", u"(?=", u"(?!"}) {
    if (!LooksAt(opening)) continue;
    m_At += opening.size();
    m_Result.text += opening;
    ++m_Depth;
    return Checkpoint();
  }
  // After "(?" other dialects have names and options. Here the question mark is a quantifier of nothing, and
  // raises its error next.
  ++m_At;
  m_Result.text += u'(';
  ++m_Depth;
  Checkpoint();
}

void Translator::CloseGroup() {
  if (m_Depth == 0) Raise(ErrorNumber::RegExpSyntax);
  --m_Depth;
  ++m_At;
  m_Result.text += u')';
  if (const auto quantifier = TakeQuantifier()) m_Result.text += quantifier->Notation();
}

void Translator::LineStart() {
  ++m_At;
  if (m_Flags.multiLine) {
    m_Result.text += u"(?<!" + NoLineTerminator() + u')';
  } else {
    m_Result.text += u"\\A";
  }
}

void Translator::LineEnd() {
  ++m_At;
  if (m_Flags.multiLine) {
    m_Result.text += u"(?!" + NoLineTerminator() + u')';
  } else {
    m_Result.text += u"\\z";
  }
}

void Translator::Escape() {
  ++m_At;
  if (AtEnd()) Raise(ErrorNumber::RegExpSyntax);
  if (WordBoundary() || BackReference()) return;
  const RegExpEscape escape = ReadEscape(m_Pattern.substr(m_At));
  m_At += escape.length;
  if (!escape.set) return Unit(escape.unit);
  // The sets of escapes have both cases of their letters.
  Atom((escape.isNegated ? escape.set->Complement() : *escape.set).Notation());
}

bool Translator::WordBoundary() {
  const char16_t letter = m_Pattern[m_At];
  if (letter != u'b' && letter != u'B') return false;
  ++m_At;
  if (!m_Result.foldsReferences) {
    m_Result.text += u'\\';
    m_Result.text += letter;
    return true;
  }
  // With folded references the library uses Unicode, and its word boundaries are no longer those of ASCII
  // words.
  const std::u16string word = CodeUnitSet::WordUnits().Notation() + u')';
  const std::u16string_view ifWord = letter == u'b' ? u"(?!" : u"(?=";
  const std::u16string_view ifNone = letter == u'b' ? u"(?=" : u"(?!";
  m_Result.text += u"(?:(?<=" + word;
  m_Result.text += ifWord;
  m_Result.text += word + u"|(?<!" + word;
  m_Result.text += ifNone;
  m_Result.text += word + u')';
  return true;
}

// Takes as many digits as give the number of a group. The reference is put into parentheses: the library's
// machine code and its interpreter count repetitions of a bare reference to an unmatched group differently.
bool Translator::BackReference() {
  if (m_Pattern[m_At] == u'0') return false;
  std::size_t digits = 0;
  std::size_t group = 0;
  while (m_At + digits < m_Pattern.size()) {
    const char16_t unit = m_Pattern[m_At + digits];
    if (unit < u'0' || unit > u'9') break;
    const std::size_t longer = group * 10 + (unit - u'0');
    if (longer > m_Result.groups) break;
    group = longer;
    ++digits;
  }
  if (digits == 0) return false;
  m_At += digits;
  const std::u16string notation = u"\\g{" + NumberNotation(group) + u'}';
  Atom((m_Result.foldsReferences ? u"(?i:" : u"(?:") + notation + u')', true);
  return true;
}

void Translator::Class() {
  ++m_At;
  const bool isNegated = LooksAt(u"^");
  if (isNegated) ++m_At;
  CodeUnitSet set;
  while (!LooksAt(u"]")) {
    bool isSingle = false;
    char16_t first = 0;
    set.Add(ClassAtom(isSingle, first));
    if (!LooksAt(u"-") || LooksAt(u"-]")) continue;
    ++m_At;
    bool isLastSingle = false;
    char16_t last = 0;
    set.Add(ClassAtom(isLastSingle, last));
    if (!isSingle || !isLastSingle) {
      set.Add(u'-');  // a set cannot be the end of a range: scripts often have [\w-.], meant literally
    } else if (first > last) {
      Raise(ErrorNumber::RegExpInvalidRange);
    } else {
      set.Add(first, last);
    }
  }
  ++m_At;
  if (m_Flags.ignoreCase) set = set.WithOtherCases();
  Atom((isNegated ? set.Complement() : set).Notation());
}

// One unit of a class, or the set of an escape.
CodeUnitSet Translator::ClassAtom(bool& isSingle, char16_t& unit) {
  if (AtEnd()) Raise(ErrorNumber::RegExpExpectedBracket);
  unit = m_Pattern[m_At++];
  isSingle = true;
  if (unit == u'\\') {
    if (AtEnd()) Raise(ErrorNumber::RegExpExpectedBracket);
    RegExpEscape escape = ReadEscape(m_Pattern.substr(m_At));
    if (LooksAt(u"b")) escape.unit = u'\b';
    m_At += escape.length;
    unit = escape.unit;
    isSingle = escape.set == nullptr;
    if (!isSingle) return escape.isNegated ? escape.set->Complement() : *escape.set;
  }
  return {{unit, unit}};
}

void Translator::Unit(char16_t unit) {
  const bool isAscii = unit < 0x80;
  if (!m_Flags.ignoreCase || (isAscii && m_Result.isCaseless)) return Atom(UnitNotation(unit));
  const CodeUnitSet set = CodeUnitSet{{unit, unit}}.WithOtherCases();
  Atom(set.IsSingle() ? UnitNotation(unit) : set.Notation());
}

std::optional<RegExpQuantifier> Translator::TakeQuantifier() {
  const std::optional<RegExpQuantifier> quantifier = ReadQuantifier(m_Pattern.substr(m_At));
  if (quantifier) m_At += quantifier->length;
  return quantifier;
}

void Translator::Atom(std::u16string_view notation, bool mayBeLong) {
  const std::optional<RegExpQuantifier> quantifier = TakeQuantifier();
  if (mayBeLong || (quantifier && quantifier->IsLong())) Checkpoint();
  m_Result.text += notation;
  if (quantifier) m_Result.text += quantifier->Notation();
}

}  // namespace

LibraryPattern TranslatePattern(std::u16string_view pattern, RegExpFlags flags) {
  if (pattern.size() > kMaxRegExpPattern) Raise(ErrorNumber::OutOfMemory);
  return Translator(pattern, flags).Run();
}

}  // namespace cardwright::scripting
