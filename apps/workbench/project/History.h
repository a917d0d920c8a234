// SPDX-License-Identifier: MIT
#pragma once

#include <deque>

#include "workbench/project/ProjectState.h"

namespace cardwright::workbench {

/// The states of a project for undo and redo, and the current one among them.
class History {
 public:
  static constexpr std::size_t kMaximumSteps = 250;

  /// Discards all states and begins with this one.
  void Begin(ProjectState state, bool isSaved);
  /// Adds a state after the current one; states that were undone are discarded.
  void Add(ProjectState state);
  /// The same for a state in which only the script differs. Continued typing replaces the current state.
  void AddTyped(ProjectState state);
  /// Further typing is a step of its own.
  void EndTyping() noexcept { m_IsTyping = false; }
  bool IsEmpty() const noexcept { return m_States.empty(); }
  const ProjectState& Current() const { return m_States[m_At]; }
  /// Replaces the current state, which is no step: the designer may show it slightly differently.
  void ReplaceCurrent(ProjectState state) { m_States[m_At] = std::move(state); }
  void Select(const Text& control) { m_States[m_At].selected = control; }

  bool CanUndo() const noexcept { return m_At > 0; }
  bool CanRedo() const noexcept { return m_At + 1 < m_States.size(); }
  /// Goes one state back or forward, which must be possible.
  const ProjectState& Undo() { return GoTo(m_At - 1); }
  const ProjectState& Redo() { return GoTo(m_At + 1); }

  void MarkSaved() noexcept {
    m_Saved = static_cast<std::ptrdiff_t>(m_At);
    EndTyping();
  }
  bool IsSaved() const noexcept { return m_Saved == static_cast<std::ptrdiff_t>(m_At); }

 private:
  static constexpr std::ptrdiff_t kNone = -1;

  const ProjectState& GoTo(std::size_t index);
  std::size_t FindRemovable() const;
  void Remove(std::size_t index);

  std::deque<ProjectState> m_States;
  std::size_t m_At = 0;
  std::ptrdiff_t m_Saved = kNone;
  bool m_IsTyping = false;  // the current state, which is then the last one, is from typing
};

}  // namespace cardwright::workbench
