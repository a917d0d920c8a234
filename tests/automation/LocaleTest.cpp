// SPDX-License-Identifier: MIT
#include "cardwright/automation/Locale.h"

#include <cstdlib>
#include <thread>

#include "automation/Printing.h"

namespace cardwright {
namespace {

struct Named {
  const char16_t* name;
  int lcid;
};

TEST(LocaleFind, IgnoresCaseAndSeparators) {
  const Named cases[] = {{u"en-us", 1033},   {u"EN_US.UTF-8", 1033}, {u"C", 1033},          {u"POSIX", 1033},
                         {u"C.UTF-8", 1033}, {u"it", 1040},          {u"it_IT@euro", 1040}, {u"it-CH", 1040},
                         {u"de", 1031},      {u"de-CH", 2055},       {u"de_AT", 1031},      {u"no", 1044},
                         {u"no_NO", 1044},   {u"pt_PT.UTF-8", 2070}, {u" fr ", 1036},       {u"en", 1033},
                         {u"es-es", 3082},   {u"en-gb", 2057}};
  for (const Named& c : cases) {
    const Locale* found = Locale::Find(c.name);
    ASSERT_NE(found, nullptr) << Text(c.name).ToUtf8();
    EXPECT_EQ(found->lcid, c.lcid) << Text(c.name).ToUtf8();
    EXPECT_EQ(Locale::Find(c.lcid), found);
  }
}

TEST(LocaleFind, ReturnsNullForUnknownNames) {
  for (const char16_t* name : {u"", u"xx", u"-", u"e"}) EXPECT_EQ(Locale::Find(name), nullptr);
  EXPECT_EQ(Locale::Find(1), nullptr);
}

TEST(LocaleCurrent, BelongsToTheThread) {
  const InLocale italian(u"it-it");
  int other = 0;
  std::thread([&] { other = Locale::Current().lcid; }).join();
  EXPECT_EQ(other, Locale::OfProcess().lcid);
  EXPECT_EQ(Locale::Current().lcid, 1040);
}

}  // namespace
}  // namespace cardwright
