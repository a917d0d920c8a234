// SPDX-License-Identifier: MIT
#include "cardwright/automation/Text.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/MemoryBudget.h"
#include "cardwright/automation/TextRep.h"

namespace cardwright {

namespace {

// The size in bytes must fit into a signed 32-bit length, as in the platform's strings.
constexpr std::size_t kMaxLength = 0x3FFFFFFF;
constexpr std::size_t kSmallestGrowth = 16;

void CopyCharacters(char16_t* to, std::u16string_view from) noexcept {
  if (!from.empty()) std::memcpy(to, from.data(), from.size() * sizeof(char16_t));
}

}  // namespace

Text::Rep* Text::Rep::Allocate(std::size_t capacity) {
  if (capacity > kMaxLength) Raise(ErrorNumber::OutOfMemory);
  const std::size_t bytes = sizeof(Rep) + capacity * sizeof(char16_t);
  MemoryBudget::Charge(bytes);
  void* block = ::operator new(bytes);
  return new (block) Rep{1, 0, capacity};
}

void Text::Rep::Free(Rep* rep) noexcept {
  MemoryBudget::Refund(sizeof(Rep) + rep->capacity * sizeof(char16_t));
  ::operator delete(rep);
}

Text::Text(std::u16string_view characters) {
  if (characters.empty()) return;
  m_Rep = Rep::Allocate(characters.size());
  CopyCharacters(m_Rep->Characters(), characters);
  m_Rep->length = characters.size();
}

char16_t* Text::Allocate(std::size_t size) {
  m_Rep = Rep::Allocate(size);
  m_Rep->length = size;
  return m_Rep->Characters();
}

Text& Text::operator+=(std::u16string_view tail) {
  if (tail.empty()) return *this;
  const std::size_t length = Size() + tail.size();
  if (m_Rep && m_Rep->count == 1 && length <= m_Rep->capacity) {
    CopyCharacters(m_Rep->Characters() + m_Rep->length, tail);
    m_Rep->length = length;
    return *this;
  }
  // An unshared text is probably being built up and gets spare capacity; the sum of two texts is usually
  // final.
  const bool grows = m_Rep && m_Rep->count == 1;
  const std::size_t slack = grows ? std::max(length, kSmallestGrowth) : 0;
  Rep* rep = Rep::Allocate(length > kMaxLength ? length : std::min(length + slack, kMaxLength));
  CopyCharacters(rep->Characters(), View());
  CopyCharacters(rep->Characters() + Size(),
                 tail);  // `tail` may be part of the old characters, which are freed below
  rep->length = length;
  if (m_Rep) m_Rep->Release();
  m_Rep = rep;
  return *this;
}

std::u16string_view Trim(std::u16string_view text) noexcept {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

Text Replace(std::u16string_view text, std::u16string_view from, std::u16string_view to, bool noCase) {
  const auto find = [&](std::size_t start) {
    return noCase ? FindNoCase(text, from, start) : Find(text, from, start);
  };
  Text result;
  std::size_t done = 0;
  if (!from.empty()) {
    for (std::size_t hit = find(0); hit != std::u16string_view::npos; hit = find(done)) {
      result += text.substr(done, hit - done);
      result += to;
      done = hit + from.size();
    }
  }
  return done == 0 ? Text(text) : result + text.substr(done);
}

}  // namespace cardwright
