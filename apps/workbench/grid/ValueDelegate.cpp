// SPDX-License-Identifier: MIT
#include "workbench/grid/ValueDelegate.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "cardwright/qt/values/QtText.h"
#include "workbench/grid/ColorNames.h"
#include "workbench/grid/DialogCell.h"
#include "workbench/grid/GridView.h"
#include "workbench/grid/PropertyText.h"
#include "workbench/grid/ValueCombo.h"
#include "workbench/panes/FocusKeeper.h"

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

void FillColors(ValueCombo& combo) {
  for (const NamedColor& color : SystemColors())
    combo.addItem(ColorSample(color.color), ColorName(color.color));
  combo.insertSeparator(combo.count());
  for (const char* name : {"#000000", "#FFFFFF", "#808080", "#C0C0C0", "#C00000", "#E08000", "#F0D000",
                           "#008000", "#008080", "#0050B0", "#000080", "#800080"})
    combo.addItem(ColorSample(*ColorOf(QLatin1String(name))), QLatin1String(name));
  combo.insertSeparator(combo.count());
  combo.AddOther(ValueDelegate::tr("Other…"));
}

bool IsKey(const QEvent& event, std::initializer_list<Qt::Key> keys) {
  if (event.type() != QEvent::KeyPress) return false;
  const int pressed = static_cast<const QKeyEvent&>(event).key();
  return std::ranges::find(keys, pressed) != keys.end();
}

bool IsDoubleClick(const QEvent& event) {
  return event.type() == QEvent::MouseButtonDblClick &&
         static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

}  // namespace

QWidget* ValueDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                     const QModelIndex& index) const {
  const int row = index.row();
  const PropertyTypeEnum type = m_Model.TypeOf(row);
  if (IsCombo(type)) {
    m_Open = MakeCombo(parent, row);
  } else if (IsChosenInDialog(type)) {
    m_Open = MakeDialogCell(parent, row);
  } else {
    auto* edit = new QLineEdit(parent);
    edit->setFrame(false);
    m_Open = edit;
  }
  m_Open->setAccessibleName(m_Model.NameOf(row));
  m_Open->setAccessibleDescription(index.data(Qt::AccessibleDescriptionRole).toString());
  return m_Open;
}

void ValueDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
  if (editor == m_Open) m_Open = nullptr;
  QStyledItemDelegate::destroyEditor(editor, index);
}

QWidget* ValueDelegate::MakeCombo(QWidget* parent, int row) const {
  const PropertyTypeEnum type = m_Model.TypeOf(row);
  auto* combo = new ValueCombo(parent, CanBeTyped(type));
  switch (type) {
    case ptColor: FillColors(*combo); break;
    case ptAttribute: combo->addItems(QStringList(QString()) + m_Choices.Attributes()); break;
    case ptThemes: combo->addItems(QStringList(QString()) + m_Choices.Themes()); break;
    case ptFeatureType:
      for (const FeatureTypeEnum each : kFeatureTypes) combo->addItem(FeatureTypeName(each));
      break;
    case ptControls: combo->addItem(QString()); [[fallthrough]];
    default:
      combo->addItems(ListOf(m_Model.Control()->PropertyList(Variant(std::int32_t{row}))));
      // The project may have a value that is not among the choices.
      if (combo->findText(m_Model.TextAt(row)) < 0) combo->insertItem(0, m_Model.TextAt(row));
      break;
  }
  auto* self = const_cast<ValueDelegate*>(this);
  connect(combo, &ValueCombo::Picked, self, [self, combo, row] {
    combo->IsOther() ? self->OpenDialogSoon(combo, row) : self->SubmitSoon(combo);
  });
  return combo;
}

QWidget* ValueDelegate::MakeDialogCell(QWidget* parent, int row) const {
  const PropertyTypeEnum type = m_Model.TypeOf(row);
  auto* cell = new DialogCell(parent, m_Model.NameOf(row), type == ptFileName);
  auto* self = const_cast<ValueDelegate*>(this);
  connect(cell, &DialogCell::DialogWanted, self, [self, cell, row] { self->OpenDialogSoon(cell, row); });
  if (type != ptImage) return cell;
  const Variant picture = m_Model.ValueOf(row);
  cell->OfferClearing(picture.IsObject() && picture.ObjectPtr());
  connect(cell, &DialogCell::ClearWanted, self, [self, cell, row] {
    self->m_Model.Assign(row, Variant());
    self->SubmitSoon(cell);
  });
  return cell;
}

void ValueDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QString text = index.data(Qt::EditRole).toString();
  if (auto* combo = qobject_cast<ValueCombo*>(editor); combo && combo->currentText() != text) {
    combo->SetText(text);
  } else if (auto* edit = qobject_cast<QLineEdit*>(editor); edit && edit->text() != text) {
    edit->setText(text);
    edit->selectAll();
  }
}

void ValueDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
  if (m_IsStoring) return;
  std::optional<QString> text;
  if (const auto* combo = qobject_cast<ValueCombo*>(editor)) {
    text = combo->Chosen();
  } else if (const auto* edit = qobject_cast<QLineEdit*>(editor); edit && !edit->isReadOnly()) {
    text = edit->text();
  }
  if (!text) return;
  if (*text == m_Model.TextAt(index.row())) return m_Model.Discard(index.row());
  const QScopedValueRollback storing(m_IsStoring, true);
  const FocusKeeper keeper;
  m_Model.Enter(index.row(), *text);
}

void ValueDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                         const QModelIndex&) const {
  editor->setGeometry(option.rect);
}

void ValueDelegate::SubmitSoon(QWidget* editor) {
  QMetaObject::invokeMethod(
      editor, [this, editor] { End(editor, SubmitModelCache); }, Qt::QueuedConnection);
}

// The editing may have ended meanwhile: while the view closes an editor it processes pending events, such as
// a repeated key.
bool ValueDelegate::End(QWidget* editor, EndEditHint hint) {
  if (editor != m_Open || m_IsEnding) return false;
  const QScopedValueRollback ending(m_IsEnding, true);
  Q_EMIT commitData(editor);
  if (editor == m_Open) Q_EMIT closeEditor(editor, hint);
  return true;
}

void ValueDelegate::OpenDialogSoon(QWidget* editor, int row) {
  const auto open = [this, editor, row, control = m_Model.Control()] {
    QWidget& window = *editor->window();
    if (End(editor, NoHint) && control == m_Model.Control()) OpenDialog(window, row);
  };
  QMetaObject::invokeMethod(editor, open, Qt::QueuedConnection);
}

bool ValueDelegate::eventFilter(QObject* object, QEvent* event) {
  if (m_IsStoring && event->type() == QEvent::FocusOut) return false;
  if (event->type() == QEvent::ShortcutOverride && OpensChoice(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  if (object == m_Open && IsKey(*event, {Qt::Key_Return, Qt::Key_Enter})) {
    if (auto* cell = qobject_cast<DialogCell*>(object); cell && !cell->CanType()) {
      Q_EMIT cell->DialogWanted();
      return true;
    }
    if (auto* combo = qobject_cast<ValueCombo*>(object)) {
      Q_EMIT combo->Picked();
      return true;
    }
  }
  return QStyledItemDelegate::eventFilter(object, event);
}

// Besides a click on its box and Space, everything that edits another row toggles a flag.
bool ValueDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                const QModelIndex& index) {
  if (QStyledItemDelegate::editorEvent(event, model, option, index)) return true;
  const QVariant state = index.data(Qt::CheckStateRole);
  const bool isTurn = IsDoubleClick(*event) || IsKey(*event, {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter});
  if (!state.isValid() || !isTurn) return false;
  return model->setData(index, state == Qt::Checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

}  // namespace cardwright::workbench
