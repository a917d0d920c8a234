#include <algorithm>

#include "cardwright/vbscript/builtins/TextArguments.h"
#include "cardwright/vbscript/builtins/TextCompare.h"
#include "cardwright/vbscript/builtins/TextLibrary.h"

namespace cardwright::vbscript::builtin {

namespace {

// Bytes of the text in `argument`, as a text again.
Variant Part(Variant& argument, std::size_t from, std::size_t count) {
  const std::string_view bytes = BytesOf(argument.StringView());
  from = std::min(from, bytes.size());
  count = std::min(count, bytes.size() - from);
  if (count == bytes.size()) return std::move(argument);
  const std::size_t units = (count + 1) / sizeof(char16_t);
  return Text::OfSize(units, [&](char16_t* to) {
    to[units - 1] = 0;
    bytes.copy(reinterpret_cast<char*>(to), count, from);
  });
}

}  // namespace

Variant LenB(Context&, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  return static_cast<std::int32_t>(BytesOf(args[0].StringView()).size());
}

Variant LeftB(Context&, Args args) {
  const std::size_t count = Count(args[1]);
  if (!HasText(args[0])) return Variant::Null();
  return Part(args[0], 0, count);
}

Variant RightB(Context&, Args args) {
  const std::size_t count = Count(args[1]);
  if (!HasText(args[0])) return Variant::Null();
  const std::size_t size = BytesOf(args[0].StringView()).size();
  return Part(args[0], size - std::min(count, size), count);
}

Variant MidB(Context&, Args args) {
  const std::size_t from = Offset(WholeNumber(args[1]));
  const std::size_t count = CountOr(args, 2, kAll);
  if (!HasText(args[0])) return Variant::Null();
  return Part(args[0], from, count);
}

}  // namespace cardwright::vbscript::builtin
