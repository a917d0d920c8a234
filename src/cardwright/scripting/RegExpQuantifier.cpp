// SPDX-License-Identifier: MIT
#include "cardwright/scripting/RegExpQuantifier.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/scripting/RegExpEscape.h"

namespace cardwright::scripting {

namespace {

constexpr int kMaxCount = 65535;
// A part repeated no more often than this is short.
constexpr int kShortRepeat = 16;

std::optional<RegExpQuantifier> ReadCounts(std::u16string_view rest) {
  const std::size_t size = rest.size();
  rest.remove_prefix(1);
  const RegExpNumber least = ReadNumber(rest, kMaxCount);
  if (least.digits == 0) return {};
  rest.remove_prefix(least.digits);
  RegExpQuantifier result{.least = least.value, .most = least.value};
  if (rest.starts_with(u',')) {
    rest.remove_prefix(1);
    const RegExpNumber most = ReadNumber(rest, kMaxCount);
    rest.remove_prefix(most.digits);
    const bool isUnlimited = most.digits == 0 || most.value > kMaxCount;
    result.most = isUnlimited ? RegExpQuantifier::kUnlimited : most.value;
  }
  if (!rest.starts_with(u'}')) return {};
  if (result.most != RegExpQuantifier::kUnlimited && result.least > result.most)
    Raise(ErrorNumber::RegExpSyntax);
  if (result.least > kMaxCount) Raise(ErrorNumber::OutOfMemory);
  result.length = size - rest.size() + 1;
  return result;
}

}  // namespace

bool RegExpQuantifier::IsLong() const noexcept { return most == kUnlimited || most > kShortRepeat; }

std::u16string RegExpQuantifier::Notation() const {
  std::u16string result = u'{' + NumberNotation(static_cast<std::size_t>(least)) + u',';
  if (most != kUnlimited) result += NumberNotation(static_cast<std::size_t>(most));
  result += u'}';
  if (isLazy) result += u'?';
  return result;
}

std::optional<RegExpQuantifier> ReadQuantifier(std::u16string_view rest) {
  constexpr int kUnlimited = RegExpQuantifier::kUnlimited;
  std::optional<RegExpQuantifier> result;
  if (rest.starts_with(u'{')) result = ReadCounts(rest);
  if (rest.starts_with(u'*')) result = RegExpQuantifier{.least = 0, .most = kUnlimited, .length = 1};
  if (rest.starts_with(u'+')) result = RegExpQuantifier{.least = 1, .most = kUnlimited, .length = 1};
  if (rest.starts_with(u'?')) result = RegExpQuantifier{.least = 0, .most = 1, .length = 1};
  if (result && rest.substr(result->length).starts_with(u'?')) {
    result->isLazy = true;
    ++result->length;
  }
  return result;
}

std::u16string NumberNotation(std::size_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

}  // namespace cardwright::scripting
