// SPDX-License-Identifier: MIT
#include "cardwright/shared/ModuleState.h"

#include <gtest/gtest.h>

#include <thread>

#include "automation/Printing.h"
#include "cardwright/shared/ScreenKeyboard.h"
#include "shared/FakeDesktop.h"
#include "shared/NamedObject.h"

namespace cardwright {
namespace {

/// Answers what it was asked and remembers it.
class Echo final : public HostConnection {
 public:
  Text Execute(std::u16string_view command) override { return Text(u"executed ") + command; }
  Text Request(std::u16string_view command) override { return Text(u"answered ") + command; }
};

TEST(ModuleState, StartsWithTheDefaultsOfAppearance) {
  const ModuleState state;
  EXPECT_EQ(state.formScaleMode, ScaleMode::Pixels);
  EXPECT_EQ(state.resizeHandleDims, 7);
  EXPECT_EQ(static_cast<std::uint32_t>(state.resizeHandleBackColor), 0x8000000Du);
  EXPECT_EQ(static_cast<std::uint32_t>(state.resizeHandleBorderColor), 0x8000000Eu);
  EXPECT_FALSE(state.attachedEditor);
  EXPECT_FALSE(state.enableScreenKeyboard);
  EXPECT_EQ(state.scriptContent, u"");
  EXPECT_EQ(state.defaultBackColor, 0);
}

TEST(ModuleState, IsOneForEachThread) {
  Module().settingsAppName = u"here";
  SharedHost().SetHandle(5);
  Text other = u"unset";
  std::int32_t handle = -1;
  std::thread([&] {
    other = Text(std::u16string(Module().settingsAppName.View()));
    handle = SharedHost().Handle();
    Module().settingsAppName = u"there";
  }).join();
  EXPECT_EQ(other, u"");
  EXPECT_EQ(handle, 0);
  EXPECT_EQ(Module().settingsAppName, u"here");
  Module().settingsAppName = Text();
  SharedHost().SetHandle(0);
}

TEST(FindDecimalSeparator, FollowsTheLocale) {
  {
    const InLocale italian(u"it-IT");
    EXPECT_EQ(FindDecimalSeparator(), u",");
  }
  const InLocale english(u"en-US");
  EXPECT_EQ(FindDecimalSeparator(), u".");
}

class HostExecutorTest : public testing::Test {
 protected:
  ~HostExecutorTest() override { Module().connections.Close(handle); }

  std::int32_t handle = Module().connections.Register(MakeRef<Echo>());
  Ref<HostExecutor> host = MakeRef<HostExecutor>();
};

TEST_F(HostExecutorTest, SendsNothingWithoutAConnection) {
  EXPECT_EQ(host->ORVExecute(u"X"), u"");
  EXPECT_EQ(host->ORVRequest(u"X"), u"");
  host->SetHandle(handle + 1);
  EXPECT_EQ(host->ORVRequest(u"X"), u"");
}

TEST_F(HostExecutorTest, CarriesCommandsToItsConnection) {
  host->SetHandle(handle);
  EXPECT_TRUE(host->IsConnected());
  EXPECT_EQ(host->ORVExecute(u"A"), u"executed A");
  EXPECT_EQ(host->ORVRequest(u"B"), u"answered B");
  Module().connections.Close(handle);
  EXPECT_EQ(host->ORVRequest(u"B"), u"");
  EXPECT_EQ(host->Handle(), handle);
}

TEST_F(HostExecutorTest, WritesCommandsAndExecutesNoneWhenDebugging) {
  const auto output = Named(u"TextBox", {{u"SelText", u""}});
  host->SetHandle(handle);
  host->SetMode(ExecutorMode::Debug);
  host->SetDebugOutput(output);
  EXPECT_EQ(host->ORVExecute(u"A"), u"");
  EXPECT_EQ(output->Shown(u"SelText"), u"A\r\n");
  EXPECT_EQ(host->ORVRequest(u"B"), u"answered B");
  EXPECT_EQ(output->Shown(u"SelText"), u"B\r\n");
  host->SetDebugOutput(nullptr);
  EXPECT_EQ(host->ORVExecute(u"C"), u"");
}

TEST_F(HostExecutorTest, IsReachedByName) {
  const std::vector<Text> members = {u"TarvoHandle", u"ORVExecute",     u"ORVRequest",
                                     u"ORVMode",     u"ORVDebugOutput", u"ORVEditor"};
  EXPECT_EQ(host->MemberNames(), members);
  LetProperty(*host, u"TarvoHandle", handle);
  EXPECT_EQ(ToText(CallMethod(*host, u"orvrequest", {u"B"})), u"answered B");
  LetProperty(*host, u"ORVMode", 2);
  EXPECT_EQ(ToLong(GetProperty(*host, u"ORVMode")), 2);
  const auto output = Named(u"TextBox", {{u"SelText", u""}});
  SetProperty(*host, u"ORVDebugOutput", Ref<Object>(output));
  CallMethod(*host, u"ORVExecute", {u"A"});
  EXPECT_EQ(output->Shown(u"SelText"), u"A\r\n");
  SetProperty(*host, u"ORVEditor", Ref<Object>(output));
  EXPECT_EQ(host->Editor(), Ref<Object>(output));
}

class ShowScreenKeyboardTest : public testing::Test {
 protected:
  ~ShowScreenKeyboardTest() override { Module().enableScreenKeyboard = false; }
};

TEST_F(ShowScreenKeyboardTest, StartsTheProgramOnlyWhereTheHostEnabledIt) {
  FakeDesktop desktop;
  ShowScreenKeyboard();
  EXPECT_TRUE(desktop.started.empty());
  Module().enableScreenKeyboard = true;
  ShowScreenKeyboard();
  EXPECT_EQ(desktop.started, std::vector<Text>{u"onboard"});
}

TEST_F(ShowScreenKeyboardTest, TakesTheCommandFromTheSettings) {
  FakeDesktop desktop;
  Module().enableScreenKeyboard = true;
  desktop.Settings().Save(u"Cardwright", u"ScreenKeyboard", u"Command", u"florence --show");
  ShowScreenKeyboard();
  EXPECT_EQ(desktop.started, std::vector<Text>{u"florence --show"});
}

TEST_F(ShowScreenKeyboardTest, PassesOverFailures) {
  Module().enableScreenKeyboard = true;
  EXPECT_EQ(ErrorOf([] { ShowScreenKeyboard(); }), 0);
  FakeDesktop desktop;
  desktop.fails = true;
  EXPECT_EQ(ErrorOf([] { ShowScreenKeyboard(); }), 0);
}

}  // namespace
}  // namespace cardwright
