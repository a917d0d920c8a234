#pragma once

#include <QLabel>

#include "cardwright/qt/QtWidget.h"

namespace cardwright::qt {

/// The viewer of a table, which authors draw for its own sake: an empty sheet. No form holds one.
class DbTableViewerBox final : public QtWidget<CaptionWidget> {
 public:
  explicit DbTableViewerBox(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;

 private:
  QLabel* m_Sheet;
};

}  // namespace cardwright::qt
