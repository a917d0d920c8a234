// SPDX-License-Identifier: MIT
#include <array>
#include <cstddef>
#include <memory_resource>
#include <optional>
#include <vector>

#include "cardwright/automation/BudgetedMemory.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"
#include "cardwright/vbscript/builtins/TextCompare.h"

// Search, comparison and replacement in strings. Positions count from 1; error 5 for a position below 1 and
// for another way to compare than 0 and 1.
namespace cardwright::vbscript {

namespace {

// Position as scripts count it, 0 where nothing was found.
std::int32_t FoundPosition(std::size_t offset) noexcept { return static_cast<std::int32_t>(offset + 1); }
static_assert(std::u16string_view::npos + 1 == 0);

struct SearchArguments {
  std::u16string_view text, part;
  std::size_t from;
  CompareMode mode;
};

// None where a string is Null. The start comes first but is optional: with two arguments there is none.
std::optional<SearchArguments> ReadSearchArguments(Args args) {
  const std::size_t first = args.size() > 2 ? 1 : 0;
  const std::size_t from = Offset(first == 1 ? LongOr(args, 0, 1) : 1);
  const CompareMode mode = CompareModeOf(args, 3);
  const bool hasText = HasText(args[first]);
  const bool hasPart = HasText(args[first + 1]);
  if (!hasText || !hasPart) return {};
  return SearchArguments{args[first].StringView(), args[first + 1].StringView(), from, mode};
}

// InStr([start,] string1, string2[, compare]): an empty string2 is found at the start.
Variant InStrFunction(Context&, Args args) {
  const auto search = ReadSearchArguments(args);
  if (!search) return Variant::Null();
  const auto& [text, part, from, mode] = *search;
  return from < text.size() ? FoundPosition(Find(text, part, from, mode)) : 0;
}

// InStrB([start,] string1, string2[, compare]): positions are those of bytes.
Variant InStrBFunction(Context&, Args args) {
  const auto search = ReadSearchArguments(args);
  if (!search) return Variant::Null();
  const auto& [text, part, from, mode] = *search;
  return from < BytesOf(text).size() ? FoundPosition(FindBytes(text, part, from, mode)) : 0;
}

// InStrRev(string1, string2[, start[, compare]]): the last occurrence that ends at `start` or before it; -1
// is the end.
Variant InStrRevFunction(Context&, Args args) {
  const std::int32_t start = LongOr(args, 2, -1);
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
  return FoundPosition(FindLast(text.substr(0, end), part, mode));
}

// StrComp(string1, string2[, compare]): -1, 0 or 1.
Variant StrCompFunction(Context&, Args args) {
  const CompareMode mode = CompareModeOf(args, 2);
  const bool hasFirst = HasText(args[0]);
  const bool hasSecond = HasText(args[1]);
  if (!hasFirst || !hasSecond) return Variant::Null();
  return static_cast<std::int16_t>(Compare(args[0].StringView(), args[1].StringView(), mode));
}

using Offsets = std::pmr::vector<std::size_t>;

void FindAll(Offsets& offsets, std::u16string_view text, std::u16string_view part, std::size_t limit,
             CompareMode mode) {
  for (std::size_t from = 0; offsets.size() < limit; from = offsets.back() + part.size()) {
    const std::size_t found = Find(text, part, from, mode);
    if (found == text.npos) return;
    offsets.push_back(found);
  }
}

Text ReplaceAt(const Offsets& offsets, std::u16string_view text, std::size_t partSize,
               std::u16string_view by) {
  const std::size_t size = text.size() - offsets.size() * partSize + offsets.size() * by.size();
  return Text::OfSize(size, [&](char16_t* to) {
    std::size_t done = 0;
    for (const std::size_t offset : offsets) {
      to = Append(Append(to, text.substr(done, offset - done)), by);
      done = offset + partSize;
    }
    Append(to, text.substr(done));
  });
}

// Replace(expression, find, replacewith[, start[, count[, compare]]]): error 94 for any Null. What precedes
// the start is cut off, even where nothing is replaced.
Variant ReplaceFunction(Context& context, Args args) {
  const std::u16string_view whole = RequireText(args[0]);
  const std::u16string_view part = RequireText(args[1]);
  const std::u16string_view by = RequireText(args[2]);
  const std::size_t from = Offset(LongOr(args, 3, 1));
  const std::int32_t limit = LongOr(args, 4, -1);
  const CompareMode mode = CompareModeOf(args, 5);
  if (limit < -1) Raise(ErrorNumber::InvalidCall);
  if (from >= whole.size()) return Text();

  const std::u16string_view text = whole.substr(from);
  std::array<std::byte, 1024> buffer;  // enough for the offsets in most strings
  std::pmr::monotonic_buffer_resource memory(buffer.data(), buffer.size(), &BudgetedMemory::Instance());
  Offsets offsets(&memory);
  if (!part.empty()) FindAll(offsets, text, part, static_cast<std::size_t>(limit), mode);
  if (offsets.empty()) return from == 0 ? std::move(args[0]) : Variant(text);
  if (by.size() > part.size()) {
    context.CheckTextSize(text.size() + offsets.size() * (by.size() - part.size()));
  }
  return ReplaceAt(offsets, text, part.size(), by);
}

constexpr Builtin kStringSearchFunctions[] = {
    {u"InStr", InStrFunction, 2, 4},       {u"InStrB", InStrBFunction, 2, 4},
    {u"InStrRev", InStrRevFunction, 2, 4}, {u"Replace", ReplaceFunction, 3, 6},
    {u"StrComp", StrCompFunction, 2, 3},
};

}  // namespace

std::span<const Builtin> StringSearchFunctions() { return kStringSearchFunctions; }

}  // namespace cardwright::vbscript
