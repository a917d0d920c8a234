#include "workbench/ValueDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "automation/Conversions.h"
#include "qt/Colors.h"
#include "qt/QtText.h"
#include "workbench/ColorNames.h"
#include "workbench/DialogCell.h"
#include "workbench/FocusKeeper.h"
#include "workbench/PropertyText.h"

namespace cardwright::workbench {
namespace {

using enum PropertyTypeEnum;

bool IsChosenInDialog(PropertyTypeEnum type) {
  return type == ptFont || type == ptCollection || type == ptImage || type == ptFileName;
}

bool IsCombo(PropertyTypeEnum type) {
  switch (type) {
    case ptColor:
    case ptAttribute:
    case ptThemes:
    case ptFeatureType:
    case ptList:
    case ptControls: return true;
    default: return false;
  }
}

bool CanBeTyped(PropertyTypeEnum type) { return type == ptColor || type == ptAttribute || type == ptThemes; }

QStringList ListOf(const std::vector<Text>& texts) {
  QStringList list;
  for (const Text& text : texts) list += qt::ToQString(text);
  return list;
}

void FillColors(QComboBox& combo) {
  for (const NamedColor& color : SystemColors())
    combo.addItem(ColorSample(color.color), ColorName(color.color));
  combo.insertSeparator(combo.count());
  for (const char* name : {"#000000", "#FFFFFF", "#808080", "#C0C0C0", "#C00000", "#E08000", "#F0D000",
                           "#008000", "#008080", "#0050B0", "#000080", "#800080"})
    combo.addItem(ColorSample(*ColorOf(QLatin1String(name))), QLatin1String(name));
  combo.insertSeparator(combo.count());
  combo.addItem(ValueDelegate::tr("Other…"), true);
}

bool IsEnter(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

// The person's own colour, or the present one where none was chosen.
void ChooseColor(QComboBox& combo) {
  const QString present = combo.property("present").toString();
  const OleColor before = ColorOf(present).value_or(0);
  const QColor color = QColorDialog::getColor(qt::ToQColor(before, combo.palette()), combo.window());
  combo.setEditText(color.isValid() ? ColorName(qt::FromQColor(color)) : present);
}

}  // namespace

QWidget* ValueDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const {
  const int row = index.row();
  const PropertyTypeEnum type = m_Model.TypeOf(row);
  QWidget* editor = nullptr;
  if (IsCombo(type)) {
    editor = MakeCombo(parent, row);
  } else if (IsChosenInDialog(type)) {
    editor = MakeDialogCell(parent, row);
  } else {
    auto* edit = new QLineEdit(parent);
    edit->setFrame(false);
    editor = edit;
  }
  editor->setAccessibleName(m_Model.NameOf(row));
  editor->setAccessibleDescription(m_Model.DescriptionOf(row));
  return editor;
}

QWidget* ValueDelegate::MakeCombo(QWidget* parent, int row) const {
  const PropertyTypeEnum type = m_Model.TypeOf(row);
  auto* combo = new QComboBox(parent);
  combo->setEditable(CanBeTyped(type));
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setMaxVisibleItems(16);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  const Variant index(std::int32_t{row});
  switch (type) {
    case ptColor: FillColors(*combo); break;
    case ptAttribute: combo->addItems(QStringList(QString()) + m_Choices.Attributes()); break;
    case ptThemes: combo->addItems(QStringList(QString()) + m_Choices.Themes()); break;
    case ptFeatureType:
      for (const FeatureTypeEnum each : kFeatureTypes) combo->addItem(FeatureTypeName(each));
      break;
    case ptControls: combo->addItem(QString()); [[fallthrough]];
    default: combo->addItems(ListOf(m_Model.Control()->PropertyList(index))); break;
  }
  // Enter chooses in the box and ends the editing as well: what is closed is not stored again.
  auto* self = const_cast<ValueDelegate*>(this);
  connect(self, &ValueDelegate::closeEditor, combo, [combo](const QWidget* closed) {
    if (closed == combo) combo->setProperty("isClosed", true);
  });
  connect(
      combo, &QComboBox::activated, combo,
      [self, combo](int chosen) {
        if (combo->property("isClosed").toBool()) return;
        if (combo->itemData(chosen).toBool()) ChooseColor(*combo);
        Q_EMIT self->commitData(combo);
        Q_EMIT self->closeEditor(combo);
      },
      Qt::QueuedConnection);
  return combo;
}

QWidget* ValueDelegate::MakeDialogCell(QWidget* parent, int row) const {
  auto* cell = new DialogCell(parent, m_Model.TypeOf(row) == ptFileName);
  auto* self = const_cast<ValueDelegate*>(this);
  connect(cell, &DialogCell::DialogWanted, self, [self, row, window = parent->window(), cell] {
    Q_EMIT self->closeEditor(cell, QAbstractItemDelegate::NoHint);
    self->OpenDialog(*window, row);
  });
  return cell;
}

void ValueDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QString text = index.data(Qt::EditRole).toString();
  if (auto* combo = qobject_cast<QComboBox*>(editor)) {
    combo->setProperty("present", text);
    combo->setCurrentIndex(combo->findText(text));
    if (combo->isEditable()) combo->setEditText(text);
  } else if (auto* cell = qobject_cast<DialogCell*>(editor)) {
    cell->Edit().setText(text);
    if (cell->CanType()) cell->Edit().selectAll();
  } else if (auto* edit = qobject_cast<QLineEdit*>(editor)) {
    edit->setText(text);
    edit->selectAll();
  }
}

void ValueDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
  QString text;
  if (auto* combo = qobject_cast<QComboBox*>(editor)) {
    if (!combo->isEditable() && combo->currentIndex() < 0) return;
    text = combo->currentText();
  } else if (auto* cell = qobject_cast<DialogCell*>(editor)) {
    if (!cell->CanType()) return;
    text = cell->Edit().text();
  } else if (auto* edit = qobject_cast<QLineEdit*>(editor)) {
    text = edit->text();
  }
  if (m_IsStoring || text == index.data(Qt::EditRole).toString()) return;
  m_IsStoring = true;
  {
    const FocusKeeper keeper;
    AssignText(index.row(), text);
  }
  m_IsStoring = false;
}

void ValueDelegate::AssignText(int row, const QString& text) const {
  switch (m_Model.TypeOf(row)) {
    case ptColor: {
      const auto color = ColorOf(text);
      if (color) {
        m_Model.Assign(row, Variant(*color));
      } else {
        Q_EMIT m_Model.Refused(
            tr("“%1” is no colour. Write a name from the list, #RRGGBB, or a number.").arg(text));
      }
      break;
    }
    case ptInteger:
    case ptFloat: {
      bool isNumber = false;
      const double number = QString(text).replace(u',', u'.').toDouble(&isNumber);
      if (isNumber) {
        m_Model.Assign(row, Variant(number));
      } else {
        Q_EMIT m_Model.Refused(tr("“%1” is no number.").arg(text));
      }
      break;
    }
    case ptFeatureType:
      for (const FeatureTypeEnum type : kFeatureTypes)
        if (text == FeatureTypeName(type)) m_Model.Assign(row, Variant(static_cast<std::int32_t>(type)));
      break;
    default: m_Model.Assign(row, Variant(qt::FromQString(text))); break;
  }
}

void ValueDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex&) const {
  editor->setGeometry(option.rect);
}

QSize ValueDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize size = QStyledItemDelegate::sizeHint(option, index);
  return {size.width(), qMax(size.height(), option.fontMetrics.height() + 10)};
}

// The toolkit's own filter would end the editing of a composite editor as soon as the focus goes to its part.
bool ValueDelegate::eventFilter(QObject* object, QEvent* event) {
  if (m_IsStoring && event->type() == QEvent::FocusOut) return false;
  if (auto* combo = qobject_cast<QComboBox*>(object); combo && IsEnter(*event)) {
    // Behind what the box itself makes of the key, which may have ended the editing already.
    QMetaObject::invokeMethod(
        combo,
        [this, combo] {
          if (combo->property("isClosed").toBool()) return;
          Q_EMIT commitData(combo);
          Q_EMIT closeEditor(combo);
        },
        Qt::QueuedConnection);
    return true;
  }
  auto* cell = qobject_cast<DialogCell*>(object);
  if (cell && event->type() == QEvent::FocusOut && cell->isAncestorOf(QApplication::focusWidget()))
    return false;
  return QStyledItemDelegate::eventFilter(object, event);
}

}  // namespace cardwright::workbench
