// SPDX-License-Identifier: MIT
#include "cardwright/orv/StoreSession.h"

#include <utility>

#include "cardwright/orv/CommandError.h"
#include "cardwright/orv/ErrorTrap.h"

namespace cardwright::orv {

namespace {

Text Joined(const Text& first, const Text& second) {
  return first.IsEmpty() || second.IsEmpty() ? first + second : first + u"\r\n" + second;
}

}  // namespace

StoreSession::StoreSession(const Text& source, bool readOnly) : m_Store(source, readOnly) {
  const ErrorTrap trap;
  for (OGRLayer* layer : m_Store.Data().GetLayers()) AddTheme(*layer);
  // A layer whose columns are first read while another program holds a lock would stay without them.
  if (trap.IsLock()) RaiseNotOpened(source, trap.Reason());
}

void StoreSession::AddTheme(OGRLayer& layer) {
  auto theme = std::make_unique<Theme>(layer, m_Store);
  // No command could name it.
  if (theme->Name().View().find(u'|') != std::u16string_view::npos) return;
  m_ThemeNames.Add(theme->Name(), static_cast<int>(m_Themes.size()));
  m_Themes.push_back(std::move(theme));
}

const StoreSession::Command StoreSession::kCommands[] = {
    {u"THEME_NAMES", Effect::Query, &StoreSession::ThemeNames},
    {u"THEME_FEATURE_TYPES", Effect::Query, &StoreSession::ThemeFeatureTypes},
    {u"THEME_NUMBER", Effect::Query, &StoreSession::ThemeNumber},
    {u"THEME_ACTIVE", Effect::Query, &StoreSession::ThemeActive},
    {u"THEME_CREATE", Effect::FlushesEdits, &StoreSession::ThemeCreate},
    {u"THEME_SELECTION_BYVALUE", Effect::FlushesEdits, &StoreSession::SelectByValue},
    {u"THEME_SELECTION_NONE", Effect::FlushesEdits, &StoreSession::SelectNone},
    {u"THEME_SELECTED_NUMBER", Effect::Query, &StoreSession::SelectedNumber},
    {u"THEME_MOVEFIRST", Effect::FlushesEdits, &StoreSession::MoveFirst},
    {u"THEME_CURRENT_ISVALID", Effect::Query, &StoreSession::CurrentIsValid},
    {u"THEME_ATTRIBUTE_NUMBER", Effect::Query, &StoreSession::AttributeNumber},
    {u"THEME_ATTRIBUTE", Effect::Query, &StoreSession::AttributeRecord},
    {u"THEME_ATTRIBUTE_NAMES", Effect::Query, &StoreSession::AttributeNames},
    {u"THEME_GET_ATTRIBUTE", Effect::Query, &StoreSession::GetAttribute},
    {u"THEME_SET_ATTRIBUTE", Effect::AddsEdit, &StoreSession::SetAttribute},
    {u"APPLICATION_FLAGREDRAW", Effect::FlushesEdits, &StoreSession::FlagRedraw},
    {u"APPLICATION_REDRAW", Effect::FlushesEdits, &StoreSession::Redraw},
    {u"HWND_CONTROL", Effect::Query, &StoreSession::ControlWindow},
};

const StoreSession::Command* StoreSession::FindCommand(std::u16string_view name) {
  static const NameLookup lookup = [] {
    NameLookup names;
    for (const Command& command : kCommands) names.Add(command.name, static_cast<int>(&command - kCommands));
    return names;
  }();
  const int position = lookup.Find(name);
  return position == NameLookup::kNone ? nullptr : &kCommands[position];
}

CommandResult StoreSession::Run(std::u16string_view command) {
  CommandResult result;
  Perform(command, result);
  lastError = result.error;
  return result;
}

void StoreSession::Perform(std::u16string_view text, CommandResult& result) {
  CommandReader parts(text);
  const auto name = parts.ReadWord();
  const Command* const command = FindCommand(name);
  result.isQuery = !command || command->effect == Effect::Query;
  Text flushError;
  if (command && command->effect == Effect::FlushesEdits) flushError = FlushEdits();
  Text ownError;
  bool isReportedLater = false;
  try {
    if (!command) Fail(u"This host has no command " + Quoted(name) + u".");
    result.reply = (this->*command->perform)(parts);
  } catch (const CommandError& error) {
    ownError = error.message;
    // An invalid value makes all pending values invalid, and is reported once with them.
    isReportedLater = command && command->effect == Effect::AddsEdit && m_Edits.IsOpen();
    if (isReportedLater) m_Edits.Invalidate(ownError);
  }
  if (!m_FlushError.IsEmpty()) flushError = std::exchange(m_FlushError, Text());
  result.error = Joined(flushError, ownError);
  result.notice = result.isQuery || isReportedLater ? flushError : result.error;
}

Text StoreSession::FlushEdits() {
  try {
    m_Edits.Flush(m_Store);
    return {};
  } catch (const CommandError& error) {
    return error.message;
  }
}

// The last theme is kept, because a form asks for one theme hundreds of times in a row.
Theme* StoreSession::FindTheme(std::u16string_view name) {
  if (m_LastTheme && m_LastTheme->Name() == name) return m_LastTheme;
  const int position = m_ThemeNames.Find(name);
  m_LastTheme = position == NameLookup::kNone ? nullptr : m_Themes[static_cast<std::size_t>(position)].get();
  return m_LastTheme;
}

Theme& StoreSession::ReadTheme(CommandReader& parts) {
  const auto name = parts.ReadPart(u"theme name");
  Theme* const theme = FindTheme(name);
  if (!theme) Fail(u"There is no theme " + Quoted(name) + u".");
  return *theme;
}

Theme* StoreSession::ReadThemeOfType(CommandReader& parts) {
  Theme& theme = ReadTheme(parts);
  return theme.HasFeatureType(parts.ReadPart(u"feature type")) ? &theme : nullptr;
}

}  // namespace cardwright::orv
