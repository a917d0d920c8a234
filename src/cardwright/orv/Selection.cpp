#include "cardwright/orv/Selection.h"

#include <utility>

namespace cardwright::orv {

void Selection::Replace(std::vector<std::int64_t> ids, OGRFeatureUniquePtr first) {
  m_Ids = std::move(ids);
  m_CurrentId.reset();
  m_Feature = std::move(first);
  m_IsRead = m_IsFirstUse = m_Feature != nullptr;
}

void Selection::Clear() noexcept {
  m_Ids.clear();
  m_CurrentId.reset();
  Forget();
}

void Selection::MoveFirst() noexcept {
  // The feature that the selection itself has read serves the move that follows it; a later move reads anew.
  if (!m_IsFirstUse) Forget();
  m_IsFirstUse = false;
  m_CurrentId = m_Ids.empty() ? std::nullopt : std::optional(m_Ids.front());
}

OGRFeature* Selection::Current(Store& store, OGRLayer& layer) {
  if (!m_CurrentId) return nullptr;
  if (!m_IsRead) {
    m_Feature = store.ReadFeature(layer, *m_CurrentId);
    m_IsRead = true;
  }
  return m_Feature.get();
}

void Selection::Forget() noexcept {
  m_Feature.reset();
  m_IsRead = m_IsFirstUse = false;
}

}  // namespace cardwright::orv
