// SPDX-License-Identifier: MIT
#include "cardwright/hosting/ErrorLine.h"

#include <string>

namespace cardwright {
namespace {

std::u16string Digits(int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

// The engines put a maker in front of their names, which the line leaves out.
Text Origin(std::u16string_view language, const ScriptError& error) {
  constexpr std::u16string_view kMaker = u"Microsoft ";
  const Text compilation = Text(language) + u" compilation error",
             runtime = Text(language) + u" runtime error";
  if (error.isSyntax) return compilation;
  if (error.source.IsEmpty()) return runtime;
  for (const Text& own : {compilation, runtime})
    if (EqualsNoCase(error.source, Text(kMaker) + own)) return own;
  return error.source;
}

}  // namespace

Text ErrorLine(std::u16string_view file, std::u16string_view language, const ScriptError& error) {
  std::u16string line(file);
  line += u"(" + Digits(error.line) + u", " + Digits(error.column + 1) + u") ";
  line += std::u16string(Origin(language, error).View()) + u": " + std::u16string(error.description.View());
  for (char16_t& c : line)
    if (c == u'\r' || c == u'\n') c = u' ';
  return line;
}

}  // namespace cardwright
