// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include "cardwright/automation/MemberTable.h"

namespace cardwright::robot {

/// A widget of the toolkit that is no widget of a form: a part of a selector, a dialog, or a widget in a
/// dialog. A robot takes it like any other widget. Its members describe what can be seen; they raise error
/// 91 once the widget was deleted. Default member: Text.
class WidgetPart final : public TableObject {
 public:
  explicit WidgetPart(QWidget& widget) : m_Widget(&widget) {}

  cardwright::Text TypeName() const override { return u"Widget"; }
  /// Null once the widget was deleted.
  QWidget* Native() const noexcept { return m_Widget; }
  /// The widget of that name, in any case, inside this one; null where there is none.
  Ref<WidgetPart> Child(std::u16string_view name) const;

  cardwright::Text Name() const;
  std::int32_t Left() const { return Alive().x(); }
  std::int32_t Top() const { return Alive().y(); }
  std::int32_t Width() const { return Alive().width(); }
  std::int32_t Height() const { return Alive().height(); }
  bool IsVisible() const { return Alive().isVisible(); }
  bool IsEnabled() const { return Alive().isEnabled(); }
  /// The text of an entry or a label, the caption of a button, the selected entry of a list, the title of a
  /// dialog.
  cardwright::Text Text() const;
  /// Types nothing: the text is there at once. Error 438 for a widget that takes no text.
  void SetText(const cardwright::Text& text);
  /// 1 for a check box or button that is checked, else 0; setting it is a click. Error 438 for other widgets.
  std::int32_t Value() const;
  void SetValue(std::int32_t value);
  /// @name Entries of a list or a combo box, from 0; -1 for no selection. Error 438 for other widgets.
  /// @{
  std::int32_t ListCount() const;
  cardwright::Text List(std::int32_t index) const;
  std::int32_t ListIndex() const;
  void SetListIndex(std::int32_t index);
  /// @}

 protected:
  const MemberTable& Members() const override;

 private:
  QWidget& Alive() const;

  const QPointer<QWidget> m_Widget;
};

}  // namespace cardwright::robot
