#include <algorithm>
#include <vector>

#include "cardwright/automation/Array.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/ArrayLibrary.h"
#include "cardwright/vbscript/builtins/TextArguments.h"
#include "cardwright/vbscript/builtins/TextCompare.h"

namespace cardwright::vbscript::builtin {

namespace {

using Values = std::vector<Variant>;

Variant Piece(Context& context, std::u16string_view text) {
  return text.size() == 1 ? context.Character(text.front()) : Text(text);
}

// How many pieces there will be: knowing it beforehand costs less than a vector that grows.
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

// The values of a list. Null is told from what is no list, as a field of a record without a value is.
std::span<Variant> ListOf(Variant& list) {
  if (list.IsNull()) Raise(ErrorNumber::InvalidUseOfNull);
  if (!list.IsArray()) Raise(ErrorNumber::TypeMismatch);
  const std::size_t rank = list.ArrayPtr()->Dimensions().size();
  if (rank == 0) Raise(ErrorNumber::SubscriptOutOfRange);
  if (rank > 1) Raise(ErrorNumber::TypeMismatch);
  return list.ArrayPtr()->Values();
}

// The same with every value a text. The caller's array is shared, so others are converted in a copy.
std::span<Variant> TextsOf(Variant& list) {
  const std::span<Variant> values = ListOf(list);
  if (std::ranges::all_of(values, &Variant::IsString)) return values;
  list = Variant(list.ArrayPtr()->Copy());
  const std::span<Variant> texts = list.ArrayPtr()->Values();
  for (Variant& value : texts) RequireText(value);
  return texts;
}

std::u16string_view Delimiter(Args args, std::size_t index) {
  return ArgumentAt(args, index) ? RequireText(args[index]) : u" ";
}

}  // namespace

Variant Split(Context& context, Args args) {
  const std::u16string_view text = RequireText(args[0]);
  const std::u16string_view by = Delimiter(args, 1);
  const std::int32_t limit = WholeNumberOr(args, 2, -1);
  const CompareMode mode = CompareModeOf(args, 3);
  if (limit < -1) Raise(ErrorNumber::InvalidCall);
  if (text.empty() || limit == 0) return cardwright::Array::FromValues({});
  const std::size_t most = by.empty() ? 1 : static_cast<std::size_t>(limit);
  return cardwright::Array::FromValues(Pieces(context, text, by, most, mode));
}

Variant Join(Context& context, Args args) {
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

Variant Filter(Context&, Args args) {
  const std::span<Variant> texts = TextsOf(args[0]);
  const std::u16string_view part = RequireText(args[1]);
  const bool wanted = !ArgumentAt(args, 2) || ToBoolean(args[2]);
  const CompareMode mode = CompareModeOf(args, 3);
  Values kept;
  for (const Variant& text : texts) {
    const bool holds = Find(text.StringView(), part, 0, mode) != std::u16string_view::npos;
    if (holds == wanted) kept.push_back(text);
  }
  return cardwright::Array::FromValues(std::move(kept));
}

}  // namespace cardwright::vbscript::builtin
