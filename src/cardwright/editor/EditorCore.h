// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/editor/EditorSurface.h"

namespace cardwright {

/// What the parts of one editor share: its widgets, the document's language and the state that tells the
/// user's edits from the editor's own.
class EditorCore {
 public:
  explicit EditorCore(EditorSurface& surface);

  /// Error 91 once the surface has ended.
  EditorSurface& Surface() const;
  bool HasSurface() const noexcept { return m_Surface != nullptr; }
  void DetachSurface() noexcept { m_Surface = nullptr; }

  const Ref<Lexipad> pad;
  const Ref<ToolbarWidget> toolbar;
  const Ref<ComboWidget> controlsCombo;
  const Ref<ComboWidget> eventsCombo;
  const Ref<CaptionWidget> positionLabel;
  const Ref<CaptionWidget> languageLabel;

  Text language = u"VBScript";  ///< as it was given, in any case
  bool isBusy = false;          ///< the editor itself edits: nothing counts as a change by the author
  bool isModified = false;
  std::int32_t lastLine = 0;  ///< the caret's line as it was handled last, 0 before the first time

 private:
  EditorSurface* m_Surface;
};

/// Marks the editor as busy for a scope, and leaves it as it was.
class BusyScope {
 public:
  explicit BusyScope(EditorCore& core) : m_Core(core), m_WasBusy(core.isBusy) { core.isBusy = true; }
  ~BusyScope() { m_Core.isBusy = m_WasBusy; }
  BusyScope(const BusyScope&) = delete;
  BusyScope& operator=(const BusyScope&) = delete;

 private:
  EditorCore& m_Core;
  const bool m_WasBusy;
};

/// Gives the text widget the keyboard where it is seen.
void FocusPad(const EditorCore& core);
/// A text without its blanks, as word lists of the widget are turned into sets of characters.
Text WithoutBlanks(std::u16string_view text);

}  // namespace cardwright
