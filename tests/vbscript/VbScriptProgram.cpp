// SPDX-License-Identifier: MIT
#include "vbscript/VbScriptProgram.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/scripting/Dictionary.h"
#include "cardwright/scripting/RegExp.h"

namespace cardwright::vbscript {
namespace {

class Host final : public ScriptHost {
 public:
  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view) override {
    if (EqualsNoCase(progid, u"Scripting.Dictionary")) return MakeRef<scripting::Dictionary>();
    if (EqualsNoCase(progid, u"VBScript.RegExp")) return MakeRef<scripting::RegExp>();
    Raise(ErrorNumber::CannotCreateObject);
  }
};

}  // namespace

std::vector<std::filesystem::path> ProgramFiles() { return ProgramsBelow("vbscript", ".vbs"); }

Program ReadProgram(const std::filesystem::path& file) { return Program::Read(file, "'"); }

ProgramOutcome RunProgram(const Program& program, const Limits& limits) {
  Host host;
  return cardwright::RunProgram(program, [&] { return MakeEngine(host, limits); });
}

}  // namespace cardwright::vbscript
