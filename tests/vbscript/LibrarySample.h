#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "vbscript/OperatorSamples.h"

namespace cardwright::vbscript {

/// A family of the library, its functions called by name as a script would.
class LibraryFamily {
 public:
  explicit LibraryFamily(std::span<const Builtin> functions) : m_Functions(functions) {}

  Variant Call(std::u16string_view name, std::vector<Variant> arguments) {
    for (const Builtin& function : m_Functions) {
      if (function.name == name) return function.call(context, arguments);
    }
    Raise(35);
  }
  /// Type and text of the result, as Outcome has them.
  std::string Try(std::u16string_view name, std::vector<Variant> arguments) {
    return Outcome([&] { return Call(name, std::move(arguments)); });
  }

 private:
  ScriptHost m_Host;
  std::span<const Builtin> m_Functions;

 public:
  Context context{m_Host};
};

struct CallCase {
  const char16_t* function;
  std::vector<Variant> arguments;
  const char* outcome;
};

inline void ExpectCalls(std::span<const Builtin> functions, std::initializer_list<CallCase> cases) {
  LibraryFamily family(functions);
  for (const CallCase& c : cases) {
    EXPECT_EQ(family.Try(c.function, c.arguments), c.outcome) << Text(c.function).ToUtf8();
  }
}

}  // namespace cardwright::vbscript
