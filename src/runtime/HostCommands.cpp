#include "runtime/HostCommands.h"

#include <array>

#include "automation/Conversions.h"

namespace cardwright::commands {
namespace {

struct Placeholder {
  std::u16string_view mark;
  std::u16string_view value;
};

// Placeholders are replaced one after the other over the whole text, so a theme named like a later one is
// filled in again; hosts never meet such a theme.
template <class... Others>
Text Fill(std::u16string_view pattern, const FeaturePlace& place, Others... others) {
  Text command(pattern);
  for (const Placeholder& each : {Placeholder{u"%%t%%", place.theme},
                                  Placeholder{u"%%ft%%", place.featureType}, Placeholder(others)...})
    if (FindNoCase(command, each.mark) != std::u16string_view::npos)
      command = Replace(command, each.mark, each.value, true);
  return command;
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
