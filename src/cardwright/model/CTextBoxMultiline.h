// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/TextEntry.h"

namespace cardwright {

/// Text of several lines. It has no InputType: it filters keys only if a bound attribute or a script sets the
/// Tag.
class CTextBoxMultiline final : public TextEntry {
 public:
  static const ClassTable kTable;
  CTextBoxMultiline() : TextEntry(kTable) {}

 private:
  struct Tables;
};

}  // namespace cardwright
