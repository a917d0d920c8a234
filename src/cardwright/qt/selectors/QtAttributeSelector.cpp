// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/QtAttributeSelector.h"

#include "cardwright/qt/selectors/QtThemeSelector.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/QtComboBox.h"
#include "cardwright/shared/OrvClient.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kAttributeSelector =
    MakeFieldKind(u"AttributeSelector", MouseUse::LeftButton, ClickSource::Widget);

constexpr std::int32_t kTypes = 3;

FeatureTypeEnum ToFeatureType(std::int32_t type) {
  return type >= 0 && type < kTypes ? static_cast<FeatureTypeEnum>(type) : FeatureTypeEnum::ftNone;
}

/// The toolkit's adapter of a widget; null for null, error 380 where it is none of this toolkit's.
template <class T, class Base>
Ref<T> AdapterOf(const Ref<Base>& widget) {
  if (!widget) return nullptr;
  auto* const adapter = dynamic_cast<T*>(widget.get());
  if (!adapter) Raise(ErrorNumber::InvalidPropertyValue);
  return adapter;
}

QString TypeText(const AttributeRecord& attribute) {
  if (attribute.type == AttributeTypeEnum::atNumeric)
    return attribute.decimals < 1 ? QObject::tr("Whole number") : QObject::tr("Number");
  return attribute.length > 0 ? QObject::tr("Text (%1)").arg(attribute.length) : QObject::tr("Text");
}

}  // namespace

QtAttributeSelector::QtAttributeSelector(WidgetPlace place) : QtHostList(kAttributeSelector, place) {
  List().describesLater = true;
  List().describe = [this](const ListEntry& entry) { return Describe(entry); };
}

std::int32_t QtAttributeSelector::FeatureType() const { return Live(m_FeatureType); }

void QtAttributeSelector::SetFeatureType(std::int32_t type) {
  RequireAlive();
  if (type == m_FeatureType) return;
  m_FeatureType = type;
  if (m_Themes) RefreshAttributes();
}

void QtAttributeSelector::LinkThemeSelector(Ref<ThemeSelectorWidget> themes) {
  Live(m_Themes) = AdapterOf<QtThemeSelector>(themes);
  QObject::disconnect(m_ThemeLink);
  if (m_Themes) Follow(m_ThemeLink, m_Themes->Choice());
}

void QtAttributeSelector::LinkFeatureSelector(Ref<ComboWidget> types) {
  Live(m_Types) = AdapterOf<QtComboBox>(types);
  QObject::disconnect(m_TypeLink);
  if (m_Types) Follow(m_TypeLink, m_Types->Choice());
}

/// A host that fails its request must not unwind the toolkit's event loop; the list then stays.
void QtAttributeSelector::Follow(QMetaObject::Connection& link, const ChoiceNotice& choice) {
  link = QObject::connect(&choice, &ChoiceNotice::Changed, this,
                          [this] { BestEffort([&] { RefreshAttributes(); }); });
}

/// An entry of the combo box beyond the third is no feature type.
std::int32_t QtAttributeSelector::EffectiveType() const {
  const int chosen = m_Types && m_Types->Native() ? m_Types->ListIndex() : -1;
  return chosen >= 0 && chosen < kTypes ? chosen : m_FeatureType;
}

FeatureClass QtAttributeSelector::CurrentSource() const {
  return {m_Themes && m_Themes->Native() ? m_Themes->DisplayText() : Text(), ToFeatureType(EffectiveType())};
}

void QtAttributeSelector::RefreshAttributes() {
  RequireAlive();
  const HandlerScope scope(*this);
  const FeatureClass source = CurrentSource();
  std::vector<ListEntry> entries;
  for (const ListedAttribute& attribute : OrvClient::At(ConnectionHandle()).ListAttributes(source))
    entries.push_back({attribute.name, attribute.number});
  if (!Native()) return;
  m_Listed = source;
  SetEntries(std::move(entries));
}

QString QtAttributeSelector::Describe(const ListEntry& entry) const {
  QString text;
  BestEffort([&] {
    const auto attribute = OrvClient::At(ConnectionHandle()).Describe(m_Listed, {entry.name, entry.data});
    if (attribute) text = TypeText(*attribute);
  });
  return text;
}

}  // namespace cardwright::qt
