#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

namespace cardwright::jscript {

/// Defines the functions into which the rewriter turns `o(i) = v` and `o.p(i) = v`: they give the place that
/// is assigned to, whose `v` is the member with its arguments. Error 5003 where no host object is called.
bool DefinePuts(JSContext* cx, JS::HandleObject global, JS::MutableHandleObject prototype);

}  // namespace cardwright::jscript
