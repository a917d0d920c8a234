// SPDX-License-Identifier: MIT
#include "cardwright/designer/DesignClipboard.h"

#include <algorithm>
#include <utility>

#include "cardwright/model/CItems.h"
#include "cardwright/model/ControlClasses.h"

namespace cardwright {

void DesignClipboard::Copy(const IControl& control, const Widget& widget) {
  DesignClipboard copied;
  copied.m_Type = ClassOf(control).type;
  copied.m_Width = widget.Width();
  copied.m_Height = widget.Height();
  copied.m_Font = widget.GetFont();
  copied.m_BackColor = control.BackColor();
  copied.m_ForeColor = control.ForeColor();
  for (std::int32_t row = 0; row < control.PropertyCount(); ++row)
    copied.m_Properties.push_back(control.PropertyValue(Variant(row)));
  *this = std::move(copied);
}

void DesignClipboard::ApplyAppearance(Widget& widget) const {
  BestEffort([&] { widget.SetBackColor(m_BackColor); });
  BestEffort([&] { widget.SetForeColor(m_ForeColor); });
  // The font is shared: a font that was changed since the copy pastes as it is now.
  BestEffort([&] { widget.GetFont()->Assign(m_Font->Values()); });
  BestEffort([&] { widget.SetWidth(m_Width); });
}

void DesignClipboard::ApplyProperties(Control& control) const {
  const auto rows = std::min<std::size_t>(m_Properties.size(), control.PropertyCount());
  for (std::size_t row = 0; row < rows; ++row)
    BestEffort([&] { ApplyProperty(control, static_cast<std::int32_t>(row)); });
}

void DesignClipboard::ApplyProperty(Control& control, std::int32_t row) const {
  const Variant& copied = m_Properties[static_cast<std::size_t>(row)];
  switch (control.PropertyType(Variant(row))) {
    case PropertyTypeEnum::ptFont: return;  // set with the appearance
    case PropertyTypeEnum::ptCollection: break;
    default: return control.SetPropertyValue(Variant(row), copied);
  }
  Variant source = copied;
  Variant target = control.PropertyValue(Variant(row));
  const Ref<CItems> from = FromVariant<Ref<CItems>>(source);
  const Ref<CItems> to = FromVariant<Ref<CItems>>(target);
  for (std::int32_t i = 1; i <= from->Count(); ++i) {
    const Ref<CItem> item = from->Item(Variant(i));
    if (!item) continue;
    const auto twin = MakeRef<CItem>();
    twin->m_Value = item->m_Value;
    twin->m_Text = item->m_Text;
    to->Add(twin);
  }
}

}  // namespace cardwright
