// SPDX-License-Identifier: MIT
#include "cardwright/editor/EditorCore.h"

#include "cardwright/automation/Errors.h"

namespace cardwright {

EditorCore::EditorCore(EditorSurface& surface)
    : pad(surface.Pad()),
      toolbar(surface.Toolbar()),
      controlsCombo(surface.ControlsCombo()),
      eventsCombo(surface.EventsCombo()),
      positionLabel(surface.PositionLabel()),
      languageLabel(surface.LanguageLabel()),
      m_Surface(&surface) {}

EditorSurface& EditorCore::Surface() const {
  if (!m_Surface) Raise(ErrorNumber::ObjectNotSet);
  return *m_Surface;
}

void FocusPad(const EditorCore& core) {
  if (core.pad->IsVisible()) core.pad->SetFocus();
}

Text WithoutBlanks(std::u16string_view text) { return Replace(text, u" ", u""); }

}  // namespace cardwright
