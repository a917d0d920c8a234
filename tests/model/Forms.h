// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>

#include "automation/Printing.h"
#include "cardwright/model/CForm.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/qt/surface/QtSurface.h"
#include "cardwright/qt/widgets/WidgetCore.h"
#include "cardwright/shared/ModuleState.h"
#include "model/FakeOwners.h"

namespace cardwright {

/// A window with an owner of the kind, whose form is the first object. A canvas that is a window itself has
/// no host.
template <class Owner>
struct FormOn {
  explicit FormOn(bool hasHost = true) : canvas(new QWidget(hasHost ? &window : nullptr)) {
    Module().formScaleMode = ScaleMode::Pixels;
    Module().designDragging = false;
    window.resize(500, 400);
    canvas->resize(400, 300);
    form->SetParentForm(owner);
    form->SetName(u"Form");
    owner->Controls().Add(Variant(Ref<Object>(form)), Variant(u"form"));
  }
  ~FormOn() {
    if (!canvas->parent()) delete canvas;
  }

  /// A control of a class bound to a new widget `widgetName` under the user name, in the form's collection.
  Ref<Control> Add(std::u16string_view className, std::u16string_view userName,
                   std::u16string_view widgetName) {
    for (const ClassTable* candidate : ControlClasses()) {
      if (candidate->className != className) continue;
      const Ref<Widget> widget = surface.Add(candidate->widgetIdentifier, widgetName, nullptr);
      Ref<Control> control = candidate->create();
      control->BindObject(widget);
      control->SetParentForm(owner);
      control->SetName(userName);
      widget->SetVisible(true);
      owner->Controls().Add(Variant(Ref<Object>(control)), Variant(ToLower(userName)));
      owner->Take();
      return control;
    }
    ADD_FAILURE() << "no class " << Text(className).ToUtf8();
    return nullptr;
  }
  Ref<Control> Add(std::u16string_view className) { return Add(className, u"a", u"object_1"); }

  Ref<IControl> Find(std::u16string_view userName) {
    return Ref<IControl>(FindControl(owner->Controls(), userName));
  }
  /// "Form, a, b": user names in order.
  std::string Names() {
    std::string names;
    for (const Ref<IControl>& control : ControlsOf(owner->Controls()))
      names += (names.empty() ? "" : ", ") + control->UserName().ToUtf8();
    return names;
  }
  void Show() {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  QWidget window;
  QWidget* canvas;
  qt::QtSurface surface{*canvas};
  Ref<Owner> owner = MakeRef<Owner>(surface);
  Ref<CForm> form = MakeRef<CForm>();
};
using DesignForm = FormOn<FakeDesigner>;
using InputForm = FormOn<FakeInput>;

/// The widget of a control, as its class.
template <class T = Widget>
T& WidgetOf(IControl& control) {
  return dynamic_cast<T&>(*control.BoundObject());
}
inline QWidget& NativeOf(IControl& control) {
  return *dynamic_cast<qt::WidgetCore&>(*control.BoundObject()).Native();
}
inline Text TextOf(const IControl& control, std::u16string_view row) {
  return ToText(control.PropertyValue(row));
}

}  // namespace cardwright
