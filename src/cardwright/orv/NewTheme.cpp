// SPDX-License-Identifier: MIT
#include "cardwright/orv/NewTheme.h"

#include <algorithm>

#include "cardwright/orv/CommandError.h"
#include "cardwright/orv/ErrorTrap.h"
#include "cardwright/orv/Theme.h"

namespace cardwright::orv {

namespace {

bool StartsWithNoCase(std::u16string_view text, std::u16string_view start) {
  return EqualsNoCase(text.substr(0, start.size()), start);
}

// Lines and areas may have several parts, as a river or a parcel with an island does.
OGRwkbGeometryType GeometryOf(std::u16string_view featureType) {
  if (featureType.empty()) return wkbNone;
  if (EqualsNoCase(featureType, u"POINT")) return wkbPoint;
  if (EqualsNoCase(featureType, u"ARC")) return wkbMultiLineString;
  if (EqualsNoCase(featureType, u"POLYGON")) return wkbMultiPolygon;
  Fail(UnknownFeatureType(featureType));
}

OGRSpatialReference* ReferenceOf(GDALDataset& data) {
  for (OGRLayer* const layer : data.GetLayers())
    if (OGRSpatialReference* const reference = layer->GetSpatialRef()) return reference;
  return nullptr;
}

void Remove(GDALDataset& data, const OGRLayer& layer) {
  const ErrorTrap trap;
  for (int i = 0; i < data.GetLayerCount(); ++i)
    if (data.GetLayer(i) == &layer) {
      data.DeleteLayer(i);
      return;
    }
}

}  // namespace

void CheckThemeName(std::u16string_view name, const Store& store) {
  if (name.empty()) Fail(u"A theme needs a name.");
  if (std::any_of(name.begin(), name.end(), [](char16_t c) { return c < u' ' || c == 0x7F; }))
    Fail(u"The name of a theme cannot hold control characters.");
  if (name.find_first_of(u",|") != std::u16string_view::npos)
    Fail(u"The name of a theme cannot hold a comma or a vertical bar.");
  if (!store.HasSqliteSql()) return;
  for (const auto own : {u"sqlite_", u"gpkg_", u"rtree_"})
    if (StartsWithNoCase(name, own))
      Fail(Text(u"Names that begin with ") + Quoted(own) + u" belong to the store.");
}

OGRLayer& CreateLayer(Store& store, std::u16string_view name, std::u16string_view featureType) {
  const OGRwkbGeometryType geometry = GeometryOf(featureType);
  if (store.IsReadOnly()) Fail(u"The store is open for reading only.");
  GDALDataset& data = store.Data();
  if (!data.TestCapability(ODsCCreateLayer)) Fail(u"The store cannot take another theme.");
  // The library creates the table only with its first use, when it would be too late to notice a lock.
  if (store.HasSqliteSql()) {
    const WriteTransaction probe(store);
  }
  const ErrorTrap trap;
  char keepName[] = "LAUNDER=NO";
  char* options[] = {keepName, nullptr};
  const bool changesNames = store.HasSqliteSql() && !store.IsGeoPackage();
  OGRLayer* const layer = data.CreateLayer(Text(name).ToUtf8().c_str(), ReferenceOf(data), geometry,
                                           changesNames ? options : nullptr);
  if (!layer) Fail(trap.Reason());
  if (layer->SyncToDisk() != OGRERR_NONE || trap.HasFailed()) {
    const Text message = trap.Reason();
    Remove(data, *layer);
    Fail(message);
  }
  return *layer;
}

}  // namespace cardwright::orv
