// How a new control comes onto the surface: its name, its widget, its first text and size.

#include <algorithm>
#include <limits>

#include "cardwright/designer/FormDesigner.h"
#include "cardwright/designer/RedrawLock.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kObject = u"object_";
constexpr std::u16string_view kSelectionState = u"Default";  // as StateChanged tells it

}  // namespace

// Numbers of deleted controls do not come back while the designer lives, so a name that a script or a host
// has kept never means another control. Widgets decide and not the collections: a user name in the style of
// these hinders nobody. The count is a 16-bit one.
Text FormDesigner::NextObjectName() {
  for (;;) {
    if (m_NameCounter == std::numeric_limits<std::int16_t>::max()) Raise(ErrorNumber::Overflow);
    ++m_NameCounter;
    Text name = Text(kObject) + ToText(Variant(m_NameCounter));
    if (!Canvas().Find(name)) return name;
  }
}

// Each placing goes back to selection: a host's tool box follows StateChanged. Until the widget is bound, an
// error ends the attempt in silence and the tool stays chosen; from then on, as much is done as can be.
void FormDesigner::PlaceControl(int button, float x, float y) {
  if (m_Tracking) return;
  const Ref<FormDesigner> keepAlive(this);
  std::optional<RedrawLock> lock;
  if (button == MouseButton::Left && IsAdding()) {
    lock.emplace(m_Surface);
    NewControl made;
    if (!Attempt([&] { made = CreateControl(); })) return;
    if (made.widget && m_PasteMode) FillPasted(made);
    if (made.widget && !m_PasteMode) Attempt([&] { SizeDrawn(made, std::max(x, 0.0F), std::max(y, 0.0F)); });
    if (made.widget && m_Surface) AdoptNew(made);
    if (!m_Surface) m_Current = nullptr;  // a handler has ended it, and the designer is an empty one
  }
  if (IsAdding()) {
    SetControlTypeToAdd(ControlTypeEnum::ctDefault);
    Variant args[] = {Variant(kSelectionState)};
    Attempt([&] { RaiseEvent(u"StateChanged", args); });
  }
  if (m_Surface) m_Surface->SetPointer(PointerShape::Arrow);
  Module().designDragging = false;
}

Ref<Widget> FormDesigner::FrameForNew() const {
  if (!m_Current || !m_IntoFrame) return nullptr;
  Ref<Widget> selected(dynamic_cast<Widget*>(m_Current->BoundObject().get()));
  return ClassOf(*m_Current).design.isContainer ? selected : nullptr;
}

FormDesigner::NewControl FormDesigner::CreateControl() {
  NewControl made{.kind = FindDrawable(m_TypeToAdd), .container = FrameForNew(), .widget = {}, .control = {}};
  if (!made.kind) return made;
  made.widget = AddWidget(made.kind->design.identifier, made.container.get());
  if (!made.widget) return made;
  if (made.kind->create) {
    made.control = made.kind->create();
    // The number in the text is that of the object, not a count by kind.
    if (made.kind->design.captionPrefix)
      made.widget->SetDisplayText(Text(made.kind->design.captionPrefix) +
                                  made.widget->Name().View().substr(kObject.size()));
    BindNew(made);
  }
  if (made.kind->design.refreshesWhenNew) made.widget->Refresh();
  return made;
}

// A name that the surface keeps for itself is passed over as one that a control has.
Ref<Widget> FormDesigner::AddWidget(std::u16string_view identifier, Widget* container) {
  for (;;) {
    try {
      return Canvas().Add(identifier, NextObjectName(), container);
    } catch (const Error& error) {
      if (error.Number() != static_cast<int>(ErrorNumber::ControlNameExists)) throw;
    }
  }
}

void FormDesigner::BindNew(const NewControl& made) {
  Control& control = *made.control;
  m_IntoFrame = false;
  control.BindObject(made.widget);
  control.SetParentForm(Ref<Object>(this));
  control.SetName(made.widget->Name());
  const SurfaceColors colors = made.kind->design.surfaceColors;
  if (colors != SurfaceColors::None) control.SetBackColor(Canvas().BackColor());
  if (colors == SurfaceColors::BackAndFore) control.SetForeColor(Canvas().ForeColor());
}

void FormDesigner::SizeDrawn(const NewControl& made, float x, float y) {
  float left = m_MouseDownX;
  float top = m_MouseDownY;
  if (x < left) std::swap(left, x);
  if (y < top) std::swap(top, y);
  const float roomX = made.container ? made.container->Width() : Canvas().Width();
  const float roomY = made.container ? made.container->Height() : Canvas().Height();
  const float width = std::max(std::min(x - left, roomX - left), 0.0F);
  const float height = std::max(std::min(y - top, roomY - top), 0.0F);
  Widget& widget = *made.widget;
  widget.Move(left, top, width, made.kind->design.hasFixedHeight ? widget.Height() : height);
  if (made.control) made.control->FinishDrawing();
}

void FormDesigner::FillPasted(const NewControl& made) {
  Attempt([&] { Canvas().SetScreenPointer(PointerShape::Hourglass); });
  m_Clipboard.PutAppearance(*made.widget);
  if (made.control) {
    Attempt([&] { made.control->FinishDrawing(); });
    m_Clipboard.PutProperties(*made.control);
    Attempt([&] { made.widget->Move(0, 0, made.widget->Width(), made.widget->Height()); });
    Attempt([&] { HoldPastedSize(made); });
    m_Current = made.control;
  }
  Attempt([&] { Canvas().SetScreenPointer(PointerShape::Default); });
}

// The width of a handle stands in both axes; authors know the size that a pasted control comes out with.
void FormDesigner::HoldPastedSize(const NewControl& made) {
  const float roomX = made.container ? made.container->Width() : Canvas().Width();
  const float roomY = made.container ? made.container->Height() : Canvas().Height();
  const float handle = Handles().Width();
  Attempt([&] {
    if (made.control->Width() > roomX) made.control->SetWidth(roomX - handle);
  });
  Attempt([&] {
    if (made.control->Height() > roomY) made.control->SetHeight(roomY - handle);
  });
}

// A control whose name is taken, by one that its author gave such a name, stands on the surface but is no
// part of the form: user names are unique.
void FormDesigner::AdoptNew(const NewControl& made) {
  Widget& widget = *made.widget;
  m_PasteMode = false;
  Attempt([&] { widget.SetVisible(true); });
  // Keeps text from being typed into what is only drawn; kinds without it are passed over.
  Attempt([&] { LetProperty(widget, u"Locked", Variant(true)); });
  Attempt([&] { widget.SetZOrder(StackPosition::Front); });
  if (!made.control) return;
  const Variant item{Ref<Object>(made.control)};
  Attempt([&] { m_Controls->Add(item, Variant(ToLower(made.control->UserName()))); });
  Attempt([&] { AppendToZList(made.control); });
  Attempt([&] { SetCtrl(made.control); });
}

}  // namespace cardwright
