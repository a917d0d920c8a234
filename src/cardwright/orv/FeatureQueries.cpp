// SPDX-License-Identifier: MIT
// How the session finds and reads the features of a theme.
#include "cardwright/orv/CommandError.h"
#include "cardwright/orv/ErrorTrap.h"
#include "cardwright/orv/Sql.h"
#include "cardwright/orv/StoreSession.h"

namespace cardwright::orv {

namespace {

template <class Visit>
void ForEachFeature(OGRLayer& layer, Visit&& visit) {
  layer.ResetReading();
  while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) visit(*feature);
  layer.ResetReading();
}

std::vector<std::int64_t> QueryIds(Store& store, OGRLayer& layer, const std::string& condition) {
  const std::string key = SqlKey(layer);
  // With the sum the library does not take the column for the ids of the result's own rows.
  return store.QueryIntegers("SELECT " + key + " + 0 FROM " + SqlTable(layer) + condition + " ORDER BY " +
                             key);
}

}  // namespace

std::vector<std::int64_t> StoreSession::IdsWhere(Theme& theme, const Attribute& attribute,
                                                 const FieldValue& value) {
  OGRLayer& layer = theme.Layer();
  if (m_Store.HasSqliteSql())
    return QueryIds(m_Store, layer,
                    " WHERE " + SqlName(attribute.column) + " IS " + SqlLiteral(value, attribute.kind));
  // The filters of other drivers differ in case and quoting, so the features themselves are compared.
  const ErrorTrap trap;
  OGRFeature sought(layer.GetLayerDefn());
  SetField(sought, attribute.field, value, attribute.kind);
  const Text text = FormatField(sought, attribute.field, attribute.kind);
  std::vector<std::int64_t> ids;
  ForEachFeature(layer, [&](const OGRFeature& feature) {
    if (FormatField(feature, attribute.field, attribute.kind) == text) ids.push_back(feature.GetFID());
  });
  return ids;
}

std::vector<std::int64_t> StoreSession::FeatureIds(std::u16string_view name) try {
  Theme* const theme = FindTheme(name);
  if (!theme) return {};
  if (m_Store.HasSqliteSql()) return QueryIds(m_Store, theme->Layer(), {});
  const ErrorTrap trap;
  std::vector<std::int64_t> ids;
  ForEachFeature(theme->Layer(), [&](const OGRFeature& feature) { ids.push_back(feature.GetFID()); });
  return ids;
} catch (const CommandError&) {
  return {};
}

void StoreSession::ReadFeatures(
    std::u16string_view name, std::span<const Text> attributes,
    const std::function<void(std::int64_t id, std::vector<Text> values)>& onFeature) {
  Theme* const theme = FindTheme(name);
  if (!theme) return;
  std::vector<const Attribute*> columns;
  for (const Text& attribute : attributes) columns.push_back(theme->FindAttribute(attribute));
  const ErrorTrap trap;
  ForEachFeature(theme->Layer(), [&](const OGRFeature& feature) {
    std::vector<Text> values;
    for (const Attribute* column : columns)
      values.push_back(column ? FormatField(feature, column->field, column->kind) : Text());
    onFeature(feature.GetFID(), std::move(values));
  });
}

}  // namespace cardwright::orv
