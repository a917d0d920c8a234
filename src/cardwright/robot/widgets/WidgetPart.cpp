#include "cardwright/robot/widgets/WidgetPart.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

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
  if (const auto* list = qobject_cast<QComboBox*>(&widget)) return qt::FromQString(list->currentText());
  return qt::FromQString(widget.windowTitle());
}

const MemberTable& WidgetPart::Members() const {
  static constexpr Member kMembers[] = {
      Property<&WidgetPart::Name>(u"Name"),         Property<&WidgetPart::Left>(u"Left"),
      Property<&WidgetPart::Top>(u"Top"),           Property<&WidgetPart::Width>(u"Width"),
      Property<&WidgetPart::Height>(u"Height"),     Property<&WidgetPart::IsVisible>(u"Visible"),
      Property<&WidgetPart::IsEnabled>(u"Enabled"), Property<&WidgetPart::Text>(u"Text"),
      Property<&WidgetPart::Text>(u"Caption"),
  };
  static const MemberTable table(kMembers, u"Text");
  return table;
}

}  // namespace cardwright::robot
