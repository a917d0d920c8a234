// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "cardwright/automation/Object.h"

/// The common ways to answer For Each.
namespace cardwright {

/// Over a collection that has `Count()` and `Item(index)` from 0: sees what is added and removed meanwhile.
template <class Collection>
class ItemEnumerator final : public Enumerator {
 public:
  explicit ItemEnumerator(Collection& collection) : m_Collection(&collection) {}
  bool Next(Variant& value) override {
    if (m_Next == m_Collection->Count()) return false;
    value = m_Collection->Item(m_Next++);
    return true;
  }

 private:
  const Ref<Collection> m_Collection;
  std::int32_t m_Next = 0;
};

/// Over values as they were when it was made.
class SnapshotEnumerator final : public Enumerator {
 public:
  explicit SnapshotEnumerator(std::vector<Variant> values) noexcept : m_Values(std::move(values)) {}
  bool Next(Variant& value) override {
    if (m_Next == m_Values.size()) return false;
    value = std::move(m_Values[m_Next++]);
    return true;
  }

 private:
  std::vector<Variant> m_Values;
  std::size_t m_Next = 0;
};

}  // namespace cardwright
