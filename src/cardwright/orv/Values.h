#pragma once

#include <ogr_feature.h>

#include <cstdint>
#include <string>
#include <variant>

#include "cardwright/automation/Text.h"
#include "cardwright/orv/Command.h"
#include "cardwright/orv/Moment.h"

namespace cardwright::orv {

/// What a column of a layer can hold.
struct Column {
  OGRFieldType type = OFTString;
  OGRFieldSubType subtype = OFSTNone;
  int width = 0;      ///< characters, 0 for no limit
  int precision = 0;  ///< decimals of a real, 0 where none are stated
  bool isNullable = true;
  bool isUtcOnly = false;  ///< a moment is kept in UTC, as GeoPackage tells
};

/// A value that a column holds exactly; the first alternative is no value. Text is UTF-8.
using FieldValue = std::variant<std::monostate, std::int64_t, double, std::string, Moment>;

/// The text of a feature's field as THEME_GET_ATTRIBUTE answers it: numbers with a point and as few digits as
/// read back the same, dates and times by ISO 8601, "" where there is no value.
Text ReadField(const OGRFeature& feature, int field, const Column& column);

/// The value that `given` tells, for this column. A value that the column cannot hold exactly is refused; the
/// reason is a sentence without its subject, such as "is not a number.".
FieldValue ParseValue(const GivenValue& given, const Column& column);

/// Puts a value into a feature in memory.
void PutField(OGRFeature& feature, int field, const FieldValue& value, const Column& column);

/// The value as a literal of SQLite's SQL.
std::string SqlLiteral(const FieldValue& value, const Column& column);

}  // namespace cardwright::orv
