// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cardwright/jscript/syntax/SourceMap.h"

namespace cardwright::jscript {

/// Names of the functions that rewritten sources call. The first letter keeps them apart from the scripts'
/// own names.
namespace hidden {
/// (object, arguments…).v is the assigned default member.
inline constexpr char16_t kIndexedTarget[] = u"\u02ACput";
/// (object, name, arguments…).v is the assigned member.
inline constexpr char16_t kIndexedMember[] = u"\u02ACputMember";
/// (error) gives a caught error the properties that JScript has.
inline constexpr char16_t kCaught[] = u"\u02ACcaught";
/// (text) rewrites a text for `eval`.
inline constexpr char16_t kSource[] = u"\u02ACsource";
}  // namespace hidden

/// A JScript source rewritten to JavaScript.
struct Rewritten {
  std::u16string text;
  SourceMap sourceMap;
  /// The names of the functions that the source declares at the top level, in order.
  std::vector<std::u16string> functions;
};

/// Rewrites JScript to JavaScript without changing the lines:
/// - conditional compilation is run
/// - `o(i) = v` and `o.p(i) = v` assign to the property `v` of a target object
/// - `function o.m() {}` becomes an assignment
/// - the name of a function expression is a variable of the enclosing scope, unless that has the name already
/// - `[1, ]` has two elements
/// - a caught error gets the properties of a JScript error
///
/// Throws a SourceError.
Rewritten Rewrite(std::u16string_view source);

}  // namespace cardwright::jscript
