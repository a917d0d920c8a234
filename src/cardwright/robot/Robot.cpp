// SPDX-License-Identifier: MIT
#include "cardwright/robot/Robot.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QToolBar>
#include <QWindow>
#include <chrono>

#include "cardwright/editor/OrvEditor.h"
#include "cardwright/model/FormOwner.h"
#include "cardwright/qt/VisualControl.h"
#include "cardwright/qt/editor/QtEditorSurface.h"
#include "cardwright/qt/surface/QtDesignSurface.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetCore.h"
#include "cardwright/robot/input/EventProcessing.h"
#include "cardwright/robot/input/ItemClicks.h"
#include "cardwright/robot/input/Keyboard.h"
#include "cardwright/robot/widgets/MousePointer.h"
#include "cardwright/robot/widgets/Screenshot.h"
#include "cardwright/robot/widgets/TargetWidget.h"
#include "cardwright/robot/widgets/WidgetPart.h"
#include "cardwright/robot/windows/ControlProperties.h"
#include "cardwright/scripting/Dictionary.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::robot {
namespace {

using OptionalLong = std::optional<std::int32_t>;
using std::chrono::milliseconds;

constexpr milliseconds kWaitForWindow{1000};
constexpr int kDefaultDragMoves = 8;

ClickOptions ClickOptionsOf(const OptionalLong& button, const OptionalLong& shift) {
  ClickOptions options;
  switch (button.value_or(MouseButton::Left)) {
    case MouseButton::Left: break;
    case MouseButton::Right: options.button = Qt::RightButton; break;
    case MouseButton::Middle: options.button = Qt::MiddleButton; break;
    default: Raise(ErrorNumber::InvalidCall);
  }
  const std::int32_t keys = shift.value_or(0);
  if (keys & ShiftKey::Shift) options.modifiers |= Qt::ShiftModifier;
  if (keys & ShiftKey::Ctrl) options.modifiers |= Qt::ControlModifier;
  if (keys & ShiftKey::Alt) options.modifiers |= Qt::AltModifier;
  return options;
}

QPoint PointIn(const QWidget& widget, const OptionalLong& x, const OptionalLong& y) {
  const QPoint centre = widget.rect().center();
  return {x.value_or(centre.x()), y.value_or(centre.y())};
}

/// Raises the error of a dialog's procedure that the input led to.
void RaisePendingError(Robot& self) { self.Session().responder.RaisePendingError(); }

void Click(Robot& self, const Variant& widget, OptionalLong x, OptionalLong y, OptionalLong button,
           OptionalLong shift) {
  QWidget& target = WidgetOf(widget);
  self.Session().mouse.Click(target, PointIn(target, x, y), ClickOptionsOf(button, shift));
  RaisePendingError(self);
}

void DoubleClick(Robot& self, const Variant& widget, OptionalLong x, OptionalLong y, OptionalLong button,
                 OptionalLong shift) {
  QWidget& target = WidgetOf(widget);
  self.Session().mouse.DoubleClick(target, PointIn(target, x, y), ClickOptionsOf(button, shift));
  RaisePendingError(self);
}

void Drag(Robot& self, const Variant& widget, std::int32_t x1, std::int32_t y1, std::int32_t x2,
          std::int32_t y2, OptionalLong button, OptionalLong steps) {
  const std::int32_t moves = steps.value_or(kDefaultDragMoves);
  if (moves < 1) Raise(ErrorNumber::InvalidCall);
  self.Session().mouse.Drag(WidgetOf(widget), {x1, y1}, {x2, y2}, ClickOptionsOf(button, {}), moves);
  RaisePendingError(self);
}

void Press(Robot& self, const Variant& widget, const Text& keys) {
  PressKey(WidgetOf(widget), ParseStroke(keys));
  RaisePendingError(self);
}
void Type(Robot& self, const Variant& widget, const Text& text) {
  TypeText(WidgetOf(widget), text);
  RaisePendingError(self);
}
void Focus(Robot&, const Variant& widget) { GiveFocus(WidgetOf(widget)); }

Text FocusName(Robot&) {
  for (QWidget* at = QApplication::focusWidget(); at; at = at->parentWidget())
    if (qt::WidgetCore* core = qt::WidgetCore::Of(*at)) return core->Self().Name();
  return {};
}

void SelectItem(Robot& self, const Variant& widget, std::int32_t row, std::optional<Text> part) {
  const Text wanted = part.value_or(u"text");
  const bool isCheck = EqualsNoCase(wanted, u"check");
  if (!isCheck && !EqualsNoCase(wanted, u"text")) Raise(ErrorNumber::InvalidCall);
  ClickItem(self.Session().mouse, WidgetOf(widget), row, isCheck ? ItemPart::Check : ItemPart::Text);
  RaisePendingError(self);
}

bool IsReady(QWidget& window) {
  return window.windowHandle() && window.windowHandle()->isExposed() && window.isActiveWindow();
}

void Show(Robot&, const Variant& control, OptionalLong width, OptionalLong height) {
  QWidget& window = *WidgetOf(control).window();
  const QSize wanted(width.value_or(window.width()), height.value_or(window.height()));
  if (wanted.width() < 0 || wanted.height() < 0) Raise(ErrorNumber::InvalidCall);
  window.resize(wanted);
  window.show();
  window.raise();
  window.activateWindow();
  const QDeadlineTimer end(kWaitForWindow);
  do {
    ProcessEvents(milliseconds(1));
  } while (!IsReady(window) && !end.hasExpired());
}

/// A part of a composed widget; null for other widgets.
Ref<Object> PartOf(QWidget& widget, const Text& name) {
  const qt::WidgetCore* const core = qt::WidgetCore::Of(widget);
  QWidget* const part = core && core->Native() == &widget ? core->Part(name) : nullptr;
  return part ? MakeRef<WidgetPart>(*part) : nullptr;
}

/// A widget on a visual control's surface, including the designer's own.
Ref<Object> ChildOn(Surface& surface, const Text& name, const OptionalLong& index) {
  if (const auto* designed = dynamic_cast<qt::QtDesignSurface*>(&surface))
    if (Ref<Widget> own = designed->OwnWidget(name, index)) return own;
  return index ? nullptr : surface.Find(name);
}

/// A widget of a script editor, or the window that describes a command.
Ref<Object> ChildOn(OrvEditor& editor, const Text& name) {
  const auto* const surface = dynamic_cast<qt::QtEditorSurface*>(editor.GetSurface());
  if (!surface) Raise(ErrorNumber::ObjectNotSet);
  QWidget* const window = surface->DescriptionWidget();
  if (window && EqualsNoCase(qt::ViewOf(window->objectName()), name)) return MakeRef<WidgetPart>(*window);
  return surface->OwnWidget(name);
}

/// A widget on a visual control, in a dialog, or a part of a composed widget. Only the grab handles of a
/// designer are an array and take an index.
Ref<Object> Child(Robot&, const Variant& parent, const Text& name, const OptionalLong& index) {
  Object& object = RequireObject(parent);
  auto* const form = dynamic_cast<FormOwner*>(&object);
  if (form && !form->GetSurface()) Raise(ErrorNumber::ObjectNotSet);
  if (form) return ChildOn(*form->GetSurface(), name, index);
  if (auto* const editor = dynamic_cast<OrvEditor*>(&object)) return ChildOn(*editor, name);
  QWidget& widget = WidgetOf(parent);
  if (index) return nullptr;
  const auto* const dialog = dynamic_cast<WidgetPart*>(&object);
  if (dialog && widget.isWindow()) return dialog->Child(name);
  return PartOf(widget, name);
}

void PressToolButton(Robot& self, const Variant& control, const Text& key) {
  auto* const editor = dynamic_cast<OrvEditor*>(&RequireObject(control));
  if (!editor) Raise(ErrorNumber::TypeMismatch);
  const Ref<Object> toolbar = ChildOn(*editor, u"tbrMenu");
  const auto& bar = dynamic_cast<const qt::QtToolbar&>(*toolbar);
  const QRect button = bar.RectOf(key);
  if (button.isEmpty()) Raise(ErrorNumber::InvalidCall);
  self.Session().mouse.Click(bar.Bar(), button.center(), {});
  RaisePendingError(self);
}

void WhenDialog(Robot& self, const Text& name, Ref<Object> procedure) {
  self.Session().responder.SetProcedure(name, std::move(procedure));
}

void Pump(Robot& self, OptionalLong time) {
  const std::int32_t length = time.value_or(0);
  if (length < 0) Raise(ErrorNumber::InvalidCall);
  ProcessEvents(milliseconds(length));
  RaisePendingError(self);
}

Answers& AnswersOf(Robot& self) { return self.Session().responder.Queue(); }
void Answer(Robot& self, std::int32_t number) { AnswersOf(self).boxes.push_back(number); }
void ChooseMenu(Robot& self, const Text& name) { AnswersOf(self).menus.push_back(name); }
void AnswerFile(Robot& self, const Text& path) { AnswersOf(self).files.push_back(path); }
void AnswerColor(Robot& self, std::int32_t color) { AnswersOf(self).colors.push_back(color); }
void AnswerFont(Robot& self, const Text& name, std::optional<double> size) {
  constexpr double kUsualSize = 8.25;
  const double points = size.value_or(kUsualSize);
  if (points <= 0 && !name.IsEmpty()) Raise(ErrorNumber::InvalidCall);
  AnswersOf(self).fonts.push_back({name, points});
}

Text LastMenu(Robot& self) { return self.Session().responder.LastMenu(); }
Ref<Collection> Messages(Robot& self) { return self.Session().desktop.Messages(); }
Ref<Collection> Launches(Robot& self) { return self.Session().desktop.Launches(); }
std::int32_t Beeps(Robot& self) { return self.Session().desktop.Beeps(); }

Text GetSetting(Robot&, const Text& app, const Text& section, const Text& key) {
  return Module().desktop->Settings().Get(app, section, key, {});
}
void LetSetting(Robot&, const Text& app, const Text& section, const Text& key, const Text& value) {
  Module().desktop->Settings().Save(app, section, key, value);
}

qt::VisualControl& ContainedControl(const Variant& control) {
  auto* contained = qobject_cast<qt::VisualControl*>(&WidgetOf(control));
  if (!contained) Raise(ErrorNumber::TypeMismatch);
  return *contained;
}

bool GetDesignMode(Robot&, const Variant& control) { return ContainedControl(control).DesignMode(); }
void LetDesignMode(Robot&, const Variant& control, bool designing) {
  ContainedControl(control).SetDesignMode(designing);
}

Ref<scripting::Dictionary> GetBag(Robot&, const Variant& control) {
  return WriteProperties(ContainedControl(control));
}

void LetBag(Robot&, const Variant& control, Ref<scripting::Dictionary> bag) {
  if (!bag) Raise(ErrorNumber::ObjectNotSet);
  ReadProperties(ContainedControl(control), *bag);
}

// A designer is asked for the number of its pointer, because two numbers of the platform look the same on the
// screen.
std::int32_t MousePointer(Robot&, const Variant& widget) {
  const QWidget& target = WidgetOf(widget);
  auto* const form = dynamic_cast<FormOwner*>(&RequireObject(widget));
  const auto* const designed = form ? dynamic_cast<DesignSurface*>(form->GetSurface()) : nullptr;
  return designed ? static_cast<std::int32_t>(designed->Pointer()) : PointerNumber(target);
}
Text Tooltip(Robot& self) { return self.Session().tooltips.Last(); }
std::int32_t Pixel(Robot&, const Variant& widget, std::int32_t x, std::int32_t y) {
  return PixelColor(WidgetOf(widget), {x, y});
}
void TakeScreenshot(Robot&, const Variant& widget, const Text& path) {
  SaveScreenshot(*WidgetOf(widget).window(), path);
}

constexpr Member kRobotMembers[] = {
    Method<&Show>(u"Show"),
    Method<&Child>(u"Child"),
    Method<&Click>(u"Click"),
    Method<&DoubleClick>(u"DoubleClick"),
    Method<&Press>(u"Press"),
    Method<&Type>(u"Type"),
    Method<&Drag>(u"Drag"),
    Method<&Focus>(u"Focus"),
    Property<&FocusName>(u"FocusName"),
    Method<&Answer>(u"Answer"),
    Property<&Messages>(u"Messages"),
    Method<&ChooseMenu>(u"ChooseMenu"),
    Property<&LastMenu>(u"LastMenu"),
    Method<&AnswerFile>(u"AnswerFile"),
    Method<&AnswerColor>(u"AnswerColor"),
    Method<&AnswerFont>(u"AnswerFont"),
    Method<&WhenDialog>(u"WhenDialog"),
    Property<&GetDesignMode, &LetDesignMode>(u"DesignMode"),
    Method<&SelectItem>(u"ClickItem"),
    Method<&PressToolButton>(u"ToolButton"),
    Property<&MousePointer>(u"MousePointer"),
    Property<&Tooltip>(u"Tooltip"),
    Property<&Pixel>(u"PixelColor"),
    Property<&Beeps>(u"Beeps"),
    Property<&Launches>(u"Launches"),
    Property<&GetSetting, &LetSetting>(u"Setting"),
    Property<&GetBag, &LetBag, &LetBag>(u"Bag"),
    Method<&TakeScreenshot>(u"Screenshot"),
    Method<&Pump>(u"Pump"),
};

}  // namespace

const MemberTable& Robot::Members() const {
  static const MemberTable table(kRobotMembers);
  return table;
}

}  // namespace cardwright::robot
