// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "cardwright/orv/FieldValues.h"
#include "cardwright/orv/Store.h"
#include "cardwright/orv/Theme.h"

namespace cardwright::orv {

/// The values that commands gave one feature and that are still to be stored, all together. One invalid value
/// makes all of them invalid.
class PendingEdits {
 public:
  bool IsOpen() const noexcept { return m_Theme != nullptr; }
  bool AreFor(const Theme& theme, std::int64_t id) const noexcept { return m_Theme == &theme && m_Id == id; }

  void Begin(Theme& theme, std::int64_t id) noexcept;
  /// Adds a value, or replaces the one for the same attribute.
  void Set(const Attribute& attribute, FieldValue value);
  /// Makes all values invalid, for the reason given.
  void Invalidate(Text message);

  /// Stores all values in one transaction and starts afresh. Fails, and stores none, where a value was
  /// invalid or the store rejects one.
  void Flush(Store& store);

 private:
  struct Edit {
    const Attribute* attribute;
    FieldValue value;
  };

  Text ErrorMessage(const std::vector<Text>& errors) const;
  void Write(Store& store) const;
  void UpdateBySql(Store& store) const;
  void ReplaceFeature(Store& store) const;
  /// Writes the feature, reads it back, and fails where a value is not the same then.
  void SetAndVerify(Store& store, OGRFeature& changed) const;

  Theme* m_Theme = nullptr;
  std::int64_t m_Id = 0;
  std::vector<Edit> m_Edits;
  std::vector<Text> m_Errors;
};

}  // namespace cardwright::orv
