#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

namespace cardwright::jscript {

/// The object between the global one and `behind`: in it the script finds, after its own names, what the host
/// added: objects by their names and members of those that share them, whatever the case.
JSObject* NewGlobalNames(JSContext* cx, JS::HandleObject behind);

}  // namespace cardwright::jscript
