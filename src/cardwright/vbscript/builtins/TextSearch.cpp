#include <optional>

#include "cardwright/vbscript/builtins/TextArguments.h"
#include "cardwright/vbscript/builtins/TextCompare.h"
#include "cardwright/vbscript/builtins/TextLibrary.h"

namespace cardwright::vbscript::builtin {

namespace {

// Position as scripts count it, 0 where nothing was found.
std::int32_t Position(std::size_t offset) noexcept { return static_cast<std::int32_t>(offset + 1); }
static_assert(std::u16string_view::npos + 1 == 0);

// What InStr and InStrB look for, and where.
struct Search {
  std::u16string_view text, part;
  std::size_t from;
  CompareMode mode;
};

// None where a text is Null.
std::optional<Search> ReadSearch(Args args) {
  // The start comes first, and only three arguments or four have one.
  const std::size_t first = args.size() > 2 ? 1 : 0;
  const std::size_t from = Offset(first == 1 ? WholeNumberOr(args, 0, 1) : 1);
  const CompareMode mode = CompareModeOf(args, 3);
  const bool hasText = HasText(args[first]);
  const bool hasPart = HasText(args[first + 1]);
  if (!hasText || !hasPart) return {};
  return Search{args[first].StringView(), args[first + 1].StringView(), from, mode};
}

}  // namespace

Variant InStr(Context&, Args args) {
  const auto search = ReadSearch(args);
  if (!search) return Variant::Null();
  const auto& [text, part, from, mode] = *search;
  return from < text.size() ? Position(Find(text, part, from, mode)) : 0;
}

Variant InStrB(Context&, Args args) {
  const auto search = ReadSearch(args);
  if (!search) return Variant::Null();
  const auto& [text, part, from, mode] = *search;
  return from < BytesOf(text).size() ? Position(FindBytes(text, part, from, mode)) : 0;
}

Variant InStrRev(Context&, Args args) {
  const std::int32_t start = WholeNumberOr(args, 2, -1);
  const CompareMode mode = CompareModeOf(args, 3);
  if (start == 0 || start < -1) Raise(ErrorNumber::InvalidCall);
  const bool hasText = HasText(args[0]);
  const bool hasPart = HasText(args[1]);
  if (!hasText || !hasPart) return Variant::Null();
  const std::u16string_view text = args[0].StringView();
  const std::u16string_view part = args[1].StringView();
  const std::size_t end = start == -1 ? text.size() : static_cast<std::size_t>(start);
  if (text.empty() || end > text.size()) return 0;
  if (part.empty()) return static_cast<std::int32_t>(end);
  return Position(FindLast(text.substr(0, end), part, mode));
}

Variant StrComp(Context&, Args args) {
  const CompareMode mode = CompareModeOf(args, 2);
  const bool hasFirst = HasText(args[0]);
  const bool hasSecond = HasText(args[1]);
  if (!hasFirst || !hasSecond) return Variant::Null();
  return static_cast<std::int16_t>(Compare(args[0].StringView(), args[1].StringView(), mode));
}

}  // namespace cardwright::vbscript::builtin
