// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

namespace cardwright::jscript {

/// Makes the prototype of the global object. Names that the script does not define itself are resolved in it:
/// first the host's objects and the members that they share, in any case, then the names of `prototype`.
JSObject* NewGlobalNames(JSContext* cx, JS::HandleObject prototype);

}  // namespace cardwright::jscript
