// SPDX-License-Identifier: MIT
#include "cardwright/automation/NumericText.h"

#include <algorithm>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"

namespace cardwright {

namespace {

constexpr char16_t kNoBreakSpace = 0x00A0;
constexpr char16_t kNarrowNoBreakSpace = 0x202F;
// Beyond the exponents of all types. Further digits must not overflow the int.
constexpr int kMaxExponent = 99999;

bool IsSpace(char16_t c) noexcept { return c == u' ' || (c >= u'\t' && c <= u'\r'); }

int DigitValue(char16_t c) noexcept {
  if (IsDigit(c)) return c - u'0';
  const char16_t lower = ToLower(c);
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : 99;
}

class NumericReader {
 public:
  NumericReader(std::u16string_view text, const Locale& locale) : m_Rest(text), m_Locale(locale) {}

  std::optional<NumericText> Read() {
    SkipSpace();
    NumericText number;
    if (TakeBitsPrefix()) {
      number.bits = ReadBits();
      return number.bits && AtEnd() ? std::optional(number) : std::nullopt;
    }
    ReadPrefix();
    if (!ReadDigits(number.digits)) return std::nullopt;
    ReadSuffix();
    if (!AtEnd() || m_Signs + (m_Opened ? 1 : 0) > 1 || m_Opened != m_Closed) return std::nullopt;
    number.digits.negative = m_Negative || m_Opened;
    return number;
  }

 private:
  char16_t Peek(std::size_t ahead = 0) const noexcept {
    return ahead < m_Rest.size() ? m_Rest[ahead] : u'\0';
  }
  void Skip(std::size_t count = 1) noexcept { m_Rest.remove_prefix(count); }
  void SkipSpace() noexcept {
    while (!m_Rest.empty() && IsSpace(m_Rest.front())) Skip();
  }
  bool AtEnd() noexcept {
    SkipSpace();
    return m_Rest.empty();
  }
  bool Take(char16_t c) noexcept {
    if (m_Rest.empty() || m_Rest.front() != c) return false;
    Skip();
    return true;
  }

  bool TakeBitsPrefix() noexcept {
    if (Peek() != u'&') return false;
    const char16_t letter = ToLower(Peek(1));
    if (letter != u'h' && letter != u'o') return false;
    m_BitsPerDigit = letter == u'h' ? 4 : 3;
    Skip(2);
    return true;
  }

  std::optional<std::uint64_t> ReadBits() noexcept {
    if (DigitValue(Peek()) >= 1 << m_BitsPerDigit) return std::nullopt;
    std::uint64_t bits = 0;
    for (; DigitValue(Peek()) < 1 << m_BitsPerDigit; Skip()) {
      if (bits >> (64 - m_BitsPerDigit) != 0) return std::nullopt;
      bits = (bits << m_BitsPerDigit) | static_cast<std::uint64_t>(DigitValue(Peek()));
    }
    Take(u'&');  // the mark of a Long, as in "&HFFFF&"
    return bits;
  }

  bool TakeSign() noexcept {
    if (Peek() != u'-' && Peek() != u'+') return false;
    m_Negative = m_Negative || Peek() == u'-';
    ++m_Signs;
    Skip();
    return true;
  }
  bool TakeCurrency() noexcept {
    if (m_HasCurrency || !m_Rest.starts_with(m_Locale.currency)) return false;
    m_HasCurrency = true;
    Skip(m_Locale.currency.size());
    return true;
  }
  void ReadPrefix() noexcept {
    bool goesOn = true;
    while (goesOn) {
      SkipSpace();
      const bool opens = !m_Opened && Take(u'(');
      m_Opened = m_Opened || opens;
      goesOn = opens || TakeSign() || TakeCurrency();
    }
  }
  void ReadSuffix() noexcept {
    bool goesOn = true;
    while (goesOn) {
      SkipSpace();
      const bool closes = m_Opened && !m_Closed && Take(u')');
      m_Closed = m_Closed || closes;
      goesOn = closes || TakeSign() || TakeCurrency();
    }
  }

  bool IsGroup(char16_t c) const noexcept {
    if (c == m_Locale.group) return true;
    // Where the group separator is a no-break space, people type a plain one.
    const bool byBlank = m_Locale.group == kNoBreakSpace || m_Locale.group == kNarrowNoBreakSpace;
    return byBlank && (c == kNoBreakSpace || c == kNarrowNoBreakSpace || (c == u' ' && IsDigit(Peek(1))));
  }

  // The digits with their separators and the exponent.
  bool ReadDigits(DecimalDigits& number) {
    bool any = false;
    for (; IsDigit(Peek()) || (any && !m_Rest.empty() && IsGroup(Peek())); Skip()) {
      if (IsDigit(Peek())) number.digits += static_cast<char>(Peek());
      any = true;
    }
    if (Take(m_Locale.decimal)) {
      for (; IsDigit(Peek()); Skip()) {
        number.digits += static_cast<char>(Peek());
        --number.exponent;
        any = true;
      }
    }
    if (!any || !ReadExponent(number.exponent)) return false;
    number.digits.erase(0, std::min(number.digits.find_first_not_of('0'), number.digits.size()));
    return true;
  }

  bool ReadExponent(int& exponent) noexcept {
    const char16_t letter = ToLower(Peek());
    if (letter != u'e' && letter != u'd') return true;
    Skip();
    const bool negative = Take(u'-');
    if (!negative) Take(u'+');
    if (!IsDigit(Peek())) return false;
    int value = 0;
    for (; IsDigit(Peek()); Skip()) value = std::min(value * 10 + (Peek() - u'0'), kMaxExponent);
    exponent += negative ? -value : value;
    return true;
  }

  std::u16string_view m_Rest;
  const Locale& m_Locale;
  int m_BitsPerDigit = 0;
  int m_Signs = 0;
  bool m_Negative = false;
  bool m_Opened = false, m_Closed = false;
  bool m_HasCurrency = false;
};

}  // namespace

std::optional<NumericText> ReadNumericText(std::u16string_view text, const Locale& locale) {
  return NumericReader(text, locale).Read();
}

bool IsNumericText(std::u16string_view text) noexcept {
  const auto number = ReadNumericText(text, Locale::Current());
  return number && (number->bits || BestEffortOr(false, [&] { return number->digits.ToDouble(), true; }));
}

bool IsNumeric(const Variant& value) noexcept {
  return BestEffortOr(false, [&] {
    const Variant plain = DefaultValue(value);
    switch (plain.Type()) {
      case VarType::Null:
      case VarType::Date:
      case VarType::Error:
      case VarType::Array: return false;
      case VarType::String: return IsNumericText(plain.StringView());
      default: return true;
    }
  });
}

}  // namespace cardwright
