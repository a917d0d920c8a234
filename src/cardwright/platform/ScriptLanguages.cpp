// SPDX-License-Identifier: MIT
#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright {
namespace {

const ScriptLanguage* Find(const std::vector<ScriptLanguage>& languages,
                           std::u16string_view ScriptLanguage::*field, std::u16string_view value) {
  for (const ScriptLanguage& one : languages)
    if (EqualsNoCase(one.*field, value)) return &one;
  return nullptr;
}

}  // namespace

const ScriptLanguage* ScriptLanguages::Named(std::u16string_view name) const {
  return Find(m_Languages, &ScriptLanguage::name, name);
}

const ScriptLanguage* ScriptLanguages::OfExtension(std::u16string_view extension) const {
  return Find(m_Languages, &ScriptLanguage::extension, extension);
}

}  // namespace cardwright
