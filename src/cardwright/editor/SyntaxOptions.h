// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "cardwright/editor/CElement.h"
#include "cardwright/editor/Lexipad.h"

namespace cardwright {

/// Elements whose colour and weight the user can choose, in the order of the options dialog.
inline constexpr int kChoosableElements = 6;

/// What the options dialog changes: the font and the colours of a text widget. Nothing reaches the widget or
/// the user's settings before Apply.
class SyntaxOptions {
 public:
  explicit SyntaxOptions(Ref<Lexipad> pad);

  const Text& FontName() const noexcept { return m_FontName; }
  void SetFontName(const Text& name);
  double FontSize() const noexcept { return m_FontSize; }
  void SetFontSize(double points);
  /// An element by its place in the dialog's list.
  const CElement& Element(int index) const { return *m_Elements.at(static_cast<std::size_t>(index)); }
  void SetBold(int index, bool bold);
  void SetColor(int index, OleColor color);
  /// Whether anything was chosen, be it what was there before.
  bool IsDirty() const noexcept { return m_IsDirty; }

  /// Gives the widget what was chosen, saves it and colours the text again. Does nothing where nothing was
  /// chosen.
  void Apply();

 private:
  const Ref<Lexipad> m_Pad;
  Text m_FontName;
  double m_FontSize;
  std::array<Ref<CElement>, kChoosableElements> m_Elements;
  bool m_IsDirty = false;
};

/// Reads the font and the colours that the user chose into a text widget; what was never saved stays. Nothing
/// is read where the host gave the settings no name.
void ReadSyntaxSettings(Lexipad& pad);

}  // namespace cardwright
