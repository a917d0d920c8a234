// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/TextEntry.h"

namespace cardwright {

/// A line of text; InputType restricts typing to integers or real numbers.
class CTextBox final : public TextEntry {
 public:
  static const ClassTable kTable;
  CTextBox() : TextEntry(kTable) {}

 protected:
  void ChooseInputMode() override;
  void FinishRead(const SectionReader& section) override;

 private:
  struct Tables;

  Text m_InputType = u"Text";
};

}  // namespace cardwright
