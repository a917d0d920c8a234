// SPDX-License-Identifier: MIT
#include "cardwright/hosting/DefaultButton.h"

#include <array>
#include <cstddef>
#include <iterator>

#include "cardwright/platform/Desktop.h"

namespace cardwright {
namespace {

namespace answer = BoxAnswer;

struct ButtonSet {
  std::size_t count;
  std::array<int, 3> buttons;
};
// By the number in the style's lowest three bits.
constexpr ButtonSet kSets[] = {
    {1, {answer::Ok}},
    {2, {answer::Ok, answer::Cancel}},
    {3, {answer::Abort, answer::Retry, answer::Ignore}},
    {3, {answer::Yes, answer::No, answer::Cancel}},
    {2, {answer::Yes, answer::No}},
    {2, {answer::Retry, answer::Cancel}},
};

}  // namespace

int DefaultButton(int style) noexcept {
  const auto bits = static_cast<unsigned>(style);
  const std::size_t set = bits & 7u;
  const ButtonSet& chosen = kSets[set < std::size(kSets) ? set : 0];
  const std::size_t wanted = bits >> 8 & 3u;
  return chosen.buttons[wanted < chosen.count ? wanted : 0];
}

}  // namespace cardwright
