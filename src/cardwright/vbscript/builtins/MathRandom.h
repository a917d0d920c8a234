#pragma once

#include "cardwright/vbscript/builtins/Builtin.h"

namespace cardwright::vbscript {

/// `Rnd([n])`: the next number from 0 up to 1; the latest one again for 0; for a negative number the one that
/// belongs to it, from which the sequence goes on.
Variant Rnd(Context& context, Args args);
/// `Randomize [n]`: goes on from a place that depends on the number and on where the sequence was; on the
/// time of day where there is no number.
Variant Randomize(Context& context, Args args);

}  // namespace cardwright::vbscript
