// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <unordered_map>

#include "cardwright/automation/Text.h"

namespace cardwright::vbscript {

struct HashOfName {
  std::size_t operator()(std::u16string_view name) const noexcept { return HashNoCase(name); }
};
struct SameName {
  bool operator()(std::u16string_view a, std::u16string_view b) const noexcept { return EqualsNoCase(a, b); }
};
/// Values by name, without regard to case.
template <class T>
using NameMap = std::unordered_map<std::u16string_view, T, HashOfName, SameName>;

/// What a name declares in its scope. The three parts of a property share a name.
enum class NameUse : unsigned char {
  Value = 1,  ///< variable, constant, parameter, field or class
  Procedure = 2,
  PropertyGet = 4,
  PropertyLet = 8,
  PropertySet = 16,
};

/// The names that one scope declares: a script's, a class's or a procedure's.
class NameScope {
 public:
  /// Adds a use to a name. Returns false, and adds nothing, where the name has a use that excludes it.
  bool Declare(std::u16string_view name, NameUse use) {
    unsigned char& uses = m_Uses[name];
    if (uses != 0 && (!IsPropertyPart(uses) || !IsPropertyPart(Bit(use)) || (uses & Bit(use)) != 0))
      return false;
    uses = static_cast<unsigned char>(uses | Bit(use));
    return true;
  }
  /// Like Declare, but a procedure may replace another one of its name.
  bool DeclareReplacing(std::u16string_view name) {
    unsigned char& uses = m_Uses[name];
    if (uses != 0 && uses != Bit(NameUse::Procedure)) return false;
    uses = Bit(NameUse::Procedure);
    return true;
  }

 private:
  static constexpr unsigned char Bit(NameUse use) { return static_cast<unsigned char>(use); }
  static constexpr bool IsPropertyPart(unsigned char uses) {
    return (uses & (Bit(NameUse::Value) | Bit(NameUse::Procedure))) == 0;
  }

  NameMap<unsigned char> m_Uses;
};

}  // namespace cardwright::vbscript
