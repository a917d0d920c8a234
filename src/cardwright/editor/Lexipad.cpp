// SPDX-License-Identifier: MIT
#include "cardwright/editor/Lexipad.h"

#include <utility>

#include "cardwright/automation/Errors.h"

namespace cardwright {

namespace {

constexpr std::size_t IndexOf(SyntaxElement element) { return static_cast<std::size_t>(element); }

constexpr OleColor kRed = 255, kGreen = 32768, kMagenta = 16711935, kOrange = 33023, kBlack = 0;

}  // namespace

Lexipad::Lexipad() {
  m_Styles[IndexOf(SyntaxElement::Keywords)].color = kRed;
  m_Styles[IndexOf(SyntaxElement::Remarks)].color = kGreen;
  m_Styles[IndexOf(SyntaxElement::Constants)].color = kBlack;
  m_Styles[IndexOf(SyntaxElement::Strings)].color = kOrange;
  m_Styles[IndexOf(SyntaxElement::Numbers)].color = kMagenta;
  m_Styles[IndexOf(SyntaxElement::Variables)].color = kRed;
}

void Lexipad::SetLanguage(LexipadLanguage language) {
  m_Language = std::move(language);
  OnSettingsChanged();
}

ElementStyle Lexipad::Style(SyntaxElement element) const {
  if (element == SyntaxElement::Text) return {ForeColor(), GetFont()->Values().bold};
  return m_Styles[IndexOf(element)];
}

void Lexipad::SetStyle(SyntaxElement element, const ElementStyle& style) {
  if (Style(element) == style) return;
  if (element == SyntaxElement::Text) {
    SetForeColor(style.color);
    FontValues font = GetFont()->Values();
    font.bold = style.bold;
    GetFont()->Assign(std::move(font));
  } else {
    m_Styles[IndexOf(element)] = style;
  }
  OnSettingsChanged();
}

void Lexipad::SetMaxLineLength(std::int32_t length) {
  m_MaxLineLength = length;
  OnSettingsChanged();
}

PadUpdate::~PadUpdate() {
  BestEffort([this] { m_Pad->EndUpdate(); });
}

}  // namespace cardwright
