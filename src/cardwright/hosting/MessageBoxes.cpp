#include "cardwright/hosting/MessageBoxes.h"

#include <array>
#include <cstddef>
#include <iterator>

namespace cardwright {
namespace {

constexpr int kOk = 1, kCancel = 2, kAbort = 3, kRetry = 4, kIgnore = 5, kYes = 6, kNo = 7;

struct ButtonSet {
  std::size_t count;
  std::array<int, 3> buttons;
};
// By the number in the style's lowest three bits.
constexpr ButtonSet kSets[] = {
    {1, {kOk}},       {2, {kOk, kCancel}},    {3, {kAbort, kRetry, kIgnore}}, {3, {kYes, kNo, kCancel}},
    {2, {kYes, kNo}}, {2, {kRetry, kCancel}},
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
