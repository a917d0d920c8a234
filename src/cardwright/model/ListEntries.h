// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/CItems.h"
#include "cardwright/model/CommonFields.h"

namespace cardwright {

/// @name Rows and keys of the classes that hold an item collection; `Class` keeps it in m_Items.
/// @{
template <class Class>
inline constexpr Field kItemsField{[](const TableControl& c) -> Variant { return As<Class>(c).m_Items; }};

template <class Class>
inline constexpr KeyGroup kItemsNumberKey{
    {{u"ItemsNumber", KeyForm::Number, {[](const TableControl& c) -> Variant {
        return As<Class>(c).m_Items->Count();
      }}}}};

template <class Class>
inline constexpr KeyGroup kItemsKey{{{u"Value_Item_1", KeyForm::Items, kItemsField<Class>}}};
/// @}

}  // namespace cardwright
