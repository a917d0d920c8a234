// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using ::testing::HasSubstr;

TEST(CommandLine, ShowsItsCommandsAndItsVersion) {
  const Outcome help = Cardwright({"--help"});
  EXPECT_EQ(help.status, 0);
  for (const char* command : {"design", "fill", "check", "info", "render", "orv", "script"})
    EXPECT_THAT(help.out, HasSubstr(command));
  EXPECT_THAT(Cardwright({"--version"}).out, ::testing::MatchesRegex("cardwright [0-9.]+\n"));
  EXPECT_EQ(Cardwright({"-v"}).out, Cardwright({"--version"}).out);
}

TEST(CommandLine, HasHelpAndVersionForEveryCommand) {
  for (const char* command : {"design", "fill", "check", "info", "render", "orv", "script"}) {
    const Outcome help = Cardwright({command, "--help"});
    EXPECT_EQ(help.status, 0) << command;
    EXPECT_THAT(help.out, HasSubstr(std::string("Usage: cardwright ") + command));
    EXPECT_THAT(help.out, HasSubstr("--codepage"));
    EXPECT_THAT(help.out, HasSubstr("--locale"));
    EXPECT_EQ(Cardwright({command, "-v"}).status, 0);
  }
}

TEST(CommandLine, OpensTheWorkbenchWithoutACommand) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{}, {"design"}}) {
    std::vector<std::string> all{
        "-u", "QT_QPA_PLATFORM", "-u", "DISPLAY", "-u", "WAYLAND_DISPLAY", CARDWRIGHT_PROGRAM};
    all.insert(all.end(), words.begin(), words.end());
    const Outcome outcome = RunProgram("/usr/bin/env", all);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.err, HasSubstr("there is no display"));
  }
}

TEST(CommandLine, ShowsHelpWhateverElseIsWrong) {
  const Outcome help = Cardwright({"info", "--sideways", "--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_EQ(help.out, Cardwright({"info", "-h"}).out);
  EXPECT_EQ(help.err, "");
}

TEST(CommandLine, AlignsHelpOnTheLongestOption) {
  EXPECT_EQ(Cardwright({"render", "--help"}).out,
            "Usage: cardwright render [options] FORM\n"
            "Makes a picture of a form as an end user meets it.\n"
            "\n"
            "Options:\n"
            "  -o <FILE.png>      the picture to write\n"
            "  --design           as its author draws it, with the grid\n"
            "  --codepage <NAME>  code page of form projects (windows-1252)\n"
            "  --locale <NAME>    language and country, as in it-IT\n"
            "  -h, --help         this text\n"
            "  -v, --version      the program's version\n");
}

struct WrongUse {
  std::vector<std::string> words;
  const char* complaint;
};

void PrintTo(const WrongUse& use, std::ostream* out) {
  *out << "cardwright";
  for (const std::string& word : use.words) *out << ' ' << word;
}

class WrongUseTest : public ::testing::TestWithParam<WrongUse> {};

TEST_P(WrongUseTest, EndsWithStatus2AndPrintsTheReason) {
  const Outcome outcome = Cardwright(GetParam().words);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out, "");
  EXPECT_THAT(outcome.err, HasSubstr(GetParam().complaint));
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, WrongUseTest,
    ::testing::Values(WrongUse{{"frobnicate"}, "unknown command: frobnicate"},
                      WrongUse{{"info"}, "FORM is missing"},
                      WrongUse{{"info", "a", "b"}, "one word too many: b"},
                      WrongUse{{"info", "--sideways", "a"}, "unknown option: --sideways"},
                      WrongUse{{"info", "-x", "a"}, "unknown option: -x"},
                      WrongUse{{"info", "--json=1", "a"}, "--json takes no value"},
                      WrongUse{{"info", "a", "--locale"}, "--locale needs a value"},
                      WrongUse{{"info", "--", "--json"}, "there is no form project --json"},
                      WrongUse{{"render", "-oform.png", "x"}, "there is no form project x"},
                      WrongUse{{"script", "--sideways", "a"}, "unknown option: --sideways"},
                      WrongUse{{"script"}, "FILE is missing"},
                      WrongUse{{"info", "/no/such/form.cwf"}, "there is no form project /no/such/form.cwf"},
                      WrongUse{{"info", "--codepage", "utf-8", "x"}, "unknown code page: utf-8"},
                      WrongUse{{"info", "--locale", "xx-YY", "x"}, "unknown locale: xx-YY"},
                      WrongUse{{"render", "x"}, "-o FILE.png is missing"},
                      WrongUse{{"check"}, "FORM… is missing"}, WrongUse{{"orv"}, "--data is missing"},
                      WrongUse{{"orv", "--data", "/no/such/store.gpkg"}, "/no/such/store.gpkg"},
                      WrongUse{{"fill", "x"}, "--data is missing"},
                      WrongUse{{"fill", "x", "--data", "d"}, "--theme is missing"},
                      WrongUse{{"fill", "x", "--data", "d", "--theme", "t"}, "--id is missing"}));

}  // namespace
}  // namespace cardwright::testing
