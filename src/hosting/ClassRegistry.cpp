#include "hosting/ClassRegistry.h"

#include "automation/Errors.h"

namespace cardwright {

void ClassRegistry::Add(std::u16string_view progid, Maker make) {
  m_Makers.insert_or_assign(Text(progid), std::move(make));
}

void ClassRegistry::SetLoader(std::u16string_view prefix, Loader load) {
  m_LoaderPrefix = prefix;
  m_Load = std::move(load);
}

Ref<Object> ClassRegistry::Create(std::u16string_view progid) {
  auto found = m_Makers.find(progid);
  if (found == m_Makers.end() && m_Load &&
      EqualsNoCase(progid.substr(0, m_LoaderPrefix.Size()), m_LoaderPrefix)) {
    m_Load(*this);
    m_Load = nullptr;
    found = m_Makers.find(progid);
  }
  if (found == m_Makers.end()) Raise(ErrorNumber::CannotCreateObject);
  return found->second();
}

}  // namespace cardwright
