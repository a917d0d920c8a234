// SPDX-License-Identifier: MIT
#include "launcher/DesktopModule.h"

#include "launcher/Modules.h"

namespace cardwright::app {

const DesktopModule& LoadDesktopModule() {
  static const auto& module =
      *static_cast<const DesktopModule*>(LoadModule("desktop", "cardwrightDesktopModule"));
  return module;
}

}  // namespace cardwright::app
