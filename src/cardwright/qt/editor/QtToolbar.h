// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cardwright/editor/ToolbarWidget.h"
#include "cardwright/qt/widgets/QtWidget.h"

class QToolBar;

namespace cardwright::qt {

/// The toolbar of the script editor, with its two panes.
class QtToolbar final : public QtWidget<ToolbarWidget> {
 public:
  /// `onButton` hears the key of each button that the user presses.
  QtToolbar(WidgetPlace place, std::function<void(const Text& key)> onButton);

  Text TypeName() const override { return ToolbarWidget::TypeName(); }
  Ref<ToolButtons> Buttons() const override { return Live(m_Buttons); }
  /// A button's rectangle in pixels, in the toolbar; an empty one where the toolbar is too narrow for it.
  QRect RectOf(std::u16string_view key) const;
  QToolBar& Bar() const;

 private:
  class Button;

  QToolBar* m_Bar;
  Ref<ToolButtons> m_Buttons;
};

}  // namespace cardwright::qt
