// SPDX-License-Identifier: MIT
#include "cardwright/orv/FeatureSelection.h"

#include <utility>

namespace cardwright::orv {

void FeatureSelection::Set(std::vector<std::int64_t> ids, OGRFeatureUniquePtr first) {
  m_Ids = std::move(ids);
  m_CurrentId.reset();
  m_Feature = std::move(first);
  m_IsRead = m_IsFirstUse = m_Feature != nullptr;
}

void FeatureSelection::Clear() noexcept {
  m_Ids.clear();
  m_CurrentId.reset();
  Invalidate();
}

void FeatureSelection::MoveFirst() noexcept {
  // A feature that was read by the selection itself serves the first move after it. Later moves read it
  // again.
  if (!m_IsFirstUse) Invalidate();
  m_IsFirstUse = false;
  m_CurrentId = m_Ids.empty() ? std::nullopt : std::optional(m_Ids.front());
}

OGRFeature* FeatureSelection::Current(Store& store, OGRLayer& layer) {
  if (!m_CurrentId) return nullptr;
  if (!m_IsRead) {
    m_Feature = store.ReadFeature(layer, *m_CurrentId);
    m_IsRead = true;
  }
  return m_Feature.get();
}

void FeatureSelection::Invalidate() noexcept {
  m_Feature.reset();
  m_IsRead = m_IsFirstUse = false;
}

}  // namespace cardwright::orv
