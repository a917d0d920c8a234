// SPDX-License-Identifier: MIT
#include "workbench/project/ProjectState.h"

#include <algorithm>

#include "cardwright/automation/Conversions.h"

namespace cardwright::workbench {
namespace {

bool IsSame(const Variant& a, const Variant& b) {
  if (a.IsObject() || b.IsObject()) return a.IsObject() && b.IsObject() && a.ObjectPtr() == b.ObjectPtr();
  if (a.IsEmpty() || b.IsEmpty()) return a.IsEmpty() && b.IsEmpty();
  return ToText(a) == ToText(b);
}

}  // namespace

bool ProjectState::HasSameForm(const ProjectState& other) const {
  if (file != other.file) return false;
  return !file.isEmpty() || (scale == other.scale && formFont == other.formFont &&
                             std::ranges::equal(formRows, other.formRows, IsSame));
}

}  // namespace cardwright::workbench
