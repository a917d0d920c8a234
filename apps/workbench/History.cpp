#include "workbench/History.h"

#include <utility>

namespace cardwright::workbench {

void History::Begin(ProjectState state, bool isSaved) {
  m_States.clear();
  m_States.push_back(std::move(state));
  m_At = 0;
  m_Saved = isSaved ? 0 : kNowhere;
}

void History::Add(ProjectState state) {
  m_States.resize(m_At + 1);
  if (m_Saved > static_cast<std::ptrdiff_t>(m_At)) m_Saved = kNowhere;
  m_States.push_back(std::move(state));
  ++m_At;
  if (m_States.size() <= kMostSteps + 1) return;
  m_States.pop_front();
  --m_At;
  if (m_Saved != kNowhere) --m_Saved;  // the first one's place is that of none
}

}  // namespace cardwright::workbench
