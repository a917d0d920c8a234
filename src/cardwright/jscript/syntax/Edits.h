#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace cardwright::jscript {

/// A change of a source within one line: `removed` characters make place for `inserted`.
struct Edit {
  std::size_t position = 0;
  std::size_t removed = 0;
  std::u16string inserted;
};

/// A place in a source.
struct Place {
  int line = 0;    ///< from 1
  int column = 0;  ///< from 0
};

Place PlaceOf(std::u16string_view source, std::size_t position) noexcept;

/// Finds for a place in an edited source the one in the source as it was written. Lines stay as they are.
class PlaceMap {
 public:
  PlaceMap() = default;
  /// The edits in the order of their positions.
  PlaceMap(std::u16string_view source, const std::vector<Edit>& edits);
  Place Original(Place edited) const noexcept;

 private:
  struct Shift {
    int line = 0, column = 0;  // where the edit begins, in the edited source
    int inserted = 0, removed = 0;
  };
  std::vector<Shift> m_Shifts;
};

std::u16string Apply(std::u16string_view source, const std::vector<Edit>& edits);

}  // namespace cardwright::jscript
