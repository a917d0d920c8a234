#include "cardwright/vbscript/builtins/Intervals.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"

namespace cardwright::vbscript {

namespace {

struct Letters {
  std::u16string_view letters;
  Interval interval;
};
constexpr Letters kLetters[] = {
    {u"yyyy", Interval::Year},   {u"q", Interval::Quarter}, {u"m", Interval::Month},
    {u"y", Interval::DayOfYear}, {u"d", Interval::Day},     {u"w", Interval::Weekday},
    {u"ww", Interval::Week},     {u"h", Interval::Hour},    {u"n", Interval::Minute},
    {u"s", Interval::Second},
};

}  // namespace

Interval ReadInterval(const Variant& value) {
  const Text text = ToText(value);
  const auto* found =
      std::ranges::find_if(kLetters, [&](const Letters& row) { return EqualsNoCase(row.letters, text); });
  if (found == std::end(kLetters)) Raise(ErrorNumber::InvalidCall);
  return found->interval;
}

}  // namespace cardwright::vbscript
