#include "cardwright/storage/IniBatch.h"

#include <utility>

namespace cardwright {

IniBatch::IniBatch(const Text& fileName) : m_Store(IniStore::Open(fileName)) {
  if (m_Store) m_Store->BeginBatch();
}

IniBatch::~IniBatch() {
  if (m_Store) m_Store->DropBatch();
}

bool IniBatch::Commit() {
  const Ref<IniStore> store = std::exchange(m_Store, nullptr);
  return store && store->CommitBatch();
}

}  // namespace cardwright
