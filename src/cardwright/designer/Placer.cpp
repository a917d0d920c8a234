// SPDX-License-Identifier: MIT
#include "cardwright/designer/Placer.h"

#include <algorithm>
#include <limits>

#include "cardwright/designer/DesignClipboard.h"
#include "cardwright/designer/FormDesigner.h"
#include "cardwright/model/ControlClasses.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kWidgetPrefix = u"object_";

}  // namespace

DesignSurface& Placer::Canvas() const { return m_Designer.Canvas(); }

bool Placer::Place(const Placement& placement) {
  NewControl made;
  if (!BestEffort([&] { made = Create(placement); })) return false;
  if (!made.widget) return true;
  if (placement.source) {
    ApplyCopy(made, placement);
  } else {
    BestEffort([&] { Size(made, placement); });
  }
  if (m_Designer.GetSurface()) AddToForm(made);
  return true;
}

// Numbers of deleted controls do not come back while the designer lives, so a name that a script or a host
// has kept never means another control. The widgets decide, not the collections: a user name of this form
// does not matter. The count is a 16-bit one.
Text Placer::NextName() {
  for (;;) {
    if (m_LastNumber == std::numeric_limits<std::int16_t>::max()) Raise(ErrorNumber::Overflow);
    ++m_LastNumber;
    Text name = Text(kWidgetPrefix) + ToText(Variant(m_LastNumber));
    if (!Canvas().Find(name)) return name;
  }
}

Placer::NewControl Placer::Create(const Placement& placement) {
  NewControl made{.table = FindDrawable(placement.type), .widget = {}, .control = {}};
  if (!made.table) return made;
  made.widget = AddWidget(made.table->design.identifier, placement.container.get());
  if (!made.widget) return made;
  if (made.table->create) {
    made.control = made.table->create();
    // The number in the caption is that of the widget's name, not a count by class.
    if (const char16_t* prefix = made.table->design.captionPrefix)
      made.widget->SetDisplayText(Text(prefix) + made.widget->Name().View().substr(kWidgetPrefix.size()));
    Bind(made);
  }
  if (made.table->design.refreshesWhenNew) made.widget->Refresh();
  return made;
}

// A name that the surface keeps for itself is skipped like one that a widget has.
Ref<Widget> Placer::AddWidget(std::u16string_view identifier, Widget* container) {
  for (;;) {
    try {
      return Canvas().Add(identifier, NextName(), container);
    } catch (const Error& error) {
      if (error.Number() != static_cast<int>(ErrorNumber::ControlNameExists)) throw;
    }
  }
}

void Placer::Bind(const NewControl& made) const {
  Control& control = *made.control;
  control.BindObject(made.widget);
  control.SetParentForm(Ref<Object>(&m_Designer));
  control.SetName(made.widget->Name());
  const SurfaceColors colors = made.table->design.surfaceColors;
  if (colors != SurfaceColors::None) control.SetBackColor(Canvas().BackColor());
  if (colors == SurfaceColors::BackAndFore) control.SetForeColor(Canvas().ForeColor());
}

void Placer::Size(const NewControl& made, const Placement& placement) const {
  const FormRect& drawn = placement.rectangle;
  const FormExtent room = RoomIn(placement.container.get(), Canvas());
  const float width = std::max(std::min(drawn.width, room.width - drawn.left), 0.0F);
  const float height = std::max(std::min(drawn.height, room.height - drawn.top), 0.0F);
  Widget& widget = *made.widget;
  widget.Move(drawn.left, drawn.top, width, made.table->design.hasFixedHeight ? widget.Height() : height);
  if (made.control) made.control->FinishDrawing();
}

// The new control is selected without an event unless its copied values raise one: hosts of pasted controls
// listen to StateChanged.
void Placer::ApplyCopy(const NewControl& made, const Placement& placement) {
  BestEffort([&] { Canvas().SetScreenPointer(PointerShape::Hourglass); });
  placement.source->ApplyAppearance(*made.widget);
  if (made.control) {
    BestEffort([&] { made.control->FinishDrawing(); });
    placement.source->ApplyProperties(*made.control);
    BestEffort([&] { made.widget->Move(0, 0, made.widget->Width(), made.widget->Height()); });
    BestEffort([&] { KeepInContainer(*made.control, placement.container.get()); });
    m_Selection.Store(made.control);
  }
  BestEffort([&] { Canvas().SetScreenPointer(PointerShape::Default); });
}

// The width of a handle is subtracted in both axes; authors know the size that a pasted control gets.
void Placer::KeepInContainer(Control& pasted, const Widget* container) const {
  const FormExtent room = RoomIn(container, Canvas());
  const float handle = m_Selection.HandleWidth();
  BestEffort([&] {
    if (pasted.Width() > room.width) pasted.SetWidth(room.width - handle);
  });
  BestEffort([&] {
    if (pasted.Height() > room.height) pasted.SetHeight(room.height - handle);
  });
}

// A control whose name is taken, by one that its author gave such a name, stays on the surface but is no part
// of the form: user names are unique.
void Placer::AddToForm(const NewControl& made) {
  Widget& widget = *made.widget;
  BestEffort([&] { widget.SetVisible(true); });
  // Keeps text from being typed into a widget under design; classes without the property are ignored.
  BestEffort([&] { LetProperty(widget, u"Locked", Variant(true)); });
  BestEffort([&] { widget.SetZOrder(StackPosition::Front); });
  if (!made.control) return;
  const Variant item{Ref<Object>(made.control)};
  BestEffort([&] { m_Designer.Controls().Add(item, Variant(ToLower(made.control->UserName()))); });
  BestEffort([&] { m_Designer.AppendToZList(made.control); });
  BestEffort([&] { m_Designer.SetCtrl(made.control); });
}

}  // namespace cardwright
