#pragma once

#include <deque>

#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// The states that a project went through, with a place among them.
class History {
 public:
  static constexpr std::size_t kMostSteps = 250;

  /// Begins anew with a state, which counts as saved or not.
  void Begin(ProjectState state, bool isSaved);
  /// Adds a state behind the present one; those that were undone are gone.
  void Add(ProjectState state);
  /// The same for a state with another script only. While typing goes on it takes the present one's place.
  void AddTyped(ProjectState state);
  /// What is typed from now on is a step of its own.
  void EndTyping() noexcept { m_IsTyping = false; }
  bool IsEmpty() const noexcept { return m_States.empty(); }
  /// The present state.
  const ProjectState& Current() const { return m_States[m_At]; }
  /// Writes the present state down as the designer has it, which is no step.
  void Settle(ProjectState state) { m_States[m_At] = std::move(state); }
  void Select(const Text& control) { m_States[m_At].selected = control; }

  bool CanUndo() const noexcept { return m_At > 0; }
  bool CanRedo() const noexcept { return m_At + 1 < m_States.size(); }
  /// Goes one state back or forth, which must be possible.
  const ProjectState& Undo() { return GoTo(m_At - 1); }
  const ProjectState& Redo() { return GoTo(m_At + 1); }

  void MarkSaved() noexcept {
    m_Saved = static_cast<std::ptrdiff_t>(m_At);
    EndTyping();
  }
  bool IsSaved() const noexcept { return m_Saved == static_cast<std::ptrdiff_t>(m_At); }

 private:
  static constexpr std::ptrdiff_t kNowhere = -1;

  const ProjectState& GoTo(std::size_t place);
  std::size_t Expendable() const;
  void Remove(std::size_t place);

  std::deque<ProjectState> m_States;
  std::size_t m_At = 0;
  std::ptrdiff_t m_Saved = kNowhere;
  bool m_IsTyping = false;  // the present state, which is the last one then, is what was typed up to now
};

}  // namespace cardwright::workbench
