// SPDX-License-Identifier: MIT
#include <algorithm>
#include <vector>

#include "cardwright/automation/Array.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"
#include "cardwright/vbscript/builtins/TextCompare.h"

// Arrays, and strings split into arrays and joined from them.
namespace cardwright::vbscript {

namespace {

// Array(value, value, …): from 0. A value left out is an error value in the array.
Variant ArrayFunction(Context&, Args args) {
  return Array::FromValues({std::make_move_iterator(args.begin()), std::make_move_iterator(args.end())});
}

// Error 13 for what is no array, 9 for a dimension that it does not have, as an array not dimensioned yet has
// none.
Bounds BoundsOf(Args args) {
  if (!args[0].IsArray()) Raise(ErrorNumber::TypeMismatch);
  const std::int32_t dimension = LongOr(args, 1, 1);
  const std::span<const Bounds> dimensions = std::as_const(*args[0].ArrayPtr()).Dimensions();
  if (dimension < 1 || static_cast<std::size_t>(dimension) > dimensions.size()) {
    Raise(ErrorNumber::SubscriptOutOfRange);
  }
  return dimensions[static_cast<std::size_t>(dimension) - 1];
}

// LBound(array[, dimension])
Variant LBoundFunction(Context&, Args args) { return BoundsOf(args).lower; }

// UBound(array[, dimension])
Variant UBoundFunction(Context&, Args args) { return BoundsOf(args).upper; }

using Values = std::vector<Variant>;

Variant Piece(Context& context, std::u16string_view text) {
  return text.size() == 1 ? context.Character(text.front()) : Text(text);
}

// Counting the pieces first costs less than a vector that grows.
std::size_t CountPieces(std::u16string_view text, std::u16string_view by, std::size_t limit,
                        CompareMode mode) {
  std::size_t count = 1;
  for (std::size_t at = 0; count < limit; ++count) {
    const std::size_t end = Find(text, by, at, mode);
    if (end == text.npos) break;
    at = end + by.size();
  }
  return count;
}

Values Pieces(Context& context, std::u16string_view text, std::u16string_view by, std::size_t limit,
              CompareMode mode) {
  Values pieces;
  pieces.reserve(CountPieces(text, by, limit, mode));
  std::size_t at = 0;
  while (pieces.size() + 1 < limit) {
    const std::size_t end = Find(text, by, at, mode);
    if (end == text.npos) break;
    pieces.push_back(Piece(context, text.substr(at, end - at)));
    at = end + by.size();
  }
  pieces.push_back(Piece(context, text.substr(at)));
  return pieces;
}

// The elements of an array of one dimension. Error 94 for Null, which a field without a value gives; 13 for
// any other value and for more dimensions, 9 for an array that has no dimensions yet.
std::span<Variant> ElementsOf(Variant& list) {
  if (list.IsNull()) Raise(ErrorNumber::InvalidUseOfNull);
  if (!list.IsArray()) Raise(ErrorNumber::TypeMismatch);
  const std::size_t rank = list.ArrayPtr()->Dimensions().size();
  if (rank == 0) Raise(ErrorNumber::SubscriptOutOfRange);
  if (rank > 1) Raise(ErrorNumber::TypeMismatch);
  return list.ArrayPtr()->Values();
}

// The same as strings. The array belongs to the caller too, so other values are converted in a copy.
std::span<Variant> TextsOf(Variant& list) {
  const std::span<Variant> values = ElementsOf(list);
  if (std::ranges::all_of(values, &Variant::IsString)) return values;
  list = Variant(list.ArrayPtr()->Copy());
  const std::span<Variant> texts = list.ArrayPtr()->Values();
  for (Variant& value : texts) RequireText(value);
  return texts;
}

// A blank where it was left out.
std::u16string_view Delimiter(Args args, std::size_t index) {
  return ArgumentAt(args, index) ? RequireText(args[index]) : u" ";
}

// Split(expression[, delimiter[, count[, compare]]]): an array from 0. An empty expression gives an empty
// array, an empty delimiter the expression as the only element. Error 5 for a count below -1.
Variant SplitFunction(Context& context, Args args) {
  const std::u16string_view text = RequireText(args[0]);
  const std::u16string_view by = Delimiter(args, 1);
  const std::int32_t limit = LongOr(args, 2, -1);
  const CompareMode mode = CompareModeOf(args, 3);
  if (limit < -1) Raise(ErrorNumber::InvalidCall);
  if (text.empty() || limit == 0) return Array::FromValues({});
  const std::size_t most = by.empty() ? 1 : static_cast<std::size_t>(limit);
  return Array::FromValues(Pieces(context, text, by, most, mode));
}

// Join(list[, delimiter])
Variant JoinFunction(Context& context, Args args) {
  const std::span<Variant> texts = TextsOf(args[0]);
  const std::u16string_view by = Delimiter(args, 1);
  if (texts.empty()) return Text();
  std::size_t size = (texts.size() - 1) * by.size();
  for (const Variant& text : texts) size += text.StringView().size();
  context.CheckTextSize(size);
  return Text::OfSize(size, [&](char16_t* to) {
    to = Append(to, texts.front().StringView());
    for (const Variant& text : texts.subspan(1)) to = Append(Append(to, by), text.StringView());
  });
}

// Filter(list, value[, include[, compare]]): the elements that have, or with `include` False do not have, the
// value in them.
Variant FilterFunction(Context&, Args args) {
  const std::span<Variant> texts = TextsOf(args[0]);
  const std::u16string_view part = RequireText(args[1]);
  const bool wanted = !ArgumentAt(args, 2) || ToBoolean(args[2]);
  const CompareMode mode = CompareModeOf(args, 3);
  Values kept;
  for (const Variant& text : texts) {
    const bool holds = Find(text.StringView(), part, 0, mode) != std::u16string_view::npos;
    if (holds == wanted) kept.push_back(text);
  }
  return Array::FromValues(std::move(kept));
}

constexpr Builtin kArrayFunctions[] = {
    {u"Array", ArrayFunction, 0, kAnyCount}, {u"Filter", FilterFunction, 2, 4},
    {u"Join", JoinFunction, 1, 2},           {u"LBound", LBoundFunction, 1, 2},
    {u"Split", SplitFunction, 1, 4},         {u"UBound", UBoundFunction, 1, 2},
};

}  // namespace

std::span<const Builtin> ArrayFunctions() { return kArrayFunctions; }

}  // namespace cardwright::vbscript
