// SPDX-License-Identifier: MIT
#include "cardwright/orv/FieldValues.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "cardwright/automation/Conversions.h"
#include "cardwright/orv/CommandError.h"
#include "cardwright/orv/NumberParsing.h"

namespace cardwright::orv {

namespace {

Text FormatInteger(GIntBig number) {
  char buffer[24];
  const char* const end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
  char16_t wide[24];
  std::size_t length = 0;
  for (const char* c = buffer; c != end; ++c) wide[length++] = static_cast<char16_t>(*c);
  return std::u16string_view(wide, length);
}

/// A column of single precision keeps 0.1 as 0.100000001490116; the shortest text that reads back the same is
/// 0.1.
double ShortestValue(double value, const Column& column) {
  if (column.subtype != OFSTFloat32 || static_cast<double>(static_cast<float>(value)) != value) return value;
  char buffer[64];
  const char* const end = std::to_chars(buffer, buffer + sizeof buffer, static_cast<float>(value)).ptr;
  double shortest = value;
  std::from_chars(buffer, end, shortest);
  return shortest;
}

DateTime ReadDateTime(const OGRFeature& feature, int field) {
  DateTime dateTime;
  float seconds = 0;
  feature.GetFieldAsDateTime(field, &dateTime.year, &dateTime.month, &dateTime.day, &dateTime.hour,
                             &dateTime.minute, &seconds, &dateTime.zone);
  dateTime.milliseconds = static_cast<int>(std::lround(static_cast<double>(seconds) * 1000));
  return dateTime;
}

Text FormatList(const OGRFeature& feature, int field) {
  // The library's plain text cuts long lists; its JSON does not.
  char* const json = feature.GetFieldAsSerializedJSon(field);
  const Text text = json ? Text::FromUtf8(json) : Text();
  CPLFree(json);
  return text;
}

/// Length in code points. Fails where the text is not well-formed or holds a NUL character.
std::size_t CountCharacters(std::u16string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i, ++count) {
    const char16_t c = text[i];
    if (c == 0) Fail(u"holds a NUL character.");
    if (c < 0xD800 || c > 0xDFFF) continue;
    const bool isPair = c < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
    if (!isPair) Fail(u"holds half a character.");
    ++i;
  }
  return count;
}

std::string ParseText(std::u16string_view text, const Column& column) {
  const std::size_t length = CountCharacters(text);
  if (column.width > 0 && length > static_cast<std::size_t>(column.width))
    Fail(u"is longer than the " + FormatInteger(column.width) + u" characters of the column.");
  return Text(text).ToUtf8();
}

DateTime ParseTemporal(std::u16string_view text, const Column& column) {
  const auto dateTime = column.type == OFTDate   ? ParseDate(text)
                        : column.type == OFTTime ? ParseTime(text)
                                                 : ParseDateTime(text);
  if (!dateTime)
    Fail(column.type == OFTDate   ? u"is not a date such as 2026-02-28."
         : column.type == OFTTime ? u"is not a time such as 23:59:58."
                                  : u"is not a date and time such as 2026-02-28T23:59:58Z.");
  return column.type == OFTDateTime && column.isUtcOnly ? ToUtc(*dateTime) : *dateTime;
}

}  // namespace

std::string FormatTemporal(const DateTime& dateTime, OGRFieldType type, Fraction fraction) {
  if (type == OFTDate) return FormatDate(dateTime);
  return type == OFTTime ? FormatTime(dateTime, fraction) : FormatDateTime(dateTime, fraction);
}

Text FormatField(const OGRFeature& feature, int field, const Column& column) {
  if (!feature.IsFieldSetAndNotNull(field)) return {};
  switch (column.type) {
    case OFTInteger: return FormatInteger(feature.GetFieldAsInteger(field));
    case OFTInteger64: return FormatInteger(feature.GetFieldAsInteger64(field));
    case OFTReal: return FormatExact(ShortestValue(feature.GetFieldAsDouble(field), column));
    case OFTString: return Text::FromUtf8(feature.GetFieldAsString(field));
    case OFTDate:
    case OFTTime:
    case OFTDateTime:
      return Text::FromUtf8(FormatTemporal(ReadDateTime(feature, field), column.type, Fraction::WhereNeeded));
    default: return FormatList(feature, field);
  }
}

FieldValue ParseValue(const CommandValue& given, const Column& column) {
  const bool isText = column.type == OFTString;
  const auto text = isText ? given.text : Trim(given.text);
  if (given.isClear || (!isText && text.empty())) {
    if (!column.isNullable) Fail(u"must have a value.");
    return std::monostate();
  }
  switch (column.type) {
    case OFTInteger:
    case OFTInteger64: return ParseInteger(text, column);
    case OFTReal: return ParseReal(text, column);
    case OFTString: return ParseText(text, column);
    case OFTDate:
    case OFTTime:
    case OFTDateTime: return ParseTemporal(text, column);
    default: Fail(u"cannot be stored, because the column holds lists.");
  }
}

void SetField(OGRFeature& feature, int field, const FieldValue& value, const Column& column) {
  struct Setter {
    OGRFeature& feature;
    int field;
    const Column& column;

    void operator()(std::monostate) const { feature.SetFieldNull(field); }
    void operator()(std::int64_t number) const { feature.SetField(field, static_cast<GIntBig>(number)); }
    void operator()(double number) const { feature.SetField(field, number); }
    void operator()(const std::string& text) const { feature.SetField(field, text.c_str()); }
    void operator()(const DateTime& dateTime) const {
      feature.SetField(field, dateTime.year, dateTime.month, dateTime.day, dateTime.hour, dateTime.minute,
                       static_cast<float>(dateTime.milliseconds) / 1000.0F, dateTime.zone);
    }
  };
  std::visit(Setter{feature, field, column}, value);
}

}  // namespace cardwright::orv
