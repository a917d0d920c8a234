// What each command of the session does.
#include <algorithm>

#include "cardwright/orv/ErrorTrap.h"
#include "cardwright/orv/NewTheme.h"
#include "cardwright/orv/Refusal.h"
#include "cardwright/orv/Session.h"

namespace cardwright {

using orv::Attribute;
using orv::FieldValue;
using orv::GivenValue;
using orv::Quoted;
using orv::Refusal;
using orv::Refuse;

namespace {

Text NumberText(std::size_t number) { return Text::FromUtf8(std::to_string(number)); }

/// A list split at commas cannot hold them.
bool IsListed(const Text& name) { return name.View().find(u',') == std::u16string_view::npos; }

/// The names that a list split at commas can hold, joined.
void AppendName(Text& list, const Text& name) {
  if (!IsListed(name)) return;
  if (!list.IsEmpty()) list += u",";
  list += name;
}

const Attribute& RequireAttribute(orv::Theme& theme, std::u16string_view name) {
  const Attribute* const attribute = theme.Find(name);
  if (!attribute) Refuse(u"The theme " + Quoted(theme.Name()) + u" has no attribute " + Quoted(name) + u".");
  return *attribute;
}

}  // namespace

Text EmbeddedHost::Session::ThemeNames(CommandReader& parts) {
  parts.End();
  Text names;
  for (const auto& theme : m_Themes) AppendName(names, theme->Name());
  return names;
}

Text EmbeddedHost::Session::ThemeFeatureTypes(CommandReader& parts) {
  parts.End();
  Text types;
  bool isFirst = true;
  for (const auto& theme : m_Themes) {
    if (!IsListed(theme->Name())) continue;
    if (!std::exchange(isFirst, false)) types += u",";
    types += theme->FeatureType();
  }
  return types;
}

Text EmbeddedHost::Session::ThemeNumber(CommandReader& parts) {
  const auto name = parts.Barred(u"theme name");
  parts.End();
  return FindTheme(name) ? u"1" : u"0";
}

Text EmbeddedHost::Session::ThemeActive(CommandReader& parts) {
  // Nothing here makes a theme the active one, so it is always the first.
  parts.End();
  return m_Themes.empty() ? Text() : m_Themes.front()->Name();
}

Text EmbeddedHost::Session::ThemeCreate(CommandReader& parts) {
  const auto name = Trim(parts.Barred(u"theme name"));
  const auto featureType = Trim(parts.Barred(u"feature type"));
  parts.End();
  orv::RequireThemeName(name, m_Store);
  if (m_Index.Find(name) != orv::NameIndex::kNone) Refuse(u"There is a theme " + Quoted(name) + u" already.");
  AddTheme(orv::CreateLayer(m_Store, name, featureType));
  m_LastTheme = nullptr;
  return {};
}

Text EmbeddedHost::Session::SelectByValue(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  const orv::Condition condition = orv::ReadCondition(parts);
  if (!theme) return {};
  theme->selection.Clear();
  if (EqualsNoCase(condition.attribute, orv::kIdName))
    SelectById(*theme, condition.value);
  else
    SelectWhere(*theme, RequireAttribute(*theme, condition.attribute), condition.value);
  return {};
}

void EmbeddedHost::Session::SelectById(Theme& theme, const GivenValue& given) {
  const auto id = orv::ReadNumber(given.text);
  if (!id) return;
  OGRFeatureUniquePtr feature = m_Store.ReadFeature(theme.Layer(), *id);
  if (feature) theme.selection.Replace({*id}, std::move(feature));
}

void EmbeddedHost::Session::SelectWhere(Theme& theme, const Attribute& attribute, const GivenValue& given) {
  Attribute optional = attribute;
  optional.kind.isNullable = true;  // asking for features without a value is fair wherever it finds none
  FieldValue value;
  try {
    value = orv::ParseValue(given, optional.kind);
  } catch (const Refusal&) {
    return;  // no feature has a value that the column cannot hold
  }
  theme.selection.Replace(IdsWhere(theme, attribute, value));
}

std::vector<std::int64_t> EmbeddedHost::Session::IdsWhere(Theme& theme, const Attribute& attribute,
                                                          const FieldValue& value) {
  OGRLayer& layer = theme.Layer();
  if (m_Store.SpeaksSqlite()) {
    const std::string key = orv::SqlKey(layer);
    // The sum keeps the library from taking the column for the id of the rows that it answers.
    return m_Store.Numbers("SELECT " + key + " + 0 FROM " + orv::SqlTable(layer) + " WHERE " +
                           orv::SqlName(attribute.column) + " IS " + orv::SqlLiteral(value, attribute.kind) +
                           " ORDER BY " + key);
  }
  // The filters of other drivers differ in case and quoting; what the features themselves answer does not.
  const orv::ErrorTrap trap;
  OGRFeature sought(layer.GetLayerDefn());
  orv::PutField(sought, attribute.field, value, attribute.kind);
  const Text text = orv::ReadField(sought, attribute.field, attribute.kind);
  std::vector<std::int64_t> ids;
  layer.ResetReading();
  while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()})
    if (orv::ReadField(*feature, attribute.field, attribute.kind) == text) ids.push_back(feature->GetFID());
  layer.ResetReading();
  return ids;
}

std::vector<std::int64_t> EmbeddedHost::Session::FeatureIds(std::u16string_view name) try {
  Theme* const theme = FindTheme(name);
  if (!theme) return {};
  OGRLayer& layer = theme->Layer();
  if (m_Store.SpeaksSqlite()) {
    const std::string key = orv::SqlKey(layer);
    // The sum, as with a condition.
    return m_Store.Numbers("SELECT " + key + " + 0 FROM " + orv::SqlTable(layer) + " ORDER BY " + key);
  }
  const orv::ErrorTrap trap;
  std::vector<std::int64_t> ids;
  layer.ResetReading();
  while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) ids.push_back(feature->GetFID());
  layer.ResetReading();
  return ids;
} catch (const Refusal&) {
  return {};
}

void EmbeddedHost::Session::ReadFeatures(
    std::u16string_view name, std::span<const Text> attributes,
    const std::function<void(std::int64_t id, std::vector<Text> values)>& onFeature) {
  Theme* const theme = FindTheme(name);
  if (!theme) return;
  std::vector<const Attribute*> columns;
  for (const Text& attribute : attributes) columns.push_back(theme->Find(attribute));
  const orv::ErrorTrap trap;
  OGRLayer& layer = theme->Layer();
  layer.ResetReading();
  while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
    std::vector<Text> values;
    for (const Attribute* column : columns)
      values.push_back(column ? orv::ReadField(*feature, column->field, column->kind) : Text());
    onFeature(feature->GetFID(), std::move(values));
  }
  layer.ResetReading();
}

Text EmbeddedHost::Session::SelectNone(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  parts.End();
  if (theme) theme->selection.Clear();
  return {};
}

Text EmbeddedHost::Session::SelectedNumber(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  parts.End();
  return NumberText(theme ? theme->selection.Count() : 0);
}

Text EmbeddedHost::Session::MoveFirst(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  parts.End();
  if (theme) theme->selection.MoveFirst();
  return {};
}

Text EmbeddedHost::Session::CurrentIsValid(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  parts.End();
  return theme && theme->selection.Current(m_Store, theme->Layer()) ? u"1" : u"0";
}

Text EmbeddedHost::Session::AttributeNumber(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  parts.End();
  return NumberText(theme ? theme->Attributes().size() : 0);
}

Text EmbeddedHost::Session::AttributeRecord(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  const auto position = orv::ReadNumber(parts.Rest());
  if (!position) Refuse(u"The command lacks the number of the attribute.");
  if (!theme) return {};
  const auto& attributes = theme->Attributes();
  if (*position < 1 || static_cast<std::size_t>(*position) > attributes.size())
    Refuse(u"The theme " + Quoted(theme->Name()) + u" has no attribute of that number.");
  return attributes[static_cast<std::size_t>(*position) - 1].record;
}

Text EmbeddedHost::Session::AttributeNames(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  parts.End();
  Text names;
  if (theme)
    for (const Attribute& attribute : theme->Attributes()) AppendName(names, attribute.name);
  return names;
}

Text EmbeddedHost::Session::GetAttribute(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  const auto name = parts.Barred(u"attribute name");
  parts.End();
  OGRFeature* const feature = theme ? theme->selection.Current(m_Store, theme->Layer()) : nullptr;
  if (!feature) Refuse(u"There is no current feature.");
  if (EqualsNoCase(name, orv::kIdName)) return Text::FromUtf8(std::to_string(feature->GetFID()));
  const Attribute& attribute = RequireAttribute(*theme, name);
  return orv::ReadField(*feature, attribute.field, attribute.kind);
}

Text EmbeddedHost::Session::SetAttribute(CommandReader& parts) {
  Theme* const theme = ReadAnsweringTheme(parts);
  const auto id = theme ? theme->selection.CurrentId() : std::nullopt;
  if (!id) Refuse(u"There is no current feature.");
  if (m_Edits.IsOpen() && !m_Edits.AreFor(*theme, *id)) m_LateFailure = FinishEdits();
  m_Edits.Begin(*theme, *id);

  const auto name = parts.Barred(u"attribute name");
  if (EqualsNoCase(name, orv::kIdName)) Refuse(u"The id of a feature cannot be changed.");
  const Attribute& attribute = RequireAttribute(*theme, name);
  OGRFeature* const feature = theme->selection.Current(m_Store, theme->Layer());
  if (!feature) Refuse(u"The store has no such feature any more.");
  KeepValue(*feature, attribute, orv::ReadValue(parts.Rest()));
  return {};
}

void EmbeddedHost::Session::KeepValue(OGRFeature& feature, const Attribute& attribute,
                                      const GivenValue& given) {
  // A form writes back every value that it shows. One that nobody touched stays as it is, even if the column
  // would not take it today: text beyond the width, say, or an empty text where a value must stand.
  const Text present = orv::ReadField(feature, attribute.field, attribute.kind);
  const bool hasValue = feature.IsFieldSetAndNotNull(attribute.field);
  const bool isClear = !hasValue || (present.IsEmpty() && !attribute.kind.isNullable);
  if (given.isClear ? isClear : hasValue && present == given.text) return;
  if (m_Store.IsReadOnly()) Refuse(u"The store is open for reading only.");
  try {
    FieldValue value = orv::ParseValue(given, attribute.kind);
    orv::PutField(feature, attribute.field, value, attribute.kind);
    m_Edits.Keep(attribute, std::move(value));
  } catch (const Refusal& refusal) {
    Refuse(attribute.name + u": " + (given.isClear ? Text(u"the attribute") : Quoted(given.text)) + u" " +
           refusal.reason);
  }
}

Text EmbeddedHost::Session::FlagRedraw(CommandReader& parts) {
  // There is no map to redraw here; the pair of commands only frames what belongs together.
  const auto flag = parts.Word();
  parts.End();
  if (!EqualsNoCase(flag, u"ON") && !EqualsNoCase(flag, u"OFF")) Refuse(u"The command lacks ON or OFF.");
  return {};
}

Text EmbeddedHost::Session::Redraw(CommandReader& parts) {
  parts.End();
  return {};
}

Text EmbeddedHost::Session::ControlWindow(CommandReader& parts) {
  parts.End();
  return Text::FromUtf8(std::to_string(handle));
}

}  // namespace cardwright
