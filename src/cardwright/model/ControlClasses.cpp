// SPDX-License-Identifier: MIT
#include "cardwright/model/ControlClasses.h"

#include <algorithm>

#include "cardwright/model/CAttributeSelector.h"
#include "cardwright/model/CCheckBox.h"
#include "cardwright/model/CColorSelector.h"
#include "cardwright/model/CComboBox.h"
#include "cardwright/model/CCommandButton.h"
#include "cardwright/model/CFontSelector.h"
#include "cardwright/model/CFrame.h"
#include "cardwright/model/CLabel.h"
#include "cardwright/model/CListBox.h"
#include "cardwright/model/COptionButton.h"
#include "cardwright/model/CResourceSelector.h"
#include "cardwright/model/CTextBox.h"
#include "cardwright/model/CTextBoxMultiline.h"
#include "cardwright/model/CThemeSelector.h"

namespace cardwright {
namespace {

std::vector<const ClassTable*>& Registry() {
  static std::vector<const ClassTable*> classes = {
      &CLabel::kTable,
      &CTextBox::kTable,
      &CTextBoxMultiline::kTable,
      &CCheckBox::kTable,
      &COptionButton::kTable,
      &CComboBox::kTable,
      &CListBox::kTable,
      &CFrame::kTable,
      &CCommandButton::kTable,
      &CResourceSelector::kTable,
      &CThemeSelector::kTable,
      &CAttributeSelector::kTable,
      &CFontSelector::kTable,
      &CColorSelector::kTable,
  };
  return classes;
}

constexpr ClassTable kDbTableViewer = {.type = ControlTypeEnum::ctDbTableViewer,
                                       .design = {.identifier = u"CardwrightCtrl.DbTableViewer"}};

template <class Matches>
const ClassTable* FindClass(Matches&& matches) {
  const auto classes = ControlClasses();
  const auto found = std::ranges::find_if(classes, [&](const ClassTable* table) { return matches(*table); });
  return found == classes.end() ? nullptr : *found;
}

}  // namespace

std::span<const ClassTable* const> ControlClasses() { return Registry(); }

void AddControlClass(const ClassTable& table) { Registry().push_back(&table); }

const ClassTable* FindControlClass(ControlTypeEnum type) {
  return FindClass([&](const ClassTable& table) { return table.type == type; });
}

const ClassTable* FindControlClass(std::u16string_view typeText) {
  return FindClass([&](const ClassTable& table) { return EqualsNoCase(table.typeText, typeText); });
}

const ClassTable* FindDrawable(ControlTypeEnum type) {
  return type == kDbTableViewer.type ? &kDbTableViewer : FindControlClass(type);
}

const ClassTable& ClassOf(const IControl& control) noexcept {
  static constexpr ClassTable kNoClass{};
  const auto* element = dynamic_cast<const TableControl*>(&control);
  return element ? element->Table() : kNoClass;
}

std::vector<Ref<IControl>> ControlsOfType(const Collection& controls, ControlTypeEnum type) {
  std::vector<Ref<IControl>> found;
  if (type == ControlTypeEnum::ctDefault) return found;
  for (const Ref<IControl>& control : ControlsOf(controls))
    if (ClassOf(*control).type == type) found.push_back(control);
  return found;
}

}  // namespace cardwright
