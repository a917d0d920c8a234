// SPDX-License-Identifier: MIT
#include "cardwright/vbscript/machine/MachineFunctions.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/vbscript/machine/Machine.h"

namespace cardwright::vbscript {

namespace {

Machine& MachineOf(Context& context) { return static_cast<Machine&>(context); }

// A value that is no text evaluates to itself.
Variant Eval(Context& context, Args args) {
  return args[0].IsString() ? MachineOf(context).EvaluateInScope(args[0].String()) : args[0];
}

Variant Execute(Context& context, Args args) {
  MachineOf(context).ExecuteInScope(ToText(args[0]));
  return {};
}

Variant ExecuteGlobal(Context& context, Args args) {
  MachineOf(context).ExecuteInModule(ToText(args[0]));
  return {};
}

Variant GetRef(Context& context, Args args) { return MachineOf(context).GetReference(ToText(args[0])); }

constexpr Builtin kMachineFunctions[] = {
    {u"Eval", Eval, 1, 1},
    {u"Execute", Execute, 1, 1},
    {u"ExecuteGlobal", ExecuteGlobal, 1, 1},
    {u"GetRef", GetRef, 1, 1},
};

}  // namespace

const Builtin* FindMachineFunction(std::u16string_view name) noexcept {
  for (const Builtin& function : kMachineFunctions)
    if (EqualsNoCase(function.name, name)) return &function;
  return nullptr;
}

}  // namespace cardwright::vbscript
