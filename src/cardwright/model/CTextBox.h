#pragma once

#include "cardwright/model/TextEntry.h"

namespace cardwright {

/// A line of text that can be held to an integer or a real number while it is typed.
class CTextBox final : public TextEntry {
 public:
  static const ClassTable kTable;
  CTextBox() : TextEntry(kTable) {}

 protected:
  void ChooseInputMode() override;
  void FinishRead(const CIni& ini, const Text& sectionName) override;

 private:
  struct Tables;

  Text m_InputType = u"Text";
};

}  // namespace cardwright
