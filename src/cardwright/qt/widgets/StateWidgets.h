// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/QtWidget.h"

class QButtonGroup;
class QCheckBox;
class QRadioButton;

namespace cardwright::qt {

/// A check box. Only code makes it grey; a click on a grey one clears it.
class QtCheckBox final : public QtWidget<StateWidget> {
 public:
  explicit QtCheckBox(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;
  int State() const override;
  /// Error 380 outside 0 to 2.
  void SetState(int state) override;
  bool IsOption() const override { return false; }

 private:
  QCheckBox* m_Box;
};

/// An option button; of those in the same container one at most is selected.
class QtOptionButton final : public QtWidget<StateWidget> {
 public:
  explicit QtOptionButton(WidgetPlace place);
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;
  int State() const override;
  void SetState(int state) override;
  bool IsOption() const override { return true; }

 private:
  QRadioButton* m_Button;
  QButtonGroup* m_Group;
};

}  // namespace cardwright::qt
