#include "platform/ScriptLanguages.h"

namespace cardwright {

void ScriptLanguages::Add(std::u16string_view language, Maker make) {
  m_Languages.push_back({Text(language), std::move(make)});
}

std::unique_ptr<ScriptEngine> ScriptLanguages::Make(std::u16string_view language, ScriptHost& host) const {
  for (const Language& one : m_Languages)
    if (EqualsNoCase(one.name, language)) return one.make(host);
  return nullptr;
}

}  // namespace cardwright
