#include "cardwright/scripting/RegExpPattern.h"

#include <optional>
#include <string>

#include "cardwright/automation/Errors.h"
#include "cardwright/scripting/CodeUnitSet.h"
#include "cardwright/scripting/RegExpEscape.h"

namespace cardwright::scripting {

namespace {

// Where the matching library asks whether it has worked long enough: at each start, at each turn of a group,
// and before each part that can be long.
constexpr std::u16string_view kCheckpoint = u"(?C)";
// A part repeated no more often than this is short.
constexpr int kShortRepeat = 16;
constexpr int kUnlimited = -1;

std::u16string DecimalNotation(std::size_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

struct Quantifier {
  int least = 0;
  int most = 0;
  bool isLazy = false;

  bool IsLong() const noexcept { return most == kUnlimited || most > kShortRepeat; }
  std::u16string Notation() const;
};

std::u16string Quantifier::Notation() const {
  std::u16string result = u'{' + DecimalNotation(static_cast<std::size_t>(least)) + u',';
  if (most != kUnlimited) result += DecimalNotation(static_cast<std::size_t>(most));
  result += u'}';
  if (isLazy) result += u'?';
  return result;
}

const std::u16string& NoLineTerminator() {
  static const std::u16string notation = CodeUnitSet::LineTerminators().Complement().Notation();
  return notation;
}

// The full stop leaves out line feeds only: scripts that read texts with both line end characters count on
// the carriage return being part of what it matches.
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
  bool Sees(std::u16string_view text) const noexcept { return m_Pattern.substr(m_At).starts_with(text); }

  void Survey();
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
  std::optional<Quantifier> ReadQuantifier();
  std::optional<Quantifier> ReadCounts();
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
  Survey();
  m_Result.foldsReferences = m_Flags.ignoreCase && m_HasReferences;
  m_Result.isCaseless = m_Flags.ignoreCase && !m_HasReferences;
  Checkpoint();
  while (!AtEnd()) Part();
  if (m_Depth > 0) Raise(ErrorNumber::RegExpExpectedParenthesis);
  return std::move(m_Result);
}

// Counts the groups, as a number after a backslash refers to a group wherever in the pattern that stands, and
// is an octal one where there is no such group.
void Translator::Survey() {
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
  if (ReadQuantifier()) Raise(ErrorNumber::RegExpUnexpectedQuantifier);
  ++m_At;
  if (unit == u'.') {
    Atom(NoLineFeed());
  } else {
    Unit(unit);
  }
}

void Translator::OpenGroup() {
  for (const std::u16string_view opening : {u"(?:", u"(?=", u"(?!"}) {
    if (!Sees(opening)) continue;
    m_At += opening.size();
    m_Result.text += opening;
    ++m_Depth;
    return Checkpoint();
  }
  // What other dialects open so, such as names and options, is a quantifier of nothing here: that is met
  // next.
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
  if (const auto quantifier = ReadQuantifier()) m_Result.text += quantifier->Notation();
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
  // The sets of escapes hold every letter in both cases.
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
  // The library knows all of Unicode then, and its boundaries are no longer those of ASCII words.
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

// As many digits as name a group of the pattern. In parentheses, as the library's machine code counts turns
// of a bare reference to a group that matched nothing otherwise than its interpreter.
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
  const std::u16string notation = u"\\g{" + DecimalNotation(group) + u'}';
  Atom((m_Result.foldsReferences ? u"(?i:" : u"(?:") + notation + u')', true);
  return true;
}

void Translator::Class() {
  ++m_At;
  const bool isNegated = Sees(u"^");
  if (isNegated) ++m_At;
  CodeUnitSet set;
  while (!Sees(u"]")) {
    bool isSingle = false;
    char16_t first = 0;
    set.Add(ClassAtom(isSingle, first));
    if (!Sees(u"-") || Sees(u"-]")) continue;
    ++m_At;
    bool isLastSingle = false;
    char16_t last = 0;
    set.Add(ClassAtom(isLastSingle, last));
    if (!isSingle || !isLastSingle) {
      set.Add(u'-');  // a set is no end of a range: [\w-.] is meant literally, and much in use
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
    if (Sees(u"b")) escape.unit = u'\b';
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

std::optional<Quantifier> Translator::ReadQuantifier() {
  std::optional<Quantifier> result;
  if (Sees(u"{")) {
    result = ReadCounts();
  } else {
    if (Sees(u"*")) result = Quantifier{.least = 0, .most = kUnlimited};
    if (Sees(u"+")) result = Quantifier{.least = 1, .most = kUnlimited};
    if (Sees(u"?")) result = Quantifier{.least = 0, .most = 1};
    if (result) ++m_At;
  }
  if (result && Sees(u"?")) {
    result->isLazy = true;
    ++m_At;
  }
  return result;
}

// {n}, {n,} or {n,m}; braces around anything else are characters like others.
std::optional<Quantifier> Translator::ReadCounts() {
  std::u16string_view rest = m_Pattern.substr(m_At + 1);
  const RegExpNumber least = ReadNumber(rest, kMaxRegExpCount);
  if (least.digits == 0) return {};
  rest.remove_prefix(least.digits);
  Quantifier result{.least = least.value, .most = least.value};
  if (rest.starts_with(u',')) {
    rest.remove_prefix(1);
    const RegExpNumber most = ReadNumber(rest, kMaxRegExpCount);
    rest.remove_prefix(most.digits);
    result.most = most.digits == 0 || most.value > kMaxRegExpCount ? kUnlimited : most.value;
  }
  if (!rest.starts_with(u'}')) return {};
  if (result.most != kUnlimited && result.least > result.most) Raise(ErrorNumber::RegExpSyntax);
  if (result.least > kMaxRegExpCount) Raise(ErrorNumber::OutOfMemory);
  m_At = m_Pattern.size() - rest.size() + 1;
  return result;
}

void Translator::Atom(std::u16string_view notation, bool mayBeLong) {
  const std::optional<Quantifier> quantifier = ReadQuantifier();
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
