#pragma once

#include <cstdint>
#include <vector>

#include "cardwright/orv/Store.h"
#include "cardwright/orv/Theme.h"
#include "cardwright/orv/Values.h"

namespace cardwright::orv {

/// The values that commands have given one feature and that wait to be stored together. One refused value
/// spoils them all.
class Edits {
 public:
  bool IsOpen() const noexcept { return m_Theme != nullptr; }
  bool AreFor(const Theme& theme, std::int64_t id) const noexcept { return m_Theme == &theme && m_Id == id; }

  void Begin(Theme& theme, std::int64_t id) noexcept;
  /// Keeps a value; a later one for the same attribute takes its place.
  void Keep(const Attribute& attribute, FieldValue value);
  void Spoil(Text reason);

  /// Stores the values in one transaction, or none of them, and starts afresh. Refused where a value was
  /// refused before or the store does not take them; nothing has been stored then.
  void Finish(Store& store);

 private:
  struct Edit {
    const Attribute* attribute;
    FieldValue value;
  };

  Text RefusalText(const std::vector<Text>& reasons) const;
  void Write(Store& store) const;
  void UpdateBySql(Store& store) const;
  void ReplaceFeature(Store& store) const;
  /// Writes the feature and holds what the store then has against it.
  void SetAndVerify(Store& store, OGRFeature& changed) const;

  Theme* m_Theme = nullptr;
  std::int64_t m_Id = 0;
  std::vector<Edit> m_Edits;
  std::vector<Text> m_Refused;
};

}  // namespace cardwright::orv
