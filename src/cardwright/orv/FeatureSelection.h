// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "cardwright/orv/Store.h"

namespace cardwright::orv {

/// The selected features of one theme by their ids, and the current one among them. The current feature is
/// read from the store once for each selection.
class FeatureSelection {
 public:
  /// `first` is the first feature, if it has been read already.
  void Set(std::vector<std::int64_t> ids, OGRFeatureUniquePtr first = nullptr);
  void Clear() noexcept;

  std::size_t Count() const noexcept { return m_Ids.size(); }
  void MoveFirst() noexcept;
  /// The id of the current feature, if there is one.
  std::optional<std::int64_t> CurrentId() const noexcept { return m_CurrentId; }
  /// The current feature; null where there is none or it was deleted.
  OGRFeature* Current(Store& store, OGRLayer& layer);
  /// Has the next use read the current feature again.
  void Invalidate() noexcept;

 private:
  std::vector<std::int64_t> m_Ids;
  std::optional<std::int64_t> m_CurrentId;
  OGRFeatureUniquePtr m_Feature;
  bool m_IsRead = false;
  bool m_IsFirstUse = false;
};

}  // namespace cardwright::orv
