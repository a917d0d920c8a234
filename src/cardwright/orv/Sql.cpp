// SPDX-License-Identifier: MIT
#include "cardwright/orv/Sql.h"

#include <charconv>

namespace cardwright::orv {

namespace {

std::string QuoteText(const std::string& text) {
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
  // SQLite reads digits alone as an integer, which has a smaller range.
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

}  // namespace

std::string SqlName(const std::string& name) {
  std::string quoted = "\"";
  for (const char c : name) {
    quoted += c;
    if (c == '"') quoted += c;
  }
  return quoted += '"';
}

std::string SqlTable(OGRLayer& layer) { return SqlName(layer.GetName()); }

std::string SqlKey(OGRLayer& layer) {
  const std::string column = layer.GetFIDColumn();
  return column.empty() ? "rowid" : SqlName(column);
}

std::string SqlLiteral(const FieldValue& value, const Column& column) {
  struct Literal {
    const Column& column;

    std::string operator()(std::monostate) const { return "NULL"; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return RealLiteral(number); }
    std::string operator()(const std::string& text) const { return QuoteText(text); }
    std::string operator()(const DateTime& dateTime) const {
      const Fraction fraction = column.isUtcOnly ? Fraction::Always : Fraction::WhereNeeded;
      return QuoteText(FormatTemporal(dateTime, column.type, fraction));
    }
  };
  return std::visit(Literal{column}, value);
}

}  // namespace cardwright::orv
