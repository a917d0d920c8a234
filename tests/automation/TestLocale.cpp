// SPDX-License-Identifier: MIT
#include "automation/Printing.h"

namespace cardwright {
namespace {

/// The tests write numbers as in English wherever they do not say otherwise, whatever machine runs them.
class EnglishNumbers final : public testing::Environment {
 public:
  void SetUp() override { Locale::SetCurrent(*Locale::Find(u"en-us")); }
};

const auto* const kEnvironment = testing::AddGlobalTestEnvironment(new EnglishNumbers);

}  // namespace
}  // namespace cardwright
