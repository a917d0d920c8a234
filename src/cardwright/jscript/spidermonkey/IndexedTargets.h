// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

namespace cardwright::jscript {

/// Defines the functions that `o(i) = v` and `o.p(i) = v` are rewritten to. They return a target, whose
/// property `v` reads and assigns the member with its arguments. Error 5003 where `o` is no host object.
bool DefineIndexedTargets(JSContext* cx, JS::HandleObject global, JS::MutableHandleObject prototype);

}  // namespace cardwright::jscript
