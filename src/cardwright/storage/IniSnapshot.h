#pragma once

#include "cardwright/automation/Text.h"
#include "cardwright/storage/IniStore.h"

namespace cardwright {

/// While it lives, this thread's CIni reads of the file of that name show it as it was at one moment: a
/// project of some thousand keys is read as a whole, however others write to it meanwhile. Writes go to the
/// file as ever.
class IniSnapshot {
 public:
  explicit IniSnapshot(const Text& fileName) : m_Store(IniStore::Open(fileName)) {
    if (m_Store) m_Store->BeginSnapshot();
  }
  ~IniSnapshot() {
    if (m_Store) m_Store->EndSnapshot();
  }
  IniSnapshot(const IniSnapshot&) = delete;
  IniSnapshot& operator=(const IniSnapshot&) = delete;

 private:
  Ref<IniStore> m_Store;  // none for a name that is no path
};

}  // namespace cardwright
