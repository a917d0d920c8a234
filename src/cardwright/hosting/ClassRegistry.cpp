// SPDX-License-Identifier: MIT
#include "cardwright/hosting/ClassRegistry.h"

#include "cardwright/automation/Errors.h"

namespace cardwright {

void ClassRegistry::Add(std::u16string_view progid, Maker make) {
  m_Makers.insert_or_assign(Text(progid), std::move(make));
}

void ClassRegistry::SetLoader(std::u16string_view prefix, Loader load) {
  m_LoaderPrefix = prefix;
  m_Load = std::move(load);
}

void ClassRegistry::Load() {
  if (!m_Load) return;
  m_Load(*this);
  m_Load = nullptr;
}

const ClassRegistry::Maker* ClassRegistry::Find(std::u16string_view progid) {
  auto found = m_Makers.find(progid);
  if (found == m_Makers.end() && EqualsNoCase(progid.substr(0, m_LoaderPrefix.Size()), m_LoaderPrefix)) {
    Load();
    found = m_Makers.find(progid);
  }
  return found == m_Makers.end() ? nullptr : &found->second;
}

Ref<Object> ClassRegistry::Create(std::u16string_view progid) {
  const Maker* make = Find(progid);
  if (!make) Raise(ErrorNumber::CannotCreateObject);
  return (*make)();
}

}  // namespace cardwright
