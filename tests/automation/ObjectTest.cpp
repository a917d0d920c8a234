// SPDX-License-Identifier: MIT
#include "cardwright/automation/Object.h"

#include "automation/Printing.h"
#include "automation/SampleObject.h"

namespace cardwright {
namespace {

Variant Call(Object& object, std::u16string_view name, CallKind kind, std::vector<Variant> args = {}) {
  return object.Invoke(object.FindMember(name), kind, args);
}

TEST(MemberTable, FindsNamesWhateverTheirCase) {
  const auto sample = MakeRef<SampleObject>();
  EXPECT_EQ(sample->FindMember(u"cApTiOn"), sample->FindMember(u"Caption"));
  EXPECT_NE(sample->FindMember(u"Caption"), sample->FindMember(u"Cell"));
  EXPECT_EQ(sample->FindMember(u"Captio"), kNoMember);
  EXPECT_EQ(sample->FindMember(u""), kNoMember);
  EXPECT_EQ(sample->DefaultMember(), sample->FindMember(u"caption"));
}

TEST(MemberTable, NamesItsMembersInDeclaredOrder) {
  const auto names = MakeRef<SampleObject>()->MemberNames();
  ASSERT_EQ(names.size(), 12u);
  EXPECT_EQ(names.front(), u"Number");
  EXPECT_EQ(names.back(), u"WriteOnly");
}

TEST(MemberTable, ConvertsWhatIsLet) {
  const auto sample = MakeRef<SampleObject>();
  LetProperty(*sample, u"number", u"41");
  EXPECT_EQ(GetProperty(*sample, u"NUMBER").Long(), 41);
  LetProperty(*sample, u"Caption", 12);
  EXPECT_EQ(GetProperty(*sample, u"Caption").String(), u"12");
  EXPECT_EQ(ErrorOf([&] { LetProperty(*sample, u"Number", u"many"); }), 13);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*sample, u"Number", 1e10); }), 6);
}

TEST(MemberTable, CarriesEnumerationsAsLongs) {
  const auto sample = MakeRef<SampleObject>();
  LetProperty(*sample, u"Shade", 2);
  EXPECT_EQ(sample->GetShade(), SampleObject::Shade::Dark);
  EXPECT_EQ(GetProperty(*sample, u"Shade").Type(), VarType::Long);
}

TEST(MemberTable, ReturnsListsOfTextsAsArrays) {
  const Variant names = GetProperty(*MakeRef<SampleObject>(), u"Names");
  ASSERT_TRUE(names.IsArray());
  EXPECT_EQ(names.ArrayPtr()->Values()[1].String(), u"two");
}

TEST(MemberTable, ReachesParameterisedProperties) {
  const auto sample = MakeRef<SampleObject>();
  LetProperty(*sample, u"Cell", u"value", {u"row", 3});
  EXPECT_EQ(GetProperty(*sample, u"Cell", {u"row", u"3"}).String(), u"value");
  EXPECT_EQ(GetProperty(*sample, u"Cell", {u"row", 4}).String(), u"");
}

TEST(MemberTable, SetsObjectsAndNothing) {
  const auto sample = MakeRef<SampleObject>();
  SetProperty(*sample, u"Link", sample->Parts());
  EXPECT_EQ(GetProperty(*sample, u"Link").ObjectPtr(), sample->Parts().get());
  SetProperty(*sample, u"Link", Variant::Nothing());
  EXPECT_EQ(GetProperty(*sample, u"Link").ObjectPtr(), nullptr);
  EXPECT_EQ(ErrorOf([&] { SetProperty(*sample, u"Link", 5); }), 424);
}

TEST(MemberTable, ASetFallsBackToTheLetAndNotTheOtherWayRound) {
  const auto sample = MakeRef<SampleObject>();
  const auto named = MakeRef<SampleObject>();
  named->SetCaption(u"by default member");
  SetProperty(*sample, u"Caption", named);
  EXPECT_EQ(sample->Caption(), u"by default member");
  EXPECT_EQ(ErrorOf([&] { LetProperty(*sample, u"Link", named); }), 438);
}

TEST(MemberTable, AGetOfAMethodCallsIt) {
  const auto sample = MakeRef<SampleObject>();
  EXPECT_EQ(Call(*sample, u"Add", CallKind::Get, {1}).Long(), 111);
  EXPECT_EQ(Call(*sample, u"Add", CallKind::MethodOrGet, {1}).Long(), 111);
  EXPECT_EQ(Call(*sample, u"Number", CallKind::MethodOrGet).Long(), 0);
  EXPECT_EQ(ErrorOf([&] { Call(*sample, u"Number", CallKind::Method); }), 438);
}

TEST(MemberTable, LeavesOutOptionalArguments) {
  const auto sample = MakeRef<SampleObject>();
  EXPECT_EQ(CallMethod(*sample, u"Add", {1, 2, u"abc"}).Long(), 6);
  EXPECT_EQ(CallMethod(*sample, u"Add", {1, 2}).Long(), 103);
  EXPECT_EQ(CallMethod(*sample, u"Add", {1, Variant::Missing(), u"abc"}).Long(), 14);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*sample, u"Add", {Variant::Missing()}); }), 449);
  EXPECT_FALSE(CallMethod(*sample, u"IsGiven", {Variant::Missing()}).Boolean());
}

TEST(MemberTable, TakesAMissingArgumentThroughAReference) {
  const auto sample = MakeRef<SampleObject>();
  Variant missing = Variant::Missing();
  EXPECT_EQ(CallMethod(*sample, u"Add", {1, Variant::ByRef(missing)}).Long(), 111);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*sample, u"Add", {Variant::ByRef(missing)}); }), 449);
}

TEST(MemberTable, CountsArguments) {
  const auto sample = MakeRef<SampleObject>();
  EXPECT_EQ(ErrorOf([&] { CallMethod(*sample, u"Add"); }), 450);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*sample, u"Add", {1, 2, u"", 4}); }), 450);
  EXPECT_EQ(ErrorOf([&] { CallMethod(*sample, u"Raise", {1}); }), 450);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*sample, u"Number", {1}); }), 450);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*sample, u"Cell", {u"row"}); }), 450);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*sample, u"Number", 1, {2}); }), 450);
}

TEST(MemberTable, RefusesUnknownMembersAndKinds) {
  const auto sample = MakeRef<SampleObject>();
  EXPECT_EQ(ErrorOf([&] { GetProperty(*sample, u"None"); }), 438);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*sample, u"Parts", 1); }), 438);
  EXPECT_EQ(ErrorOf([&] { LetProperty(*sample, u"Add", 1); }), 438);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*sample, u"WriteOnly"); }), 438);
  EXPECT_EQ(ErrorOf([&] { sample->Invoke(kNoMember, CallKind::Get, {}); }), 438);
  EXPECT_EQ(ErrorOf([&] { sample->Invoke(12, CallKind::Get, {}); }), 438);
}

TEST(MemberTable, PassesArgumentsToTheDefaultMemberOfAReturnedObject) {
  const auto sample = MakeRef<SampleObject>();
  sample->Parts()->Add(u"wheel", Variant(u"Key"));
  EXPECT_EQ(GetProperty(*sample, u"Parts", {1}).String(), u"wheel");
  EXPECT_EQ(GetProperty(*sample, u"Parts", {u"key"}).String(), u"wheel");
  EXPECT_EQ(ErrorOf([&] { GetProperty(*sample, u"Parts", {2}); }), 9);
  EXPECT_EQ(ErrorOf([&] { GetProperty(*sample, u"Link", {2}); }), 91);
}

TEST(MemberTable, CallsFunctionsOverTheObject) {
  const auto sample = MakeRef<SampleObject>();
  sample->SetCaption(u"Hello");
  EXPECT_EQ(CallMethod(*sample, u"Greeting", {u"World"}).String(), u"Hello World");
}

TEST(DefaultValue, FollowsDefaultMembersToAValue) {
  const auto sample = MakeRef<SampleObject>();
  sample->SetCaption(u"7");
  EXPECT_EQ(DefaultValue(sample).String(), u"7");
  EXPECT_EQ(ToLong(sample), 7);
  EXPECT_EQ(ToText(sample), u"7");
  EXPECT_TRUE(IsNumeric(sample));
  EXPECT_EQ(DefaultValue(5).Long(), 5);
  EXPECT_EQ(ErrorOf([] { DefaultValue(Variant::Nothing()); }), 91);
}

/// An object whose default member is itself.
class Mirror final : public TableObject {
 public:
  Text TypeName() const override { return u"Mirror"; }
  Ref<Mirror> Self() { return this; }

 protected:
  const MemberTable& Members() const override {
    static constexpr Member kMembers[] = {Property<&Mirror::Self>(u"Self")};
    static const MemberTable table(kMembers, u"Self");
    return table;
  }
};

TEST(DefaultValue, RefusesAnObjectThatIsItsOwnDefaultValue) {
  EXPECT_EQ(ErrorOf([] { ToText(MakeRef<Mirror>()); }), 438);
}

TEST(RequireObject, DistinguishesNothingFromNoObject) {
  EXPECT_EQ(ErrorOf([] { RequireObject(Variant::Nothing()); }), 91);
  EXPECT_EQ(ErrorOf([] { RequireObject(3); }), 424);
  const Variant sample = MakeRef<SampleObject>();
  EXPECT_EQ(&RequireObject(sample), sample.ObjectPtr());
  EXPECT_EQ(ErrorOf([&] { RequireObject(sample).Enumerate(); }), 451);
}

TEST(RaiseEvent, CallsHandlersInOrderOfConnection) {
  const auto sample = MakeRef<SampleObject>();
  std::u16string calls;
  sample->Connect([&](std::u16string_view event, Args) { calls += u"1" + std::u16string(event); });
  sample->Connect([&](std::u16string_view, Args) { calls += u"2"; });
  sample->Raise();
  EXPECT_EQ(calls, u"1Raised2");
}

TEST(RaiseEvent, PassesArgumentsByReference) {
  const auto sample = MakeRef<SampleObject>();
  sample->Connect([](std::u16string_view, Args args) { args[0].Deref() = ToLong(args[0]) + 1; });
  Variant value = 1;
  sample->RaiseWith(value);
  EXPECT_EQ(value.Long(), 2);
}

TEST(RaiseEvent, SkipsHandlersDisconnectedBeforeTheirTurn) {
  const auto sample = MakeRef<SampleObject>();
  int second = 0;
  int calls = 0;
  const int first = sample->Connect([&](std::u16string_view, Args) {
    sample->Disconnect(first);
    sample->Disconnect(second);
    ++calls;
  });
  second = sample->Connect([&](std::u16string_view, Args) { calls += 10; });
  sample->Raise();
  sample->Raise();
  EXPECT_EQ(calls, 1);
}

TEST(RaiseEvent, CallsHandlersConnectedMeanwhileTheNextTime) {
  const auto sample = MakeRef<SampleObject>();
  int calls = 0;
  sample->Connect([&](std::u16string_view, Args) {
    for (int i = 0; i < 20; ++i) sample->Connect([&](std::u16string_view, Args) { ++calls; });
  });
  sample->Raise();
  EXPECT_EQ(calls, 0);
  sample->Raise();
  EXPECT_EQ(calls, 20);
}

TEST(RaiseEvent, KeepsTheObjectAliveUntilAllHandlersRan) {
  Ref<SampleObject> sample = MakeRef<SampleObject>();
  int calls = 0;
  sample->Connect([&](std::u16string_view, Args) { sample = nullptr; });
  sample->Connect([&](std::u16string_view, Args) { ++calls; });
  sample->Raise();
  EXPECT_EQ(calls, 1);
  EXPECT_FALSE(sample);
}

TEST(RaiseEvent, LetsAHandlersErrorThroughAndStaysUsable) {
  const auto sample = MakeRef<SampleObject>();
  const int failing = sample->Connect([](std::u16string_view, Args) { Raise(5); });
  EXPECT_EQ(ErrorOf([&] { sample->Raise(); }), 5);
  sample->Disconnect(failing);
  EXPECT_EQ(ErrorOf([&] { sample->Raise(); }), 0);
}

TEST(RaiseEvent, AllowsAHandlerToRaiseAgain) {
  const auto sample = MakeRef<SampleObject>();
  int depth = 0;
  sample->Connect([&](std::u16string_view, Args) {
    if (++depth < 3) sample->Raise();
  });
  sample->Raise();
  EXPECT_EQ(depth, 3);
}

}  // namespace
}  // namespace cardwright
