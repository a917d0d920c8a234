// SPDX-License-Identifier: MIT
#include "cardwright/platform/ScriptEngine.h"

#include "cardwright/automation/Errors.h"

namespace cardwright {

Ref<Object> ScriptHost::CreateObject(std::u16string_view, std::u16string_view) {
  Raise(ErrorNumber::CannotCreateObject);
}

Ref<Object> ScriptHost::GetObject(std::u16string_view, std::u16string_view) {
  Raise(ErrorNumber::CannotCreateObject);
}

int ScriptHost::ShowMessage(const Text&, int, const Text&) { return 0; }

Variant ScriptHost::AskText(const Text&, const Text&, const Text&, const Variant&, const Variant&) {
  return {};
}

Ref<Object> ScriptHost::LoadPicture(std::u16string_view) { Raise(70); }

Text ScriptHost::BoxTitle() const { return u"VBScript"; }

void ScriptHost::SetAllowUI(bool) {}

bool ScriptHost::ShouldStop() { return false; }

void ScriptObserver::OnReturn(std::u16string_view, int, int) {}

}  // namespace cardwright
