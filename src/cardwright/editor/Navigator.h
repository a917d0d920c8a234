// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cardwright/editor/EditorCore.h"
#include "cardwright/model/IControl.h"

namespace cardwright {

/// The two combos above the text: the form's controls, and the events of the one that is chosen or the free
/// procedures of the script. Choosing an event goes to its procedure and writes an empty one where there is
/// none; the combos follow the caret.
class Navigator {
 public:
  explicit Navigator(EditorCore& core) : m_Core(core) {}

  /// The controls of the form, in any collection of them; null for none. Empties the combos and fills the
  /// first one again.
  void TakeControls(Ref<Object> controls);
  /// Fills the first combo again after controls came, went or were renamed.
  void RefreshControls();
  /// The names of the controls with a blank around each, as the widget's constants take them.
  const Text& ControlNames() const noexcept { return m_ControlNames; }

  void OnControlChosen();
  void OnEventChosen();
  /// Shows the procedure that the caret is in.
  void FollowCaret();
  /// Takes the mark off the chosen event where its procedure is gone.
  void UpdateEventMark();

 private:
  Text FillControls();
  void FillProcedures();
  bool IsEventProcedure(std::u16string_view procedure) const;
  void FillEvents(const Text& name);
  Ref<IControl> FindControlByName(std::u16string_view name) const;
  std::vector<Ref<IControl>> Controls() const;
  Text ChosenControl() const;
  Text ChosenEvent() const;
  void ChooseFirstWritten(const Text& control);
  void GoToProcedure(const Text& control, const Text& event);
  std::int32_t WriteProcedure(const Text& name);
  void SelectControl(std::u16string_view name);
  void SelectEvent(std::u16string_view event);
  int FindEntry(const ComboWidget& combo, std::u16string_view text) const;

  EditorCore& m_Core;
  Ref<Object> m_Controls;
  Text m_ControlNames;
  int m_LastControl = -1;           // index handled last; -1 has the events filled again
  bool m_IsSyncing = false;         // the combos follow the caret, which stays
  bool m_IsRefreshing = false;      // the first combo is being filled
  bool m_IsGoing = false;           // the caret is on its way to a procedure
  std::int32_t m_MarkedAt = 0;      // where the chosen event's procedure was found last
  std::int32_t m_MarkedLength = 0;  // of the text then
};

}  // namespace cardwright
