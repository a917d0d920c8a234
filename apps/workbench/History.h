#pragma once

#include <deque>

#include "workbench/ProjectState.h"

namespace cardwright::workbench {

/// The states that a project went through, with a place among them.
class History {
 public:
  static constexpr std::size_t kMostSteps = 250;

  /// Begins anew with a state, which counts as saved or not.
  void Begin(ProjectState state, bool isSaved);
  /// Adds a state behind the present one; those that were undone are gone.
  void Add(ProjectState state);
  bool IsEmpty() const noexcept { return m_States.empty(); }
  /// The present state.
  const ProjectState& Current() const { return m_States[m_At]; }
  void Select(const Text& control) { m_States[m_At].selected = control; }

  bool CanUndo() const noexcept { return m_At > 0; }
  bool CanRedo() const noexcept { return m_At + 1 < m_States.size(); }
  /// Goes one state back or forth, which must be possible.
  const ProjectState& Undo() { return m_States[--m_At]; }
  const ProjectState& Redo() { return m_States[++m_At]; }

  void MarkSaved() noexcept { m_Saved = static_cast<std::ptrdiff_t>(m_At); }
  void MarkUnsaved() noexcept { m_Saved = kNowhere; }
  bool IsSaved() const noexcept { return m_Saved == static_cast<std::ptrdiff_t>(m_At); }

 private:
  static constexpr std::ptrdiff_t kNowhere = -1;

  std::deque<ProjectState> m_States;
  std::size_t m_At = 0;
  std::ptrdiff_t m_Saved = kNowhere;
};

}  // namespace cardwright::workbench
