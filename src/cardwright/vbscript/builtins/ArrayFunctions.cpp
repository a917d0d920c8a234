#include "cardwright/automation/Array.h"

#include "cardwright/vbscript/builtins/ArrayLibrary.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/TextArguments.h"

namespace cardwright::vbscript {

namespace builtin {

namespace {

Bounds BoundsOf(Args args) {
  if (!args[0].IsArray()) Raise(ErrorNumber::TypeMismatch);
  const std::int32_t dimension = WholeNumberOr(args, 1, 1);
  const std::span<const Bounds> dimensions = std::as_const(*args[0].ArrayPtr()).Dimensions();
  if (dimension < 1 || static_cast<std::size_t>(dimension) > dimensions.size()) {
    Raise(ErrorNumber::SubscriptOutOfRange);
  }
  return dimensions[static_cast<std::size_t>(dimension) - 1];
}

}  // namespace

Variant Array(Context&, Args args) {
  return cardwright::Array::FromValues(
      {std::make_move_iterator(args.begin()), std::make_move_iterator(args.end())});
}

Variant LBound(Context&, Args args) { return BoundsOf(args).lower; }

Variant UBound(Context&, Args args) { return BoundsOf(args).upper; }

}  // namespace builtin

std::span<const Builtin> ArrayFunctions() {
  static constexpr Builtin kFunctions[] = {
      {u"Array", &builtin::Array, 0, kAnyCount}, {u"Filter", &builtin::Filter, 2, 4},
      {u"Join", &builtin::Join, 1, 2},           {u"LBound", &builtin::LBound, 1, 2},
      {u"Split", &builtin::Split, 1, 4},         {u"UBound", &builtin::UBound, 1, 2},
  };
  return kFunctions;
}

}  // namespace cardwright::vbscript
