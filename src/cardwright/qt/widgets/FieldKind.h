#pragma once

#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

/// Colours and events of the fields that text is typed into.
constexpr WidgetKind MakeFieldKind(std::u16string_view typeName, MouseUse mouse, ClickSource click) {
  return {.typeName = typeName,
          .backColor = ToOleColor(SystemColor::Window),
          .foreColor = ToOleColor(SystemColor::WindowText),
          .backRole = QPalette::Base,
          .foreRole = QPalette::Text,
          .isSeeThrough = false,
          .mouse = mouse,
          .click = click};
}

}  // namespace cardwright::qt
