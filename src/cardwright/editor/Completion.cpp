// SPDX-License-Identifier: MIT
#include "cardwright/editor/Completion.h"

#include <algorithm>

#include "cardwright/platform/Scale.h"

namespace cardwright {

namespace {

constexpr std::u16string_view kLineEnds = u"\r\n";
constexpr std::u16string_view kTab = u"\t";
constexpr std::u16string_view kCommandFunction = u"ORVExecute";
constexpr std::u16string_view kRequestFunction = u"ORVRequest";
constexpr float kGap = 2 * kTwipsPerPixel;  // between the caret's line and the pop-up

float ToTwips(std::int32_t pixels) { return static_cast<float>(pixels) * kTwipsPerPixel; }

std::u16string_view SeparatorText(BlankFormat format) {
  switch (format) {
    case BlankFormat::BothSides: return u" , ";
    case BlankFormat::Before: return u" ,";
    case BlankFormat::After: return u", ";
    default: return u",";
  }
}

// A line that defines a function calls none.
bool DefinesFunction(const Text& line) {
  return FindNoCase(Text(u" ") + line + u" ", u" function ") != std::u16string_view::npos;
}

std::u16string_view WithoutQuotes(std::u16string_view text, std::u16string_view quotes) {
  if (!text.empty() && quotes.find(text.front()) != quotes.npos) text.remove_prefix(1);
  if (!text.empty() && quotes.find(text.back()) != quotes.npos) text.remove_suffix(1);
  return text;
}

}  // namespace

Text FindUserProcSignature(const Lexipad& pad, const Text& word) {
  const Text script = WithoutBlanks(pad.Contents());
  for (const std::u16string_view keyword : {u"function", u"sub"}) {
    const std::size_t at = FindNoCase(script, Text(keyword) + word + u"(");
    if (at == std::u16string_view::npos) continue;
    const std::u16string_view rest = script.View().substr(at + keyword.size());
    const std::size_t close = rest.find(u')');
    if (close == rest.npos) continue;
    return Replace(rest.substr(0, close + 1), u",", SeparatorText(pad.Language().separatorsFormat));
  }
  return {};
}

Completion::Completion(EditorCore& core, const CommandCatalogue& catalogue)
    : m_Core(core),
      m_Catalogue(catalogue),
      m_Popup(core.Surface().Popup()),
      m_List(core.Surface().PopupList()),
      m_Tip(core.Surface().PopupTip()) {}

void Completion::Show(bool show) {
  m_Popup->SetVisible(show);
  m_Core.Surface().SetTimer(show);
}

void Completion::PutAside() {
  m_Core.Surface().SetPopupSizable(false);
  m_Core.Surface().SetTimer(false);
  m_Popup->Move(m_Core.Surface().Width(), m_Core.Surface().Height(), m_Popup->Width(), m_Popup->Height());
  m_Popup->SetVisible(true);
  m_Rows.clear();
  m_List->Clear();
}

void Completion::OnKeyPress(char16_t key) {
  if (key == u')') return Hide();
  if (key != u'(' && key != u' ') return;
  const Lexipad& pad = *m_Core.pad;
  if (DefinesFunction(pad.LineText(pad.CurrentLine())) || pad.TokenClass() != TokenKind::Code) return;
  Open(WordBeforeCaret());
}

Text Completion::WordDelimiters() const {
  const LexipadLanguage& language = m_Core.pad->Language();
  return WithoutBlanks(language.operators) + WithoutBlanks(language.separators) + kLineEnds + kTab;
}

Text Completion::WordBeforeCaret() {
  Lexipad& pad = *m_Core.pad;
  const BusyScope busy(m_Core);
  const PadUpdate update(pad);
  const std::int32_t caret = pad.SelStart();
  pad.MoveToDelimiter(Text(u" ()[]{}") + WordDelimiters(), false, true);
  const Text word = pad.SelText();
  pad.SetSelStart(caret);
  return word;
}

void Completion::OpenAtCaret() {
  const BusyScope busy(m_Core);
  Open(CallAtCaret());
}

Text Completion::CallAtCaret() {
  Lexipad& pad = *m_Core.pad;
  const PadUpdate update(pad);
  const std::int32_t caret = pad.SelStart();
  LeaveString();
  const std::int32_t begin = pad.SelStart();
  pad.MoveToDelimiter(Text(u" ") + WordDelimiters(), false, true);
  if (pad.SelStart() != begin) pad.MoveToDelimiter(u" (", true, true);
  Text call = pad.SelText();
  if (const std::size_t bracket = call.View().rfind(u'('); bracket != std::u16string_view::npos)
    call = call.View().substr(0, bracket);
  for (const std::u16string_view part : {u"(", u"\"", u")"}) call = Replace(call, part, u"");
  pad.SetSelStart(caret);
  return call;
}

// Out of the string that the caret is in, to before the quote that opens it.
void Completion::LeaveString() {
  Lexipad& pad = *m_Core.pad;
  const std::int32_t lineStart = pad.LineIndex(-1);
  const Text delimiters = WithoutBlanks(pad.Language().stringQuotes) + kLineEnds + kTab;
  while (pad.TokenClass(pad.SelStart()) == TokenKind::String) {
    const std::int32_t before = pad.SelStart();
    pad.MoveToDelimiter(delimiters, false, false);
    const std::int32_t now = pad.SelStart();
    if (now == 0 || now < lineStart) return;
    // Right after the quote the edge stays where it is; one step left leaves the string.
    pad.SetSelStart(now - 1);
    if (pad.SelStart() == before) return;
  }
}

void Completion::InsertCall(std::u16string_view function) {
  Lexipad& pad = *m_Core.pad;
  const BusyScope busy(m_Core);
  const std::int32_t start = pad.SelStart();
  pad.SetSelText(Text(function) + u"(\"\")");
  pad.SetSelStart(start + static_cast<std::int32_t>(function.size()) + 2);
  Open(ToLower(function));
  m_Core.isModified = true;
}

void Completion::Open(const Text& word) {
  if (Trim(word).empty()) return;
  m_Rows.clear();
  m_List->Clear();
  m_AnchorPos = m_Core.pad->SelStart() + 1;
  const bool isRequest = EqualsNoCase(word, kRequestFunction);
  if (isRequest || EqualsNoCase(word, kCommandFunction)) {
    m_Rows = m_Catalogue.ListRows(isRequest);
    if (m_Rows.empty()) return;  // what is shown stays as it is
    m_QuoteInsert = true;
    m_List->SetVisible(true);
    m_List->SetRows(m_Rows);
    return Place({});
  }
  const Text signature = FindUserProcSignature(*m_Core.pad, word);
  m_QuoteInsert = false;
  if (signature.IsEmpty()) return Hide();
  Place(signature);
}

void Completion::Place(const Text& signature) {
  m_ListCaretPos = m_Core.pad->SelStart();
  const float x = PopupX();
  const float y = PopupY();
  if (signature.IsEmpty()) {
    m_Core.Surface().SetPopupSizable(true);
    m_Popup->Move(x, y, m_Width, m_Height);
  } else {
    m_Popup->Move(x, y, m_Popup->Width(), m_Popup->Height());
    ShowTip(signature);
  }
  ++m_ListCaretPos;
  Show(true);
  m_Popup->SetZOrder(StackPosition::Front);
  FocusPad(m_Core);
}

void Completion::ShowTip(const Text& text) {
  EditorSurface& surface = m_Core.Surface();
  surface.SetPopupSizable(false);
  m_Tip->SetDisplayText(text);
  const float room = std::max(0.0F, surface.Width() - m_Popup->Left());
  m_Tip->Move(0, 0, std::min(surface.TextWidth(text), room), surface.TextHeight());
  m_List->SetVisible(false);
  m_Popup->Move(m_Popup->Left(), m_Popup->Top(), m_Tip->Width(), m_Tip->Height());
}

float Completion::PopupX() {
  const Lexipad& pad = *m_Core.pad;
  if (pad.SelStart() == m_ListCaretPos) m_ListX = pad.CaretX();
  return pad.Left() + ToTwips(m_ListX);
}

float Completion::PopupY() const {
  const Lexipad& pad = *m_Core.pad;
  const EditorSurface& surface = m_Core.Surface();
  return pad.Top() + surface.PadOffset() + ToTwips(pad.CaretY()) + surface.TextHeight() + kGap;
}

void Completion::FollowCaret() {
  const Lexipad& pad = *m_Core.pad;
  if (!IsVisible() || m_Core.Surface().Description().IsActive()) return;
  const std::int32_t x = pad.CaretX();
  const std::int32_t y = pad.CaretY();
  if (x == m_CaretX && y == m_CaretY) return;
  m_CaretX = x;
  m_CaretY = y;
  m_Popup->Move(PopupX(), PopupY(), m_Popup->Width(), m_Popup->Height());
  FocusPad(m_Core);
}

void Completion::OnResize() {
  if (!m_List->IsVisible() || !m_Popup->IsVisible()) return;
  m_Width = m_Popup->Width();
  m_Height = m_Popup->Height();
}

bool Completion::EnterList() {
  if (!IsVisible() || !IsListVisible()) {
    Hide();
    return false;
  }
  const BusyScope busy(m_Core);
  m_List->SetFocus();
  return true;
}

// The list keeps all its entries; only the selected one follows.
void Completion::SelectTyped() {
  if (!IsVisible()) return;
  const std::optional<Text> found = TypedText();
  if (!found) return;
  const Text& typed = *found;
  const auto isMatch = [&](const CompletionRow& row) {
    return EqualsNoCase(row.text.View().substr(0, typed.Size()), typed);
  };
  const auto hit = typed.IsEmpty() ? m_Rows.end() : std::ranges::find_if(m_Rows, isMatch);
  if (hit == m_Rows.end()) return m_List->SetSelectedRow(0);
  const int row = static_cast<int>(hit - m_Rows.begin()) + 1;
  m_List->SetSelectedRow(row);
  m_List->EnsureVisible(row);
}

// None if nothing follows the anchor: the entry that was selected stays so.
std::optional<Text> Completion::TypedText() const {
  const Lexipad& pad = *m_Core.pad;
  const Text line = pad.LineText(pad.CurrentLine());
  const std::int32_t offset = m_AnchorPos - pad.LineIndex(-1);
  if (offset < 0 || static_cast<std::size_t>(offset) > line.Size()) return std::nullopt;
  const auto anchor = static_cast<std::size_t>(offset);
  const std::size_t end = TypedEnd(line, anchor);
  if (end <= anchor) return std::nullopt;
  const std::u16string_view typed = Trim(line.View().substr(anchor, end - anchor));
  return Text(WithoutQuotes(typed, WithoutBlanks(pad.Language().stringQuotes)));
}

std::size_t Completion::TypedEnd(std::u16string_view line, std::size_t anchor) const {
  const LexipadLanguage& language = m_Core.pad->Language();
  if (m_Core.pad->TokenClass() == TokenKind::String) {
    const Text quotes = WithoutBlanks(language.stringQuotes);
    for (const char16_t quote : quotes.View()) {
      const std::size_t open = line.rfind(quote, anchor);
      if (open == line.npos) continue;
      return std::min(line.find(quote, open + 1), line.size());
    }
    return line.size();
  }
  const Text ends = Text(u" ") + WithoutBlanks(language.separators) + WithoutBlanks(language.operators);
  return std::min(line.find_first_of(ends.View(), anchor), line.size());
}

void Completion::Accept() {
  Lexipad& pad = *m_Core.pad;
  const int row = m_List->SelectedRow();
  if (row < 1) return;
  Text entry = m_List->RowText(row);
  if (m_QuoteInsert) entry = Text(u"\"") + entry + u"\"";
  const std::size_t blank = entry.View().find(u' ');
  const std::size_t ahead = blank == std::u16string_view::npos ? entry.Size() : blank + 1;
  const BusyScope busy(m_Core);
  {
    const PadUpdate update(pad);
    pad.SetSelStart(m_AnchorPos);
    const std::int32_t line = pad.CurrentLine();
    pad.MoveToDelimiter(u" (", false, true);
    pad.MoveToDelimiter(u")\r\n", true, true);
    if (pad.CurrentLine() != line)
      pad.SetSelLength(pad.LineLength(m_AnchorPos) - (m_AnchorPos - pad.LineIndex(line - 1)));
    pad.SetSelText(entry);
  }
  pad.SetSelStart(m_AnchorPos + static_cast<std::int32_t>(ahead));
  Leave();
}

void Completion::Leave() {
  FocusPad(m_Core);
  Hide();
}

}  // namespace cardwright
