#include "cardwright/orv/Values.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "cardwright/automation/Conversions.h"
#include "cardwright/orv/Numbers.h"
#include "cardwright/orv/Refusal.h"

namespace cardwright::orv {

namespace {

Text IntegerText(GIntBig number) {
  char buffer[24];
  const char* const end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
  char16_t wide[24];
  std::size_t length = 0;
  for (const char* c = buffer; c != end; ++c) wide[length++] = static_cast<char16_t>(*c);
  return std::u16string_view(wide, length);
}

/// A column of single precision keeps 0.1 as 0.100000001490116; what a person wrote is shorter.
double AsWritten(double value, const Column& column) {
  if (column.subtype != OFSTFloat32 || static_cast<double>(static_cast<float>(value)) != value) return value;
  char buffer[64];
  const char* const end = std::to_chars(buffer, buffer + sizeof buffer, static_cast<float>(value)).ptr;
  double shortest = value;
  std::from_chars(buffer, end, shortest);
  return shortest;
}

Moment MomentOf(const OGRFeature& feature, int field) {
  Moment moment;
  float seconds = 0;
  feature.GetFieldAsDateTime(field, &moment.year, &moment.month, &moment.day, &moment.hour, &moment.minute,
                             &seconds, &moment.zone);
  moment.milliseconds = static_cast<int>(std::lround(static_cast<double>(seconds) * 1000));
  return moment;
}

std::string MomentText(const Moment& moment, OGRFieldType type, Fraction fraction) {
  if (type == OFTDate) return DateText(moment);
  return type == OFTTime ? TimeText(moment, fraction) : DateTimeText(moment, fraction);
}

Text ListText(const OGRFeature& feature, int field) {
  // The library's own text of a list cuts long ones; the one in JSON does not.
  char* const json = feature.GetFieldAsSerializedJSon(field);
  const Text text = json ? Text::FromUtf8(json) : Text();
  CPLFree(json);
  return text;
}

/// Length in characters, a surrogate pair counting as one; refuses what is no text.
std::size_t CountCharacters(std::u16string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i, ++count) {
    const char16_t c = text[i];
    if (c == 0) Refuse(u"holds a NUL character.");
    if (c < 0xD800 || c > 0xDFFF) continue;
    const bool isPair = c < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF;
    if (!isPair) Refuse(u"holds half a character.");
    ++i;
  }
  return count;
}

std::string ParseText(std::u16string_view text, const Column& column) {
  const std::size_t length = CountCharacters(text);
  if (column.width > 0 && length > static_cast<std::size_t>(column.width))
    Refuse(u"is longer than the " + IntegerText(column.width) + u" characters of the column.");
  return Text(text).ToUtf8();
}

Moment ParseMoment(std::u16string_view text, const Column& column) {
  const auto moment = column.type == OFTDate   ? ReadDate(text)
                      : column.type == OFTTime ? ReadTime(text)
                                               : ReadDateTime(text);
  if (!moment)
    Refuse(column.type == OFTDate   ? u"is not a date such as 2026-02-28."
           : column.type == OFTTime ? u"is not a time such as 23:59:58."
                                    : u"is not a date and time such as 2026-02-28T23:59:58Z.");
  return column.type == OFTDateTime && column.isUtcOnly ? InUtc(*moment) : *moment;
}

std::string Quote(const std::string& text) {
  std::string quoted = "'";
  quoted.reserve(text.size() + 2);
  for (const char c : text) {
    quoted += c;
    if (c == '\'') quoted += c;
  }
  return quoted += '\'';
}

std::string RealLiteral(double value) {
  char buffer[40];
  std::string text(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
  // SQLite takes digits alone for an integer, which has a smaller range.
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

}  // namespace

Text ReadField(const OGRFeature& feature, int field, const Column& column) {
  if (!feature.IsFieldSetAndNotNull(field)) return {};
  switch (column.type) {
    case OFTInteger: return IntegerText(feature.GetFieldAsInteger(field));
    case OFTInteger64: return IntegerText(feature.GetFieldAsInteger64(field));
    case OFTReal: return FormatExact(AsWritten(feature.GetFieldAsDouble(field), column));
    case OFTString: return Text::FromUtf8(feature.GetFieldAsString(field));
    case OFTDate:
    case OFTTime:
    case OFTDateTime:
      return Text::FromUtf8(MomentText(MomentOf(feature, field), column.type, Fraction::WhereNeeded));
    default: return ListText(feature, field);
  }
}

FieldValue ParseValue(const GivenValue& given, const Column& column) {
  const bool isText = column.type == OFTString;
  const auto text = isText ? given.text : Trim(given.text);
  if (given.isClear || (!isText && text.empty())) {
    if (!column.isNullable) Refuse(u"must have a value.");
    return std::monostate();
  }
  switch (column.type) {
    case OFTInteger:
    case OFTInteger64: return ParseInteger(text, column);
    case OFTReal: return ParseReal(text, column);
    case OFTString: return ParseText(text, column);
    case OFTDate:
    case OFTTime:
    case OFTDateTime: return ParseMoment(text, column);
    default: Refuse(u"cannot be stored, because the column holds lists.");
  }
}

void PutField(OGRFeature& feature, int field, const FieldValue& value, const Column& column) {
  struct Put {
    OGRFeature& feature;
    int field;
    const Column& column;

    void operator()(std::monostate) const { feature.SetFieldNull(field); }
    void operator()(std::int64_t number) const { feature.SetField(field, static_cast<GIntBig>(number)); }
    void operator()(double number) const { feature.SetField(field, number); }
    void operator()(const std::string& text) const { feature.SetField(field, text.c_str()); }
    void operator()(const Moment& moment) const {
      feature.SetField(field, moment.year, moment.month, moment.day, moment.hour, moment.minute,
                       static_cast<float>(moment.milliseconds) / 1000.0F, moment.zone);
    }
  };
  std::visit(Put{feature, field, column}, value);
}

std::string SqlLiteral(const FieldValue& value, const Column& column) {
  struct Literal {
    const Column& column;

    std::string operator()(std::monostate) const { return "NULL"; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return RealLiteral(number); }
    std::string operator()(const std::string& text) const { return Quote(text); }
    std::string operator()(const Moment& moment) const {
      const Fraction fraction = column.isUtcOnly ? Fraction::Always : Fraction::WhereNeeded;
      return Quote(MomentText(moment, column.type, fraction));
    }
  };
  return std::visit(Literal{column}, value);
}

}  // namespace cardwright::orv
