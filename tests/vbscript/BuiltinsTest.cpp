// SPDX-License-Identifier: MIT
#include <set>
#include <string>

#include "vbscript/LibraryCalls.h"

namespace cardwright::vbscript {
namespace {

TEST(FindBuiltin, FindsEveryFunctionWhateverTheCase) {
  std::set<std::string> names;
  for (const auto& family : BuiltinFamilies()) {
    for (const Builtin& function : family) {
      EXPECT_EQ(FindBuiltin(function.name), &function);
      EXPECT_EQ(FindBuiltin(ToUpper(function.name)), &function);
      EXPECT_EQ(FindBuiltin(ToLower(function.name)), &function);
      EXPECT_LE(function.minArguments, function.maxArguments);
      EXPECT_TRUE(names.insert(ToLower(function.name).ToUtf8()).second) << Text(function.name).ToUtf8();
    }
  }
}

TEST(FindBuiltin, KnowsNoOtherNames) {
  for (const char16_t* name : {u"", u"CIn", u"CInts", u"vbCrLf", u"Sub"}) EXPECT_FALSE(FindBuiltin(name));
}

TEST(FindConstant, FindsEveryConstantWhateverTheCase) {
  for (const BuiltinConstant& constant : Constants()) {
    EXPECT_EQ(FindConstant(constant.name), &constant);
    EXPECT_EQ(FindConstant(ToUpper(constant.name)), &constant);
  }
  for (const char16_t* name : {u"", u"vb", u"CInt", u"vbYess"}) EXPECT_FALSE(FindConstant(name));
}

}  // namespace
}  // namespace cardwright::vbscript
