// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/MemberTable.h"
#include "cardwright/scripting/Dictionary.h"
#include "cardwright/vbscript/VbScriptEngine.h"

namespace cardwright::vbscript {

/// An object that the host gives to scripts. It records what they say, calls back, and has a property.
class Gadget final : public TableObject {
 public:
  Text TypeName() const override { return u"Gadget"; }

  std::string said;  ///< arguments of the calls of Say in UTF-8, separated by "; "
  std::function<Variant(Args)> onCall;
  Variant value;

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {
        {.name = u"Say", .method = &Say},
        {.name = u"Callback", .method = &Callback},
        PlainField<&Gadget::value>(u"Value"),
        {.name = u"Left", .method = &Left},
    };
    static const MemberTable table(kMembers);
    return table;
  }

 private:
  static Variant Say(Object& self, Args args) {
    std::string& said = static_cast<Gadget&>(self).said;
    if (!said.empty()) said += "; ";
    for (std::size_t k = 0; k < args.size(); ++k) said += (k ? " " : "") + ToText(args[k].Deref()).ToUtf8();
    return {};
  }
  static Variant Callback(Object& self, Args args) { return static_cast<Gadget&>(self).onCall(args); }
  static Variant Left(Object&, Args) { return u"the gadget's"; }
};

/// Embeds one engine, with a Gadget named Host.
class EngineTest : public ::testing::Test {
 protected:
  explicit EngineTest(const Limits& limits = {}) { Start(limits); }

  void Start(const Limits& limits) {
    m_Engine = MakeEngine(m_ScriptHost, limits);
    m_Engine->AddObject(u"Host", m_Gadget, false);
  }
  void Add(std::u16string_view code) { m_Engine->AddCode({}, code); }
  Variant Run(std::u16string_view procedure, std::vector<Variant> args = {}) {
    return m_Engine->Run({}, procedure, args);
  }
  std::string Value(std::u16string_view expression, std::u16string_view module = {}) {
    return ToText(m_Engine->Evaluate(module, expression)).ToUtf8();
  }
  /// What the scripts have said since the last call.
  std::string Said() { return std::exchange(m_Gadget->said, {}); }

  /// Number of the error that the step raises; 0 for none.
  template <class Step>
  static int ErrorOf(Step&& step) {
    try {
      step();
    } catch (const Error& error) {
      return error.Number();
    }
    return 0;
  }
  int ErrorOfCode(std::u16string_view code) {
    return ErrorOf([&] { Add(code); });
  }

  class Host final : public ScriptHost {
   public:
    Ref<Object> CreateObject(std::u16string_view, std::u16string_view) override {
      return MakeRef<scripting::Dictionary>();
    }
    int ShowMessage(const Text&, int, const Text&) override {
      ++boxes;
      return 6;
    }
    Variant AskText(const Text&, const Text&, const Text&, const Variant&, const Variant&) override {
      ++boxes;
      return u"typed";
    }
    int boxes = 0;
  };

  Host m_ScriptHost;
  Ref<Gadget> m_Gadget = MakeRef<Gadget>();
  std::unique_ptr<ScriptEngine> m_Engine;
};

}  // namespace cardwright::vbscript
