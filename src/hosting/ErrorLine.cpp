#include "hosting/ErrorLine.h"

#include <string>

namespace cardwright {
namespace {

std::u16string Digits(int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

constexpr std::u16string_view kCompilation = u"VBScript compilation error",
                              kRuntime = u"VBScript runtime error";

// The engines name themselves with a maker in front; the line goes without.
Text Origin(const ScriptError& error) {
  constexpr std::u16string_view kMaker = u"Microsoft ";
  if (error.isSyntax) return kCompilation;
  if (error.source.IsEmpty()) return kRuntime;
  for (const std::u16string_view own : {kCompilation, kRuntime})
    if (EqualsNoCase(error.source, Text(kMaker) + own)) return own;
  return error.source;
}

}  // namespace

Text ErrorLine(std::u16string_view file, const ScriptError& error) {
  std::u16string line(file);
  line += u"(" + Digits(error.line) + u", " + Digits(error.column + 1) + u") ";
  line += std::u16string(Origin(error).View()) + u": " + std::u16string(error.description.View());
  for (char16_t& c : line)
    if (c == u'\r' || c == u'\n') c = u' ';
  return line;
}

}  // namespace cardwright
