// SPDX-License-Identifier: MIT
// Regular expressions: the first line is the pattern, the second the replacement, the rest the text; the
// first byte holds the flags. Any pattern is read or refused by a number, and what is found lies in the text,
// in order.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "cardwright/automation/Errors.h"
#include "cardwright/scripting/RegExp.h"
#include "cardwright/scripting/RegExpMatches.h"

namespace {

using namespace cardwright;
using namespace cardwright::scripting;

// Beyond it inputs that match everywhere make long texts and say no more than short ones.
constexpr std::size_t kMostUnits = 1 << 16;

void Require(bool holds) {
  if (!holds) std::abort();
}

bool IsExpected(int number) {
  return (number >= 5017 && number <= 5021) || number == 7 || number == 14 || number == 17;
}

/// Cuts off the first line.
Text TakeLine(std::string_view& bytes) {
  const std::size_t end = std::min(bytes.find('\n'), bytes.size());
  const Text line = Text::FromUtf8(bytes.substr(0, end));
  bytes.remove_prefix(std::min(end + 1, bytes.size()));
  return line;
}

void CheckMatches(RegExpMatches& matches, const Text& text) {
  std::int32_t last = 0;
  for (std::int32_t i = 0; i < matches.Count(); ++i) {
    RegExpMatch& match = *matches.Item(i);
    Require(match.FirstIndex() >= last);
    last = match.FirstIndex() + match.Length();
    const auto first = static_cast<std::size_t>(match.FirstIndex());
    const auto length = static_cast<std::size_t>(match.Length());
    Require(match.Value().StringView() == text.View().substr(first, length));
    const auto groups = match.SubMatches();
    for (std::int32_t k = 0; k < groups->Count(); ++k)
      Require(groups->Item(k).IsEmpty() || groups->Item(k).IsString());
  }
  Require(last <= static_cast<std::int32_t>(text.Size()));
}

void Run(RegExp& expression, const Text& text, const Text& replacement) {
  const auto matches = expression.Execute(text);
  Require(expression.Test(text) == (matches->Count() > 0));
  CheckMatches(*matches, text);
  Require(expression.Replace(text, u"$&") == text);
  Require(expression.Replace(text, replacement).Size() <= kMostUnits);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (bytes.empty()) return 0;
  const auto flags = static_cast<unsigned char>(bytes.front());
  bytes.remove_prefix(1);
  const auto expression = MakeRef<RegExp>(kMostUnits);
  expression->SetGlobal((flags & 1) != 0);
  expression->SetIgnoreCase((flags & 2) != 0);
  expression->SetMultiLine((flags & 4) != 0);
  expression->SetPattern(TakeLine(bytes));
  const Text replacement = TakeLine(bytes);
  try {
    Run(*expression, Text::FromUtf8(bytes), replacement);
  } catch (const Error& error) {
    Require(IsExpected(error.Number()));
  }
  return 0;
}
