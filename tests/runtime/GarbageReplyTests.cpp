// SPDX-License-Identifier: MIT
// A host that answers anything at all: a form must end each step, and with the host redrawing again.

#include <random>

#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class GarbageReplies : public FormTest {};

std::string AnyReply(std::mt19937& random) {
  static const char* const kPieces[] = {"1",        "-1",         "3",        "9e99",
                                        "1e400",    "&HFFFFFFFF", ",",        "a",
                                        "|",        "%%t%%",      "%%v%%",    "\r\n",
                                        "0",        "2147483648", "\xC3\xA8", "   ",
                                        "a,0,10,0", "b,1,-4,2",   ",,,",      "a,1,99999999999,7",
                                        "True",     "."};
  std::string reply;
  for (auto pieces = random() % 4; pieces > 0; --pieces) reply += kPieces[random() % std::size(kPieces)];
  return reply;
}

const std::vector<Element> kEverything = {
    {"TextBox", "t", "Attribute=a\r\n"},
    {"textboxmultiline", "m", "Attribute=b\r\n"},
    {"CheckBox", "c", "Attribute=a\r\n"},
    {"OptionButton", "o", "Attribute=b\r\nValue=1\r\n"},
    {"ComboBox", "k",
     "Attribute=a\r\nEditable=True\r\nItemsNumber=1\r\nValue_Item_1=1\r\nText_Item_1=One\r\n"},
    {"ListBox", "l", "Attribute=b\r\nItemsNumber=1\r\nValue_Item_1=1\r\nText_Item_1=One\r\n"}};

TEST_F(GarbageReplies, NeverHangOrCrashAForm) {
  std::mt19937 random(20261121);
  for (int round = 0; round < 300; ++round) {
    host->answer = [&](const std::string& request) {
      // Any count is believed, so a great one is kept for a test of its own.
      if (request.starts_with("THEME_ATTRIBUTE_NUMBER"))
        return ToText(static_cast<std::int32_t>(random() % 9));
      return Text::FromUtf8(AnyReply(random));
    };
    delete form.data();
    form = new qt::FormInput(&window);
    ASSERT_TRUE(Read(kEverything));
    form->SetFeatureID("7");
    EXPECT_EQ(host->Take().back(), kOn);
    ClickOk();
    EXPECT_EQ(host->Take().back(), kRedrawNow);
    boxes.Take();
  }
}

TEST_F(GarbageReplies, EndTheListOfAttributesAtAGreatestCount) {
  ASSERT_TRUE(Read(kEverything));
  for (const char* count : {"1e300", "9e999", "99999999999", "65536"}) {
    host->replies["THEME_ATTRIBUTE_NUMBER" + kPlace] = count;
    form->SetFeatureID("7");
    const Lines lines = host->Take();
    EXPECT_EQ(lines.size(), 8U + 65535U) << count;
    EXPECT_EQ(lines.back(), kOn);
  }
}

TEST_F(GarbageReplies, MayBeLong) {
  const std::string longText(1 << 20, 'x');
  host->SetTheme({{"a", 0, 10, 0, longText}, {"b", 0, 0, 0, longText + "," + longText}});
  ASSERT_TRUE(Read({{"TextBox", "t", "Attribute=a\r\n"}, {"textboxmultiline", "m", "Attribute=b\r\n"}}));
  form->SetFeatureID("7");
  EXPECT_EQ(host->Take().back(), kOn);
  ClickOk();
  EXPECT_EQ(host->Take().back(), kRedrawNow);
}

}  // namespace
}  // namespace cardwright
