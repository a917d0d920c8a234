#pragma once

#include <span>
#include <string_view>

#include "cardwright/model/Control.h"

namespace cardwright {

/// One class of control that a form may hold.
struct ControlClass {
  ControlTypeEnum type;
  const ClassTable* table;
  Ref<Control> (*create)();
};

/// All control classes there are.
std::span<const ControlClass> ControlClasses() noexcept;

/// Widget identifier that a project's `Type` text, whatever its case, stands for: a fixed one for list box
/// and companion widgets, and "vb." with the type for anything else.
Text WidgetIdentifier(std::u16string_view type);
/// The class that works with widgets of that identifier; null where there is none, as for
/// "CardwrightCtrl.DbTableViewer", so that projects which mention it load without it.
const ControlClass* FindControlClass(std::u16string_view widgetIdentifier) noexcept;
/// The class of a kind; null for the selection tool and the table viewer.
const ControlClass* FindControlClass(ControlTypeEnum type) noexcept;

}  // namespace cardwright
