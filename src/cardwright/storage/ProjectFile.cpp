#include "cardwright/storage/ProjectFile.h"

#include <algorithm>
#include <string>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/platform/Files.h"
#include "cardwright/storage/CIni.h"
#include "cardwright/storage/CodePage.h"
#include "cardwright/storage/IniBatch.h"
#include "cardwright/storage/IniStore.h"

namespace cardwright {
namespace {

constexpr std::string_view kScriptMarker = "[SCRIPT]\r\n";
constexpr std::string_view kTailLineEnd = "\r\n";
constexpr std::u16string_view kForm = u"FORM";
constexpr std::u16string_view kFormImage = u"FORM_IMAGE";
constexpr std::u16string_view kShowMenu = u"ShowMenu";
constexpr int kImageSize = 16;

bool IsProject(std::u16string_view fileName) { return !fileName.empty() && FileExists(fileName); }

Ref<CIni> OpenIni(std::u16string_view fileName) {
  auto ini = MakeRef<CIni>();
  ini->SetFileName(fileName);
  return ini;
}

Text PixelKey(std::size_t index) { return Text(u"p") + ToText(static_cast<std::int32_t>(index)); }

Text WithoutLineEnds(std::u16string_view line) {
  std::u16string kept;
  std::ranges::remove_copy_if(line, std::back_inserter(kept),
                              [](char16_t c) { return c == u'\r' || c == u'\n'; });
  return kept;
}

}  // namespace

Text ReadScriptSection(std::u16string_view fileName) {
  if (!IsProject(fileName)) return {};
  const Ref<IniStore> store = IniStore::Open(fileName);
  if (!store) return {};
  const std::string_view bytes = store->Bytes();
  const CodePage& page = CodePage::Current();
  const auto marker = std::ranges::search(bytes, kScriptMarker, [&](char a, char b) {
    return page.Fold(static_cast<unsigned char>(a)) == page.Fold(static_cast<unsigned char>(b));
  });
  if (marker.empty()) return {};
  return page.Decode(bytes.substr(static_cast<std::size_t>(marker.end() - bytes.begin())));
}

// Like the other writes it goes through a batch, even of one change: each replaces the whole project, which
// is to outlive a power cut.
void WriteScriptSection(std::u16string_view fileName, std::u16string_view language,
                        std::u16string_view content) {
  if (!IsProject(fileName)) return;
  const Ref<IniStore> store = IniStore::Open(fileName);
  if (!store) return;
  IniBatch batch{Text(fileName)};
  const CodePage& page = CodePage::Current();
  std::string tail(kScriptMarker);
  tail += page.Encode(language);
  tail += kTailLineEnd;
  tail += page.Encode(content);
  tail += kTailLineEnd;
  store->Change([&](IniFile& file) { return file.Append(tail); });
  batch.Commit();
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

Ref<Picture> GetFormImage(std::u16string_view fileName) {
  if (!IsProject(fileName)) return nullptr;
  const Ref<CIni> ini = OpenIni(fileName);
  std::vector<OleColor> colors;
  std::int64_t sum = 0;
  const bool isRead = Attempt([&] {
    for (std::size_t i = 0; i < kImageSize * kImageSize; ++i) {
      colors.push_back(ToLong(Val(ini->GetText(kFormImage, PixelKey(i), u"-1"))));
      sum += colors.back();
    }
  });
  if (!isRead || sum < 0) return nullptr;  // without the section every pixel reads -1
  return MakeBitmap(kImageSize, kImageSize, colors);
}

void SaveFormImage(std::u16string_view fileName, const Picture* picture) {
  if (!IsProject(fileName)) return;
  IniBatch batch{Text(fileName)};
  const Ref<CIni> ini = OpenIni(fileName);
  Attempt([&] { ini->DeleteSection(kFormImage); });
  if (picture) {
    const std::vector<OleColor>& pixels = picture->Pixels();
    for (std::size_t i = 0; i < pixels.size(); ++i) ini->WriteValue(kFormImage, PixelKey(i), pixels[i]);
  }
  batch.Commit();
}

Ref<Picture> MakeBitmap(int width, int height, std::span<const OleColor> colors) {
  if (width <= 0 || height <= 0) return nullptr;
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  if (colors.size() < count) return nullptr;
  std::vector<OleColor> pixels(colors.begin(), colors.begin() + static_cast<std::ptrdiff_t>(count));
  for (OleColor& pixel : pixels) pixel &= 0x00FFFFFF;  // a bitmap holds three bytes of each
  return MakeRef<Picture>(width, height, std::move(pixels));
}

bool GetShowMenu(std::u16string_view fileName) {
  if (!IsProject(fileName)) return false;
  return AttemptOr(false, [&] { return Val(OpenIni(fileName)->GetText(kForm, kShowMenu, u"0")) != 0; });
}

void SetShowMenu(std::u16string_view fileName, bool value) {
  if (!IsProject(fileName)) return;
  IniBatch batch{Text(fileName)};
  OpenIni(fileName)->WriteValue(kForm, kShowMenu, std::int32_t{value});
  batch.Commit();
}

}  // namespace cardwright
