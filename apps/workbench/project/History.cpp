// SPDX-License-Identifier: MIT
#include "workbench/project/History.h"

#include <utility>

namespace cardwright::workbench {

void History::Begin(ProjectState state, bool isSaved) {
  m_States.clear();
  m_States.push_back(std::move(state));
  m_At = 0;
  m_Saved = isSaved ? 0 : kNone;
  EndTyping();
}

void History::Add(ProjectState state) {
  EndTyping();
  m_States.resize(m_At + 1);
  if (m_Saved > static_cast<std::ptrdiff_t>(m_At)) m_Saved = kNone;
  m_States.push_back(std::move(state));
  ++m_At;
  if (m_States.size() > kMaximumSteps + 1) Remove(FindRemovable());
}

void History::AddTyped(ProjectState state) {
  if (!m_IsTyping) {
    Add(std::move(state));
    m_IsTyping = true;
    return;
  }
  m_States[m_At] = std::move(state);
  if (!m_States[m_At].IsSameProject(m_States[m_At - 1])) return;
  Remove(m_At);  // the typing was undone by hand
  EndTyping();
}

const ProjectState& History::GoTo(std::size_t index) {
  EndTyping();
  m_At = index;
  return Current();
}

// Typing a long script must not push out the steps of the form: two successive steps of the script become
// one.
std::size_t History::FindRemovable() const {
  for (std::size_t i = 1; i + 1 < m_States.size(); ++i) {
    const bool isOfScript =
        m_States[i].HasSameForm(m_States[i - 1]) && m_States[i].HasSameForm(m_States[i + 1]);
    if (isOfScript && m_Saved != static_cast<std::ptrdiff_t>(i)) return i;
  }
  return 0;
}

// Only a state up to the current one is removed; the one before the current one then becomes the current one.
void History::Remove(std::size_t index) {
  const auto at = static_cast<std::ptrdiff_t>(index);
  m_States.erase(m_States.begin() + at);
  --m_At;
  if (m_Saved == at) {
    m_Saved = kNone;
  } else if (m_Saved > at) {
    --m_Saved;
  }
}

}  // namespace cardwright::workbench
