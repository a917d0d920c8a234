// SPDX-License-Identifier: MIT
#include <algorithm>

#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/AnsiCharacters.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"
#include "cardwright/vbscript/builtins/TextCompare.h"

// Parts of a string, strings in another form, and new ones. Where nothing else is said: Null for the string
// gives Null, a count below 0 or a position below 1 is error 5, Null for a number is error 94.
namespace cardwright::vbscript {

namespace {

// Characters of the string in `argument`. The whole string is moved out and a single character is a shared
// one, so that a loop over the characters of a string allocates nothing.
Variant Substring(Context& context, Variant& argument, std::size_t from, std::size_t count) {
  const std::u16string_view text = argument.StringView();
  from = std::min(from, text.size());
  count = std::min(count, text.size() - from);
  if (count == 1 && text.size() > 1) return context.Character(text[from]);
  if (count == text.size()) return std::move(argument);
  return text.substr(from, count);
}

// Len(string): characters, that is UTF-16 units.
Variant LenFunction(Context&, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  return static_cast<std::int32_t>(args[0].StringView().size());
}

// Left(string, length)
Variant LeftFunction(Context& context, Args args) {
  const std::size_t count = CountOf(args[1]);
  if (!HasText(args[0])) return Variant::Null();
  return Substring(context, args[0], 0, count);
}

// Right(string, length)
Variant RightFunction(Context& context, Args args) {
  const std::size_t count = CountOf(args[1]);
  if (!HasText(args[0])) return Variant::Null();
  const std::size_t size = args[0].StringView().size();
  return Substring(context, args[0], size - std::min(count, size), count);
}

// Mid(string, start[, length]): empty for a start beyond the end.
Variant MidFunction(Context& context, Args args) {
  const std::size_t from = Offset(LongOf(args[1]));
  const std::size_t count = CheckedCount(LongOr(args, 2, kAll));
  if (!HasText(args[0])) return Variant::Null();
  return Substring(context, args[0], from, count);
}

// The bytes of a string are those of its UTF-16 units, low byte first. A string always has whole units, so a
// result of an odd number of bytes gets a zero byte at its end.
Variant SubstringOfBytes(Variant& argument, std::size_t from, std::size_t count) {
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

// LenB(string), LeftB(string, length), RightB(string, length), MidB(string, start[, length]): the same in
// bytes.
Variant LenBFunction(Context&, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  return static_cast<std::int32_t>(BytesOf(args[0].StringView()).size());
}

Variant LeftBFunction(Context&, Args args) {
  const std::size_t count = CountOf(args[1]);
  if (!HasText(args[0])) return Variant::Null();
  return SubstringOfBytes(args[0], 0, count);
}

Variant RightBFunction(Context&, Args args) {
  const std::size_t count = CountOf(args[1]);
  if (!HasText(args[0])) return Variant::Null();
  const std::size_t size = BytesOf(args[0].StringView()).size();
  return SubstringOfBytes(args[0], size - std::min(count, size), count);
}

Variant MidBFunction(Context&, Args args) {
  const std::size_t from = Offset(LongOf(args[1]));
  const std::size_t count = CheckedCount(LongOr(args, 2, kAll));
  if (!HasText(args[0])) return Variant::Null();
  return SubstringOfBytes(args[0], from, count);
}

// The Trim functions take off blanks only: tabs and line ends stay.
std::size_t LeadingBlanks(std::u16string_view text) noexcept {
  return std::min(text.find_first_not_of(u' '), text.size());
}
std::size_t SizeWithoutTrailingBlanks(std::u16string_view text) noexcept {
  return text.find_last_not_of(u' ') + 1;  // npos + 1 is 0
}

// LTrim(string)
Variant LTrimFunction(Context& context, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  return Substring(context, args[0], LeadingBlanks(args[0].StringView()), kAll);
}

// RTrim(string)
Variant RTrimFunction(Context& context, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  return Substring(context, args[0], 0, SizeWithoutTrailingBlanks(args[0].StringView()));
}

// Trim(string)
Variant TrimFunction(Context& context, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  const std::u16string_view text = args[0].StringView();
  const std::size_t from = LeadingBlanks(text);
  const std::size_t end = SizeWithoutTrailingBlanks(text);
  return Substring(context, args[0], from, end - std::min(from, end));
}

// A string that the mapping leaves as it is is moved out, not copied.
template <class Map>
Variant MapCharacters(Variant& argument, Map map) {
  if (!HasText(argument)) return Variant::Null();
  const std::u16string_view text = argument.StringView();
  const auto first = std::ranges::find_if(text, [&](char16_t c) { return map(c) != c; });
  if (first == text.end()) return std::move(argument);
  return Text::OfSize(text.size(), [&](char16_t* to) {
    to = std::copy(text.begin(), first, to);
    std::transform(first, text.end(), to, map);
  });
}

// LCase(string)
Variant LCaseFunction(Context&, Args args) {
  return MapCharacters(args[0], [](char16_t c) { return ToLower(c); });
}

// UCase(string)
Variant UCaseFunction(Context&, Args args) {
  return MapCharacters(args[0], [](char16_t c) { return ToUpper(c); });
}

// StrReverse(string): error 94 for Null.
Variant StrReverseFunction(Context&, Args args) {
  const std::u16string_view text = RequireText(args[0]);
  return Text::OfSize(text.size(), [&](char16_t* to) { std::ranges::reverse_copy(text, to); });
}

Text Repeated(Context& context, std::size_t count, char16_t unit) {
  context.CheckTextSize(count);
  if (count == 1) return context.Character(unit);
  return Text::OfSize(count, [&](char16_t* to) { std::fill_n(to, count, unit); });
}

// Space(number)
Variant SpaceFunction(Context& context, Args args) { return Repeated(context, CountOf(args[0]), u' '); }

// The first character of a string, or the one with the code `number` modulo 256.
char16_t CharacterToRepeat(const Variant& value) {
  if (!value.IsString()) return FromAnsi(static_cast<std::uint8_t>(LongOf(value) & 0xFF));
  if (value.StringView().empty()) Raise(ErrorNumber::InvalidCall);
  return value.StringView().front();
}

// String(number, character): Null where either is Null.
Variant StringFunction(Context& context, Args args) {
  const bool isNull = IsNullArgument(args, 0), isCharacterNull = IsNullArgument(args, 1);
  if (isNull || isCharacterNull) return Variant::Null();
  const std::size_t count = CountOf(args[0]);
  return Repeated(context, count, CharacterToRepeat(args[1]));
}

constexpr Builtin kStringFunctions[] = {
    {u"LCase", LCaseFunction, 1, 1},   {u"Left", LeftFunction, 2, 2},
    {u"LeftB", LeftBFunction, 2, 2},   {u"Len", LenFunction, 1, 1},
    {u"LenB", LenBFunction, 1, 1},     {u"LTrim", LTrimFunction, 1, 1},
    {u"Mid", MidFunction, 2, 3},       {u"MidB", MidBFunction, 2, 3},
    {u"Right", RightFunction, 2, 2},   {u"RightB", RightBFunction, 2, 2},
    {u"RTrim", RTrimFunction, 1, 1},   {u"Space", SpaceFunction, 1, 1},
    {u"String", StringFunction, 2, 2}, {u"StrReverse", StrReverseFunction, 1, 1},
    {u"Trim", TrimFunction, 1, 1},     {u"UCase", UCaseFunction, 1, 1},
};

}  // namespace

std::span<const Builtin> StringFunctions() { return kStringFunctions; }

}  // namespace cardwright::vbscript
