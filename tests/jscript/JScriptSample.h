// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cardwright/automation/Array.h"
#include "cardwright/automation/Collection.h"
#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/MemberTable.h"
#include "cardwright/jscript/JScriptEngine.h"

namespace cardwright::jscript {

/// An object that a host adds to its scripts: it records what they say, calls back and holds values.
class Gadget final : public TableObject {
 public:
  Text TypeName() const override { return u"Gadget"; }

  std::string said;  ///< the arguments of each Say in UTF-8, separated by "; "
  std::function<Variant(Args)> onCall;
  Variant value;
  Ref<Collection> items = MakeRef<Collection>();
  int reads = 0;

  void Raise1(const Text& event) {
    std::vector<Variant> none;
    RaiseEvent(event, none);
  }

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {
        {.name = u"Say", .method = &Say},        {.name = u"Callback", .method = &Callback},
        PlainField<&Gadget::value>(u"Value"),    Property<&Gadget::GetCell, &Gadget::LetCell>(u"Cell"),
        Property<&Gadget::Self>(u"Self"),        Property<&Gadget::Items>(u"Items"),
        Property<&Gadget::CountReads>(u"Reads"), Method<&Gadget::Title>(u"Title"),
    };
    static const MemberTable table(kMembers, u"Cell");
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
  Variant GetCell(const Text& name) const {
    const Variant* found = m_Cells->Find(name);
    return found ? *found : Variant();
  }
  void LetCell(const Text& name, const Variant& given) {
    if (m_Cells->Find(name)) m_Cells->Remove(name);
    m_Cells->Add(given, Variant(name));
  }
  Ref<Gadget> Self() { return Ref<Gadget>(this); }
  Ref<Collection> Items() const { return items; }
  std::int32_t CountReads() { return ++reads; }
  Text Title() const { return u"a gadget"; }

  Ref<Collection> m_Cells = MakeRef<Collection>();
};

/// A host with one engine, to which it adds a Gadget named Host.
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
  /// What the scripts said since the last call.
  std::string Said() { return std::exchange(m_Gadget->said, {}); }

  /// The number of the error that a step ends with; 0 for none.
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
    Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view) override {
      if (EqualsNoCase(progid, u"Sample.Gadget")) return MakeRef<Gadget>();
      Raise(ErrorNumber::CannotCreateObject);
    }
  };

  Host m_ScriptHost;
  Ref<Gadget> m_Gadget = MakeRef<Gadget>();
  std::unique_ptr<ScriptEngine> m_Engine;
};

}  // namespace cardwright::jscript
