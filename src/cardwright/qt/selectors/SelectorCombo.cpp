// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/SelectorCombo.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QListView>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "cardwright/qt/selectors/EntryList.h"
#include "cardwright/qt/values/FeatureTypeIcon.h"

namespace cardwright::qt {

namespace {

constexpr int kVisibleRows = 16;
constexpr int kDetailGap = 16;

/// Some styles let a list cover the screen like a menu, without a scroll bar.
class ListStyle final : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  /// The application's style with this change.
  static ListStyle& Shared() {
    static QPointer<ListStyle> s_Style;
    if (!s_Style) {
      s_Style = new ListStyle(QApplication::style()->name());
      s_Style->setParent(qApp);
    }
    return *s_Style;
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

/// Paints an entry: icon, name, and its detail at the far end. A line separates the action row from the
/// entries.
class EntryPainter final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QString detail = index.data(EntryList::kDetailRole).toString();
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    const int detailWidth = detail.isEmpty() ? 0 : whole.fontMetrics.horizontalAdvance(detail) + kDetailGap;
    // The name ends before the detail begins; the mark of the chosen row goes under both.
    const QRect row = option.rect;
    QStyle* const style = option.widget ? option.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &whole, painter, option.widget);
    const QColor color = option.palette.color(QPalette::Active, TextRole(option));
    whole.palette.setColor(QPalette::Text, color);
    whole.state &= ~(QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
    whole.rect.setWidth(row.width() - detailWidth);
    style->drawControl(QStyle::CE_ItemViewItem, &whole, painter, option.widget);
    if (!detail.isEmpty()) PaintDetail(*painter, option, row, detail);
    if (index.row() > 0 && index.data(EntryList::kActionRole).toBool()) {
      painter->setPen(option.palette.color(QPalette::Disabled, QPalette::Text));
      painter->drawLine(row.topLeft(), row.topRight());
    }
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kRoom = 5;
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRoom);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QVariant featureType = index.data(EntryList::kFeatureTypeRole);
    if (!featureType.isValid()) return;
    const qreal ratio = option->widget ? option->widget->devicePixelRatioF() : 1.0;
    option->icon = FeatureTypeIcon(featureType.toInt(),
                                   option->palette.color(QPalette::Active, TextRole(*option)), ratio);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(kFeatureTypeIconSize, kFeatureTypeIconSize);
  }

 private:
  static QPalette::ColorRole TextRole(const QStyleOptionViewItem& option) {
    return option.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
  }

  static void PaintDetail(QPainter& painter, const QStyleOptionViewItem& option, const QRect& row,
                          const QString& detail) {
    QColor color = option.palette.color(QPalette::Active, TextRole(option));
    color.setAlphaF(0.7F);
    painter.setPen(color);
    painter.setFont(option.font);
    painter.drawText(row.adjusted(0, 0, -kDetailGap / 4, 0),
                     Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, detail);
  }
};

}  // namespace

SelectorCombo::SelectorCombo(QWidget* parent) : FieldCombo(parent), m_Entries(new EntryList(this)) {
  // The toolkit would measure every entry.
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(1);
  setIconSize({kFeatureTypeIconSize, kFeatureTypeIconSize});
  setMaxVisibleItems(kVisibleRows);
  setStyle(&ListStyle::Shared());
  auto* const list = new QListView(this);
  list->setUniformItemSizes(true);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setTextElideMode(Qt::ElideMiddle);
  setView(list);
  setItemDelegate(new EntryPainter(this));
  setModel(m_Entries);
}

void SelectorCombo::showPopup() {
  m_Entries->SetActionEnabled(offersAction);
  view()->setMinimumWidth(ListWidth());
  QComboBox::showPopup();
}

void SelectorCombo::hidePopup() {
  QComboBox::hidePopup();
  m_Entries->SetActionEnabled(false);
}

/// Wide enough for the longest name, within reason. Only the longest is measured.
int SelectorCombo::ListWidth() const {
  qsizetype longest = m_Entries->Action().size();
  QString widest = m_Entries->Action();
  for (const ListEntry& entry : m_Entries->Entries()) {
    const auto length = static_cast<qsizetype>(entry.name.Size());
    if (length <= longest) continue;
    longest = length;
    widest =
        m_Entries
            ->data(m_Entries->index(static_cast<int>(&entry - m_Entries->Entries().data())), Qt::DisplayRole)
            .toString();
  }
  const QFontMetrics metrics(view()->font());
  const int detail =
      m_Entries->describe ? metrics.horizontalAdvance(QStringLiteral("Polygons (0000)")) + kDetailGap : 0;
  const int frame = kFeatureTypeIconSize + 12 + view()->verticalScrollBar()->sizeHint().width();
  const int widestAllowed = screen()->availableSize().width() / 2;
  return std::clamp(metrics.horizontalAdvance(widest) + detail + frame, std::min(width(), widestAllowed),
                    std::max(width(), widestAllowed));
}

void SelectorCombo::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  const QVariant sign = itemData(currentIndex(), EntryList::kFeatureTypeRole);
  if (!sign.isValid() || sign.toInt() < 0) return;
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  option->currentIcon =
      FeatureTypeIcon(sign.toInt(), palette().color(group, QPalette::Text), devicePixelRatioF());
}

}  // namespace cardwright::qt
