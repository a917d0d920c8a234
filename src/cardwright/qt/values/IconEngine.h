// SPDX-License-Identifier: MIT
#pragma once

#include <QIconEngine>
#include <QPainter>

namespace cardwright::qt {

/// The painter and colours for drawing an icon, in a square of 16 units.
struct IconInk {
  QPainter& painter;
  QColor line;        ///< of the text
  QColor accent;      ///< of the emphasised part
  QColor background;  ///< inside of input fields

  void Lines() const;
  void Accent() const;
  void Filled() const;
  /// The turned arrow of undo, or its mirror image of redo.
  void DrawTurn(bool back) const;
};

/// Draws an icon for each size and state.
class IconEngine final : public QIconEngine {
 public:
  using Draw = void (*)(const IconInk& ink);
  explicit IconEngine(Draw draw) : m_Draw(draw) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QIconEngine* clone() const override { return new IconEngine(m_Draw); }

 private:
  Draw m_Draw;
};

}  // namespace cardwright::qt
