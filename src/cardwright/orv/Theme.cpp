// SPDX-License-Identifier: MIT
#include "cardwright/orv/Theme.h"

#include "cardwright/orv/CommandError.h"

namespace cardwright::orv {

namespace {

struct FieldSize {
  int length = 0, decimals = 0;
};

/// Where the store declares no width: the longest text of the type, or 0, which is no limit, for texts and
/// reals. A real without declared decimals gets as many as a double holds, because forms take 0 decimals for
/// a whole number and reject the separator.
FieldSize FieldSizeOf(const Column& column) {
  constexpr int kRealDigits = 15;
  switch (column.type) {
    case OFTInteger:
    case OFTInteger64:
      if (column.subtype == OFSTBoolean) return {1, 0};
      if (column.width > 0) return {column.width, 0};
      return {column.subtype == OFSTInt16 ? 6 : column.type == OFTInteger ? 11 : 20, 0};
    case OFTReal: return {column.width, column.precision > 0 ? column.precision : kRealDigits};
    case OFTString: return {column.width, 0};
    case OFTDate: return {10, 0};
    case OFTTime: return {12, 0};
    case OFTDateTime: return {29, 0};
    default: return {};
  }
}

bool IsNumeric(OGRFieldType type) noexcept {
  return type == OFTInteger || type == OFTInteger64 || type == OFTReal;
}

Text RecordOf(const Text& name, const Column& column) {
  const FieldSize measure = FieldSizeOf(column);
  Text record = name;
  for (const int number : {IsNumeric(column.type) ? 1 : 0, measure.length, measure.decimals}) {
    record += u",";
    record += Text::FromUtf8(std::to_string(number));
  }
  return record;
}

Column ColumnOf(const OGRFieldDefn& field, bool isUtcOnly) {
  Column column;
  column.type = field.GetType();
  column.subtype = field.GetSubType();
  column.width = field.GetWidth();
  column.precision = field.GetPrecision();
  column.isNullable = field.IsNullable();
  column.isUtcOnly = isUtcOnly;
  return column;
}

/// The feature type of a kind of geometry; "" for mixed geometries.
std::u16string_view FeatureTypeOf(OGRwkbGeometryType type) {
  switch (wkbFlatten(type)) {
    case wkbPoint:
    case wkbMultiPoint: return u"POINT";
    case wkbLineString:
    case wkbMultiLineString:
    case wkbCircularString:
    case wkbCompoundCurve:
    case wkbMultiCurve:
    case wkbCurve: return u"ARC";
    case wkbPolygon:
    case wkbMultiPolygon:
    case wkbCurvePolygon:
    case wkbMultiSurface:
    case wkbSurface:
    case wkbPolyhedralSurface:
    case wkbTIN:
    case wkbTriangle: return u"POLYGON";
    default: return {};
  }
}

}  // namespace

Text UnknownFeatureType(std::u16string_view word) {
  return Quoted(word) + u" is no feature type; there are POINT, ARC and POLYGON.";
}

Theme::Theme(OGRLayer& layer, const Store& store) : m_Layer(layer), m_Name(Text::FromUtf8(layer.GetName())) {
  ReadAttributes(store.IsGeoPackage());
}

bool Theme::HasFeatureType(std::u16string_view featureType) const {
  featureType = Trim(featureType);
  if (featureType.empty()) return true;
  if (!EqualsNoCase(featureType, u"POINT") && !EqualsNoCase(featureType, u"ARC") &&
      !EqualsNoCase(featureType, u"POLYGON"))
    Fail(UnknownFeatureType(featureType));
  const OGRwkbGeometryType type = m_Layer.GetGeomType();
  if (type == wkbNone) return false;
  const auto word = FeatureTypeOf(type);
  return word.empty() || EqualsNoCase(word, featureType);
}

std::u16string_view Theme::FeatureType() const {
  const OGRwkbGeometryType type = m_Layer.GetGeomType();
  if (type == wkbNone) return {};
  const auto word = FeatureTypeOf(type);
  return word.empty() ? u"ANY" : word;
}

const Attribute* Theme::FindAttribute(std::u16string_view name) const {
  const int position = m_AttributeNames.Find(name);
  return position == NameLookup::kNone ? nullptr : &m_Attributes[static_cast<std::size_t>(position)];
}

void Theme::ReadAttributes(bool isUtcOnly) {
  const OGRFeatureDefn& definition = *m_Layer.GetLayerDefn();
  for (int field = 0; field < definition.GetFieldCount(); ++field) {
    const OGRFieldDefn& stored = *definition.GetFieldDefn(field);
    Attribute attribute;
    attribute.column = stored.GetNameRef();
    attribute.name = Text::FromUtf8(attribute.column);
    attribute.field = field;
    attribute.kind = ColumnOf(stored, isUtcOnly);
    const bool isExpressible = attribute.name.View().find_first_of(u",|") == std::u16string_view::npos;
    if (!isExpressible || attribute.kind.type == OFTBinary) continue;
    attribute.record = RecordOf(attribute.name, attribute.kind);
    m_AttributeNames.Add(attribute.name, static_cast<int>(m_Attributes.size()));
    m_Attributes.push_back(std::move(attribute));
  }
}

}  // namespace cardwright::orv
