// SPDX-License-Identifier: MIT
// The dialogs of the property grid.

#include <QColorDialog>
#include <QImageReader>

#include "cardwright/automation/Conversions.h"
#include "cardwright/model/CItems.h"
#include "cardwright/qt/dialogs/FileChoice.h"
#include "cardwright/qt/dialogs/FontChoice.h"
#include "cardwright/qt/dialogs/RunDialog.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"
#include "workbench/grid/ItemsDialog.h"
#include "workbench/grid/Pictures.h"
#include "workbench/grid/ValueDelegate.h"
#include "workbench/panes/FocusKeeper.h"

namespace cardwright::workbench {
namespace {

template <class T>
Ref<T> ObjectIn(const Variant& value) {
  return value.IsObject() ? Ref<T>(dynamic_cast<T*>(value.ObjectPtr())) : nullptr;
}

}  // namespace

void ValueDelegate::OpenDialog(QWidget& owner, int row) const {
  const FocusKeeper keeper;
  switch (m_Model.TypeOf(row)) {
    case PropertyTypeEnum::ptColor: ChooseColor(owner, row); break;
    case PropertyTypeEnum::ptFont: ChooseFontOf(owner, row); break;
    case PropertyTypeEnum::ptCollection: ChooseItems(owner, row); break;
    case PropertyTypeEnum::ptImage: ChooseImage(owner, row); break;
    case PropertyTypeEnum::ptFileName: ChooseFile(owner, row); break;
    default: break;
  }
}

void ValueDelegate::ChooseColor(QWidget& owner, int row) const {
  const OleColor present = BestEffortOr(OleColor{}, [&] { return ToLong(m_Model.ValueOf(row)); });
  auto* dialog = new QColorDialog(qt::ToQColor(present, owner.palette()), &owner);
  dialog->setWindowTitle(m_Model.NameOf(row));
  qt::RunDialog(dialog, owner, [&](const QColorDialog& accepted) {
    m_Model.Assign(row, Variant(qt::FromQColor(accepted.selectedColor())));
  });
}

// Changes the font object itself, because copies of the control share it.
void ValueDelegate::ChooseFontOf(QWidget& owner, int row) const {
  const Ref<Font> font = ObjectIn<Font>(m_Model.ValueOf(row));
  if (!font) return;
  std::optional<FontValues> chosen;
  if (!BestEffort([&] { chosen = qt::ChooseFont(owner, m_Model.NameOf(row), font->Values()); }))
    Q_EMIT m_Model.Refused(tr("A font of this size cannot be kept."));
  if (!chosen) return;
  font->Assign(*chosen);
  m_Model.Assign(row, Variant(font));
}

void ValueDelegate::ChooseItems(QWidget& owner, int row) const {
  const Ref<CItems> items = ObjectIn<CItems>(m_Model.ValueOf(row));
  const Ref<IControl> control = m_Model.Control();
  if (!items || !control || !EditItems(owner, *items)) return;
  const Variant text = BestEffortOr(Variant(), [&] { return control->PropertyValue(Variant(u"Text")); });
  control->Refresh();  // which clears a combo box
  BestEffort([&] { control->SetPropertyValue(Variant(u"Text"), text); });
  m_Model.Assign(row, Variant(items));
}

void ValueDelegate::ChooseImage(QWidget& owner, int row) const {
  const QString filter = qt::ToQString(m_Model.Control()->FilenameFilter(Variant(std::int32_t{row})));
  const auto path = qt::ChooseFiles(owner, {.mode = qt::FileMode::Open,
                                            .title = m_Model.NameOf(row),
                                            .filter = filter,
                                            .path = {},
                                            .folder = m_Choices.Folder()});
  if (!path) return;
  QImageReader reader(*path);
  reader.setDecideFormatFromContent(true);
  const QImage image = reader.read();
  if (image.isNull()) {
    Q_EMIT m_Model.Refused(tr("No picture could be read from %1: %2").arg(*path, reader.errorString()));
    return;
  }
  m_Model.Assign(row, Variant(IconPicture(image)));
}

void ValueDelegate::ChooseFile(QWidget& owner, int row) const {
  const QString filter = qt::ToQString(m_Model.Control()->FilenameFilter(Variant(std::int32_t{row})));
  const QString present = m_Model.index(row, PropertyModel::kValue).data(Qt::EditRole).toString();
  const auto path = qt::ChooseFiles(owner, {.mode = qt::FileMode::Open,
                                            .title = m_Model.NameOf(row),
                                            .filter = filter,
                                            .path = present,
                                            .folder = m_Choices.Folder()});
  if (path) m_Model.Assign(row, Variant(qt::FromQString(*path)));
}

}  // namespace cardwright::workbench
