#include <algorithm>

#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/TextArguments.h"
#include "cardwright/vbscript/builtins/TextLibrary.h"

namespace cardwright::vbscript::builtin {

namespace {

// Characters of the text in `argument`. The whole text is passed on and a single character is a shared one,
// so that walking through a text costs no memory.
Variant Part(Context& context, Variant& argument, std::size_t from, std::size_t count) {
  const std::u16string_view text = argument.StringView();
  from = std::min(from, text.size());
  count = std::min(count, text.size() - from);
  if (count == 1 && text.size() > 1) return context.Character(text[from]);
  if (count == text.size()) return std::move(argument);
  return text.substr(from, count);
}

// Only blanks go: the language leaves tabs and line ends.
std::size_t BlanksAtStart(std::u16string_view text) noexcept {
  return std::min(text.find_first_not_of(u' '), text.size());
}
std::size_t SizeWithoutBlanksAtEnd(std::u16string_view text) noexcept {
  return text.find_last_not_of(u' ') + 1;  // npos + 1 is 0
}

}  // namespace

Variant Len(Context&, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  return static_cast<std::int32_t>(args[0].StringView().size());
}

Variant Left(Context& context, Args args) {
  const std::size_t count = Count(args[1]);
  if (!HasText(args[0])) return Variant::Null();
  return Part(context, args[0], 0, count);
}

Variant Right(Context& context, Args args) {
  const std::size_t count = Count(args[1]);
  if (!HasText(args[0])) return Variant::Null();
  const std::size_t size = args[0].StringView().size();
  return Part(context, args[0], size - std::min(count, size), count);
}

Variant Mid(Context& context, Args args) {
  const std::size_t from = Offset(WholeNumber(args[1]));
  const std::size_t count = CountOr(args, 2, kAll);
  if (!HasText(args[0])) return Variant::Null();
  return Part(context, args[0], from, count);
}

Variant LTrim(Context& context, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  return Part(context, args[0], BlanksAtStart(args[0].StringView()), kAll);
}

Variant RTrim(Context& context, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  return Part(context, args[0], 0, SizeWithoutBlanksAtEnd(args[0].StringView()));
}

Variant Trim(Context& context, Args args) {
  if (!HasText(args[0])) return Variant::Null();
  const std::u16string_view text = args[0].StringView();
  const std::size_t from = BlanksAtStart(text);
  return Part(context, args[0], from,
              SizeWithoutBlanksAtEnd(text) - std::min(from, SizeWithoutBlanksAtEnd(text)));
}

}  // namespace cardwright::vbscript::builtin
