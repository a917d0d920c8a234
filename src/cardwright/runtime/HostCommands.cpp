#include "cardwright/runtime/HostCommands.h"

#include <algorithm>
#include <span>
#include <string>

#include "cardwright/automation/Conversions.h"

namespace cardwright::commands {
namespace {

struct Placeholder {
  std::u16string_view mark;
  std::u16string_view value;
};
using Placeholders = std::span<const Placeholder>;

// Placeholders are replaced one after the other over the whole text, so a theme named like a later one is
// filled in again.
Text ReplaceOneByOne(std::u16string_view pattern, Placeholders placeholders) {
  Text command(pattern);
  for (const Placeholder& each : placeholders) command = Replace(command, each.mark, each.value, true);
  return command;
}

// The same for values that name no placeholder themselves, as nearly all do: a form sends a few hundred
// commands to open one feature.
Text FillInOnePass(std::u16string_view pattern, Placeholders placeholders) {
  static thread_local std::u16string command;
  command.clear();
  while (true) {
    const std::size_t mark = pattern.find(u"%%");
    command += pattern.substr(0, mark);
    if (mark == pattern.npos) return Text(command);
    pattern.remove_prefix(mark);
    const auto named = std::ranges::find_if(
        placeholders, [&](const Placeholder& each) { return pattern.starts_with(each.mark); });
    command += named->value;
    pattern.remove_prefix(named->mark.size());
  }
}

template <class... Others>
Text Fill(std::u16string_view pattern, const FeaturePlace& place, Others... others) {
  const Placeholder placeholders[] = {{u"%%t%%", place.theme}, {u"%%ft%%", place.featureType}, others...};
  const bool nested = std::ranges::any_of(
      placeholders, [](const Placeholder& each) { return each.value.find(u"%%") != each.value.npos; });
  return nested ? ReplaceOneByOne(pattern, placeholders) : FillInOnePass(pattern, placeholders);
}

}  // namespace

Text SelectByValue(const FeaturePlace& place, const Text& id) {
  return Fill(u"THEME_SELECTION_BYVALUE |%%t%%| |%%ft%%| OVTARVOUNIQUEID = %%id%% NEW", place,
              Placeholder{u"%%id%%", id});
}
Text SelectedNumber(const FeaturePlace& place) {
  return Fill(u"THEME_SELECTED_NUMBER |%%t%%| |%%ft%%|", place);
}
Text MoveFirst(const FeaturePlace& place) { return Fill(u"THEME_MOVEFIRST |%%t%%| |%%ft%%|", place); }
Text CurrentIsValid(const FeaturePlace& place) {
  return Fill(u"THEME_CURRENT_ISVALID |%%t%%| |%%ft%%|", place);
}
Text SelectNone(const FeaturePlace& place) { return Fill(u"THEME_SELECTION_NONE |%%t%%| |%%ft%%|", place); }
Text ThemeNumber(const Text& theme) { return Fill(u"THEME_NUMBER |%%t%%|", {theme, {}}); }
Text CreateTheme(const FeaturePlace& place) { return Fill(u"THEME_CREATE |%%t%%| |%%ft%%|", place); }
Text AttributeNames(const FeaturePlace& place) {
  return Fill(u"THEME_ATTRIBUTE_NAMES |%%t%%| |%%ft%%|", place);
}
Text AttributeNumber(const FeaturePlace& place) {
  return Fill(u"THEME_ATTRIBUTE_NUMBER |%%t%%| |%%ft%%|", place);
}
Text Attribute(const FeaturePlace& place, int number) {
  return Fill(u"THEME_ATTRIBUTE |%%t%%| |%%ft%%| %%n%%", place,
              Placeholder{u"%%n%%", ToText(Variant(std::int32_t{number}))});
}
Text GetAttribute(const FeaturePlace& place, const Text& name) {
  return Fill(u"THEME_GET_ATTRIBUTE |%%t%%| |%%ft%%| |%%na%%|", place, Placeholder{u"%%na%%", name});
}
Text SetAttribute(const FeaturePlace& place, const Text& name, const Text& value) {
  return Fill(u"THEME_SET_ATTRIBUTE |%%t%%| |%%ft%%| |%%na%%| %%v%%", place, Placeholder{u"%%na%%", name},
              Placeholder{u"%%v%%", value});
}

}  // namespace cardwright::commands
