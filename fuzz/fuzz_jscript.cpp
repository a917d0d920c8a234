// SPDX-License-Identifier: MIT
// Any bytes are a JScript source. It compiles or is refused by a number and a place, and it runs within its
// limits: whatever fails fails by a number, and host and engine are whole afterwards.

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "cardwright/automation/Collection.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/jscript/JScriptEngine.h"

namespace {

using namespace cardwright;
using namespace cardwright::jscript;

constexpr Limits kLimits{.stackBytes = 256 << 10, .textUnits = 1 << 16, .memoryBytes = 64 << 20};
constexpr std::int32_t kTimeout = 40;  // milliseconds

void Require(bool holds) {
  if (!holds) std::abort();
}

template <class Step>
void Try(const ScriptEngine& engine, Step&& step) {
  try {
    step();
    Require(engine.LastError().number == 0);
  } catch (const Error& error) {
    Require(error.Number() != 0 && engine.LastError().number == error.Number());
  }
}

void Run(std::u16string_view source) {
  ScriptHost host;
  const auto engine = MakeEngine(host, kLimits);
  engine->SetTimeout(kTimeout);
  engine->AddObject(u"Host", MakeRef<Collection>(), true);
  Try(*engine, [&] { engine->AddCode({}, source); });
  const std::vector<ScriptProcedure> procedures = engine->Procedures({});
  for (std::size_t k = 0; k < procedures.size() && k < 4; ++k) {
    std::vector<Variant> arguments(static_cast<std::size_t>(procedures[k].argumentCount), Variant(7));
    Try(*engine, [&] { engine->Run({}, procedures[k].name, arguments); });
  }
  Try(*engine, [&] { Require(ToLong(engine->Evaluate({}, u"1 + 1")) == 2); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text source = Text::FromUtf8({reinterpret_cast<const char*>(data), size});
  const ScriptError error = Check(source);
  Require(error.number == 0 || (error.isSyntax && error.line >= 0 && error.column >= 0));
  Run(source);
  return 0;
}
