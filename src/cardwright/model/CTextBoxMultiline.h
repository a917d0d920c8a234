#pragma once

#include "cardwright/model/TextEntry.h"

namespace cardwright {

/// Text of several lines. It has no input mode of its own: only a Tag set from outside makes it filter keys.
class CTextBoxMultiline final : public TextEntry {
 public:
  static const ClassTable kTable;
  CTextBoxMultiline() : TextEntry(kTable) {}

 private:
  struct Tables;
};

}  // namespace cardwright
