// SPDX-License-Identifier: MIT
#include "jscript/JScriptProgram.h"

#include "cardwright/automation/Errors.h"
#include "jscript/JScriptSample.h"

namespace cardwright::jscript {
namespace {

class Host final : public ScriptHost {
 public:
  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view) override {
    if (EqualsNoCase(progid, u"Sample.Gadget")) return MakeRef<Gadget>();
    if (EqualsNoCase(progid, u"Sample.Collection")) return MakeRef<Collection>();
    Raise(ErrorNumber::CannotCreateObject);
  }
};

}  // namespace

std::vector<std::filesystem::path> ProgramFiles() { return ProgramsBelow("jscript", ".js"); }

Program ReadProgram(const std::filesystem::path& file) { return Program::Read(file, "//"); }

ProgramOutcome RunProgram(const Program& program, const Limits& limits) {
  Host host;
  return cardwright::RunProgram(program, [&] {
    auto engine = MakeEngine(host, limits);
    engine->AddObject(u"Host", MakeRef<Gadget>(), false);
    engine->AddObject(u"Shared", MakeRef<Gadget>(), true);
    return engine;
  });
}

}  // namespace cardwright::jscript
