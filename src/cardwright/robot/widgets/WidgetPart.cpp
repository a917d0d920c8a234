// SPDX-License-Identifier: MIT
#include "cardwright/robot/widgets/WidgetPart.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::robot {

QWidget& WidgetPart::Alive() const {
  if (!m_Widget) Raise(ErrorNumber::ObjectNotSet);
  return *m_Widget;
}

Ref<WidgetPart> WidgetPart::Child(std::u16string_view name) const {
  if (name.empty()) return nullptr;
  for (QWidget* const widget : Alive().findChildren<QWidget*>())
    if (EqualsNoCase(qt::ViewOf(widget->objectName()), name)) return MakeRef<WidgetPart>(*widget);
  return nullptr;
}

cardwright::Text WidgetPart::Name() const { return qt::FromQString(Alive().objectName()); }

cardwright::Text WidgetPart::Text() const {
  QWidget& widget = Alive();
  if (const auto* line = qobject_cast<QLineEdit*>(&widget)) return qt::FromQString(line->text());
  if (const auto* label = qobject_cast<QLabel*>(&widget)) return qt::FromQString(label->text());
  if (const auto* button = qobject_cast<QAbstractButton*>(&widget)) return qt::FromQString(button->text());
  if (const auto* text = qobject_cast<QPlainTextEdit*>(&widget)) return qt::FromQString(text->toPlainText());
  if (const auto* list = qobject_cast<QComboBox*>(&widget)) return qt::FromQString(list->currentText());
  return qt::FromQString(widget.windowTitle());
}

void WidgetPart::SetText(const cardwright::Text& text) {
  QWidget& widget = Alive();
  const QString wanted = qt::ToQString(text);
  auto* const combo = qobject_cast<QComboBox*>(&widget);
  if (auto* const line = qobject_cast<QLineEdit*>(&widget)) return line->setText(wanted);
  if (!combo) Raise(ErrorNumber::NotSupported);
  if (combo->isEditable()) return combo->setEditText(wanted);
  combo->setCurrentIndex(combo->findText(wanted, Qt::MatchFixedString));
}

std::int32_t WidgetPart::Value() const {
  const auto* const button = qobject_cast<QAbstractButton*>(&Alive());
  if (!button) Raise(ErrorNumber::NotSupported);
  return button->isChecked() ? 1 : 0;
}

void WidgetPart::SetValue(std::int32_t value) {
  auto* const button = qobject_cast<QAbstractButton*>(&Alive());
  if (!button) Raise(ErrorNumber::NotSupported);
  if (button->isChecked() != (value != 0)) button->click();
}

std::int32_t WidgetPart::ListCount() const {
  if (const auto* const combo = qobject_cast<QComboBox*>(&Alive())) return combo->count();
  const auto* const view = qobject_cast<QAbstractItemView*>(&Alive());
  if (!view) Raise(ErrorNumber::NotSupported);
  return view->model()->rowCount();
}

cardwright::Text WidgetPart::List(std::int32_t index) const {
  if (index < 0 || index >= ListCount()) Raise(ErrorNumber::InvalidCall);
  if (const auto* const combo = qobject_cast<QComboBox*>(&Alive()))
    return qt::FromQString(combo->itemText(index));
  const auto* const view = qobject_cast<QAbstractItemView*>(&Alive());
  return qt::FromQString(view->model()->index(index, 0).data().toString());
}

std::int32_t WidgetPart::ListIndex() const {
  if (const auto* const combo = qobject_cast<QComboBox*>(&Alive())) return combo->currentIndex();
  ListCount();
  return qobject_cast<QAbstractItemView*>(&Alive())->currentIndex().row();
}

void WidgetPart::SetListIndex(std::int32_t index) {
  if (index < -1 || index >= ListCount()) Raise(ErrorNumber::InvalidPropertyValue);
  if (auto* const combo = qobject_cast<QComboBox*>(&Alive())) return combo->setCurrentIndex(index);
  auto* const view = qobject_cast<QAbstractItemView*>(&Alive());
  view->setCurrentIndex(view->model()->index(index, 0));
}

const MemberTable& WidgetPart::Members() const {
  static constexpr Member kMembers[] = {
      Property<&WidgetPart::Name>(u"Name"),
      Property<&WidgetPart::Left>(u"Left"),
      Property<&WidgetPart::Top>(u"Top"),
      Property<&WidgetPart::Width>(u"Width"),
      Property<&WidgetPart::Height>(u"Height"),
      Property<&WidgetPart::IsVisible>(u"Visible"),
      Property<&WidgetPart::IsEnabled>(u"Enabled"),
      Property<&WidgetPart::Text, &WidgetPart::SetText>(u"Text"),
      Property<&WidgetPart::Text>(u"Caption"),
      Property<&WidgetPart::Value, &WidgetPart::SetValue>(u"Value"),
      Property<&WidgetPart::ListCount>(u"ListCount"),
      Property<&WidgetPart::List>(u"List"),
      Property<&WidgetPart::ListIndex, &WidgetPart::SetListIndex>(u"ListIndex"),
  };
  static const MemberTable table(kMembers, u"Text");
  return table;
}

}  // namespace cardwright::robot
