// SPDX-License-Identifier: MIT
// Takes any bytes as a VBScript source. It must parse or fail with a number and a position. What parses must
// print to a source that parses and prints the same, and run within its limits. The first byte decides
// whether the run is observed.

#include <algorithm>
#include <cstdint>

#include "VbscriptRun.h"
#include "cardwright/vbscript/VbScriptEngine.h"
#include "cardwright/vbscript/syntax/Parser.h"
#include "cardwright/vbscript/syntax/Printer.h"

namespace {

using namespace cardwright;
using namespace cardwright::vbscript;

void CheckRefusal(const Text& source, const ScriptError& error) {
  const auto lines = 1 + std::count_if(source.View().begin(), source.View().end(),
                                       [](char16_t c) { return c == u'\n' || c == u'\r'; });
  Require(error.number >= 1001 && error.number <= 1058);
  Require(error.line >= 1 && error.line <= lines && error.column >= 0);
}

void CheckPrinting(const Text& source) {
  const Text printed = Print(*Parse(source));
  Require(Print(*Parse(printed)) == printed);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text source = Text::FromUtf8({reinterpret_cast<const char*>(data), size});
  const ScriptError error = Check(source);
  if (error.number) {
    CheckRefusal(source, error);
  } else {
    CheckPrinting(source);
  }
  RunStranger(source, size % 2 != 0);
  return 0;
}
