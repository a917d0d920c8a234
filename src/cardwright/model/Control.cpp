// SPDX-License-Identifier: MIT
#include "cardwright/model/Control.h"

#include "cardwright/model/BestEffortSteps.h"
#include "cardwright/model/FileKeys.h"
#include "cardwright/platform/Files.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/ScriptText.h"
#include "cardwright/storage/ProjectWriter.h"

namespace cardwright {
namespace {

Text ContainerName(const Widget& widget) {
  const Ref<Widget> container = widget.Container();
  return container ? container->Name() : Text();
}

}  // namespace

Control::~Control() {
  if (m_Obj) m_Obj->SetListener(nullptr);
}

Text Control::Name() const { return m_Obj ? m_Obj->Name() : m_UserName; }

// The designer moves controls by the accessors, which therefore raise PropertyChanged for the host's grid.
// The grid moves them by the rows of the table, which select the control in the designer instead.
void Control::SetLeft(float value) {
  if (!m_Obj) return;
  m_Obj->SetLeft(value);
  RaisePropertyChanged(u"Left", value);
}

void Control::SetTop(float value) {
  if (!m_Obj) return;
  m_Obj->SetTop(value);
  RaisePropertyChanged(u"Top", value);
}

void Control::SetWidth(float value) {
  if (!m_Obj) return;
  m_Obj->SetWidth(value);
  RaisePropertyChanged(u"Width", value);
}

void Control::SetHeight(float value) {
  if (!m_Obj) return;
  m_Obj->SetHeight(value);
  RaisePropertyChanged(u"Height", value);
}

// Unlike SetForeColor, this raises no PropertyChanged: the grids of hosts rely on the difference.
void Control::SetBackColor(OleColor color) {
  if (m_Obj) m_Obj->SetBackColor(color);
}

void Control::SetForeColor(OleColor color) {
  if (!m_Obj) return;
  m_Obj->SetForeColor(color);
  RaisePropertyChanged(u"ForeColor", color);
}

Ref<cardwright::Font> Control::GetFont() const { return m_Obj ? m_Obj->GetFont() : nullptr; }

void Control::SetFont(const Variant& font) {
  Variant held = font;
  if (m_Obj) m_Obj->SetFont(FromVariant<Ref<cardwright::Font>>(held));
}

void Control::BindObject(Ref<Object> object) {
  auto* widget = dynamic_cast<Widget*>(object.get());
  if (object && (!widget || !Accepts(*widget))) Raise(ErrorNumber::TypeMismatch);
  if (m_Obj) m_Obj->SetListener(nullptr);
  m_Obj = Ref<Widget>(widget);
  if (m_Obj) m_Obj->SetListener(this);
}

bool Control::Accepts(const Widget& widget) const {
  return EqualsNoCase(widget.TypeName(), Table().widgetType);
}

bool Control::Read(const Text& filePath, const Text& sectionName) {
  const auto project = ProjectReader::Open(filePath);
  return project && ReadFrom(project->Section(sectionName));
}

bool Control::ReadFrom(const SectionReader& section) {
  if (!m_Obj) return false;
  BestEffortSteps step;
  for (const FileKey& key : Table().keys) step([&] { ReadKey(*this, key, section); });
  step([&] {
    auto stored = section.Find(u"UserName");
    m_UserName = stored ? ToText(*stored) : m_Obj->Name();
  });
  step([&] { m_Obj->SetVisible(true); });
  step([&] { FinishRead(section); });
  return step.Result();
}

bool Control::Save(const Text& filePath, const Text& sectionName) {
  if (!FileExists(filePath)) return false;
  ProjectWriter project = ProjectWriter::Edit(filePath);
  SectionWriter section = project.Section(sectionName);
  const bool isSaved = SaveTo(section);
  project.Commit(Durability::Crash);
  return isSaved;
}

bool Control::SaveTo(SectionWriter& section) const {
  if (!Designer() || !m_Obj) return false;
  // What was in a frame inside a deleted frame stays among the controls; without its widget there is nothing
  // to save.
  Text name;
  if (!BestEffort([&] { name = m_Obj->Name(); })) return false;
  BestEffortSteps step;
  step([&] { section.Write(u"Type", Table().typeText); });
  step([&] { section.Write(u"Name", name); });
  step([&] { section.Write(u"UserName", m_UserName); });
  for (const FileKey& key : Table().keys) step([&] { WriteKey(*this, key, section); });
  step([&] { section.Write(u"Container", BestEffortOr(Text(), [&] { return ContainerName(*m_Obj); })); });
  return step.Result();
}

void Control::Refresh() {
  if (m_Obj) m_Obj->Refresh();
}

void Control::ShowValue(const Text&, const Text& value) {
  if (!Table().value.row.empty()) SetRow(Table().value.row, value);
}

bool Control::TakeValue(Text& value) const {
  value = Value();
  return true;
}

void Control::TakeRequiredValue(Text& value) const {
  if (!Table().value.requiredRow.empty()) value = RowText(Table().value.requiredRow);
}

void Control::OnClick() {
  if (!Designer()) return RunScriptEvent(u"OnClick");
  if (ClickSelects() && !Module().designDragging) SelectInDesigner();
}

void Control::OnGotFocus() {
  if (!Module().designDragging) SelectInDesigner();
}

void Control::OnMouseDown(int button, int shift, float, float) {
  if (!Designer() || button != MouseButton::Right || shift != 0) return;
  const Ref<Control> keepAlive(this);  // a command of the menu may delete this control
  SelectInDesigner();
  if (Designer()) OpenDesignerMenu();  // a handler may have ended it
}

void Control::OnMouseMove(int, int, float, float) {
  if (Designer()) Designer()->ShowArrowPointer();
}

void Control::RunScriptEvent(std::u16string_view event) {
  if (!Input() || !Input()->CanRunScripts()) return;
  const Ref<Control> keepAlive(this);  // the script may remove this control
  Input()->RunEvent(BuildEventName(m_UserName, event));
}

void Control::SelectInDesigner() {
  if (Designer()) Designer()->SetCtrl(Ref<IControl>(this));
}

// A widget with a menu of its own is disabled meanwhile, so that only one menu opens.
void Control::OpenDesignerMenu() {
  if (!HasOwnMenu()) return Designer()->OpenControlMenu(*this);
  const Ref<Widget> widget = m_Obj;
  BestEffort([&] { widget->SetEnabled(false); });
  BestEffort([&] { Designer()->OpenControlMenu(*this); });
  BestEffort([&] { widget->SetEnabled(true); });
}

Ref<Widget> BoundWidget(const IControl& control) {
  return Ref<Widget>(dynamic_cast<Widget*>(control.BoundObject().get()));
}

bool FlagIsSet(const Text& flag) noexcept {
  return BestEffortOr(false, [&] { return ToBoolean(Variant(flag)); });
}

}  // namespace cardwright
