// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "vbscript/OperatorSamples.h"

namespace cardwright::vbscript {

/// Calls functions of the library as a script of one locale would.
class LibraryCalls {
 public:
  explicit LibraryCalls(ScriptHost& host = NoHost()) : m_Before(Locale::Current()), m_Context(host) {
    SetLocale(u"en-us");
  }
  LibraryCalls(const LibraryCalls&) = delete;
  LibraryCalls& operator=(const LibraryCalls&) = delete;
  ~LibraryCalls() { Locale::SetCurrent(m_Before); }

  vbscript::Context& Context() noexcept { return m_Context; }
  void SetLocale(std::u16string_view name) {
    m_Context.locale = Locale::Find(name);
    Locale::SetCurrent(*m_Context.locale);
  }

  Variant Call(std::u16string_view name, std::vector<Variant> args = {}) {
    const Builtin* found = FindBuiltin(name);
    if (!found) {
      ADD_FAILURE() << "no function " << Text(name).ToUtf8();
      return {};
    }
    EXPECT_GE(args.size(), found->minArguments) << Text(name).ToUtf8();
    EXPECT_LE(args.size(), found->maxArguments) << Text(name).ToUtf8();
    return found->call(m_Context, args);
  }

  /// Type and text of the result as Outcome has them.
  std::string Try(std::u16string_view name, std::vector<Variant> args) {
    return Outcome([&] { return Call(name, std::move(args)); });
  }

  /// Type and text of the answer, as "Integer 12", or "Error 13".
  std::string Answer(std::u16string_view name, std::vector<Variant> args = {}) {
    try {
      const Variant value = Call(name, std::move(args));
      if (value.IsNull()) return "Null";
      if (value.IsEmpty()) return "Empty";
      if (value.IsObject()) return "Object";
      return std::string(TypeOf(value)) + " " + ToText(value).ToUtf8();
    } catch (const Error& error) {
      return "Error " + std::to_string(error.Number());
    }
  }

 private:
  static ScriptHost& NoHost() {
    static ScriptHost host;
    return host;
  }
  static const char* TypeOf(const Variant& value) {
    switch (value.Type()) {
      case VarType::Integer: return "Integer";
      case VarType::Long: return "Long";
      case VarType::Single: return "Single";
      case VarType::Double: return "Double";
      case VarType::Date: return "Date";
      case VarType::String: return "String";
      default: return "Other";
    }
  }

  const Locale& m_Before;
  vbscript::Context m_Context;
};

struct CallCase {
  const char16_t* function;
  std::vector<Variant> arguments;
  const char* outcome;
};

inline void ExpectCalls(std::initializer_list<CallCase> cases) {
  LibraryCalls calls;
  for (const CallCase& c : cases) {
    EXPECT_EQ(calls.Try(c.function, c.arguments), c.outcome) << Text(c.function).ToUtf8();
  }
}

}  // namespace cardwright::vbscript
