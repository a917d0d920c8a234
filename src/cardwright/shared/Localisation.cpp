// SPDX-License-Identifier: MIT
#include "cardwright/shared/Localisation.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/shared/Messages.h"

namespace cardwright {
namespace {

std::int32_t NumberIn(std::u16string_view text) { return ToLong(Val(text)); }

// 1-based search of the platform: 0 for no hit. A start after the text finds nothing.
std::size_t InStr(std::size_t start, std::u16string_view text, char16_t c) {
  const std::size_t at = text.find(c, start - 1);
  return at == text.npos ? 0 : at + 1;
}

std::u16string_view MidFrom(std::u16string_view text, std::size_t start) {
  return start > text.size() ? std::u16string_view() : text.substr(start - 1);
}

// The walk is made for one pair "key:number". It continues after a ";" with positions counted in the
// shortened text, as translated tags were written against it. Some tags lead it in a circle; it ends where
// that closes.
void TranslateButton(Object& button) {
  const Text tag = ToText(GetProperty(button, u"Tag"));
  std::size_t position = 0;
  std::u16string_view rest = tag;
  std::vector<std::pair<std::size_t, std::size_t>> seen;
  do {
    const std::pair<std::size_t, std::size_t> state(position, rest.size());
    if (std::ranges::find(seen, state) != seen.end()) return;
    seen.push_back(state);

    position = InStr(position + 1, rest, u':');
    const std::u16string_view key = position > 0 ? rest.substr(0, position - 1) : std::u16string_view();
    const bool isTooltip = EqualsNoCase(Trim(key), u"tooltip");
    rest = MidFrom(tag, position + 1);
    BestEffort(
        [&] { LetProperty(button, isTooltip ? u"TooltipText" : u"Caption", GetMessage(NumberIn(rest))); });
    position = InStr(position + 1, rest, u';');
  } while (position > 0);
}

void TranslateToolbar(Object& toolbar) {
  const Variant buttons = GetProperty(toolbar, u"Buttons");
  const auto each = RequireObject(buttons).Enumerate();
  for (Variant button; each->Next(button);) {
    BestEffort([&] { TranslateButton(RequireObject(button)); });
  }
}

void TranslateTagged(Object& widget, std::u16string_view property) {
  Text param;
  const std::int32_t id = ParseCaptionTag(widget, param);
  LetProperty(widget, property, GetMessage(id, {param}));
}

constexpr std::array<std::u16string_view, 6> kCaptionTypes = {
    u"label", u"optionbutton", u"checkbox", u"commandbutton", u"flatcommandbutton", u"frame",
};

void TranslateControl(Object& widget) {
  const Text type = ToLower(widget.TypeName());
  if (type == u"menu") {
    LetProperty(widget, u"Caption", GetMessage(NumberIn(ToText(GetProperty(widget, u"Caption")))));
  } else if (type == u"toolbar") {
    TranslateToolbar(widget);
  } else if (type == u"textbox") {
    TranslateTagged(widget, u"Text");
  } else if (std::ranges::find(kCaptionTypes, type.View()) != kCaptionTypes.end()) {
    TranslateTagged(widget, u"Caption");
  }
}

}  // namespace

std::int32_t ParseCaptionTag(Object& widget, Text& param) {
  const Text tag = ToText(GetProperty(widget, u"Tag"));
  std::u16string_view head = tag;
  std::u16string_view rest = tag;
  constexpr std::u16string_view kBar = u" | ";
  if (const std::size_t bar = head.find(kBar); bar != head.npos) {
    rest = head.substr(bar + kBar.size());
    head = head.substr(0, bar);
  }
  // Without a ":" the number is that of the rest, so a tag with a bar needs one.
  const std::size_t colon = head.find(u':');
  const bool hasParam = colon != head.npos;
  const std::int32_t id = NumberIn(hasParam ? head.substr(0, colon) : rest);
  param = hasParam ? head.substr(colon + 1) : std::u16string_view();
  LetProperty(widget, u"Tag", rest);
  return id;
}

void TranslateControls(std::span<const Ref<Object>> widgets) {
  for (const Ref<Object>& widget : widgets) {
    BestEffort([&] {
      if (widget) TranslateControl(*widget);
    });
  }
}

}  // namespace cardwright
