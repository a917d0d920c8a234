// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

#include "cardwright/model/Control.h"

namespace cardwright {

/// All control classes, in the order in which a tool box offers them.
std::span<const ClassTable* const> ControlClasses();
/// Adds a class of the program's own. To be called before the program makes its first form, with a table that
/// lives until the program ends and whose number, name and `Type` text are its own: numbers from 16 on are
/// free.
void AddControlClass(const ClassTable& table);

/// The class of a number; null for the selection tool and the table viewer.
const ClassTable* FindControlClass(ControlTypeEnum type);
/// The class that a project's `Type` text names, whatever its case; null where there is none, so that
/// projects which mention "DbTableViewer" load without it.
const ClassTable* FindControlClass(std::u16string_view typeText);
/// What an author draws under a number: a class, or the table viewer, a widget that no class controls and no
/// project holds. Null for any other number.
const ClassTable* FindDrawable(ControlTypeEnum type);

/// The table of an element of a form; an empty one for an object that has none.
const ClassTable& ClassOf(const IControl& control) noexcept;
/// The controls of a class, in their order; none for ctDefault.
std::vector<Ref<IControl>> ControlsOfType(const Collection& controls, ControlTypeEnum type);

}  // namespace cardwright
