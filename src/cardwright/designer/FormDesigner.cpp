// SPDX-License-Identifier: MIT
#include "cardwright/designer/FormDesigner.h"

#include "cardwright/designer/DesignClipboard.h"
#include "cardwright/designer/DesignGrid.h"
#include "cardwright/designer/DesignMenu.h"
#include "cardwright/designer/OuterSize.h"
#include "cardwright/designer/Placer.h"
#include "cardwright/designer/Selection.h"
#include "cardwright/designer/StackOrder.h"
#include "cardwright/model/CForm.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/model/Rename.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kEnableKeyDelete = u"EnableKeyDelete";

Ref<Collection> FilterByName(FormDesigner& designer, ControlTypeEnum type) {
  auto found = MakeRef<Collection>();
  for (const Ref<IControl>& control : designer.FilterControls(type))
    found->Add(Variant(Ref<Object>(control)), Variant(ToLower(control->UserName())));
  return found;
}

// Until a host has set two default colours that differ, a new form has the system's.
DesignSurface& Prepared(DesignSurface& surface) {
  ModuleState& module = Module();
  module.formScaleMode = ScaleMode::Pixels;
  surface.SetScale(ScaleMode::Pixels);
  const bool hasDefaults = module.defaultBackColor != module.defaultForeColor;
  surface.SetBackColor(hasDefaults ? module.defaultBackColor : ToOleColor(SystemColor::ButtonFace));
  surface.SetForeColor(hasDefaults ? module.defaultForeColor : ToOleColor(SystemColor::ButtonText));
  return surface;
}

using D = FormDesigner;
constexpr Member kMembers[] = {
    Method<&D::SetCtrl>(u"SetCtrl"),
    Method<&D::SetGrid>(u"SetGrid"),
    Method<&D::Cut>(u"Cut"),
    Method<&D::Copy>(u"Copy"),
    Method<&D::Paste>(u"Paste"),
    Method<&D::Delete>(u"Delete"),
    Method<&D::SetForeground>(u"SetForeground"),
    Method<&D::SetBackground>(u"SetBackground"),
    Method<&D::LockUnlock>(u"LockUnlock"),
    Method<&D::SetMenuState>(u"SetMenuState"),
    Method<&D::UserControl_Resize>(u"UserControl_Resize"),
    Property<&D::GridStep, &D::SetGridStep>(u"GridStep"),
    Property<&D::GridAlignment, &D::SetGridAlignment>(u"GridAlignment"),
    Property<&D::ControlCollection>(u"Controls"),
    Property<&D::CurrentControl>(u"CurrentControl"),
    Property<&D::ControlTypeToAdd, &D::SetControlTypeToAdd>(u"ControlTypeToAdd"),
    Property<&D::WindowHandle>(u"hWnd"),
    Method<&D::ProjectRead>(u"ProjectRead"),
    Method<&D::ProjectSave>(u"ProjectSave"),
    Method<&D::GetThemeName>(u"GetThemeName"),
    Method<&D::GetFeatureType>(u"GetFeatureType"),
    Method<&D::SetThemeName>(u"SetThemeName"),
    Method<&D::SetFeatureType>(u"SetFeatureType"),
    Property<&D::EnableKeyDelete, &D::SetEnableKeyDelete>(kEnableKeyDelete),
    Method<&D::ChangeControlName>(u"ChangeControlName"),
    Method<&FilterByName>(u"FilterControls"),
    Method<&D::CenterLeft>(u"CenterLeft"),
    Method<&D::CenterTop>(u"CenterTop"),
    Property<&D::Parent>(u"Parent"),
};

}  // namespace

const MemberTable& FormDesigner::Members() const {
  static const MemberTable table(kMembers);
  return table;
}

FormDesigner::FormDesigner(DesignSurface& surface)
    : m_Surface(&Prepared(surface)),
      m_Selection(std::make_unique<Selection>(surface, static_cast<HandleListener&>(*this),
                                              Module().resizeHandleDims)),
      m_StackOrder(std::make_unique<StackOrder>()),
      m_Placer(std::make_unique<Placer>(*this, *m_Selection)),
      m_Clipboard(std::make_unique<DesignClipboard>()),
      m_Menu(std::make_unique<DesignMenu>()),
      m_Grid(std::make_unique<DesignGrid>()),
      m_OuterSize(std::make_unique<OuterSize>()) {}

Ref<FormDesigner> FormDesigner::Create(DesignSurface& surface) {
  Ref<FormDesigner> designer(new FormDesigner(surface));
  designer->m_Document.AddForm(designer);
  const Ref<IControl> form = designer->Form();
  designer->AppendToZList(form);
  designer->SetCtrl(form);
  surface.SetListener(designer.get());
  return designer;
}

FormDesigner::~FormDesigner() { DetachSurface(); }

void FormDesigner::DetachSurface() {
  m_Document.Detach(m_Surface);
  m_Selection->Detach();
  if (m_Surface) {
    BestEffort([&] { m_Surface->SetListener(nullptr); });
    BestEffort([&] { m_Surface->SetScreenPointer(PointerShape::Default); });  // in the middle of a paste
  }
  m_Surface = nullptr;
  m_Document.Clear();
  m_StackOrder->Clear();
}

Ref<IControl> FormDesigner::CurrentControl() const { return m_Selection->Current(); }
void FormDesigner::ShowHandles(bool show) { m_Selection->ShowHandles(show); }

std::vector<Ref<IControl>> FormDesigner::ZList() const { return m_StackOrder->Controls(); }
void FormDesigner::ResetZList() { m_StackOrder->Clear(); }
void FormDesigner::AppendToZList(Ref<IControl> control) { m_StackOrder->Append(control); }

DesignSurface& FormDesigner::Canvas() const {
  if (!m_Surface) Raise(ErrorNumber::ObjectNotSet);
  return *m_Surface;
}

std::int32_t FormDesigner::WindowHandle() const { return m_Surface ? m_Surface->WindowHandle() : 0; }

bool FormDesigner::IsForm(const IControl& control) {
  const Ref<Object> object = control.BoundObject();
  return dynamic_cast<const FormDesigner*>(object.get());
}

bool FormDesigner::IsAlive(const IControl& control) const {
  const Ref<Object> widget = control.BoundObject();
  if (!m_Surface || !widget) return false;
  return BestEffortOr(false, [&] { return m_Surface->Find(control.Name()).get() == widget.get(); });
}

void FormDesigner::SetCtrl(Ref<IControl> control) {
  if (!control) Raise(ErrorNumber::ObjectNotSet);
  const Ref<FormDesigner> keepAlive(this);
  if (control != m_Selection->Current()) {
    Variant selected{Ref<Object>(control)};
    Variant args[] = {Variant::ByRef(selected)};
    RaiseEvent(u"CurrObjectChanged", args);
  }
  if (IsForm(*control)) SetControlTypeToAdd(ControlTypeEnum::ctDefault);
  m_Selection->Select(control);
}

void FormDesigner::SetControlTypeToAdd(ControlTypeEnum type) {
  if (type == ControlTypeEnum::ctDefault || FindDrawable(type)) m_TypeToAdd = type;
}

std::vector<Ref<IControl>> FormDesigner::FilterControls(ControlTypeEnum type) const {
  return ControlsOfType(*ControlCollection(), type);
}

void FormDesigner::ChangeControlName(Ref<Object> control, const Text& newName) {
  const Ref<FormDesigner> keepAlive(this);
  const Ref<Collection> controls = ControlCollection();  // a handler may end the surface
  const auto notify = [this](const Text& oldName, IControl& renamed) {
    Variant old(oldName);
    Variant object{Ref<Object>(&renamed)};
    Variant args[] = {Variant::ByRef(old), Variant::ByRef(object)};
    RaiseEvent(u"ControlNameChanged", args);
  };
  if (RenameControl(*controls, control, newName, notify)) AttachLinks();
}

void FormDesigner::AttachLinks() {
  const Ref<Collection> controls = ControlCollection();
  for (const Ref<IControl>& control : ControlsOf(*controls))
    BestEffort([&] { control->AttachControls(*controls); });
}

bool FormDesigner::ProjectRead(const Text& fileName) {
  const Ref<FormDesigner> keepAlive(this);
  return BestEffortOr(false, [&] { return m_Document.Read(fileName); });
}

bool FormDesigner::ProjectSave(const Text& fileName, std::optional<bool> isTemporary) {
  const Ref<FormDesigner> keepAlive(this);
  return m_Document.Save(fileName, isTemporary.value_or(false));
}

void FormDesigner::SetThemeName(const Text& themeName) {
  if (const Ref<IControl> form = Form()) form->SetPropertyValue(u"ThemeName", themeName);
}

void FormDesigner::SetFeatureType(FeatureTypeEnum type) {
  if (const Ref<IControl> form = Form())
    form->SetPropertyValue(u"FeatureType", static_cast<std::int32_t>(type));
}

void FormDesigner::SetEnableKeyDelete(bool enable) {
  m_EnableKeyDelete = enable;
  if (m_Surface) m_Surface->NotifyPropertyChanged(kEnableKeyDelete);
}

// 1 or 0 and never a Boolean: containers have kept a number here ever since.
void FormDesigner::ReadProperties(const PropertyBag& bag) {
  m_EnableKeyDelete = ToBoolean(bag.ReadProperty(kEnableKeyDelete, Variant(1)));
}

void FormDesigner::WriteProperties(PropertyBag& bag) const {
  bag.WriteProperty(kEnableKeyDelete, Variant(m_EnableKeyDelete ? 1 : 0), Variant(1));
}

void FormDesigner::RaisePropertyChanged(int propertyIndex, const Variant& value) {
  Variant index(std::int32_t{propertyIndex});
  Variant changed = value;
  Variant args[] = {Variant::ByRef(index), Variant::ByRef(changed)};
  RaiseEvent(u"PropertyChanged", args);
}

void FormDesigner::RaiseAttribsList(std::vector<Text> names) {
  Variant list(Array::FromTexts(names));
  Variant args[] = {Variant::ByRef(list)};
  RaiseEvent(u"AttribsList", args);
}

void FormDesigner::RaiseNeedResize(float width, float height) {
  Variant args[] = {Variant(width), Variant(height)};
  RaiseEvent(u"NeedResize", args);
}

}  // namespace cardwright
