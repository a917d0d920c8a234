// SPDX-License-Identifier: MIT
#include "cardwright/model/FormDocument.h"

#include "cardwright/model/CForm.h"
#include "cardwright/model/Control.h"
#include "cardwright/platform/Surface.h"

namespace cardwright {

void FormDocument::AddForm(const Ref<Object>& owner) {
  auto form = MakeRef<CForm>();
  form->SetParentForm(owner);
  form->SetName(u"Form");
  m_Controls->Add(Variant(Ref<Object>(form)), Variant(ToLower(form->UserName())));
}

Ref<IControl> FormDocument::Form() const {
  return m_Controls->Count() > 0 ? Ref<IControl>(AsControl(m_Controls->Item(Variant(1)))) : nullptr;
}

bool FormDocument::Read(const Text& fileName) const {
  const Ref<IControl> form = Form();
  return form && form->Read(fileName, {});
}

bool FormDocument::Save(const Text& fileName, bool isTemporary) const {
  return BestEffortOr(false, [&] {
    const Ref<IControl> first = Form();
    auto* form = dynamic_cast<CForm*>(first.get());
    return form ? form->SaveProject(fileName, isTemporary) : first && first->Save(fileName, {});
  });
}

Text FormDocument::ThemeName() const {
  const Ref<IControl> form = Form();
  return form ? ToText(form->PropertyValue(u"ThemeName")) : Text();
}

FeatureTypeEnum FormDocument::FeatureType() const {
  const Ref<IControl> form = Form();
  return form ? static_cast<FeatureTypeEnum>(ToLong(form->PropertyValue(u"FeatureType")))
              : FeatureTypeEnum::ftNone;
}

void FormDocument::Detach(Surface* surface) const {
  for (const Ref<IControl>& control : ControlsOf(*m_Controls)) {
    auto* table = dynamic_cast<TableControl*>(control.get());
    if (!table) continue;
    if (surface && dynamic_cast<Control*>(table)) BestEffort([&] { surface->Remove(control->Name()); });
    table->ForgetOwner();
  }
}

}  // namespace cardwright
