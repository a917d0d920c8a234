#include "workbench/project/History.h"

#include <utility>

namespace cardwright::workbench {

void History::Begin(ProjectState state, bool isSaved) {
  m_States.clear();
  m_States.push_back(std::move(state));
  m_At = 0;
  m_Saved = isSaved ? 0 : kNowhere;
  EndTyping();
}

void History::Add(ProjectState state) {
  EndTyping();
  m_States.resize(m_At + 1);
  if (m_Saved > static_cast<std::ptrdiff_t>(m_At)) m_Saved = kNowhere;
  m_States.push_back(std::move(state));
  ++m_At;
  if (m_States.size() > kMostSteps + 1) Remove(Expendable());
}

void History::AddTyped(ProjectState state) {
  if (!m_IsTyping) {
    Add(std::move(state));
    m_IsTyping = true;
    return;
  }
  m_States[m_At] = std::move(state);
  if (!m_States[m_At].IsSameProject(m_States[m_At - 1])) return;
  Remove(m_At);  // what was typed is taken back
  EndTyping();
}

const ProjectState& History::GoTo(std::size_t place) {
  EndTyping();
  m_At = place;
  return Current();
}

// A long script must not push the form's steps out: where it changed twice in a row, two steps become one.
std::size_t History::Expendable() const {
  for (std::size_t i = 1; i + 1 < m_States.size(); ++i) {
    const bool isOfScript =
        m_States[i].HasSameForm(m_States[i - 1]) && m_States[i].HasSameForm(m_States[i + 1]);
    if (isOfScript && m_Saved != static_cast<std::ptrdiff_t>(i)) return i;
  }
  return 0;
}

// One that is not behind the present one, or the present one itself, whose place the one before takes.
void History::Remove(std::size_t place) {
  const auto at = static_cast<std::ptrdiff_t>(place);
  m_States.erase(m_States.begin() + at);
  --m_At;
  if (m_Saved == at) {
    m_Saved = kNowhere;
  } else if (m_Saved > at) {
    --m_Saved;
  }
}

}  // namespace cardwright::workbench
