// SPDX-License-Identifier: MIT
#include "cardwright/model/CommonFields.h"

namespace cardwright {
namespace {

Widget& WidgetOf(TableControl& control) {
  Widget* widget = As<Control>(control).Bound();
  if (!widget) Raise(ErrorNumber::ObjectNotSet);
  return *widget;
}

const Widget& WidgetOf(const TableControl& control) { return WidgetOf(const_cast<TableControl&>(control)); }

// A change by a row comes from the host's grid: the designer moves the handles, and no PropertyChanged is
// raised.
void MoveEdge(TableControl& control, const Variant& value, float (Widget::*get)() const,
              void (Widget::*set)(float)) {
  Widget& widget = WidgetOf(control);
  const float wanted = ToSingle(value);
  if ((widget.*get)() == wanted) return;
  (widget.*set)(wanted);
  if (control.Designer()) control.Designer()->SetCtrl(Ref<IControl>(&control));
}

}  // namespace

namespace rows {

Variant GetUserName(const TableControl& control) { return control.UserName(); }

// Only the owner renames, since it knows the names of the other controls.
void Rename(TableControl& control, const Variant& name) {
  const cardwright::Text newName = ToText(name);
  if (control.Designer()) {
    control.Designer()->ChangeControlName(Ref<Object>(&control), newName);
  } else if (control.Input()) {
    control.Input()->ChangeControlName(Ref<Object>(&control), newName);
  }
}

Variant GetCaption(const TableControl& control) { return WidgetOf(control).DisplayText(); }
void SetCaption(TableControl& control, const Variant& text) {
  WidgetOf(control).SetDisplayText(ToText(text));
  WidgetOf(control).Refresh();
}
Variant GetBackColor(const TableControl& control) { return WidgetOf(control).BackColor(); }
void SetBackColor(TableControl& control, const Variant& color) {
  WidgetOf(control).SetBackColor(ToLong(color));
}
Variant GetForeColor(const TableControl& control) { return WidgetOf(control).ForeColor(); }
void SetForeColor(TableControl& control, const Variant& color) {
  WidgetOf(control).SetForeColor(ToLong(color));
}
Variant GetFont(const TableControl& control) { return WidgetOf(control).GetFont(); }
void SetFont(TableControl& control, const Variant& font) { As<Control>(control).SetFont(font); }
Variant GetLeft(const TableControl& control) { return WidgetOf(control).Left(); }
void MoveLeft(TableControl& control, const Variant& value) {
  MoveEdge(control, value, &Widget::Left, &Widget::SetLeft);
}
Variant GetTop(const TableControl& control) { return WidgetOf(control).Top(); }
void MoveTop(TableControl& control, const Variant& value) {
  MoveEdge(control, value, &Widget::Top, &Widget::SetTop);
}
Variant GetWidth(const TableControl& control) { return WidgetOf(control).Width(); }
void MoveWidth(TableControl& control, const Variant& value) {
  MoveEdge(control, value, &Widget::Width, &Widget::SetWidth);
}
Variant GetHeight(const TableControl& control) { return WidgetOf(control).Height(); }
void MoveHeight(TableControl& control, const Variant& value) {
  MoveEdge(control, value, &Widget::Height, &Widget::SetHeight);
}

}  // namespace rows

namespace keys {

void ReadCaption(TableControl& control, const Variant& text) {
  WidgetOf(control).SetDisplayText(ToText(text));
}
void ReadLeft(TableControl& control, const Variant& value) { WidgetOf(control).SetLeft(ToSingle(value)); }
void ReadTop(TableControl& control, const Variant& value) { WidgetOf(control).SetTop(ToSingle(value)); }
void ReadWidth(TableControl& control, const Variant& value) { WidgetOf(control).SetWidth(ToSingle(value)); }
void ReadHeight(TableControl& control, const Variant& value) { WidgetOf(control).SetHeight(ToSingle(value)); }
void ReadForeColor(TableControl& control, const Variant& color) {
  WidgetOf(control).SetForeColor(ToLong(color));
}

}  // namespace keys

}  // namespace cardwright
