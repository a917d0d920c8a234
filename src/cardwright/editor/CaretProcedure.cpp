// SPDX-License-Identifier: MIT
#include "cardwright/editor/CaretProcedure.h"

#include <algorithm>
#include <optional>

#include "cardwright/editor/LanguageTables.h"
#include "cardwright/editor/PadSearch.h"

namespace cardwright {

namespace {

constexpr std::u16string_view kCrLf = u"\r\n";
constexpr std::u16string_view kFunction = u"function";
constexpr std::u16string_view kSub = u"sub";

bool BeginsWith(std::u16string_view text, std::u16string_view head) {
  return EqualsNoCase(text.substr(0, head.size()), head);
}

bool IsHeaderLine(std::u16string_view line) {
  return BeginsWith(line, u"function ") || BeginsWith(line, u"sub ");
}

// The first line of a text has no line end before it, and may begin a procedure all the same.
bool TextBeginsWith(const Lexipad& pad, std::u16string_view word, std::int32_t end) {
  const auto size = static_cast<std::int32_t>(word.size());
  return end >= size && EqualsNoCase(pad.TextRange(0, size), word);
}

/// Start of the nearest line that begins with the word, the word ending at `end` or before it; -1 for none.
std::int32_t LineBefore(const Lexipad& pad, std::u16string_view word, std::int32_t end) {
  const std::int32_t at = FindBackward(pad, Text(kCrLf) + word, end);
  if (at >= 0) return at + static_cast<std::int32_t>(kCrLf.size());
  return TextBeginsWith(pad, word, end) ? 0 : -1;
}

std::int32_t LineAfter(const Lexipad& pad, std::u16string_view word, std::int32_t start) {
  const std::int32_t at = FindForward(pad, Text(kCrLf) + word, start);
  return at < 0 ? -1 : at + static_cast<std::int32_t>(kCrLf.size());
}

Text LineAt(const Lexipad& pad, std::int32_t position) {
  return position < 0 ? Text() : pad.LineText(pad.LineFromChar(position) + 1);
}

Text HeaderBefore(const Lexipad& pad, std::int32_t end) {
  return LineAt(pad, std::max(LineBefore(pad, kFunction, end), LineBefore(pad, kSub, end)));
}

Text HeaderAfter(const Lexipad& pad, std::int32_t start) {
  const std::int32_t function = LineAfter(pad, kFunction, start);
  const std::int32_t sub = LineAfter(pad, kSub, start);
  if (function < 0 || sub < 0) return LineAt(pad, std::max(function, sub));
  return LineAt(pad, std::min(function, sub));
}

bool IsBlank(const Text& text) { return Trim(Replace(text, kCrLf, u"")).empty(); }

/// The first line of the procedure for the caret.
Text HeaderAtCaret(const Lexipad& pad, std::u16string_view language) {
  const Text line = pad.LineText(pad.CurrentLine());
  if (IsHeaderLine(line)) return line;

  const std::u16string_view endMark = IsVbscript(language) ? u"end sub" : u"}";
  // The line that ends a procedure belongs to it.
  if (EqualsNoCase(line, endMark)) return HeaderBefore(pad, pad.LineIndex(pad.CurrentLine() - 1) - 2);

  const std::int32_t caret = pad.SelStart();
  const std::int32_t end = FindBackward(pad, Text(endMark) + kCrLf, std::max(caret, 1));
  if (end < 0) return HeaderBefore(pad, caret - 1);
  // So do blank lines after it, up to where the next one begins.
  const std::int32_t afterEnd = end + static_cast<std::int32_t>(endMark.size());
  if (IsBlank(pad.TextRange(afterEnd, caret - afterEnd))) return HeaderBefore(pad, end - 1);
  return HeaderAfter(pad, end);
}

}  // namespace

ProcedureName SplitHeaderLine(std::u16string_view line) {
  line = line.substr(0, line.find(kCrLf));
  if (const std::size_t blank = line.find(u' '); blank != line.npos) line.remove_prefix(blank + 1);
  line = Trim(line);
  line = line.substr(0, line.find(u'('));
  const std::size_t underscore = line.rfind(u'_');
  if (underscore == line.npos) return {{}, line};
  return {line.substr(0, underscore), line.substr(underscore + 1)};
}

ProcedureName ProcedureAtCaret(const Lexipad& pad, std::u16string_view language) {
  const Text header = HeaderAtCaret(pad, language);
  return header.IsEmpty() ? ProcedureName() : SplitHeaderLine(header);
}

}  // namespace cardwright
