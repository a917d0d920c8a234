// SPDX-License-Identifier: MIT
#include "cardwright/model/RegKey.h"

#include <gtest/gtest.h>

#include "automation/Printing.h"

namespace cardwright {
namespace {

std::string Parts(std::u16string_view key) {
  const auto place = SplitRegKey(key);
  return place ? (place->app + u"|" + place->section + u"|" + place->name).ToUtf8() : "none";
}

TEST(SplitRegKey, TrimsThreeParts) {
  EXPECT_EQ(Parts(u"App/Section/Key"), "App|Section|Key");
  EXPECT_EQ(Parts(u"  My App / A section/ Last folder "), "My App|A section|Last folder");
}

TEST(SplitRegKey, KeepsFurtherPartsInTheName) { EXPECT_EQ(Parts(u"A/B/C/D"), "A|B|C/D"); }

TEST(SplitRegKey, RejectsAKeyWithAMissingPart) {
  for (const char16_t* key : {u"", u"   ", u"App", u"App/Section", u"App/Section/", u"App//Key",
                              u"/Section/Key", u"App/ /Key", u"//", u"App/Section/  "})
    EXPECT_EQ(Parts(key), "none") << Text(key).ToUtf8();
}

}  // namespace
}  // namespace cardwright
