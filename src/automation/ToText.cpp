#include "automation/Calendar.h"
#include "automation/Conversions.h"
#include "automation/DecimalDigits.h"
#include "automation/Errors.h"
#include "automation/Locale.h"
#include "automation/Object.h"

namespace cardwright {

namespace {

std::u16string Digits(long long value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

std::u16string Padded(int value, std::size_t width) {
  std::u16string digits = Digits(value);
  if (digits.size() < width) digits.insert(0, width - digits.size(), u'0');
  return digits;
}

Text FormatExactNumber(const DecimalDigits& number) {
  std::u16string text;
  for (const char c : number.Plain()) text += c == '.' ? Locale::Current().decimal : static_cast<char16_t>(c);
  return Text(text);
}

std::u16string FormatDay(const CalendarTime& time, const Locale& locale) {
  const std::size_t width = locale.twoDigitDayMonth ? 2 : 1;
  const std::u16string day = Padded(time.day, width);
  const std::u16string month = Padded(time.month, width);
  const std::u16string year = Padded(time.year, 4);
  const char16_t by = locale.dateSeparator;
  switch (locale.dateOrder) {
    case Locale::DateOrder::MonthDayYear: return month + by + day + by + year;
    case Locale::DateOrder::DayMonthYear: return day + by + month + by + year;
    case Locale::DateOrder::YearMonthDay: return year + by + month + by + day;
  }
  return {};
}

std::u16string FormatClock(const CalendarTime& time, const Locale& locale) {
  const std::u16string tail = u":" + Padded(time.minute, 2) + u":" + Padded(time.second, 2);
  if (locale.clock24) return Padded(time.hour, 2) + tail;
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return Digits(hour) + tail + u" " + std::u16string(time.hour < 12 ? locale.am : locale.pm);
}

// The day, the time of day, or both: a date without a time shows none, and day zero is a time alone.
Text FormatDate(Date date) {
  const Locale& locale = Locale::Current();
  const CalendarTime time = ToCalendar(date);
  const bool hasClock = time.hour != 0 || time.minute != 0 || time.second != 0;
  const bool hasDay = time.year != 1899 || time.month != 12 || time.day != 30;
  if (!hasDay) return Text(FormatClock(time, locale));
  if (!hasClock) return Text(FormatDay(time, locale));
  return Text(FormatDay(time, locale) + u" " + FormatClock(time, locale));
}

}  // namespace

Text ToText(const Variant& value) {
  const Variant& plain = value.Deref();
  switch (plain.Type()) {
    case VarType::Empty: return {};
    case VarType::String: return plain.String();
    case VarType::Boolean: return plain.Boolean() ? u"True" : u"False";
    case VarType::Byte:
    case VarType::Integer:
    case VarType::Long: return Text(Digits(ToLong(plain)));
    case VarType::Single: return FormatSingle(plain.Single(), Locale::Current().decimal);
    case VarType::Double: return FormatDouble(plain.Double(), Locale::Current().decimal);
    case VarType::Currency: return FormatExactNumber(DecimalDigits::Of(plain.CurrencyValue()));
    case VarType::Decimal: return FormatExactNumber(DecimalDigits::Of(plain.DecimalValue()));
    case VarType::Date: return FormatDate({plain.Double()});
    case VarType::Error: return Text(u"Error " + Digits(plain.ErrorCode()));
    case VarType::Object: return ToText(DefaultValue(plain));
    case VarType::Null: Raise(ErrorNumber::InvalidUseOfNull);
    default: Raise(ErrorNumber::TypeMismatch);
  }
}

}  // namespace cardwright
