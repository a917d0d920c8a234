// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <string_view>

#include "cardwright/platform/Color.h"

namespace cardwright::qt {

/// Mouse events that the toolkit's widget handles itself; the others end at the adapter, so that they do not
/// go on to the surface under it.
enum class MouseUse { None, LeftButton, All };
/// What makes the listener's click.
enum class ClickSource { MouseRelease, Widget };

/// What is fixed for a kind of widget.
struct WidgetKind {
  std::u16string_view typeName;
  OleColor backColor;
  OleColor foreColor;
  QPalette::ColorRole backRole;  ///< NoRole where the kind does not show the colour
  QPalette::ColorRole foreRole;
  bool isTransparent;  ///< shows what is under it unless its background has a colour of its own
  MouseUse mouse;
  ClickSource click;
};

/// Colours of the fields that text is typed into.
constexpr WidgetKind MakeFieldKind(std::u16string_view typeName, MouseUse mouse, ClickSource click) {
  return {.typeName = typeName,
          .backColor = ToOleColor(SystemColor::Window),
          .foreColor = ToOleColor(SystemColor::WindowText),
          .backRole = QPalette::Base,
          .foreRole = QPalette::Text,
          .isTransparent = false,
          .mouse = mouse,
          .click = click};
}

/// Colours of what is drawn on the form itself.
constexpr WidgetKind MakeFaceKind(std::u16string_view typeName, MouseUse mouse, ClickSource click) {
  return {.typeName = typeName,
          .backColor = ToOleColor(SystemColor::ButtonFace),
          .foreColor = ToOleColor(SystemColor::ButtonText),
          .backRole = QPalette::Window,
          .foreRole = QPalette::WindowText,
          .isTransparent = true,
          .mouse = mouse,
          .click = click};
}

}  // namespace cardwright::qt
