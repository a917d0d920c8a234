// SPDX-License-Identifier: MIT
#include "cardwright/platform/SelectorWidgets.h"

#include "cardwright/platform/WidgetMembers.h"

namespace cardwright {

namespace {

constexpr Member kSelector[] = {
    Property<&SelectorWidget::IsLocked, &SelectorWidget::SetLocked>(u"Locked"),
};

constexpr Member kResource[] = {
    Property<&ResourceSelectorWidget::Path, &ResourceSelectorWidget::SetPath>(u"Path"),
    Property<&ResourceSelectorWidget::BackColorBkg, &ResourceSelectorWidget::SetBackColorBkg>(
        u"BackColorBkg"),
    Property<&ResourceSelectorWidget::BrowseForFolder, &ResourceSelectorWidget::SetBrowseForFolder>(
        u"BrowseForFolder"),
    Property<&ResourceSelectorWidget::Filter, &ResourceSelectorWidget::SetFilter>(u"Filter"),
    Property<&ResourceSelectorWidget::IsInputTextEnabled, &ResourceSelectorWidget::SetInputTextEnabled>(
        u"InputTextEnabled"),
    Property<&ResourceSelectorWidget::ShowSave, &ResourceSelectorWidget::SetShowSave>(u"ShowSave"),
    Property<&ResourceSelectorWidget::Title, &ResourceSelectorWidget::SetTitle>(u"Title"),
    Property<&ResourceSelectorWidget::MultiSelect, &ResourceSelectorWidget::SetMultiSelect>(u"MultiSelect"),
    Property<&ResourceSelectorWidget::StartFolder, &ResourceSelectorWidget::SetStartFolder>(u"StartFolder"),
};

constexpr Member kHostList[] = {
    Property<&HostListWidget::DisplayText, &HostListWidget::SetDisplayText>(u"Text"),
    Property<&HostListWidget::ListText>(u"List"),
    Property<&HostListWidget::ListCount>(u"ListCount"),
    Property<&HostListWidget::ListIndex, &HostListWidget::SetListIndex>(u"ListIndex"),
    Property<&HostListWidget::ItemData>(u"ItemData"),
    Property<&HostListWidget::ConnectionHandle, &HostListWidget::SetConnectionHandle>(u"TarvoHandle"),
};

constexpr Member kThemes[] = {
    Property<&ThemeSelectorWidget::CreateThemeText, &ThemeSelectorWidget::SetCreateThemeText>(
        u"CreateThemeText"),
    Method<&ThemeSelectorWidget::RefreshThemes>(u"RefreshThemes"),
};

Text ToFeatureTypeText(const AttributeSelectorWidget&, std::int32_t type) { return FeatureTypeToText(type); }
std::int32_t FromFeatureTypeText(const AttributeSelectorWidget&, Text text) {
  return FeatureTypeFromText(text);
}

constexpr Member kAttributes[] = {
    Property<&AttributeSelectorWidget::FeatureType, &AttributeSelectorWidget::SetFeatureType>(u"FeatureType"),
    Method<&ToFeatureTypeText>(u"FeatureTypeToText"),
    Method<&FromFeatureTypeText>(u"FeatureTypeFromText"),
    Method<&AttributeSelectorWidget::LinkThemeSelector>(u"LinkThemeSelector"),
    Method<&AttributeSelectorWidget::LinkFeatureSelector>(u"LinkFeatureSelector"),
    Method<&AttributeSelectorWidget::RefreshAttributes>(u"RefreshAttributes"),
};

constexpr Member kFont[] = {
    Property<&FontSelectorWidget::BackColorBkg, &FontSelectorWidget::SetBackColorBkg>(u"BackColorBkg"),
    Property<&FontSelectorWidget::Title, &FontSelectorWidget::SetTitle>(u"Title"),
    Property<&FontSelectorWidget::BorderStyle, &FontSelectorWidget::SetBorderStyle>(u"BorderStyle"),
    Property<&FontSelectorWidget::AutoSize, &FontSelectorWidget::SetAutoSize>(u"AutoSize"),
    Method<&FontSelectorWidget::Value>(u"Value"),
};

constexpr Member kColor[] = {
    Property<&ColorSelectorWidget::Color, &ColorSelectorWidget::SetColor>(u"Color"),
    Property<&ColorSelectorWidget::Title, &ColorSelectorWidget::SetTitle>(u"Title"),
    Property<&ColorSelectorWidget::BorderStyle, &ColorSelectorWidget::SetBorderStyle>(u"BorderStyle"),
    Method<&ColorSelectorWidget::Value>(u"Value"),
};

struct FeatureWords {
  std::u16string_view text;
  std::u16string_view hostWord;
};
constexpr FeatureWords kFeatureTypes[] = {
    {u"Points", u"POINT"}, {u"Arcs", u"ARC"}, {u"Polygons", u"POLYGON"}};

}  // namespace

void HostListWidget::SetDisplayText(const Text& text) {
  int found = -1;
  for (int i = 0, count = ListCount(); i < count && found < 0; ++i)
    if (EqualsNoCase(ListText(i), text)) found = i;
  SetListIndex(found);
}

Text FeatureTypeToText(std::int32_t type) {
  return type >= 0 && type < 3 ? Text(kFeatureTypes[type].text) : Text();
}

std::int32_t FeatureTypeFromText(const Text& text) {
  const auto wanted = Trim(text);
  for (std::int32_t type = 0; type < 3; ++type)
    if (EqualsNoCase(kFeatureTypes[type].text, wanted) || EqualsNoCase(kFeatureTypes[type].hostWord, wanted))
      return type;
  return -1;
}

const MemberTable& ResourceSelectorWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kSelector, kResource});
  static const MemberTable table(members, u"Path");
  return table;
}

const MemberTable& ThemeSelectorWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kSelector, kHostList, kThemes});
  static const MemberTable table(members, u"Text");
  return table;
}

const MemberTable& AttributeSelectorWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kSelector, kHostList, kAttributes});
  static const MemberTable table(members, u"Text");
  return table;
}

const MemberTable& FontSelectorWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kSelector, kFont});
  static const MemberTable table(members, u"Value");
  return table;
}

const MemberTable& ColorSelectorWidget::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kSelector, kColor});
  static const MemberTable table(members, u"Color");
  return table;
}

}  // namespace cardwright
