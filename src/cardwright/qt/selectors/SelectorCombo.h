// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/FieldCombo.h"

namespace cardwright::qt {

class EntryList;

/// The drop-down list of a selector: entries of an EntryList with their signs and details, in a list with a
/// scroll bar, as it may have thousands of them.
class SelectorCombo final : public FieldCombo {
 public:
  explicit SelectorCombo(QWidget* parent);

  EntryList& Entries() noexcept { return *m_Entries; }
  /// Whether the action row after the entries can be chosen when the list is open. While it is closed the
  /// keys pass it over.
  bool offersAction = false;

  void showPopup() override;
  void hidePopup() override;

 protected:
  void initStyleOption(QStyleOptionComboBox* option) const override;

 private:
  int ListWidth() const;

  EntryList* m_Entries;
};

}  // namespace cardwright::qt
