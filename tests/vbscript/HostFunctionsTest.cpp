// SPDX-License-Identifier: MIT
#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

class Thing final : public Object {
 public:
  Text TypeName() const override { return u"Thing"; }
  MemberId FindMember(std::u16string_view) const override { return kNoMember; }
  Variant Invoke(MemberId, CallKind, Args) override { return {}; }
};

std::string Utf8(std::u16string_view text) { return Text(text).ToUtf8(); }

/// Writes down what it is asked.
class RecordingHost final : public ScriptHost {
 public:
  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view server) override {
    return Answer("create " + Utf8(progid) + "@" + Utf8(server));
  }
  Ref<Object> GetObject(std::u16string_view path, std::u16string_view progid) override {
    return Answer("get " + Utf8(path) + " as " + Utf8(progid));
  }
  Ref<Object> LoadPicture(std::u16string_view path) override { return Answer("load " + Utf8(path)); }
  int ShowMessage(const Text& text, int style, const Text& title) override {
    log = Utf8(title) + ": " + Utf8(text) + " #" + std::to_string(style);
    return 6;
  }
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override {
    log = Utf8(title) + ": " + Utf8(prompt) + " [" + Utf8(initial) + "]" + Place(x) + Place(y);
    return u"typed";
  }
  Text BoxTitle() const override { return u"Program"; }

  std::string log;
  bool hasObjects = true;

 private:
  static std::string Place(const Variant& value) {
    return value.IsMissing() ? " -" : " " + ToText(value).ToUtf8();
  }
  Ref<Object> Answer(std::string asked) {
    log = std::move(asked);
    return hasObjects ? Ref<Object>(MakeRef<Thing>()) : Ref<Object>();
  }
};

class HostFunctionsTest : public testing::Test {
 protected:
  std::string Log(std::u16string_view name, std::vector<Variant> args) {
    m_Host.log.clear();
    const std::string answer = m_Calls.Answer(name, std::move(args));
    return m_Host.log.empty() ? answer : m_Host.log;
  }

  RecordingHost m_Host;
  LibraryCalls m_Calls{m_Host};
  const Variant m_Null = Variant::Null();
  const Variant m_Missing = Variant::Missing();
};

TEST_F(HostFunctionsTest, MsgBoxAsksTheHost) {
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {u"Hi"}), "Integer 6");
  EXPECT_EQ(Log(u"MsgBox", {u"Hi"}), "Program: Hi #0");
  EXPECT_EQ(Log(u"MsgBox", {12.5, 36, u"Title"}), "Title: 12.5 #36");
  EXPECT_EQ(Log(u"MsgBox", {u"Hi", m_Missing, u""}), ": Hi #0");
  EXPECT_EQ(Log(u"MsgBox", {Variant(), u"4", 7, u"help", 1}), "7:  #4");
}

TEST_F(HostFunctionsTest, InputBoxAsksTheHost) {
  EXPECT_EQ(m_Calls.Answer(u"InputBox", {u"Name"}), "String typed");
  EXPECT_EQ(Log(u"InputBox", {u"Name"}), "Program: Name [] - -");
  EXPECT_EQ(Log(u"InputBox", {u"Name", u"T", u"Ann", 100, u"200"}), "T: Name [Ann] 100 200");
  EXPECT_EQ(Log(u"InputBox", {u"Name", m_Missing, m_Missing, m_Missing, 5}), "Program: Name [] - 5");
}

TEST_F(HostFunctionsTest, BoxesRefuseWrongArguments) {
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {m_Null}), "Error 94");
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {m_Missing}), "Error 13");
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {u"a", u"x"}), "Error 13");
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {u"a", m_Null}), "Error 94");
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {u"a", 0, u"t", u"help"}), "Error 5");
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {u"a", 0, u"t", m_Missing, 1}), "Error 5");
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {Variant::Nothing()}), "Error 91");
  EXPECT_EQ(m_Calls.Answer(u"InputBox", {u"a", u"t", u"d", u"x"}), "Error 13");
  EXPECT_EQ(m_Calls.Answer(u"InputBox", {u"a", u"t", u"d", 1, 1, u"help"}), "Error 5");
  EXPECT_EQ(m_Calls.Answer(u"InputBox", {m_Null}), "Error 94");
}

TEST_F(HostFunctionsTest, BoxesStayAwayWhereNothingMayBeShown) {
  m_Calls.Context().allowUI = false;
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {u"Hi", 4}), "Integer 0");
  EXPECT_EQ(m_Calls.Answer(u"InputBox", {u"Name", u"T", u"Ann"}), "Empty");
  EXPECT_EQ(m_Calls.Answer(u"MsgBox", {m_Null}), "Error 94");
  EXPECT_EQ(m_Host.log, "");
}

TEST_F(HostFunctionsTest, ObjectsComeFromTheHost) {
  EXPECT_EQ(m_Calls.Answer(u"CreateObject", {u"A.B"}), "Object");
  EXPECT_EQ(Log(u"CreateObject", {u"A.B"}), "create A.B@");
  EXPECT_EQ(Log(u"CreateObject", {u"A.B", u"far"}), "create A.B@far");
  EXPECT_EQ(Log(u"GetObject", {u"a.txt"}), "get a.txt as ");
  EXPECT_EQ(Log(u"GetObject", {u"a.txt", u"A.B"}), "get a.txt as A.B");
  EXPECT_EQ(Log(u"GetObject", {m_Missing, u"A.B"}), "get  as A.B");
  EXPECT_EQ(Log(u"GetObject", {u"", u"A.B"}), "create A.B@") << "an empty path asks for a new one";
  EXPECT_EQ(Log(u"LoadPicture", {u"a.png"}), "load a.png");
}

TEST_F(HostFunctionsTest, ObjectsThatAreNotThereAreErrors) {
  m_Host.hasObjects = false;
  EXPECT_EQ(m_Calls.Answer(u"CreateObject", {u"A.B"}), "Error 429");
  EXPECT_EQ(m_Calls.Answer(u"GetObject", {u"a.txt"}), "Error 432");
  EXPECT_EQ(m_Calls.Answer(u"GetObject", {m_Missing, u"A.B"}), "Error 429");
  EXPECT_EQ(m_Calls.Answer(u"GetObject", {u""}), "Error 432");
  EXPECT_EQ(m_Calls.Answer(u"GetObject"), "Error 5");
  EXPECT_EQ(m_Calls.Answer(u"LoadPicture", {u"a.png"}), "Error 481");
  EXPECT_EQ(m_Calls.Answer(u"CreateObject", {m_Null}), "Error 94");
  EXPECT_EQ(m_Calls.Answer(u"CreateObject", {m_Missing}), "Error 13");
}

TEST(HostFunctions, AllowNothingWithoutAHost) {
  LibraryCalls calls;
  EXPECT_EQ(calls.Answer(u"MsgBox", {u"Hi"}), "Integer 0");
  EXPECT_EQ(calls.Answer(u"InputBox", {u"Hi"}), "Empty");
  EXPECT_EQ(calls.Answer(u"CreateObject", {u"A.B"}), "Error 429");
  EXPECT_EQ(calls.Answer(u"LoadPicture", {u"a.png"}), "Error 70");
}

TEST_F(HostFunctionsTest, SetLocaleAnswersTheOneBefore) {
  EXPECT_EQ(m_Calls.Answer(u"GetLocale"), "Long 1033");
  EXPECT_EQ(m_Calls.Answer(u"SetLocale", {u"it-IT"}), "Long 1033");
  EXPECT_EQ(m_Calls.Answer(u"GetLocale"), "Long 1040");
  EXPECT_EQ(Locale::Current().lcid, 1040);
  EXPECT_EQ(m_Calls.Answer(u"SetLocale", {1031}), "Long 1040");
  EXPECT_EQ(m_Calls.Answer(u"SetLocale", {u"1033"}), "Long 1031");
  EXPECT_EQ(m_Calls.Context().locale->lcid, 1033);
}

TEST_F(HostFunctionsTest, SetLocaleTakesNamesAndNumbers) {
  struct Known {
    Variant wanted;
    int lcid;
  };
  for (const Known& c : std::vector<Known>{
           {u"en-us", 1033}, {u"EN-GB", 2057}, {u"de", 1031}, {u"pt", 1046}, {2070, 2070}, {1036.2, 1036}}) {
    m_Calls.Call(u"SetLocale", {c.wanted});
    EXPECT_EQ(m_Calls.Context().locale->lcid, c.lcid);
  }
}

TEST_F(HostFunctionsTest, SetLocaleGoesBackToTheProcesss) {
  for (const std::vector<Variant>& args :
       std::vector<std::vector<Variant>>{{0}, {1024}, {2048}, {Variant()}, {Variant::Missing()}, {}}) {
    m_Calls.Call(u"SetLocale", {Locale::OfProcess().lcid == 1040 ? 1033 : 1040});
    m_Calls.Call(u"SetLocale", args);
    EXPECT_EQ(m_Calls.Context().locale, &Locale::OfProcess());
  }
}

TEST_F(HostFunctionsTest, SetLocaleRefusesWhatItDoesNotKnow) {
  const std::vector<Variant> unknown{u"xx", u"", u"en-au", u"klingon", u"C", u"e", 1, -5, 3081};
  for (const Variant& wanted : unknown) {
    EXPECT_EQ(m_Calls.Answer(u"SetLocale", {wanted}), "Error 447") << ToText(wanted).ToUtf8();
  }
  EXPECT_EQ(m_Calls.Answer(u"SetLocale", {m_Null}), "Error 94");
  EXPECT_EQ(m_Calls.Answer(u"SetLocale", {1e12}), "Error 6");
  EXPECT_EQ(m_Calls.Context().locale->lcid, 1033);
}

TEST_F(HostFunctionsTest, TheEngineTellsItsVersion) {
  EXPECT_EQ(m_Calls.Answer(u"ScriptEngine"), "String VBScript");
  EXPECT_EQ(m_Calls.Answer(u"ScriptEngineMajorVersion"), "Long 5");
  EXPECT_EQ(m_Calls.Answer(u"ScriptEngineMinorVersion"), "Long 8");
  EXPECT_EQ(m_Calls.Answer(u"ScriptEngineBuildVersion"), "Long 16384");
}

}  // namespace
}  // namespace cardwright::vbscript
