#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cardwright/jscript/syntax/Edits.h"

namespace cardwright::jscript {

/// Names by which rewritten sources call what the engine put into its global object for them. No script hits
/// on them by chance.
namespace hidden {
inline constexpr char16_t kPut[] = u"\u02ACput";  ///< (target, arguments…).v is the assigned place
inline constexpr char16_t kPutMember[] = u"\u02ACputMember";  ///< (object, name, arguments…).v likewise
inline constexpr char16_t kCaught[] = u"\u02ACcaught";  ///< (error): what a script sees of a caught error
inline constexpr char16_t kSource[] = u"\u02ACsource";  ///< (text): what `eval` is to compile
}  // namespace hidden

/// A source in the JavaScript that the library compiles.
struct Rewritten {
  std::u16string text;
  PlaceMap places;
  /// Functions that the source declares outside of all others, in order.
  std::vector<std::u16string> functions;
};

/// Writes JScript as JavaScript, line by line:
/// conditional compilation is run; `o(i) = v` and `o.p(i) = v` become assignments to a place of the object's;
/// `function o.m() {}` becomes an assignment; the name of a function that is a value is known outside of it
/// where nothing else has the name; `[1, ]` has two elements; a caught error gets its JScript form.
/// Throws a SyntaxFault.
Rewritten Rewrite(std::u16string_view source);

}  // namespace cardwright::jscript
