#pragma once

#include <QLabel>

#include "cardwright/qt/widgets/QtWidget.h"

namespace cardwright::qt {

/// The viewer of a table, which authors draw for its own sake: an empty sheet. No form holds one.
class QtDbTableViewer final : public QtWidget<CaptionWidget> {
 public:
  explicit QtDbTableViewer(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

 private:
  QLabel* m_Sheet;
};

}  // namespace cardwright::qt
