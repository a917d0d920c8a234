// SPDX-License-Identifier: MIT
#include "cardwright/editor/TextSearch.h"

#include "cardwright/platform/Desktop.h"
#include "cardwright/shared/Messages.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {

bool TextSearch::Ask() {
  Lexipad& pad = *m_Core.pad;
  const Text selected = pad.SelText();
  m_Core.Surface().SetTimer(false);
  const std::optional<SearchRequest> request =
      m_Core.Surface().AskSearch(Trim(selected).empty() ? Text() : selected);
  m_Core.Surface().SetTimer(m_Core.Surface().Popup()->IsVisible());
  if (!request) return false;
  const int options =
      (request->matchCase ? FindOption::MatchCase : 0) | (request->wholeWord ? FindOption::WholeWord : 0);
  return Run({request->text, pad.SelStart(), options, static_cast<SearchDirection>(request->direction)});
}

bool TextSearch::Again() { return Run({.start = m_Core.pad->SelStart(), .direction = SearchDirection::All}); }

bool TextSearch::Run(const SearchStep& step) {
  const bool isRepeat = step.text.IsEmpty();
  const Text text = isRepeat ? m_LastFind : step.text;
  if (text.IsEmpty()) return false;
  const int options = step.options.value_or(m_LastOptions);
  const SearchDirection direction = step.direction.value_or(m_LastDirection);
  std::int32_t start = step.start < 0 ? m_LastPos : step.start;
  // Past the hit that is selected now.
  if (text == m_LastFind && start == m_LastPos && direction != SearchDirection::Up)
    start += static_cast<std::int32_t>(m_LastFind.Size());
  const std::int32_t hit = Find(text, start, options, direction);
  m_LastFind = text;
  m_LastPos = start;
  m_LastOptions = options;
  if (!isRepeat) m_LastDirection = direction;
  if (hit >= 0) {
    m_LastPos = hit;
    return true;
  }
  if (Module().desktop)
    Module().desktop->ShowMessage(GetMessage(messages::NoResults, {Variant(m_LastFind)}),
                                  BoxStyle::Information, {});
  return false;
}

// Upward the search runs from the top of the text, so the first hit above the start is found and not the
// nearest; with nothing above the start it counts as a hit at the top. Hosts' macros count on both.
std::int32_t TextSearch::Find(const Text& text, std::int32_t start, int options,
                              SearchDirection direction) const {
  Lexipad& pad = *m_Core.pad;
  switch (direction) {
    case SearchDirection::Up: return start < 1 ? 0 : pad.Find(text, 0, start - 1, options);
    case SearchDirection::Down: return pad.Find(text, start, {}, options);
    case SearchDirection::All: break;
  }
  const std::int32_t hit = pad.Find(text, start, {}, options);
  return hit < 0 && start >= 1 ? pad.Find(text, 0, start - 1, options) : hit;
}

void SearchHistory::Add(const Text& text) {
  if (Trim(text).empty() || (!m_Texts.empty() && m_Texts.front() == text)) return;
  m_Texts.insert(m_Texts.begin(), text);
  if (m_Texts.size() > kKept) m_Texts.pop_back();
}

}  // namespace cardwright
