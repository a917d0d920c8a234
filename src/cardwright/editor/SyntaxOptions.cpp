// SPDX-License-Identifier: MIT
#include "cardwright/editor/SyntaxOptions.h"

#include <utility>

#include "cardwright/automation/Conversions.h"
#include "cardwright/editor/EditorSettings.h"

namespace cardwright {

namespace {

/// Names under which an element's colour and weight are settings, and properties of the widget.
struct ElementNames {
  std::u16string_view color;
  std::u16string_view bold;
};

constexpr std::array<ElementNames, kChoosableElements> kElementNames = {{
    {u"ForeColor", u"FontBold"},
    {u"KeywordsColor", u"KeywordsBold"},
    {u"RemarksColor", u"RemarksBold"},
    {u"ConstantsColor", u"ConstantsBold"},
    {u"StringsColor", u"StringsBold"},
    {u"NumbersColor", u"NumbersBold"},
}};

constexpr std::u16string_view kFontNameKey = u"FontName";
constexpr std::u16string_view kFontSizeKey = u"FontSize";

Text FlagText(bool flag) { return flag ? u"1" : u"0"; }

void AssignFont(Lexipad& pad, Text name, double size) {
  FontValues font = pad.GetFont()->Values();
  font.name = std::move(name);
  font.size = size;
  pad.GetFont()->Assign(std::move(font));
}

void ReadFont(Lexipad& pad, const EditorSettings& settings) {
  const FontValues now = pad.GetFont()->Values();
  const Text name = settings.Read(kFontNameKey, now.name);
  const double size = BestEffortOr(now.size, [&] {
    const Text saved = settings.Read(kFontSizeKey, {});
    return saved.IsEmpty() ? now.size : ToFontSize(ToDouble(Variant(saved)));
  });
  AssignFont(pad, name.IsEmpty() ? now.name : name, size);
}

void ReadColor(Lexipad& pad, const EditorSettings& settings, std::u16string_view name) {
  const Text now = ToText(GetProperty(pad, name));
  BestEffort([&] { LetProperty(pad, name, Variant(ToLong(Variant(settings.Read(name, now))))); });
}

void ReadBold(Lexipad& pad, const EditorSettings& settings, std::u16string_view name) {
  const Text now = FlagText(ToBoolean(GetProperty(pad, name)));
  BestEffort([&] { LetProperty(pad, name, Variant(ToLong(Variant(settings.Read(name, now))) != 0)); });
}

}  // namespace

SyntaxOptions::SyntaxOptions(Ref<Lexipad> pad)
    : m_Pad(std::move(pad)),
      m_FontName(m_Pad->GetFont()->Values().name),
      m_FontSize(m_Pad->GetFont()->Values().size) {
  for (std::size_t i = 0; i < m_Elements.size(); ++i) {
    m_Elements[i] = MakeRef<CElement>();
    m_Elements[i]->m_Color = ToLong(GetProperty(*m_Pad, kElementNames[i].color));
    m_Elements[i]->m_FontBold = ToBoolean(GetProperty(*m_Pad, kElementNames[i].bold));
  }
}

void SyntaxOptions::SetFontName(const Text& name) {
  if (Trim(name).empty()) return;
  m_FontName = name;
  m_IsDirty = true;
}

void SyntaxOptions::SetFontSize(double points) {
  m_FontSize = points;
  m_IsDirty = true;
}

void SyntaxOptions::SetBold(int index, bool bold) {
  m_Elements.at(static_cast<std::size_t>(index))->m_FontBold = bold;
  m_IsDirty = true;
}

void SyntaxOptions::SetColor(int index, OleColor color) {
  m_Elements.at(static_cast<std::size_t>(index))->m_Color = color;
  m_IsDirty = true;
}

void SyntaxOptions::Apply() {
  if (!m_IsDirty) return;
  AssignFont(*m_Pad, m_FontName, m_FontSize);
  for (std::size_t i = 0; i < m_Elements.size(); ++i) {
    LetProperty(*m_Pad, kElementNames[i].color, Variant(m_Elements[i]->m_Color));
    LetProperty(*m_Pad, kElementNames[i].bold, Variant(m_Elements[i]->m_FontBold));
  }
  const EditorSettings settings = EditorSettings::OfEditor();
  settings.Save(kFontNameKey, m_FontName);
  settings.Save(kFontSizeKey, ToText(Variant(m_FontSize)));
  for (std::size_t i = 0; i < m_Elements.size(); ++i) {
    settings.Save(kElementNames[i].color, ToText(GetProperty(*m_Pad, kElementNames[i].color)));
    settings.Save(kElementNames[i].bold, FlagText(ToBoolean(GetProperty(*m_Pad, kElementNames[i].bold))));
  }
  m_Pad->Reformat(ReformatMode::Text);
}

// In the order in which hosts that log their settings store see the keys read.
void ReadSyntaxSettings(Lexipad& pad) {
  const EditorSettings settings = EditorSettings::OfEditor();
  if (!settings.IsNamed()) return;
  ReadFont(pad, settings);
  ReadBold(pad, settings, kElementNames[0].bold);
  ReadColor(pad, settings, kElementNames[0].color);
  for (std::size_t i = 1; i < kElementNames.size(); ++i) {
    ReadBold(pad, settings, kElementNames[i].bold);
    ReadColor(pad, settings, kElementNames[i].color);
  }
}

}  // namespace cardwright
