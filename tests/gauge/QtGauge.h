// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/QtWidget.h"

class QProgressBar;

namespace cardwright::qt {

/// A bar; its text is the level, and "" while there is none.
class QtGauge final : public QtWidget<CaptionWidget> {
 public:
  explicit QtGauge(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

 private:
  QProgressBar* m_Bar;
};

}  // namespace cardwright::qt
