// SPDX-License-Identifier: MIT
#pragma once

#include <ogr_feature.h>

#include <cstdint>
#include <string>
#include <variant>

#include "cardwright/automation/Text.h"
#include "cardwright/orv/CommandReader.h"
#include "cardwright/orv/DateTime.h"

namespace cardwright::orv {

/// What a column of a layer can hold.
struct Column {
  OGRFieldType type = OFTString;
  OGRFieldSubType subtype = OFSTNone;
  int width = 0;      ///< characters, 0 for no limit
  int precision = 0;  ///< decimals of a real, 0 where none are stated
  bool isNullable = true;
  bool isUtcOnly = false;  ///< a date and time is kept in UTC, as GeoPackage requires
};

/// A value that a column holds exactly; std::monostate is Null. Text is UTF-8.
using FieldValue = std::variant<std::monostate, std::int64_t, double, std::string, DateTime>;

/// The text of a feature's field as THEME_GET_ATTRIBUTE returns it: numbers with a point and as few digits as
/// read back the same, dates and times in ISO 8601, "" for Null.
Text FormatField(const OGRFeature& feature, int field, const Column& column);

/// Parses a value for the column. Fails where the column cannot hold the value exactly; the message is a
/// sentence without its subject, such as "is not a number.".
FieldValue ParseValue(const CommandValue& given, const Column& column);

/// A date, a time or both in ISO 8601, as the type of the column is.
std::string FormatTemporal(const DateTime& dateTime, OGRFieldType type, Fraction fraction);

/// Sets a field of a feature in memory.
void SetField(OGRFeature& feature, int field, const FieldValue& value, const Column& column);

}  // namespace cardwright::orv
