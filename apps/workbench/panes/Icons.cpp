// SPDX-License-Identifier: MIT
#include "workbench/panes/Icons.h"

#include "cardwright/qt/values/IconEngine.h"

namespace cardwright::workbench {
namespace {

using Points = QPolygonF;
using qt::IconEngine;
using qt::IconInk;

void Line(const IconInk& ink, const Points& points) { ink.painter.drawPolyline(points); }
void Solid(const IconInk& ink, const Points& points) {
  ink.painter.setBrush(ink.painter.pen().color());
  ink.painter.drawPolygon(points);
  ink.painter.setBrush(Qt::NoBrush);
}
void Box(const IconInk& ink, qreal x, qreal y, qreal width, qreal height) {
  ink.painter.drawRoundedRect(QRectF(x, y, width, height), 1, 1);
}
void Field(const IconInk& ink, qreal x, qreal y, qreal width, qreal height) {
  ink.Filled();
  Box(ink, x, y, width, height);
  ink.Lines();
}
void DownArrow(const IconInk& ink, qreal x, qreal y) {
  ink.Accent();
  Solid(ink, {{x - 2, y - 1}, {x + 2, y - 1}, {x, y + 1.5}});
  ink.Lines();
}
void Cylinder(const IconInk& ink) {
  ink.painter.drawEllipse(QRectF(3, 2, 10, 4));
  Line(ink, {{3, 4}, {3, 12}});
  Line(ink, {{13, 4}, {13, 12}});
  ink.painter.drawArc(QRectF(3, 10, 10, 4), 180 * 16, 180 * 16);
  ink.painter.drawArc(QRectF(3, 6, 10, 4), 180 * 16, 180 * 16);
}
void Page(const IconInk& ink) {
  Field(ink, 3, 1.5, 10, 13);
  Line(ink, {{5.5, 5}, {10.5, 5}});
}
struct SignDrawing {
  Sign sign;
  IconEngine::Draw draw;
};

constexpr SignDrawing kSigns[] = {
    {Sign::Pointer,
     [](const IconInk& ink) {
       ink.Filled();
       ink.painter.drawPolygon(
           Points{{4, 1.5}, {4, 13}, {6.8, 10.4}, {8.6, 14.4}, {10.5, 13.5}, {8.7, 9.7}, {12.5, 9.5}});
     }},
    {Sign::New,
     [](const IconInk& ink) {
       ink.Filled();
       ink.painter.drawPolygon(Points{{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}});
       ink.Lines();
       Line(ink, {{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}});
     }},
    {Sign::Open,
     [](const IconInk& ink) {
       Line(ink, {{2, 13}, {2, 3.5}, {6, 3.5}, {7.5, 5}, {12.5, 5}, {12.5, 7.5}});
       ink.painter.drawPolygon(Points{{2, 13}, {4.5, 7.5}, {15, 7.5}, {12.5, 13}});
     }},
    {Sign::Save,
     [](const IconInk& ink) {
       ink.painter.drawPolygon(Points{{2, 2}, {11.5, 2}, {14, 4.5}, {14, 14}, {2, 14}});
       Box(ink, 5, 2, 5.5, 4);
       ink.Accent();
       Box(ink, 4.5, 9, 7, 5);
     }},
    {Sign::Undo, [](const IconInk& ink) { ink.DrawTurn(true); }},
    {Sign::Redo, [](const IconInk& ink) { ink.DrawTurn(false); }},
    {Sign::Cut,
     [](const IconInk& ink) {
       Line(ink, {{4, 1.5}, {10.2, 10.6}});
       Line(ink, {{12, 1.5}, {5.8, 10.6}});
       ink.Accent();
       ink.painter.drawEllipse(QPointF(4.5, 12.3), 2, 2);
       ink.painter.drawEllipse(QPointF(11.5, 12.3), 2, 2);
     }},
    {Sign::Copy,
     [](const IconInk& ink) {
       Field(ink, 2.5, 1.5, 8, 10);
       Field(ink, 5.5, 4.5, 8, 10);
     }},
    {Sign::Paste,
     [](const IconInk& ink) {
       Box(ink, 2.5, 2.5, 11, 12);
       Field(ink, 5.5, 1, 5, 3);
       ink.Accent();
       Line(ink, {{5.5, 7.5}, {10.5, 7.5}});
       Line(ink, {{5.5, 10.5}, {10.5, 10.5}});
     }},
    {Sign::Delete,
     [](const IconInk& ink) {
       Line(ink, {{2.5, 4}, {13.5, 4}});
       Line(ink, {{6, 4}, {6, 2}, {10, 2}, {10, 4}});
       Line(ink, {{4, 4}, {4.7, 14}, {11.3, 14}, {12, 4}});
       Line(ink, {{6.6, 6.8}, {6.8, 11.5}});
       Line(ink, {{9.4, 6.8}, {9.2, 11.5}});
     }},
    {Sign::Front,
     [](const IconInk& ink) {
       Box(ink, 1.5, 1.5, 8, 8);
       ink.painter.setBrush(ink.accent);
       Box(ink, 6, 6, 8.5, 8.5);
     }},
    {Sign::Back,
     [](const IconInk& ink) {
       ink.painter.setBrush(ink.accent);
       Box(ink, 6, 6, 8.5, 8.5);
       Field(ink, 1.5, 1.5, 8, 8);
     }},
    {Sign::Lock,
     [](const IconInk& ink) {
       ink.painter.drawArc(QRectF(5, 1.5, 6, 8), 0, 180 * 16);
       Line(ink, {{5, 5.5}, {5, 7}});
       Line(ink, {{11, 5.5}, {11, 7}});
       Box(ink, 3, 7, 10, 7.5);
       ink.Accent();
       Line(ink, {{8, 9.8}, {8, 11.7}});
     }},
    {Sign::CenterAcross,
     [](const IconInk& ink) {
       Line(ink, {{1.5, 2}, {1.5, 14}});
       Line(ink, {{14.5, 2}, {14.5, 14}});
       ink.painter.setBrush(ink.accent);
       Box(ink, 5, 5, 6, 6);
     }},
    {Sign::CenterDown,
     [](const IconInk& ink) {
       Line(ink, {{2, 1.5}, {14, 1.5}});
       Line(ink, {{2, 14.5}, {14, 14.5}});
       ink.painter.setBrush(ink.accent);
       Box(ink, 5, 5, 6, 6);
     }},
    {Sign::Grid,
     [](const IconInk& ink) {
       for (int x = 3; x <= 13; x += 5)
         for (int y = 3; y <= 13; y += 5) ink.painter.drawEllipse(QPointF(x, y), 0.5, 0.5);
     }},
    {Sign::Data, [](const IconInk& ink) { Cylinder(ink); }},
    {Sign::Fill,
     [](const IconInk& ink) {
       Page(ink);
       ink.Accent();
       Solid(ink, {{6.5, 7}, {11, 9.8}, {6.5, 12.6}});
     }},
    {Sign::Debug,
     [](const IconInk& ink) {
       ink.Filled();
       ink.painter.drawEllipse(QRectF(4.5, 5, 7, 9));
       ink.Lines();
       ink.painter.drawArc(QRectF(6, 2.5, 4, 5), 0, 180 * 16);
       Line(ink, {{8, 5.5}, {8, 13.5}});
       for (const qreal y : {6.5, 9.5, 12.5}) {
         Line(ink, {{1.8, y}, {4.5, 9.5 + (y - 9.5) * 0.6}});
         Line(ink, {{14.2, y}, {11.5, 9.5 + (y - 9.5) * 0.6}});
       }
     }},
    {Sign::Form,
     [](const IconInk& ink) {
       Field(ink, 1.5, 2.5, 13, 11);
       Line(ink, {{1.5, 5.5}, {14.5, 5.5}});
       ink.Accent();
       Line(ink, {{4, 8.2}, {9, 8.2}});
       Line(ink, {{4, 10.8}, {12, 10.8}});
     }},
};

struct KindDrawing {
  ControlTypeEnum kind;
  IconEngine::Draw draw;
};

constexpr KindDrawing kKindDrawings[] = {
    {ControlTypeEnum::ctCheckBox,
     [](const IconInk& ink) {
       Field(ink, 2.5, 2.5, 11, 11);
       ink.Accent();
       Line(ink, {{5, 8}, {7.3, 10.5}, {11, 5.3}});
     }},
    {ControlTypeEnum::ctComboBox,
     [](const IconInk& ink) {
       Field(ink, 1.5, 4.5, 13, 7);
       Line(ink, {{10, 4.5}, {10, 11.5}});
       DownArrow(ink, 12.2, 8);
     }},
    {ControlTypeEnum::ctCommandButton,
     [](const IconInk& ink) {
       ink.painter.drawRoundedRect(QRectF(1.5, 4, 13, 8), 2.5, 2.5);
       ink.Accent();
       Line(ink, {{5, 8}, {11, 8}});
     }},
    {ControlTypeEnum::ctFrame,
     [](const IconInk& ink) {
       Line(ink, {{3.5, 4}, {1.5, 4}, {1.5, 14}, {14.5, 14}, {14.5, 4}, {10, 4}});
       ink.Accent();
       Line(ink, {{5, 4}, {8.5, 4}});
     }},
    {ControlTypeEnum::ctLabel,
     [](const IconInk& ink) {
       Line(ink, {{3.5, 13.5}, {8, 2.5}, {12.5, 13.5}});
       Line(ink, {{5.2, 9.5}, {10.8, 9.5}});
     }},
    {ControlTypeEnum::ctListBox,
     [](const IconInk& ink) {
       Field(ink, 2, 1.5, 12, 13);
       Line(ink, {{4.5, 4.8}, {11.5, 4.8}});
       Line(ink, {{4.5, 11.2}, {11.5, 11.2}});
       ink.Accent();
       Line(ink, {{4.5, 8}, {11.5, 8}});
     }},
    {ControlTypeEnum::ctOptionButton,
     [](const IconInk& ink) {
       ink.Filled();
       ink.painter.drawEllipse(QPointF(8, 8), 5.8, 5.8);
       ink.Accent();
       ink.painter.setBrush(ink.accent);
       ink.painter.drawEllipse(QPointF(8, 8), 2.2, 2.2);
     }},
    {ControlTypeEnum::ctTextBox,
     [](const IconInk& ink) {
       Field(ink, 1.5, 4, 13, 8);
       ink.Accent();
       Line(ink, {{4.5, 6}, {4.5, 10}});
     }},
    {ControlTypeEnum::ctTextBoxMultiline,
     [](const IconInk& ink) {
       Field(ink, 1.5, 1.5, 13, 13);
       Line(ink, {{4, 5}, {12, 5}});
       Line(ink, {{4, 8}, {9.5, 8}});
       ink.Accent();
       Line(ink, {{4, 10}, {4, 12.2}});
     }},
    {ControlTypeEnum::ctResourceSelector,
     [](const IconInk& ink) {
       Line(ink, {{1.5, 12}, {1.5, 3.5}, {5, 3.5}, {6.5, 5}, {12, 5}, {12, 7}});
       Line(ink, {{1.5, 12}, {8, 12}});
       ink.painter.setPen(Qt::NoPen);
       ink.painter.setBrush(ink.accent);
       for (const qreal x : {9.8, 12.2, 14.6}) ink.painter.drawEllipse(QPointF(x, 12), 0.9, 0.9);
     }},
    {ControlTypeEnum::ctThemeSelector,
     [](const IconInk& ink) {
       ink.Filled();
       ink.painter.drawPolygon(Points{{8, 7}, {14.5, 10.2}, {8, 13.5}, {1.5, 10.2}});
       ink.painter.drawPolygon(Points{{8, 4.6}, {14.5, 7.8}, {8, 11}, {1.5, 7.8}});
       ink.Accent();
       ink.painter.setBrush(ink.background);
       ink.painter.drawPolygon(Points{{8, 2}, {14.5, 5.2}, {8, 8.5}, {1.5, 5.2}});
     }},
    {ControlTypeEnum::ctFontSelector,
     [](const IconInk& ink) {
       Line(ink, {{1.5, 13}, {5.2, 3}, {9, 13}});
       Line(ink, {{2.8, 9.5}, {7.7, 9.5}});
       ink.Accent();
       ink.painter.drawEllipse(QRectF(10, 8, 4.2, 5));
       Line(ink, {{14.2, 8}, {14.2, 13}});
     }},
    {ControlTypeEnum::ctColorSelector,
     [](const IconInk& ink) {
       ink.painter.setPen(Qt::NoPen);
       ink.painter.setBrush(QColor(0xd1, 0x49, 0x3f));
       ink.painter.drawRect(QRectF(2, 2, 6, 6));
       ink.painter.setBrush(QColor(0xe3, 0xa9, 0x2b));
       ink.painter.drawRect(QRectF(8, 2, 6, 6));
       ink.painter.setBrush(QColor(0x3f, 0x8f, 0x5b));
       ink.painter.drawRect(QRectF(2, 8, 6, 6));
       ink.painter.setBrush(QColor(0x3a, 0x6f, 0xb8));
       ink.painter.drawRect(QRectF(8, 8, 6, 6));
       ink.Lines();
       Box(ink, 2, 2, 12, 12);
     }},
    {ControlTypeEnum::ctAttributeSelector,
     [](const IconInk& ink) {
       Field(ink, 1.5, 2, 13, 12);
       ink.painter.fillRect(QRectF(6, 2.6, 4, 10.8), ink.accent);
       Line(ink, {{1.5, 5.5}, {14.5, 5.5}});
       Line(ink, {{6, 2}, {6, 14}});
       Line(ink, {{10, 2}, {10, 14}});
     }},
};

}  // namespace

QIcon IconOf(Sign sign) {
  for (const SignDrawing& known : kSigns)
    if (known.sign == sign) return QIcon(new IconEngine(known.draw));
  return {};
}

QIcon IconOf(ControlTypeEnum kind) {
  if (kind == ControlTypeEnum::ctDefault) return IconOf(Sign::Pointer);
  for (const KindDrawing& known : kKindDrawings)
    if (known.kind == kind) return QIcon(new IconEngine(known.draw));
  return {};
}

}  // namespace cardwright::workbench
