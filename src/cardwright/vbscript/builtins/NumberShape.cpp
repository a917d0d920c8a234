#include "cardwright/vbscript/builtins/NumberShape.h"

namespace cardwright::vbscript {

namespace {

constexpr std::size_t kGroup = 3;

void AppendWhole(std::u16string& text, const std::string& whole, bool grouped, char16_t separator) {
  for (std::size_t i = 0; i < whole.size(); ++i) {
    if (grouped && i != 0 && (whole.size() - i) % kGroup == 0) text += separator;
    text += static_cast<char16_t>(whole[i]);
  }
}

}  // namespace

std::u16string ShapeNumber(DecimalDigits number, const NumberShape& shape, const Locale& locale) {
  number.RoundAwayTo(-shape.decimals);
  const auto decimals = static_cast<std::size_t>(shape.decimals);
  std::string digits = number.digits;
  if (!digits.empty()) digits.append(static_cast<std::size_t>(number.exponent + shape.decimals), '0');
  if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
  std::string whole = digits.substr(0, digits.size() - decimals);
  if (whole == "0" && !shape.leadingZero && decimals > 0) whole.clear();

  std::u16string text;
  AppendWhole(text, whole, shape.grouped, locale.group);
  if (decimals > 0) {
    text += locale.decimal;
    text.append(digits.end() - static_cast<std::ptrdiff_t>(decimals), digits.end());
  }
  return text;
}

}  // namespace cardwright::vbscript
