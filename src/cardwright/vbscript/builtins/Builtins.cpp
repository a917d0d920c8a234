// SPDX-License-Identifier: MIT
#include <bit>
#include <vector>

#include "cardwright/automation/Text.h"
#include "cardwright/vbscript/builtins/Builtin.h"

namespace cardwright::vbscript {

namespace {

/// Rows of tables by their names in any case: a hash table with open addressing, at most half full.
template <class Row>
class RowIndex {
 public:
  explicit RowIndex(std::span<const std::span<const Row>> families) {
    std::size_t count = 0;
    for (const auto& family : families) count += family.size();
    m_Slots.resize(std::bit_ceil(2 * count + 1));
    for (const auto& family : families) {
      for (const Row& row : family) m_Slots[SlotOf(row.name)] = &row;
    }
  }

  const Row* Find(std::u16string_view name) const noexcept { return m_Slots[SlotOf(name)]; }

 private:
  // The slot of the name, or the free one where it would go.
  std::size_t SlotOf(std::u16string_view name) const noexcept {
    const std::size_t mask = m_Slots.size() - 1;
    std::size_t slot = HashNoCase(name) & mask;
    while (m_Slots[slot] && !EqualsNoCase(m_Slots[slot]->name, name)) slot = (slot + 1) & mask;
    return slot;
  }

  std::vector<const Row*> m_Slots;
};

}  // namespace

std::span<const std::span<const Builtin>> BuiltinFamilies() {
  static const std::span<const Builtin> families[] = {
      ArrayFunctions(),  ConversionFunctions(),   DateFunctions(), DateIntervalFunctions(),
      EscapeFunctions(), FormatFunctions(),       HostFunctions(), MathFunctions(),
      StringFunctions(), StringSearchFunctions(), TypeFunctions()};
  return families;
}

const Builtin* FindBuiltin(std::u16string_view name) noexcept {
  static const RowIndex<Builtin> index(BuiltinFamilies());
  return index.Find(name);
}

const BuiltinConstant* FindConstant(std::u16string_view name) noexcept {
  static const std::span<const BuiltinConstant> constants[] = {Constants()};
  static const RowIndex<BuiltinConstant> index(constants);
  return index.Find(name);
}

}  // namespace cardwright::vbscript
