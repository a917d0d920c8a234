#include <algorithm>

#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/CodePage.h"
#include "cardwright/vbscript/builtins/TextArguments.h"
#include "cardwright/vbscript/builtins/TextLibrary.h"

namespace cardwright::vbscript::builtin {

namespace {

// A text that is in that case already is passed on.
template <class Map>
Variant Mapped(Variant& argument, Map map) {
  if (!HasText(argument)) return Variant::Null();
  const std::u16string_view text = argument.StringView();
  const auto first = std::ranges::find_if(text, [&](char16_t c) { return map(c) != c; });
  if (first == text.end()) return std::move(argument);
  return Text::OfSize(text.size(), [&](char16_t* to) {
    to = std::copy(text.begin(), first, to);
    std::transform(first, text.end(), to, map);
  });
}

Text Repeated(Context& context, std::size_t count, char16_t unit) {
  context.CheckTextSize(count);
  if (count == 1) return context.Character(unit);
  return Text::OfSize(count, [&](char16_t* to) { std::fill_n(to, count, unit); });
}

// The character that the second argument of String means: the first one of a text, or that of a number modulo
// 256.
char16_t CharacterOf(const Variant& value) {
  if (!value.IsString()) return FromCodePage(static_cast<std::uint8_t>(WholeNumber(value) & 0xFF));
  if (value.StringView().empty()) Raise(ErrorNumber::InvalidCall);
  return value.StringView().front();
}

}  // namespace

Variant LCase(Context&, Args args) {
  return Mapped(args[0], [](char16_t c) { return ToLower(c); });
}

Variant UCase(Context&, Args args) {
  return Mapped(args[0], [](char16_t c) { return ToUpper(c); });
}

Variant StrReverse(Context&, Args args) {
  const std::u16string_view text = RequireText(args[0]);
  return Text::OfSize(text.size(), [&](char16_t* to) { std::ranges::reverse_copy(text, to); });
}

Variant Space(Context& context, Args args) { return Repeated(context, Count(args[0]), u' '); }

Variant String(Context& context, Args args) {
  for (Variant& argument : args) {
    if (argument.IsObject()) argument = DefaultValue(argument);
  }
  if (args[0].IsNull() || args[1].IsNull()) return Variant::Null();
  const std::size_t count = Count(args[0]);
  return Repeated(context, count, CharacterOf(args[1]));
}

}  // namespace cardwright::vbscript::builtin
