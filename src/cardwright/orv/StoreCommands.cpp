// SPDX-License-Identifier: MIT
// The commands of the session. Their names and effects are in the table of StoreSession.cpp.
#include <algorithm>

#include "cardwright/orv/CommandError.h"
#include "cardwright/orv/NewTheme.h"
#include "cardwright/orv/StoreSession.h"

namespace cardwright::orv {

namespace {

Text NumberText(std::size_t number) { return Text::FromUtf8(std::to_string(number)); }

/// Lists are split at commas, so they leave out names that hold one.
bool IsListed(const Text& name) { return name.View().find(u',') == std::u16string_view::npos; }

void AppendName(Text& list, const Text& name) {
  if (!IsListed(name)) return;
  if (!list.IsEmpty()) list += u",";
  list += name;
}

const Attribute& RequireAttribute(Theme& theme, std::u16string_view name) {
  const Attribute* const attribute = theme.FindAttribute(name);
  if (!attribute) Fail(u"The theme " + Quoted(theme.Name()) + u" has no attribute " + Quoted(name) + u".");
  return *attribute;
}

}  // namespace

Text StoreSession::ThemeNames(CommandReader& parts) {
  parts.RequireEnd();
  Text names;
  for (const auto& theme : m_Themes) AppendName(names, theme->Name());
  return names;
}

Text StoreSession::ThemeFeatureTypes(CommandReader& parts) {
  parts.RequireEnd();
  Text types;
  bool isFirst = true;
  for (const auto& theme : m_Themes) {
    if (!IsListed(theme->Name())) continue;
    if (!std::exchange(isFirst, false)) types += u",";
    types += theme->FeatureType();
  }
  return types;
}

Text StoreSession::ThemeNumber(CommandReader& parts) {
  const auto name = parts.ReadPart(u"theme name");
  parts.RequireEnd();
  return FindTheme(name) ? u"1" : u"0";
}

Text StoreSession::ThemeActive(CommandReader& parts) {
  // There is no command that activates a theme, so it is always the first.
  parts.RequireEnd();
  return m_Themes.empty() ? Text() : m_Themes.front()->Name();
}

Text StoreSession::ThemeCreate(CommandReader& parts) {
  const auto name = Trim(parts.ReadPart(u"theme name"));
  const auto featureType = Trim(parts.ReadPart(u"feature type"));
  parts.RequireEnd();
  CheckThemeName(name, m_Store);
  if (m_ThemeNames.Find(name) != NameLookup::kNone) Fail(u"There is a theme " + Quoted(name) + u" already.");
  AddTheme(CreateLayer(m_Store, name, featureType));
  m_LastTheme = nullptr;
  return {};
}

Text StoreSession::SelectByValue(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  const Condition condition = ReadCondition(parts);
  if (!theme) return {};
  theme->selection.Clear();
  if (EqualsNoCase(condition.attribute, kIdName))
    SelectById(*theme, condition.value);
  else
    SelectWhere(*theme, RequireAttribute(*theme, condition.attribute), condition.value);
  return {};
}

void StoreSession::SelectById(Theme& theme, const CommandValue& given) {
  const auto id = ParseWhole(given.text);
  if (!id) return;
  OGRFeatureUniquePtr feature = m_Store.ReadFeature(theme.Layer(), *id);
  if (feature) theme.selection.Set({*id}, std::move(feature));
}

void StoreSession::SelectWhere(Theme& theme, const Attribute& attribute, const CommandValue& given) {
  Attribute optional = attribute;
  optional.kind.isNullable = true;  // a search for features without a value is valid for any column
  FieldValue value;
  try {
    value = ParseValue(given, optional.kind);
  } catch (const CommandError&) {
    return;  // no feature has a value that the column cannot hold
  }
  theme.selection.Set(IdsWhere(theme, attribute, value));
}

Text StoreSession::SelectNone(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  parts.RequireEnd();
  if (theme) theme->selection.Clear();
  return {};
}

Text StoreSession::SelectedNumber(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  parts.RequireEnd();
  return NumberText(theme ? theme->selection.Count() : 0);
}

Text StoreSession::MoveFirst(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  parts.RequireEnd();
  if (theme) theme->selection.MoveFirst();
  return {};
}

Text StoreSession::CurrentIsValid(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  parts.RequireEnd();
  return theme && theme->selection.Current(m_Store, theme->Layer()) ? u"1" : u"0";
}

Text StoreSession::AttributeNumber(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  parts.RequireEnd();
  return NumberText(theme ? theme->Attributes().size() : 0);
}

Text StoreSession::AttributeRecord(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  const auto position = ParseWhole(parts.ReadRest());
  if (!position) Fail(u"The command lacks the number of the attribute.");
  if (!theme) return {};
  const auto& attributes = theme->Attributes();
  if (*position < 1 || static_cast<std::size_t>(*position) > attributes.size())
    Fail(u"The theme " + Quoted(theme->Name()) + u" has no attribute of that number.");
  return attributes[static_cast<std::size_t>(*position) - 1].record;
}

Text StoreSession::AttributeNames(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  parts.RequireEnd();
  Text names;
  if (theme)
    for (const Attribute& attribute : theme->Attributes()) AppendName(names, attribute.name);
  return names;
}

Text StoreSession::GetAttribute(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  const auto name = parts.ReadPart(u"attribute name");
  parts.RequireEnd();
  OGRFeature* const feature = theme ? theme->selection.Current(m_Store, theme->Layer()) : nullptr;
  if (!feature) Fail(u"There is no current feature.");
  if (EqualsNoCase(name, kIdName)) return Text::FromUtf8(std::to_string(feature->GetFID()));
  const Attribute& attribute = RequireAttribute(*theme, name);
  return FormatField(*feature, attribute.field, attribute.kind);
}

Text StoreSession::SetAttribute(CommandReader& parts) {
  Theme* const theme = ReadThemeOfType(parts);
  const auto id = theme ? theme->selection.CurrentId() : std::nullopt;
  if (!id) Fail(u"There is no current feature.");
  if (m_Edits.IsOpen() && !m_Edits.AreFor(*theme, *id)) m_FlushError = FlushEdits();
  m_Edits.Begin(*theme, *id);

  const auto name = parts.ReadPart(u"attribute name");
  if (EqualsNoCase(name, kIdName)) Fail(u"The id of a feature cannot be changed.");
  const Attribute& attribute = RequireAttribute(*theme, name);
  OGRFeature* const feature = theme->selection.Current(m_Store, theme->Layer());
  if (!feature) Fail(u"The store has no such feature any more.");
  SetValue(*feature, attribute, ReadValue(parts.ReadRest()));
  return {};
}

void StoreSession::SetValue(OGRFeature& feature, const Attribute& attribute, const CommandValue& given) {
  // A form writes back every value that it shows. An unchanged one is skipped, even if the column would
  // reject it today: a text beyond the width, say, or an empty text where a value is required.
  const Text present = FormatField(feature, attribute.field, attribute.kind);
  const bool hasValue = feature.IsFieldSetAndNotNull(attribute.field);
  const bool isClear = !hasValue || (present.IsEmpty() && !attribute.kind.isNullable);
  if (given.isClear ? isClear : hasValue && present == given.text) return;
  if (m_Store.IsReadOnly()) Fail(u"The store is open for reading only.");
  try {
    FieldValue value = ParseValue(given, attribute.kind);
    SetField(feature, attribute.field, value, attribute.kind);
    m_Edits.Set(attribute, std::move(value));
  } catch (const CommandError& error) {
    Fail(attribute.name + u": " + (given.isClear ? Text(u"the attribute") : Quoted(given.text)) + u" " +
         error.message);
  }
}

Text StoreSession::FlagRedraw(CommandReader& parts) {
  // There is no map to redraw; the pair of commands only encloses what belongs together.
  const auto flag = parts.ReadWord();
  parts.RequireEnd();
  if (!EqualsNoCase(flag, u"ON") && !EqualsNoCase(flag, u"OFF")) Fail(u"The command lacks ON or OFF.");
  return {};
}

Text StoreSession::Redraw(CommandReader& parts) {
  parts.RequireEnd();
  return {};
}

Text StoreSession::ControlWindow(CommandReader& parts) {
  parts.RequireEnd();
  return Text::FromUtf8(std::to_string(handle));
}

}  // namespace cardwright::orv
