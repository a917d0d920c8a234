// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/EditorIcons.h"

#include <algorithm>

#include "cardwright/automation/Text.h"
#include "cardwright/qt/values/IconEngine.h"

namespace cardwright::qt {

namespace {

void Lens(const IconInk& ink, qreal x, qreal y) {
  ink.painter.drawEllipse(QPointF(x, y), 3.6, 3.6);
  ink.painter.drawLine(QPointF(x + 2.7, y + 2.7), QPointF(x + 6, y + 6));
}

void Disk(const IconInk& ink) {
  ink.Filled();
  ink.painter.drawRoundedRect(QRectF(2, 2, 12, 12), 1, 1);
  ink.Lines();
  ink.painter.drawRect(QRectF(5, 2, 6, 4));
  ink.painter.drawRect(QRectF(4.5, 9, 7, 5));
}

void FindNext(const IconInk& ink) {
  Lens(ink, 6, 6);
  ink.Accent();
  ink.painter.drawPolyline(QPolygonF{{3, 13.5}, {8, 13.5}});
  ink.painter.drawPolyline(QPolygonF{{6.2, 11.8}, {8, 13.5}, {6.2, 15.2}});
}

void Swap(const IconInk& ink) {
  ink.painter.drawPolyline(QPolygonF{{2.5, 5}, {12, 5}});
  ink.painter.drawPolyline(QPolygonF{{9.5, 2.5}, {12, 5}, {9.5, 7.5}});
  ink.Accent();
  ink.painter.drawPolyline(QPolygonF{{13.5, 11}, {4, 11}});
  ink.painter.drawPolyline(QPolygonF{{6.5, 8.5}, {4, 11}, {6.5, 13.5}});
}

void Sliders(const IconInk& ink) {
  constexpr qreal kRows[] = {4, 8, 12};
  constexpr qreal kKnobs[] = {10.5, 5.5, 9};
  for (const qreal y : kRows) ink.painter.drawLine(QPointF(2.5, y), QPointF(13.5, y));
  ink.Accent();
  ink.painter.setBrush(ink.background);
  for (int i = 0; i < 3; ++i) ink.painter.drawEllipse(QPointF(kKnobs[i], kRows[i]), 1.8, 1.8);
}

void Letter(const IconInk& ink, const QString& letter) {
  QFont font = ink.painter.font();
  font.setPixelSize(9);
  font.setBold(true);
  ink.painter.setFont(font);
  ink.painter.drawText(QRectF(0, 0, 16, 16), Qt::AlignCenter, letter);
}

void Info(const IconInk& ink) {
  ink.painter.drawEllipse(QRectF(2, 2, 12, 12));
  ink.Accent();
  Letter(ink, QStringLiteral("i"));
}

// A command goes out; a request comes back with something.
void Arrow(const IconInk& ink, bool comesBack) {
  ink.Filled();
  ink.painter.drawRoundedRect(QRectF(2, 3, 12, 10), 1.5, 1.5);
  ink.Accent();
  const qreal tip = comesBack ? 5 : 11;
  const qreal wing = comesBack ? 7.2 : 8.8;
  ink.painter.drawLine(QPointF(5, 8), QPointF(11, 8));
  ink.painter.drawPolyline(QPolygonF{{wing, 5.8}, {tip, 8}, {wing, 10.2}});
}

struct EditorDrawing {
  std::u16string_view key;
  IconEngine::Draw draw;
};

constexpr EditorDrawing kEditorDrawings[] = {
    {u"save", &Disk},
    {u"find", [](const IconInk& ink) { Lens(ink, 7, 7); }},
    {u"findnext", &FindNext},
    {u"subst", &Swap},
    {u"undo", [](const IconInk& ink) { ink.DrawTurn(true); }},
    {u"redo", [](const IconInk& ink) { ink.DrawTurn(false); }},
    {u"props", &Sliders},
    {u"help", &Info},
    {u"method", [](const IconInk& ink) { Arrow(ink, false); }},
    {u"function", [](const IconInk& ink) { Arrow(ink, true); }},
};

}  // namespace

QIcon EditorIcon(std::u16string_view key) {
  const auto* const drawing = std::ranges::find_if(
      kEditorDrawings, [&](const EditorDrawing& each) { return EqualsNoCase(each.key, key); });
  return drawing == std::end(kEditorDrawings) ? QIcon() : QIcon(new IconEngine(drawing->draw));
}

}  // namespace cardwright::qt
