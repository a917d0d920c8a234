#pragma once

#include <string_view>

#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

/// Makes the hidden widget of a programmatic identifier, whatever its case. Error 429 for an unknown one.
/// Every widget of a surface comes from here, so each is a WidgetCore too.
Ref<Widget> CreateWidget(std::u16string_view identifier, WidgetPlace place);

}  // namespace cardwright::qt
