// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <utility>

#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

/// Makes the hidden widget of a programmatic identifier, whatever its case. Error 429 for an unknown one.
/// Every widget of a surface comes from here, so each is a WidgetCore too.
Ref<Widget> CreateWidget(std::u16string_view identifier, WidgetPlace place);

using WidgetMaker = Ref<Widget> (*)(WidgetPlace place);
template <class W>
Ref<Widget> MakeWidget(WidgetPlace place) {
  return MakeRef<W>(std::move(place));
}

/// Adds a kind of widget of the program's own, before its first surface. The identifier must live as long as
/// the program.
void AddWidgetKind(std::u16string_view identifier, WidgetMaker make);
template <class W>
void AddWidgetKind(std::u16string_view identifier) {
  AddWidgetKind(identifier, MakeWidget<W>);
}

}  // namespace cardwright::qt
