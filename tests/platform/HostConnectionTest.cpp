// SPDX-License-Identifier: MIT
#include "cardwright/platform/HostConnection.h"

#include "automation/Printing.h"

namespace cardwright {
namespace {

/// Answers every request with the command in capitals, and "FAIL" with an error.
class Echo final : public HostConnection {
 public:
  Text Execute(std::u16string_view command) override { return Answer(command); }
  Text Request(std::u16string_view command) override { return Answer(command); }

 private:
  static Text Answer(std::u16string_view command) {
    if (command == u"FAIL") Raise(ErrorNumber::CannotPerform);
    return ToUpper(command);
  }
};

TEST(Connections, GiveEachConnectionAHandleOfItsOwn) {
  Connections connections;
  const auto first = MakeRef<Echo>();
  const auto one = connections.Register(first);
  const auto two = connections.Register(MakeRef<Echo>());
  EXPECT_NE(one, 0);
  EXPECT_NE(one, two);
  EXPECT_EQ(connections.Find(one), first.get());
  EXPECT_FALSE(connections.Find(0));
  connections.Close(one);
  connections.Close(one);
  EXPECT_FALSE(connections.Find(one));
  EXPECT_TRUE(connections.Find(two));
  EXPECT_NE(connections.Register(first), one);
}

TEST(LoggedConnection, KeepsALineForEachCommand) {
  const auto logged = MakeRef<LoggedConnection>(MakeRef<Echo>());
  std::vector<Text> lines;
  logged->onLine = [&](std::u16string_view line) { lines.emplace_back(line); };
  EXPECT_EQ(logged->Execute(u"do"), u"DO");
  EXPECT_EQ(logged->Request(u"ask"), u"ASK");
  EXPECT_EQ(logged->Log(), u"X do\r\nR ask -> ASK\r\n");
  EXPECT_EQ(lines, (std::vector<Text>{u"X do", u"R ask -> ASK"}));
  logged->ClearLog();
  EXPECT_EQ(logged->Log(), u"");
}

TEST(LoggedConnection, KeepsTheLineOfACommandThatFails) {
  const auto logged = MakeRef<LoggedConnection>(MakeRef<Echo>());
  EXPECT_EQ(ErrorOf([&] { logged->Execute(u"FAIL"); }), 17);
  EXPECT_EQ(ErrorOf([&] { logged->Request(u"FAIL"); }), 17);
  EXPECT_EQ(logged->Log(), u"X FAIL\r\nR FAIL\r\n");
}

}  // namespace
}  // namespace cardwright
