// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

#include "cardwright/qt/widgets/QtWidget.h"

namespace cardwright::qt {

/// A box that is drawn on in a scale of its own. With AutoRedraw the drawing stays; without it, it is gone
/// with the next repaint.
class QtPictureBox final : public QtWidget<PictureWidget> {
 public:
  explicit QtPictureBox(WidgetPlace place);

  Text TypeName() const override { return u"PictureBox"; }
  /// A picture box has no text: reading gives "", setting is error 438.
  Text DisplayText() const override;
  void SetDisplayText(const Text& text) override;
  void SetBackColor(OleColor color) override;

  void SetScale(ScaleMode mode) override { m_Scale = mode; }
  float ScaleWidth() const override;
  float ScaleHeight() const override;
  void SetAutoRedraw(bool keep) override { m_AutoRedraw = keep; }
  /// Error 380 for less than one pixel.
  void SetDrawWidth(int pixels) override;
  int DrawWidth() const override { return m_DrawWidth; }
  void Cls() override;
  void DrawBox(float left, float top, float right, float bottom, OleColor color) override;

 private:
  class Box;

  /// The drawing in the size that the box has now.
  QPixmap& Drawing();

  Box* m_Box;
  QPixmap m_Drawing;
  ScaleMode m_Scale = ScaleMode::Pixels;
  bool m_AutoRedraw = false;
  int m_DrawWidth = 1;
};

}  // namespace cardwright::qt
