#include <array>
#include <cstddef>
#include <memory_resource>
#include <vector>

#include "cardwright/automation/BudgetedMemory.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/builtins/TextArguments.h"
#include "cardwright/vbscript/builtins/TextCompare.h"
#include "cardwright/vbscript/builtins/TextLibrary.h"

namespace cardwright::vbscript::builtin {

namespace {

using Hits = std::pmr::vector<std::size_t>;

void FindAll(Hits& hits, std::u16string_view text, std::u16string_view part, std::size_t limit,
             CompareMode mode) {
  for (std::size_t from = 0; hits.size() < limit; from = hits.back() + part.size()) {
    const std::size_t hit = Find(text, part, from, mode);
    if (hit == text.npos) return;
    hits.push_back(hit);
  }
}

Text Replaced(std::u16string_view text, const Hits& hits, std::size_t partSize, std::u16string_view by) {
  const std::size_t size = text.size() - hits.size() * partSize + hits.size() * by.size();
  return Text::OfSize(size, [&](char16_t* to) {
    std::size_t done = 0;
    for (const std::size_t hit : hits) {
      to = Append(Append(to, text.substr(done, hit - done)), by);
      done = hit + partSize;
    }
    Append(to, text.substr(done));
  });
}

}  // namespace

Variant Replace(Context& context, Args args) {
  const std::u16string_view whole = RequireText(args[0]);
  const std::u16string_view part = RequireText(args[1]);
  const std::u16string_view by = RequireText(args[2]);
  const std::size_t from = Offset(WholeNumberOr(args, 3, 1));
  const std::int32_t limit = WholeNumberOr(args, 4, -1);
  const CompareMode mode = CompareModeOf(args, 5);
  if (limit < -1) Raise(ErrorNumber::InvalidCall);
  if (from >= whole.size()) return Text();

  // What stands before the start is cut off, even where nothing is replaced.
  const std::u16string_view text = whole.substr(from);
  std::array<std::byte, 1024> buffer;  // enough for the places in most texts
  std::pmr::monotonic_buffer_resource memory(buffer.data(), buffer.size(), &BudgetedMemory::Instance());
  Hits hits(&memory);
  if (!part.empty()) FindAll(hits, text, part, static_cast<std::size_t>(limit), mode);
  if (hits.empty()) return from == 0 ? std::move(args[0]) : Variant(text);
  if (by.size() > part.size()) context.CheckTextSize(text.size() + hits.size() * (by.size() - part.size()));
  return Replaced(text, hits, part.size(), by);
}

}  // namespace cardwright::vbscript::builtin
