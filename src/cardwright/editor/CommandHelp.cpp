// SPDX-License-Identifier: MIT
#include "cardwright/editor/CommandHelp.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "cardwright/automation/Errors.h"
#include "cardwright/editor/EditorSettings.h"

namespace cardwright {

namespace {

constexpr std::u16string_view kHelpButtonKey = u"help";
constexpr std::u16string_view kVisibleSetting = u"Visible";
constexpr std::u16string_view kWidthSetting = u"Width", kHeightSetting = u"Height", kTopSetting = u"Top",
                              kLeftSetting = u"Left";

std::u16string_view FirstWord(std::u16string_view text) {
  text = Trim(text);
  return text.substr(0, text.find(u' '));
}

int ToTwip(float value) { return static_cast<int>(std::lround(value)); }

// An empty guide stays so while the window has the title it was made with; hosts that give it another one
// have the user read it.
Text GuideText(std::u16string_view tip, const Text& caption) {
  const std::u16string_view guide = Trim(tip);
  const bool isMissing = guide.empty() || guide == u"?";
  return isMissing && caption != u"Descrizione ORV" ? Text(u"Guida non disponibile") : Text(guide);
}

}  // namespace

void CommandHelp::FollowCaret() {
  const Lexipad& pad = *m_Core.pad;
  DescriptionWindow& window = m_Core.Surface().Description();
  const Text word = pad.SelLength() > 0 ? Text(Trim(pad.SelText())) : WordAtCaret();
  if (word.IsEmpty()) {
    window.SetCategory({});
    window.SetSyntax({});
    window.SetTip({});
  } else if (!EqualsNoCase(word, FirstWord(window.Syntax()))) {
    Describe(word);
  }
  FocusPad(m_Core);
}

// From the quote before the caret, or from the caret itself, to the next blank or the quote that closes.
Text CommandHelp::WordAtCaret() const {
  const Lexipad& pad = *m_Core.pad;
  const Text line = pad.LineText(pad.CurrentLine());
  const Text quotes = WithoutBlanks(pad.Language().stringQuotes);
  const auto caret = static_cast<std::size_t>(std::max(0, pad.CurrentCol() - 1));
  const std::u16string_view before = line.View().substr(0, std::max<std::size_t>(caret, 1));
  const std::size_t quote = before.find_last_of(quotes.View());
  const std::size_t start = quote == before.npos ? caret : quote + 1;
  if (start >= line.Size()) return {};
  const std::u16string_view rest = line.View().substr(start);
  std::size_t end = rest.find(u' ');
  if (end == rest.npos) end = rest.find_first_of(quotes.View());
  return rest.substr(0, end);
}

void CommandHelp::Describe(std::u16string_view word) {
  const CommandDescription found = m_Catalogue.Lookup(word).value_or(CommandDescription());
  DescriptionWindow& window = m_Core.Surface().Description();
  window.SetCategory(found.category);
  window.SetSyntax(found.syntax);
  window.SetTip(GuideText(found.tip, window.Caption()));
}

Ref<ToolButton> CommandHelp::Button() const {
  const Ref<ToolButton> button = m_Core.toolbar->Buttons()->Find(kHelpButtonKey);
  if (!button) Raise(ErrorNumber::ObjectNotSet);
  return button;
}

void CommandHelp::ApplyButton() {
  EditorSurface& surface = m_Core.Surface();
  if (Button()->Value() == 0) return surface.Description().SetVisible(false);
  const BusyScope busy(m_Core);
  surface.Description().SetVisible(true);
  surface.FocusHost();
}

void CommandHelp::ReadPlace() {
  const EditorSettings settings = EditorSettings::OfDescription();
  if (!settings.IsNamed()) return;
  Button()->SetValue(std::abs(static_cast<std::int32_t>(settings.ReadNumber(kVisibleSetting, 0))));
  DescriptionWindow& window = m_Core.Surface().Description();
  const ScreenRect now = window.Place();
  const ScreenRect host = m_Core.Surface().HostFrame();
  const auto read = [&](std::u16string_view key, int fallback) {
    return ToTwip(settings.ReadNumber(key, static_cast<float>(fallback)));
  };
  const int width = read(kWidthSetting, now.Width());
  const int height = read(kHeightSetting, now.Height());
  const int top = read(kTopSetting, host.bottom - height);
  const int left = read(kLeftSetting, host.right - width);
  window.SetPlace({left, top, left + width, top + height});
}

void CommandHelp::SavePlace() const {
  const EditorSettings settings = EditorSettings::OfDescription();
  if (!settings.IsNamed()) return;
  const ScreenRect place = m_Core.Surface().Description().Place();
  settings.SaveNumber(kWidthSetting, static_cast<float>(place.Width()));
  settings.SaveNumber(kHeightSetting, static_cast<float>(place.Height()));
  settings.SaveNumber(kTopSetting, static_cast<float>(place.top));
  settings.SaveNumber(kLeftSetting, static_cast<float>(place.left));
}

void CommandHelp::SaveVisible() const {
  EditorSettings::OfDescription().SaveNumber(kVisibleSetting, static_cast<float>(Button()->Value()));
}

void CommandHelp::ShowIfWanted() {
  if (!m_Core.Surface().IsRunning() || !EditorSettings::OfDescription().IsNamed()) return;
  if (Button()->Value() != 0) ApplyButton();
}

}  // namespace cardwright
