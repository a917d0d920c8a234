#pragma once

#include <span>

#include "desktop/ProjectFaults.h"

namespace cardwright::desktop {

/// What the script of a form has to do with: an element's name and the events of its class.
struct ScriptedElement {
  QString userName;
  std::span<const std::u16string_view> events;
};

/// The faults of a form project's script: what does not compile, and event procedures that no event will run.
std::vector<Fault> FindScriptFaults(const QString& file, std::span<const ScriptedElement> elements);

}  // namespace cardwright::desktop
