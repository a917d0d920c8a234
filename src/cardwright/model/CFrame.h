// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/model/Control.h"

namespace cardwright {

/// A captioned box that contains other controls. On the design surface a new control can be drawn inside it.
class CFrame final : public Control {
 public:
  static const ClassTable kTable;
  CFrame() : Control(kTable) {}

 protected:
  void OnClick() override;
  void OnMouseDown(int button, int shift, float x, float y) override;
  void OnMouseMove(int button, int shift, float x, float y) override;
  void OnMouseUp(int button, int shift, float x, float y) override;

 private:
  struct Tables;
  bool IsDrawing() const;

  /// The press that starts a drawing is followed by a click, which must not select the frame.
  bool m_ClickConsumed = false;
};

}  // namespace cardwright
