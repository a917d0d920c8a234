#include "cardwright/vbscript/builtins/MathRandom.h"

#include <bit>

#include "cardwright/automation/Conversions.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Clock.h"

namespace cardwright::vbscript {

namespace {

// The linear congruential generator of the language. Scripts rely on its sequences, so it must not be
// improved.
constexpr std::uint32_t kFactor = 1140671485;
constexpr std::uint32_t kIncrement = 12820163;
constexpr std::uint32_t kMask = 0xFFFFFF;
constexpr float kRange = 0x1p24F;

std::uint32_t Next(std::uint32_t seed) noexcept { return (seed * kFactor + kIncrement) & kMask; }

}  // namespace

Variant Rnd(Context& context, Args args) {
  const float number = !args.empty() && !args[0].IsMissing() ? ToSingle(args[0]) : 1;
  if (number < 0) {
    const auto bits = std::bit_cast<std::uint32_t>(number);
    context.randomSeed = (bits + (bits >> 24)) & kMask;
  }
  if (number != 0) context.randomSeed = Next(context.randomSeed);
  return static_cast<float>(context.randomSeed) / kRange;
}

Variant Randomize(Context& context, Args args) {
  const double number =
      !args.empty() && !args[0].IsMissing() ? ToDouble(args[0]) : ToDouble(TimerFunction(context, {}));
  // Only the upper half of the number counts, folded into 16 bits; the lowest byte of the state stays.
  const auto upper = static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(number) >> 32);
  const std::uint32_t folded = (upper ^ (upper >> 16)) & 0xFFFF;
  context.randomSeed = (context.randomSeed & 0xFF) | (folded << 8);
  return {};
}

}  // namespace cardwright::vbscript
