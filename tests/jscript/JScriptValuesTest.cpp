// SPDX-License-Identifier: MIT
#include <limits>

#include "jscript/JScriptSample.h"

namespace cardwright::jscript {
namespace {

class EngineValues : public EngineTest {
 protected:
  /// A value after its way into the script and back.
  Variant ThereAndBack(const Variant& value) {
    m_Gadget->value = value;
    return m_Engine->Evaluate({}, u"Host.Value");
  }
  std::string Seen(const Variant& value, std::u16string_view expression) {
    m_Gadget->value = value;
    Add(u"var v = Host.Value;");
    return Value(expression);
  }
};

TEST_F(EngineValues, RoundTripWithoutLoss) {
  const double precise = 43831.123456789012;
  const Variant values[] = {
      {},
      Variant::Null(),
      true,
      false,
      std::int32_t{0},
      std::numeric_limits<std::int32_t>::min(),
      std::numeric_limits<std::int32_t>::max(),
      0.5,
      -0.0,
      1e300,
      std::numeric_limits<double>::infinity(),
      u"",
      u"text \u20ac",
      std::u16string_view(u"a\0b", 3),
      Date{precise},
      Date{-1.75},
      Date{0},
      Date{2958465.5},
      Currency{std::numeric_limits<std::int64_t>::max()},
      Decimal{.low = ~std::uint64_t{0}, .high = 7, .scale = 3, .negative = true},
      ErrorValue{42},
  };
  for (const Variant& value : values) {
    const Variant back = ThereAndBack(value);
    EXPECT_EQ(back.Type(), value.Type());
    switch (value.Type()) {
      case VarType::String: EXPECT_EQ(back.StringView(), value.StringView()); break;
      case VarType::Decimal:
        EXPECT_EQ(back.DecimalValue().low, value.DecimalValue().low);
        EXPECT_EQ(back.DecimalValue().high, value.DecimalValue().high);
        EXPECT_EQ(back.DecimalValue().scale, value.DecimalValue().scale);
        break;
      case VarType::Currency:
        EXPECT_EQ(back.CurrencyValue().tenThousandths, value.CurrencyValue().tenThousandths);
        break;
      case VarType::Double:
      case VarType::Date: EXPECT_EQ(back.Double(), value.Double()); break;
      case VarType::Long:
      case VarType::Boolean:
      case VarType::Error: EXPECT_EQ(back.Long(), value.Long()); break;
      default: break;
    }
  }
}

TEST_F(EngineValues, HaveScriptTypes) {
  const struct {
    Variant value;
    const char* type;
    const char* text;
  } rows[] = {
      {{}, "undefined", "undefined"},
      {Variant::Missing(), "undefined", "undefined"},
      {Variant::Null(), "object", "null"},
      {Variant::Nothing(), "object", "null"},
      {std::uint8_t{200}, "number", "200"},
      {std::int16_t{-3}, "number", "-3"},
      {1.5f, "number", "1.5"},
      {Currency{12'3456}, "number", "12.3456"},
      {Decimal{.low = 125, .scale = 2}, "number", "1.25"},
      {Currency{std::numeric_limits<std::int64_t>::max()}, "object", "922337203685477.5807"},
      {u"x", "string", "x"},
      {Variant(Ref<Gadget>(m_Gadget)), "function", nullptr},
      {Array::FromValues({1, 2}), "object", nullptr},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Seen(row.value, u"typeof v"), row.type);
    if (!row.text) continue;
    EXPECT_EQ(Seen(row.value, u"String(v)"), row.text);
  }
  EXPECT_EQ(Seen(Currency{std::numeric_limits<std::int64_t>::max()}, u"v * 1 > 9e14"), "True");
}

TEST_F(EngineValues, WholeNumbersBecomeLong) {
  EXPECT_EQ(m_Engine->Evaluate({}, u"3").Type(), VarType::Long);
  EXPECT_EQ(m_Engine->Evaluate({}, u"1.5 * 2").Type(), VarType::Long);
  EXPECT_EQ(m_Engine->Evaluate({}, u"3e9").Type(), VarType::Double);
  EXPECT_EQ(m_Engine->Evaluate({}, u"new Number(2.5)").Type(), VarType::Double);
  EXPECT_EQ(m_Engine->Evaluate({}, u"new Boolean(false)").Type(), VarType::Boolean);
  EXPECT_EQ(m_Engine->Evaluate({}, u"new String('s')").Type(), VarType::String);
  EXPECT_EQ(m_Engine->Evaluate({}, u"new Date(2020, 0, 2, 12, 0, 0)").Double(), 43832.5);
}

TEST_F(EngineValues, ArraysAreReadByVBArray) {
  auto table = MakeRef<Array>(std::vector<Bounds>{{0, 1}, {1, 3}});
  for (std::size_t k = 0; k < table->Values().size(); ++k) table->Values()[k] = static_cast<std::int32_t>(k);
  EXPECT_EQ(Seen(table,
                 u"var a = new VBArray(v);"
                 u"[a.dimensions(), a.lbound(), a.ubound(), a.lbound(2), a.ubound(2), a.getItem(1, 3),"
                 u"a.toArray().join('')].join()"),
            "2,0,1,1,3,5,012345");
  EXPECT_EQ(ErrorOfCode(u"new VBArray(Host.Value).getItem(5, 5)"), 9);
  EXPECT_EQ(ErrorOfCode(u"new VBArray(Host.Value).ubound(3)"), 9);
  EXPECT_EQ(ThereAndBack(table).ArrayPtr(), table.get());
}

TEST_F(EngineValues, ScriptObjectsHaveNamedMembers) {
  const Variant held =
      m_Engine->Evaluate({}, u"({Text: 'a', add: function (x) { return this.Text + x; }, n: null})");
  Object& object = RequireObject(held);
  EXPECT_EQ(object.TypeName(), u"JScriptTypeInfo");
  EXPECT_EQ(ToText(GetProperty(object, u"text")).ToUtf8(), "a") << "whatever the case";
  EXPECT_EQ(ToText(CallMethod(object, u"ADD", {u"b"})).ToUtf8(), "ab");
  LetProperty(object, u"Text", u"c");
  EXPECT_EQ(ToText(CallMethod(object, u"add", {1})).ToUtf8(), "c1");
  EXPECT_TRUE(GetProperty(object, u"add").IsObject()) << "naming a function gives it";
  EXPECT_EQ(ErrorOf([&] { GetProperty(object, u"none"); }), 438);
  EXPECT_EQ(object.MemberNames().size(), 3u);
  EXPECT_EQ(ErrorOf([&] { object.Enumerate(); }), 451);
}

TEST_F(EngineValues, ScriptArraysHaveLengthMembersAndElements) {
  const Variant held = m_Engine->Evaluate({}, u"[5, 'six', ]");
  Object& list = RequireObject(held);
  EXPECT_EQ(ToLong(GetProperty(list, u"length")), 3);
  EXPECT_EQ(ToText(GetProperty(list, u"1")).ToUtf8(), "six");
  EXPECT_EQ(ToText(CallMethod(list, u"join", {u"+"})).ToUtf8(), "5+six+");
  const auto walk = list.Enumerate();
  Variant value;
  ASSERT_TRUE(walk->Next(value));
  EXPECT_EQ(ToLong(value), 5);
  ASSERT_TRUE(walk->Next(value));
  ASSERT_TRUE(walk->Next(value));
  EXPECT_FALSE(walk->Next(value));
  EXPECT_EQ(ToText(DefaultValue(held)).ToUtf8(), "5,six,") << "its plain value";
}

TEST_F(EngineValues, ObjectsKeepTheirIdentity) {
  Add(u"var o = {}; function same(x) { return x === o; }");
  const Variant first = m_Engine->Evaluate({}, u"o"), second = m_Engine->Evaluate({}, u"o");
  EXPECT_EQ(first.ObjectPtr(), second.ObjectPtr());
  EXPECT_TRUE(ToBoolean(Run(u"same", {first})));
  EXPECT_EQ(m_Engine->Evaluate({}, u"Host").ObjectPtr(), m_Gadget.get());
}

TEST_F(EngineValues, FunctionsCanBeEventSinks) {
  Add(u"var count = 0; function sink(a) { count += a; return count; }");
  const Variant sink = m_Engine->Evaluate({}, u"sink");
  Object& function = RequireObject(sink);
  Variant two = 2;
  std::vector<Variant> args{Variant::ByRef(two)};
  EXPECT_EQ(ToLong(function.Invoke(function.DefaultMember(), CallKind::Method, args)), 2);
  EXPECT_EQ(ToLong(function.Invoke(function.DefaultMember(), CallKind::MethodOrGet, args)), 4);
  EXPECT_EQ(ToLong(two), 2) << "the language passes by value";
}

TEST_F(EngineValues, ScriptObjectsFailOnceTheEngineIsDestroyed) {
  const Variant held = m_Engine->Evaluate({}, u"(function () { return 1; })");
  const Variant list = m_Engine->Evaluate({}, u"[1]");
  const auto walk = RequireObject(list).Enumerate();
  m_Engine.reset();
  Object& object = RequireObject(held);
  EXPECT_EQ(ErrorOf([&] { object.Invoke(0, CallKind::Method, {}); }), 5011);
  EXPECT_EQ(ErrorOf([&] { GetProperty(object, u"x"); }), 5011);
  Variant value;
  EXPECT_EQ(ErrorOf([&] { walk->Next(value); }), 5011);
  Start({});
  m_Gadget->value = held;
  EXPECT_EQ(ErrorOfCode(u"Host.Value()"), 5011) << "to another engine it is a host's object";
}

TEST_F(EngineValues, TextBeyondTheLimitIsError14) {
  Start({.textUnits = 100});
  EXPECT_EQ(ErrorOfCode(u"var s = 'x'; while (s.length < 200) s += s; Host.Value = s;"), 14);
  EXPECT_EQ(ErrorOfCode(u"try { Host.Value = s; } catch (e) { Host.Say(e.number & 0xFFFF); }"), 0);
  EXPECT_EQ(Said(), "14");
}

TEST_F(EngineValues, CollectGarbageReleasesHostObjects) {
  const auto probe = MakeRef<Gadget>();
  m_Gadget->onCall = [&](Args) { return Variant(Ref<Gadget>(probe)); };
  Add(u"(function () { Host.Callback().Value = 1; })();");
  Add(u"CollectGarbage();");
  EXPECT_TRUE(probe->IsUnique());
}

}  // namespace
}  // namespace cardwright::jscript
