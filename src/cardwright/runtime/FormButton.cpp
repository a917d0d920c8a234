// SPDX-License-Identifier: MIT
#include "cardwright/runtime/FormButton.h"

#include "cardwright/automation/Conversions.h"
#include "cardwright/shared/Localisation.h"

namespace cardwright {

FormButton::FormButton(Surface& surface, std::u16string_view name, int message, std::function<void()> onClick)
    : m_Widget(surface.Add(u"VB.CommandButton", name, nullptr)), m_OnClick(std::move(onClick)) {
  m_Widget->SetTag(ToText(Variant(std::int32_t{message})));
  const Ref<Object> translated[] = {m_Widget};
  TranslateControls(translated);
  m_Widget->SetListener(this);
  m_Widget->SetVisible(true);
}

FormButton::~FormButton() { m_Widget->SetListener(nullptr); }

void FormButton::OnClick() { m_OnClick(); }

}  // namespace cardwright
