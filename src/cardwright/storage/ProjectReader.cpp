// SPDX-License-Identifier: MIT
#include "cardwright/storage/ProjectReader.h"

#include <algorithm>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/platform/Files.h"
#include "cardwright/storage/IniStore.h"
#include "cardwright/storage/ProjectNames.h"

namespace cardwright {
namespace {

constexpr int kImageSize = 16;

Text WithoutLineEnds(std::u16string_view line) {
  std::u16string kept;
  std::ranges::remove_copy_if(line, std::back_inserter(kept),
                              [](char16_t c) { return c == u'\r' || c == u'\n'; });
  return kept;
}

}  // namespace

std::optional<ProjectReader> ProjectReader::Open(std::u16string_view fileName) {
  if (fileName.empty() || !FileExists(fileName)) return std::nullopt;
  const Ref<IniStore> store = IniStore::Open(fileName);
  if (!store) return std::nullopt;
  return ProjectReader(store->Snapshot());
}

Text ProjectReader::ScriptText() const {
  const std::string_view bytes = m_File->Bytes();
  const CodePage& page = m_File->Page();
  const auto marker = std::ranges::search(bytes, kScriptMarker, [&](char a, char b) {
    return page.Fold(static_cast<unsigned char>(a)) == page.Fold(static_cast<unsigned char>(b));
  });
  if (marker.empty()) return {};
  return page.Decode(bytes.substr(static_cast<std::size_t>(marker.end() - bytes.begin())));
}

ProjectScript ProjectReader::Script() const {
  ProjectScript script;
  script.content = SplitFirstLine(ScriptText(), script.language);
  return script;
}

Ref<Picture> ProjectReader::Image() const {
  const SectionReader section = Section(kImageSection);
  std::vector<OleColor> colors;
  std::int64_t sum = 0;
  const bool isRead = BestEffort([&] {
    for (std::size_t i = 0; i < kImageSize * kImageSize; ++i) {
      colors.push_back(ToLong(Val(section.GetText(PixelKey(i), u"-1"))));
      sum += colors.back();
    }
  });
  if (!isRead || sum < 0) return nullptr;  // without the section every pixel reads -1
  return MakeBitmap(kImageSize, kImageSize, colors);
}

Text SplitFirstLine(std::u16string_view text, Text& first) {
  const std::u16string whole(text);  // `text` may be that of `first`
  std::u16string_view rest = whole;
  first = Text();
  std::size_t end = rest.find(u'\r');
  if (end == rest.npos) end = rest.find(u'\n');
  if (end == rest.npos) return rest;

  first = WithoutLineEnds(rest.substr(0, end));
  rest.remove_prefix(end + 1);
  if (rest.starts_with(u'\r')) rest.remove_prefix(1);
  if (rest.starts_with(u'\n')) rest.remove_prefix(1);
  return rest;
}

Ref<Picture> MakeBitmap(int width, int height, std::span<const OleColor> colors) {
  if (width <= 0 || height <= 0) return nullptr;
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  if (colors.size() < count) return nullptr;
  std::vector<OleColor> pixels(colors.begin(), colors.begin() + static_cast<std::ptrdiff_t>(count));
  for (OleColor& pixel : pixels) pixel &= 0x00FFFFFF;  // a bitmap holds three bytes of each
  return MakeRef<Picture>(width, height, std::move(pixels));
}

}  // namespace cardwright
