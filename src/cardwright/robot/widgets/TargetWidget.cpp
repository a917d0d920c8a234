// SPDX-License-Identifier: MIT
#include "cardwright/robot/widgets/TargetWidget.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/editor/OrvEditor.h"
#include "cardwright/model/FormOwner.h"
#include "cardwright/model/IControl.h"
#include "cardwright/qt/editor/QtEditorSurface.h"
#include "cardwright/qt/surface/QtDesignSurface.h"
#include "cardwright/qt/surface/QtSurface.h"
#include "cardwright/qt/widgets/WidgetCore.h"
#include "cardwright/robot/widgets/WidgetPart.h"

namespace cardwright::robot {
namespace {

QWidget& RequireAlive(QWidget* widget) {
  if (!widget) Raise(ErrorNumber::ObjectNotSet);
  return *widget;
}

QWidget& CanvasOf(FormOwner& form) {
  Surface* const surface = form.GetSurface();
  if (const auto* designed = dynamic_cast<qt::QtDesignSurface*>(surface))
    return RequireAlive(designed->Native());
  const auto* const filled = dynamic_cast<qt::QtSurface*>(surface);
  return RequireAlive(filled ? filled->Native() : nullptr);
}

QWidget& CanvasOf(OrvEditor& editor) {
  const auto* const surface = dynamic_cast<qt::QtEditorSurface*>(editor.GetSurface());
  return RequireAlive(surface ? surface->Native() : nullptr);
}

/// What shows the control on the screen: its widget, or the visual control for the form as a whole.
Ref<Object> VisibleObjectOf(const IControl& control) {
  const Ref<Object> widget = control.BoundObject();
  return widget ? widget : control.ParentForm();
}

}  // namespace

QWidget& WidgetOf(const Variant& value) {
  Ref<Object> object(&RequireObject(value));
  if (const auto* control = dynamic_cast<const IControl*>(object.get())) object = VisibleObjectOf(*control);
  if (!object) Raise(ErrorNumber::ObjectNotSet);
  if (auto* form = dynamic_cast<FormOwner*>(object.get())) return CanvasOf(*form);
  if (auto* editor = dynamic_cast<OrvEditor*>(object.get())) return CanvasOf(*editor);
  if (auto* part = dynamic_cast<WidgetPart*>(object.get())) return RequireAlive(part->Native());
  auto* core = dynamic_cast<qt::WidgetCore*>(object.get());
  if (!core) Raise(ErrorNumber::TypeMismatch);
  return RequireAlive(core->Native());
}

}  // namespace cardwright::robot
