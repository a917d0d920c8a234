// SPDX-License-Identifier: MIT
#include "cardwright/runtime/ScriptDebugger.h"

namespace cardwright {
namespace {

constexpr Member kScriptDebuggerMembers[] = {
    Method<&ScriptDebugger::Show>(u"Show"),
    Method<&ScriptDebugger::WriteOut>(u"WriteOut"),
};

}  // namespace

const MemberTable& ScriptDebugger::Members() const {
  static const MemberTable table(kScriptDebuggerMembers);
  return table;
}

void ScriptDebugger::Show(const Variant& value) { WriteOut(Variant(ToText(value) + u"\r\n")); }

void ScriptDebugger::WriteOut(const Variant& value) {
  if (m_Output) LetProperty(*m_Output, u"SelText", Variant(ToText(value)));
}

}  // namespace cardwright
