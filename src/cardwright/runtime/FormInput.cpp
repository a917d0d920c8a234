// SPDX-License-Identifier: MIT
#include "cardwright/runtime/FormInput.h"

#include "cardwright/automation/FlagScope.h"
#include "cardwright/model/CForm.h"
#include "cardwright/model/Control.h"
#include "cardwright/model/Rename.h"
#include "cardwright/runtime/AttributeBinding.h"
#include "cardwright/runtime/FormButton.h"
#include "cardwright/runtime/RedrawPause.h"
#include "cardwright/runtime/ScriptRun.h"
#include "cardwright/shared/Messages.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/ScriptText.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kFormName = u"Form";

constexpr Member kFormInputMembers[] = {
    Property<&FormInput::ControlCollection>(u"Controls"),
    Property<&FormInput::DebugMode, &FormInput::SetDebugMode>(u"DebugMode"),
    Property<&FormInput::NewFeature, &FormInput::SetNewFeature>(u"NewFeature"),
    Property<&FormInput::FeatureID, &FormInput::SetFeatureID>(u"FeatureID"),
    Method<&FormInput::ProjectRead>(u"ProjectRead"),
    Method<&FormInput::ProjectSave>(u"ProjectSave"),
    Property<&FormInput::StoresAttributes, &FormInput::SetStoresAttributes>(u"SetAttributesEnabled"),
    Method<&FormInput::ChangeControlName>(u"ChangeControlName"),
    Method<&FormInput::GetThemeName>(u"GetThemeName"),
    Method<&FormInput::GetFeatureType>(u"GetFeatureType"),
    Method<&FormInput::GetFeatureTypeString>(u"GetFeatureTypeString"),
    Property<&FormInput::WindowHandle>(u"hWnd"),
    Property<&FormInput::Parent>(u"Parent"),
};

}  // namespace

const MemberTable& FormInput::Members() const {
  static const MemberTable table(kFormInputMembers);
  return table;
}

FormInput::FormInput(Surface& surface)
    : m_Surface(&surface), m_Binding(std::make_unique<AttributeBinding>()) {
  Module().formScaleMode = ScaleMode::Pixels;
  surface.SetScale(ScaleMode::Pixels);
  m_OkButton = std::make_unique<FormButton>(surface, u"cmdOK", messages::Ok, [this] { Ok(); });
  m_CancelButton =
      std::make_unique<FormButton>(surface, u"cmdCancel", messages::Cancel, [this] { Cancel(); });
}

Ref<FormInput> FormInput::Create(Surface& surface) {
  Ref<FormInput> input(new FormInput(surface));
  input->m_Document.AddForm(input);
  return input;
}

BoundFeature FormInput::Feature() const {
  return {GetFeatureClass(), m_FeatureID, m_NewFeature, m_DebugMode};
}

FormInput::~FormInput() { DetachSurface(); }

void FormInput::DetachSurface() {
  m_Document.Detach(m_Surface);
  m_OkButton.reset();
  m_CancelButton.reset();
  m_Surface = nullptr;
}

void FormInput::SetFeatureID(const Text& id) {
  const Ref<FormInput> keepAlive(this);  // a script may close the window when a value changes
  m_FeatureID = id;
  if (CanRunScripts()) m_Binding->Load(Controls(), Feature());
}

bool FormInput::ProjectRead(const Text& fileName) {
  const Ref<FormInput> keepAlive(this);
  m_ProjectFile = fileName;
  if (!m_Document.Read(fileName)) return false;
  if (!CanRunScripts()) return true;
  if (m_DebugMode) m_Binding->Load(Controls(), Feature());
  RunScript(*this, Module().scriptContent, Module().scriptLanguage, m_DebugMode);
  RunFormEvent(u"Initialize");
  return true;
}

bool FormInput::ProjectSave(const Text& fileName, std::optional<bool> isTemporary) {
  return m_Document.Save(fileName, isTemporary.value_or(false));
}

void FormInput::ChangeControlName(Ref<Object> control, const Text& newName) {
  const Ref<FormInput> keepAlive(this);
  RenameControl(Controls(), control, newName, [this](const Text& oldName, IControl& renamed) {
    Variant args[] = {Variant(oldName), Variant(Ref<Object>(&renamed))};
    RaiseEvent(u"ControlNameChanged", args);
  });
}

std::int32_t FormInput::WindowHandle() const { return m_Surface ? m_Surface->WindowHandle() : 0; }

bool FormInput::CanRunScripts() const { return !m_DebugMode || Module().debugOutput; }

bool FormInput::RunEvent(const Text& procedure) { return cardwright::RunEvent(procedure); }

bool FormInput::RunFormEvent(std::u16string_view event) { return RunEvent(BuildEventName(kFormName, event)); }

void FormInput::SetCaption(const Text& caption) {
  m_Caption = caption;
  Variant text(caption);
  Variant args[] = {Variant::ByRef(text)};
  RaiseEvent(u"SetParentCaption", args);
}

Ref<IControl> FormInput::FirstMissing() const {
  Text value;  // kept from control to control: one of a kind that has no value of its own takes its
               // predecessor's
  for (const Ref<IControl>& control : ControlsOf(*ControlCollection())) {
    // Only this spelling counts: a form in use that has another one has never required the value.
    const bool needed =
        BestEffortOr(false, [&] { return ToText(control->PropertyValue(u"IsNeeded")) == u"True"; });
    if (!needed) continue;
    if (auto* bound = dynamic_cast<Control*>(control.get()))
      BestEffort([&] { bound->TakeRequiredValue(value); });
    if (value.IsEmpty()) return control;
  }
  return nullptr;
}

void FormInput::ReportMissing(IControl& control) {
  const Text attribute = control.AttributeName();
  const Text message = attribute.IsEmpty() ? GetMessage(messages::ControlMissing, {Variant(control.Name())})
                                           : GetMessage(messages::AttributeMissing, {Variant(attribute)});
  if (Module().desktop)
    Module().desktop->ShowMessage(message, BoxStyle::Exclamation, GetMessage(messages::Warning));
  if (auto* widget = dynamic_cast<Widget*>(control.BoundObject().get()))
    BestEffort([&] { widget->SetFocus(); });
}

namespace {

// Keeps the host from redrawing where the form may change its data.
std::optional<RedrawPause> PauseRedraw(const FormInput& form) {
  using Pause = std::optional<RedrawPause>;
  return form.AttributesWritable() ? Pause(std::in_place, OrvClient::Shared(), RedrawPause::End::Redraw)
                                   : Pause();
}

}  // namespace

// A script that presses the button in an event of the same button would do so for ever: the inner press is
// ignored.
bool FormInput::RunOk() {
  if (m_RunsOk) return false;
  const FlagScope running(m_RunsOk);
  const std::optional<RedrawPause> pause = PauseRedraw(*this);
  if (!RunFormEvent(u"BeforeOkClick")) return false;
  if (m_StoresAttributes && m_Binding->Store(Controls(), Feature())) RunFormEvent(u"AfterSetAttributes");
  if (AttributesWritable()) OrvClient::Shared().SelectNone(GetFeatureClass());
  return RunFormEvent(u"AfterOkClick");
}

bool FormInput::RunCancel() {
  if (!CanRunScripts()) return true;
  if (m_RunsCancel) return false;
  const FlagScope running(m_RunsCancel);
  const std::optional<RedrawPause> pause = PauseRedraw(*this);
  return RunFormEvent(u"BeforeCancelClick");
}

void FormInput::Ok() {
  const Ref<FormInput> keepAlive(this);  // a host may close the window in any of the events below
  if (!CanRunScripts()) return RaiseEvent(u"OkClick");
  if (const Ref<IControl> missing = FirstMissing()) return ReportMissing(*missing);
  if (RunOk()) RaiseEvent(u"OkClick");
}

void FormInput::Cancel() {
  const Ref<FormInput> keepAlive(this);
  if (RunCancel()) RaiseEvent(u"CancelClick");
}

}  // namespace cardwright
