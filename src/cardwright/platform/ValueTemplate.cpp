// SPDX-License-Identifier: MIT
#include "cardwright/platform/ValueTemplate.h"

#include <optional>
#include <string>

#include "cardwright/automation/Conversions.h"
#include "cardwright/platform/Scale.h"

namespace cardwright {

namespace {

constexpr double kTwipsPerPoint = 20;

Text Whole(double number) { return ToText(Variant(ToLong(Variant(number)))); }
Text Flag(bool set) { return set ? u"True" : u"False"; }

struct FontAndColor {
  const FontValues* font;  // null in the template of a colour
  OleColor color;
};

struct Placeholder {
  std::u16string_view name;  // without its marks
  Text (*value)(const FontAndColor& chosen);
};

template <int Shift>
Text Component(const FontAndColor& chosen) {
  return Whole((chosen.color >> Shift) & 0xFF);
}

constexpr Placeholder kComponents[] = {
    {u"r", Component<0>},
    {u"g", Component<8>},
    {u"b", Component<16>},
};

constexpr Placeholder kOfColor[] = {
    {u"c", [](const FontAndColor& chosen) { return Whole(chosen.color); }},
};

constexpr Placeholder kOfFont[] = {
    {u"n", [](const FontAndColor& chosen) { return chosen.font->name; }},
    {u"s", [](const FontAndColor& chosen) { return FormatDouble(chosen.font->size); }},
    {u"spx",
     [](const FontAndColor& chosen) { return Whole(chosen.font->size * kTwipsPerPoint / kTwipsPerPixel); }},
    {u"stw", [](const FontAndColor& chosen) { return Whole(chosen.font->size * kTwipsPerPoint); }},
    {u"bold", [](const FontAndColor& chosen) { return Flag(chosen.font->bold); }},
    {u"italic", [](const FontAndColor& chosen) { return Flag(chosen.font->italic); }},
    {u"underline", [](const FontAndColor& chosen) { return Flag(chosen.font->underline); }},
    {u"strikethrough", [](const FontAndColor& chosen) { return Flag(chosen.font->strikethrough); }},
};

using Placeholders = std::span<const Placeholder>;

const Placeholder* FindPlaceholder(std::u16string_view name, Placeholders own) {
  for (const Placeholders& list : {own, Placeholders(kComponents)})
    for (const Placeholder& each : list)
      if (EqualsNoCase(each.name, name)) return &each;
  return nullptr;
}

Text Fill(std::u16string_view mask, Placeholders own, const FontAndColor& chosen) {
  std::u16string filled;
  while (true) {
    const std::size_t open = mask.find(u'%');
    filled += mask.substr(0, open);
    if (open == mask.npos) return Text(filled);
    mask.remove_prefix(open);
    const std::size_t close = mask.find(u'%', 1);
    const Placeholder* const named =
        close == mask.npos ? nullptr : FindPlaceholder(mask.substr(1, close - 1), own);
    if (named) filled += named->value(chosen).View();
    // A "%" that opens no placeholder may precede one that does: "%%r%".
    if (!named) filled += u'%';
    mask.remove_prefix(named ? close + 1 : 1);
  }
}

}  // namespace

Text FillColorTemplate(std::u16string_view mask, OleColor color) {
  return Fill(mask, kOfColor, {nullptr, color});
}

Text FillFontTemplate(std::u16string_view mask, const FontValues& font, OleColor color) {
  return Fill(mask, kOfFont, {&font, color});
}

}  // namespace cardwright
