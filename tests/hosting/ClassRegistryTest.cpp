// SPDX-License-Identifier: MIT
#include "cardwright/hosting/ClassRegistry.h"

#include <gtest/gtest.h>

#include "cardwright/automation/Collection.h"
#include "hosting/Calls.h"

namespace cardwright::testing {
namespace {

Ref<Object> Make() { return MakeRef<Collection>(); }

TEST(ClassRegistryCreate, FindsAClassWhateverTheCaseOfItsIdentifier) {
  ClassRegistry classes;
  classes.Add(u"Some.Thing", Make);
  EXPECT_EQ(classes.Create(u"some.THING")->TypeName(), u"Collection");
}

TEST(ClassRegistryCreate, RefusesAnUnknownClass) {
  ClassRegistry classes;
  AddCoreClasses(classes);
  for (const char16_t* progid : {u"Other.Thing", u"", u"Scripting", u"Cardwright.CItems"})
    EXPECT_EQ(ErrorOf([&] { classes.Create(progid); }), 429);
}

TEST(ClassRegistryCreate, KnowsTheClassesThatNeedNoToolkit) {
  ClassRegistry classes;
  AddCoreClasses(classes);
  EXPECT_EQ(classes.Create(u"Scripting.Dictionary")->TypeName(), u"Dictionary");
  EXPECT_EQ(classes.Create(u"Scripting.FileSystemObject")->TypeName(), u"FileSystemObject");
  EXPECT_EQ(classes.Create(u"VBScript.RegExp")->TypeName(), u"IRegExp2");
  EXPECT_EQ(classes.Create(u"Cardwright.CIni")->TypeName(), u"CIni");
}

TEST(ClassRegistryLoader, RunsOnceAndOnlyForAnUnknownClassOfItsPrefix) {
  ClassRegistry classes;
  int loads = 0;
  classes.Add(u"Part.Light", Make);
  classes.SetLoader(u"Part.", [&](ClassRegistry& more) {
    ++loads;
    more.Add(u"Part.Heavy", Make);
  });
  classes.Create(u"Part.Light");
  EXPECT_EQ(ErrorOf([&] { classes.Create(u"Other.Heavy"); }), 429);
  EXPECT_EQ(loads, 0);
  classes.Create(u"PART.heavy");
  EXPECT_EQ(ErrorOf([&] { classes.Create(u"Part.None"); }), 429);
  EXPECT_EQ(loads, 1);
}

TEST(ClassRegistryLoader, RunsOnLoad) {
  ClassRegistry classes;
  int loads = 0;
  classes.Load();
  classes.SetLoader(u"Part.", [&](ClassRegistry& more) {
    ++loads;
    more.Add(u"Part.Heavy", Make);
  });
  classes.Load();
  classes.Load();
  EXPECT_EQ(loads, 1);
  EXPECT_EQ(classes.Create(u"Part.Heavy")->TypeName(), u"Collection");
}

TEST(ClassRegistryLoader, RunsAgainAfterAFailure) {
  ClassRegistry classes;
  int loads = 0;
  classes.SetLoader(u"Part.", [&](ClassRegistry& more) {
    if (++loads == 1) Raise(48, u"not there");
    more.Add(u"Part.Heavy", Make);
  });
  EXPECT_EQ(ErrorOf([&] { classes.Create(u"Part.Heavy"); }), 48);
  EXPECT_TRUE(classes.Create(u"Part.Heavy"));
}

}  // namespace
}  // namespace cardwright::testing
