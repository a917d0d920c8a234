// SPDX-License-Identifier: MIT
#include "VbscriptRun.h"

#include <cstdlib>
#include <vector>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/MemoryBudget.h"
#include "cardwright/scripting/Dictionary.h"
#include "cardwright/vbscript/VbScriptEngine.h"

namespace cardwright::vbscript {

namespace {

constexpr Limits kLimits{.callDepth = 200, .textUnits = 1 << 16, .memoryBytes = 4 << 20};
constexpr std::int32_t kTimeout = 60;   // milliseconds
constexpr int kMostStatements = 20000;  // of an observed run

/// Allows dictionaries only, which have no effects outside. It empties them at its end: dictionaries that
/// contain each other are never freed by counting references, and the engine does not end objects of the
/// host.
class Host final : public ScriptHost {
 public:
  ~Host() override {
    for (const Ref<scripting::Dictionary>& dictionary : m_Dictionaries) dictionary->RemoveAll();
  }
  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view server) override {
    if (!EqualsNoCase(progid, u"Scripting.Dictionary")) return ScriptHost::CreateObject(progid, server);
    return m_Dictionaries.emplace_back(MakeRef<scripting::Dictionary>());
  }

 private:
  std::vector<Ref<scripting::Dictionary>> m_Dictionaries;
};

/// Ends runs after a number of statements, so that they are repeatable.
class Counter final : public ScriptObserver {
 public:
  void Watch(ScriptEngine& engine) {
    m_Engine = &engine;
    engine.SetObserver(this);
  }
  void OnStatement(std::u16string_view, int line, int column) override {
    Require(line >= 0 && column >= 0);
    if (++m_Statements > kMostStatements) m_Engine->Interrupt();
  }

 private:
  ScriptEngine* m_Engine = nullptr;
  int m_Statements = 0;
};

template <class Step>
void Try(ScriptEngine& engine, Step&& step) {
  engine.ClearError();
  try {
    step();
    Require(engine.LastError().number == 0);
  } catch (const Error& error) {
    // A name that is no procedure any more is a mistake of the caller, which LastError does not report.
    const int noted = engine.LastError().number;
    Require(error.Number() != 0 && (noted == error.Number() || noted == 0));
  }
}

void Run(std::u16string_view source, bool isObserved) {
  Host host;
  Counter counter;
  const auto engine = MakeEngine(host, kLimits);
  engine->SetTimeout(kTimeout);
  engine->SetAllowUI(false);
  if (isObserved) counter.Watch(*engine);
  Try(*engine, [&] { engine->AddCode({}, source); });
  const std::vector<ScriptProcedure> procedures = engine->Procedures({});
  for (std::size_t k = 0; k < procedures.size() && k < 4; ++k) {
    std::vector<Variant> arguments(static_cast<std::size_t>(procedures[k].argumentCount), Variant(7));
    Try(*engine, [&] { engine->Run({}, procedures[k].name, arguments); });
  }
}

}  // namespace

void Require(bool holds) {
  if (!holds) std::abort();
}

void RunStranger(std::u16string_view source, bool isObserved) {
  const std::size_t used = MemoryBudget::Used();
  Run(source, isObserved);
  Require(MemoryBudget::Used() == used);
}

}  // namespace cardwright::vbscript
