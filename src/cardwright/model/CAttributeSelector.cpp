// SPDX-License-Identifier: MIT
#include "cardwright/model/CAttributeSelector.h"

#include "cardwright/model/WidgetFields.h"

namespace cardwright {
namespace {

/// The widget of a control of that name; null where it is of another kind.
template <class Kind>
Ref<Kind> LinkedWidget(const Collection& controls, const Text& userName) {
  const IControl* control = FindControl(controls, userName);
  return Ref<Kind>(control ? dynamic_cast<Kind*>(control->BoundObject().get()) : nullptr);
}

}  // namespace

struct CAttributeSelector::Tables {
  using W = AttributeSelectorWidget;
  using enum PropertyTypeEnum;
  static constexpr std::u16string_view kTypes[] = {u"Points", u"Arcs", u"Polygons"};

  static constexpr Field kText{rows::GetCaption, SelectText};
  static constexpr Field kStoredText{StoredText, nullptr};
  // A link that is set in the grid takes effect at once, so that the author can choose from the list. A link
  // in a project is only a name: its target may come later in the file.
  template <auto Member>
  static constexpr Field Link{Stored<Member>.get, [](TableControl& c, const Variant& name) {
                                Stored<Member>.set(c, name);
                                if (!c.Designer()) return;
                                BestEffort([&] { c.AttachControls(c.Designer()->Controls()); });
                              }};
  static constexpr Field kThemes = Stored<&CAttributeSelector::m_ThemeSelectorName>;
  static constexpr Field kFeatures = Stored<&CAttributeSelector::m_FeatureSelectorName>;
  static constexpr Field kType{
      [](const TableControl& c) -> Variant { return FeatureTypeToText(BoundAs<W>(c).FeatureType()); },
      [](TableControl& c, const Variant& text) {
        BoundAs<W>(c).SetFeatureType(FeatureTypeFromText(ToText(text)));
      }};
  // A number in projects; the text of a type is accepted too.
  static constexpr Field kStoredType{
      [](const TableControl& c) -> Variant { return BoundAs<W>(c).FeatureType(); },
      [](TableControl& c, const Variant& stored) {
        const std::int32_t named = FeatureTypeFromText(ToText(stored));
        BoundAs<W>(c).SetFeatureType(named < 0 ? ToLong(Variant(Val(ToText(stored)))) : named);
      }};

  static constexpr auto kRows =
      Rows(rows::Name, PropertyRow{u"Text", ptString, messages::SelectedTextHelp, kText}, rows::BackColor,
           rows::Font, rows::Left, rows::Top, rows::Width, rows::ForeColor,
           PropertyRow{.name = u"ThemeSelectorName",
                       .type = ptControls,
                       .description = messages::ThemeSelectorNameHelp,
                       .field = Link<&CAttributeSelector::m_ThemeSelectorName>,
                       .links = ControlTypeEnum::ctThemeSelector},
           PropertyRow{u"FeatureType", ptList, messages::FeatureTypeHelp, kType, kTypes},
           PropertyRow{.name = u"FeatureSelectorName",
                       .type = ptControls,
                       .description = messages::FeatureSelectorNameHelp,
                       .field = Link<&CAttributeSelector::m_FeatureSelectorName>,
                       .links = ControlTypeEnum::ctComboBox},
           rows::Attribute, rows::IsNeeded);
  // Text selects an entry: it is read last.
  static constexpr auto kKeys =
      Keys(keys::Key(u"Text", kStoredText), keys::BackColor, keys::Font, keys::GeometryWithoutHeight,
           keys::ForeColor, keys::Key(u"ThemeSelectorName", kThemes), keys::Key(u"FeatureType", kStoredType),
           keys::Key(u"FeatureSelectorName", kFeatures), keys::Attribute, keys::IsNeeded);
  static constexpr auto kEvents = EventNames(u"OnClick");
};

constinit const ClassTable CAttributeSelector::kTable =
    DefineClass<Tables::kRows, kNoRows, Tables::kKeys, Tables::kEvents>(
        {.className = u"CAttributeSelector",
         .type = ControlTypeEnum::ctAttributeSelector,
         .typeText = u"attributeselector",
         .widgetIdentifier = u"CardwrightCtrl.AttributeSelector",
         .create = MakeControl<CAttributeSelector>,
         .design = {.displayName = "Attribute selector",
                    .defaultWidth = 144,
                    .defaultHeight = 24,
                    .hasFixedHeight = true},
         .value = {.row = u"Text", .requiredRow = u"Text", .followsOthers = true}});

// Without a theme selector the feature selector is not linked either: a feature type means nothing without a
// theme. The stored text was read before the links, and so before there was a list to choose from.
void CAttributeSelector::AttachControls(Collection& controls) {
  if (m_ThemeSelectorName.IsEmpty() || !Bound()) return;
  HandOverConnection();
  LinkWidgets(controls);
  ChoosePending();
}

void CAttributeSelector::LinkWidgets(const Collection& controls) {
  auto& selector = BoundAs<AttributeSelectorWidget>(*this);
  if (const auto themes = LinkedWidget<ThemeSelectorWidget>(controls, m_ThemeSelectorName)) {
    selector.LinkThemeSelector(themes);
    selector.RefreshAttributes();
  }
  if (m_FeatureSelectorName.IsEmpty()) return;
  if (const auto types = LinkedWidget<ComboWidget>(controls, m_FeatureSelectorName)) {
    selector.LinkFeatureSelector(types);
    selector.RefreshAttributes();
  }
}

void CAttributeSelector::LinkControlNameChanged(const Text& oldName, const Text& newName) {
  for (Text* name : {&m_ThemeSelectorName, &m_FeatureSelectorName})
    if (!name->IsEmpty() && EqualsNoCase(*name, oldName)) *name = newName;
}

void CAttributeSelector::LinkControlDelete(Collection& controls) {
  for (Text* name : {&m_ThemeSelectorName, &m_FeatureSelectorName})
    if (!FindControl(controls, *name)) *name = Text();
}

}  // namespace cardwright
