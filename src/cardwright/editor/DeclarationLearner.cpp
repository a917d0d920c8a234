// SPDX-License-Identifier: MIT
#include "cardwright/editor/DeclarationLearner.h"

#include <utility>

namespace cardwright {

namespace {

constexpr std::u16string_view kDeclaringWords[] = {u"dim", u"const", u"sub", u"function"};

constexpr bool BeginsName(char16_t c) noexcept {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_';
}

bool HasWord(std::u16string_view list, std::u16string_view word) {
  return FindNoCase(list, Text(u" ") + word + u" ") != list.npos;
}

/// Reads the names that one word declares in one line, from left to right. The search knows neither remarks
/// nor strings: authors rely on a declaration that is commented out to keep its names coloured.
class NamesOf {
 public:
  NamesOf(const Lexipad& pad, std::int32_t position, const Text& line, std::u16string_view word)
      : m_Pad(pad), m_Position(position), m_Line(line), m_Word(word) {}

  /// The next name, or "" at the end.
  Text Next() {
    while (FindDeclaration()) {
      const Text name = ReadName();
      if (!name.IsEmpty()) return name;
    }
    return {};
  }

 private:
  bool FindDeclaration() {
    for (;;) {
      const std::size_t at = FindNoCase(m_Line, m_Word, m_At);
      if (at == std::u16string_view::npos) return false;
      m_At = at + m_Word.size();
      if (Counts(at)) return true;
    }
  }

  bool Counts(std::size_t at) const {
    const std::size_t end = at + m_Word.size();
    if (end >= m_Line.size() || m_Line[end] != u' ') return false;
    const char16_t before = at == 0 ? u' ' : m_Line[at - 1];
    if (before == u' ' || before == u'\t') return true;
    const std::int32_t absolute = m_Position + static_cast<std::int32_t>(at);
    return absolute == m_Pad.LineIndex(m_Pad.LineFromChar(absolute));
  }

  // "Dim Preserve x" and the like: a keyword is not the name.
  Text ReadName() {
    for (;;) {
      while (m_At < m_Line.size() && !BeginsName(m_Line[m_At])) ++m_At;
      const std::size_t begin = m_At;
      while (m_At < m_Line.size() && (m_Pad.IsWordChar(m_Line[m_At]) || m_Line[m_At] == u'_')) ++m_At;
      const std::u16string_view name = m_Line.substr(begin, m_At - begin);
      if (name.empty() || !HasWord(m_Pad.Language().keywords, name)) return name;
    }
  }

  const Lexipad& m_Pad;
  const std::int32_t m_Position;
  const std::u16string_view m_Line;
  const std::u16string_view m_Word;
  std::size_t m_At = 0;
};

// A new name is appended with no space after it, so the next one joins it: hosts that read `constants` back
// know the list in this form.
void AddToConstants(Lexipad& pad, const Text& name) {
  LexipadLanguage language = pad.Language();
  if (HasWord(language.constants, name)) {
    const Text word = Text(u" ") + name + u" ";
    language.constants = Replace(language.constants, word, word, true);
  } else {
    language.constants += name;
  }
  if (language.constants != pad.Language().constants) pad.SetLanguage(std::move(language));
}

void SpellAlike(Lexipad& pad, const Text& name) {
  const auto length = static_cast<std::int32_t>(name.Size());
  std::int32_t at = pad.Find(name, 0, {}, FindOption::WholeWord);
  while (at >= 0) {
    const bool isConstant = pad.SelColor() == pad.Style(SyntaxElement::Constants).color;
    if (isConstant && pad.SelText() != name) pad.SetSelText(name);
    at = pad.Find(name, at + length, {}, FindOption::WholeWord);
  }
}

/// Leaves the selection of a text widget as it was: the author's caret does not follow the search.
class SelectionKeeper {
 public:
  explicit SelectionKeeper(Lexipad& pad) : m_Pad(pad), m_Start(pad.SelStart()), m_Length(pad.SelLength()) {}
  ~SelectionKeeper() {
    BestEffort([this] {
      m_Pad.SetSelStart(m_Start);
      if (m_Length > 0) m_Pad.SetSelLength(m_Length);
    });
  }
  SelectionKeeper(const SelectionKeeper&) = delete;
  SelectionKeeper& operator=(const SelectionKeeper&) = delete;

 private:
  Lexipad& m_Pad;
  const std::int32_t m_Start;
  const std::int32_t m_Length;
};

void LearnNames(EditorCore& core, std::int32_t position, const Text& line, std::u16string_view word) {
  NamesOf names(*core.pad, position, line, word);
  Text name = names.Next();
  if (name.IsEmpty()) return;
  const BusyScope busy(core);
  {
    const PadUpdate update(*core.pad);
    const SelectionKeeper selection(*core.pad);
    for (; !name.IsEmpty(); name = names.Next()) {
      AddToConstants(*core.pad, name);
      SpellAlike(*core.pad, name);
    }
  }
  FocusPad(core);
}

}  // namespace

void LearnDeclarations(EditorCore& core, std::int32_t position, const Text& line) {
  for (const std::u16string_view word : kDeclaringWords) LearnNames(core, position, line, word);
}

}  // namespace cardwright
