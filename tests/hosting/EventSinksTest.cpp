// SPDX-License-Identifier: MIT
#include "cardwright/hosting/EventSinks.h"

#include <gtest/gtest.h>

#include "cardwright/automation/MemberTable.h"

namespace cardwright::testing {
namespace {

class Bell final : public TableObject {
 public:
  Text TypeName() const override { return u"Bell"; }
  void Ring(Variant& times) {
    Variant argument = Variant::ByRef(times);
    RaiseEvent(u"Rung", Args(&argument, 1));
  }

 protected:
  const MemberTable& Members() const override {
    static const MemberTable table({});
    return table;
  }
};

class EventSinksTest : public ::testing::Test {
 protected:
  std::vector<std::string> m_Calls;
  EventSinks m_Sinks{[this](std::u16string_view procedure, Args args) {
    m_Calls.push_back(Text(procedure).ToUtf8() + " " + ToText(args[0]).ToUtf8());
    args[0].Deref() = Variant(ToLong(args[0]) + 1);
  }};
  const Ref<Bell> m_Bell = MakeRef<Bell>();
  Variant m_Times = 1;
};

TEST_F(EventSinksTest, CallsThePrefixedProcedureWithArgumentsByReference) {
  m_Sinks.Connect(*m_Bell, u"bell_");
  m_Bell->Ring(m_Times);
  EXPECT_EQ(m_Calls, std::vector<std::string>{"bell_Rung 1"});
  EXPECT_EQ(ToLong(m_Times), 2);
}

TEST_F(EventSinksTest, DisconnectEndsAllConnectionsOfTheObject) {
  const auto other = MakeRef<Bell>();
  m_Sinks.Connect(*m_Bell, u"a_");
  m_Sinks.Connect(*m_Bell, u"b_");
  m_Sinks.Connect(*other, u"c_");
  m_Sinks.Disconnect(*m_Bell);
  m_Bell->Ring(m_Times);
  other->Ring(m_Times);
  EXPECT_EQ(m_Calls, std::vector<std::string>{"c_Rung 1"});
}

TEST_F(EventSinksTest, CallsNothingAfterDisconnectAll) {
  m_Sinks.Connect(*m_Bell, u"a_");
  m_Sinks.DisconnectAll();
  m_Bell->Ring(m_Times);
  EXPECT_TRUE(m_Calls.empty());
}

}  // namespace
}  // namespace cardwright::testing
