// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaObject>

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/selectors/QtHostList.h"
#include "cardwright/shared/FeatureTypes.h"

namespace cardwright::qt {

class QtComboBox;
class QtThemeSelector;

/// The attributes of the theme that a linked theme selector shows, each with its type. It follows the theme
/// selector and a linked combo box of feature types: their listeners find the new list already.
class QtAttributeSelector final : public QtHostList<AttributeSelectorWidget> {
 public:
  explicit QtAttributeSelector(WidgetPlace place);

  std::int32_t FeatureType() const override;
  void SetFeatureType(std::int32_t type) override;
  /// Error 380 for a widget of another toolkit.
  void LinkThemeSelector(Ref<ThemeSelectorWidget> themes) override;
  void LinkFeatureSelector(Ref<ComboWidget> types) override;
  void RefreshAttributes() override;

 private:
  /// Whose attributes are listed.
  FeatureClass CurrentSource() const;
  std::int32_t EffectiveType() const;
  QString Describe(const ListEntry& entry) const;
  void Follow(QMetaObject::Connection& link, const ChoiceNotice& choice);

  Ref<QtThemeSelector> m_Themes;
  Ref<QtComboBox> m_Types;
  QMetaObject::Connection m_ThemeLink, m_TypeLink;
  FeatureClass m_Listed;
  std::int32_t m_FeatureType = 0;
};

}  // namespace cardwright::qt
