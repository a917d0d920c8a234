// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "cardwright/platform/MenuItem.h"

namespace cardwright {

/// What an entry of the designer's popup menu does.
enum class DesignCommand { Cut, Copy, Paste, Delete, SetForeground, SetBackground, LockUnlock, Properties };

/// The entries of the designer's popup menu, with their captions in the user's language.
class DesignMenu {
 public:
  DesignMenu();

  const std::vector<Ref<MenuItem>>& Items() const noexcept { return m_Items; }
  /// The entry of that name, whatever its case; null where there is none.
  MenuItem* Find(std::u16string_view name) const noexcept;
  /// The entry of that name, or the menu itself by its own.
  MenuItem* FindNamed(std::u16string_view name) const noexcept;
  /// None for a separator or a name that no entry has.
  static std::optional<DesignCommand> CommandOf(std::u16string_view name) noexcept;
  /// Shows or hides the entries that need a control.
  void ShowControlItems(bool show) const noexcept;

  MenuItem& Lock() const noexcept { return *m_Lock; }

 private:
  const Ref<MenuItem> m_Whole = MakeRef<MenuItem>(u"mnuPopUp", u"");
  std::vector<Ref<MenuItem>> m_Items;
  Ref<MenuItem> m_Lock;
};

}  // namespace cardwright
