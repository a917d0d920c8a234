// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/selectors/QtHostList.h"

namespace cardwright::qt {

/// The themes of a connection, each with the icon and the name of its feature type, and after them a row that
/// creates one.
class QtThemeSelector final : public QtHostList<ThemeSelectorWidget> {
 public:
  explicit QtThemeSelector(WidgetPlace place);

  void SetConnectionHandle(std::int32_t handle) override;
  Text CreateThemeText() const override;
  void SetCreateThemeText(const Text& text) override;
  void RefreshThemes() override;

 private:
  void OnActivated(int row) override;
  void OfferNewTheme();
  void CreateNewTheme();

  Text m_CreateThemeText;
};

}  // namespace cardwright::qt
