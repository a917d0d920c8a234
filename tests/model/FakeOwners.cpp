// SPDX-License-Identifier: MIT
#include "model/FakeOwners.h"

#include "cardwright/model/ControlClasses.h"
#include "cardwright/model/Rename.h"
#include "cardwright/model/TableControl.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

std::string NameOf(const IControl& control) { return control.UserName().ToUtf8(); }
std::string NumberOf(double number) { return FormatDouble(number).ToUtf8(); }

std::string Mouse(const std::string& what, int button, int shift, float x, float y) {
  return what + std::to_string(button) + "+" + std::to_string(shift) + "@" + NumberOf(x) + "," + NumberOf(y);
}

const MemberTable& NoMembers() {
  static const MemberTable table(std::span<const Member>{});
  return table;
}

}  // namespace

std::string OwnerRecord::Take() {
  std::string all;
  for (const std::string& line : m_Log) all += (all.empty() ? "" : "; ") + line;
  m_Log.clear();
  return all;
}

void OwnerRecord::Rename(const Ref<Object>& object, const Text& newName) {
  auto& control = dynamic_cast<IControl&>(*object);
  const IControl* holder = FindControl(*m_Controls, newName);
  if (holder && holder != &control) return;
  RenameInCollection(*m_Controls, control, newName);
  control.SetName(newName);
}

float OwnerRecord::OuterWidthOf() const {
  return m_Surface->Width() + PixelsToScale(m_Surface->HostFrame().width, m_Surface->Scale());
}

float OwnerRecord::OuterHeightOf() const {
  return m_Surface->Height() + PixelsToScale(m_Surface->HostFrame().height, m_Surface->Scale());
}

void OwnerRecord::SetOuterSizeOf(float width, float height) {
  const ScaleMode scale = m_Surface->Scale();
  const FrameSize frame = m_Surface->HostFrame();
  m_Surface->Resize(width - PixelsToScale(frame.width, scale), height - PixelsToScale(frame.height, scale));
}

void OwnerRecord::ForgetControls() {
  for (const Ref<IControl>& control : ControlsOf(*m_Controls))
    if (auto* table = dynamic_cast<TableControl*>(control.get())) table->ForgetOwner();
}

const MemberTable& FakeDesigner::Members() const { return NoMembers(); }
const MemberTable& FakeInput::Members() const { return NoMembers(); }

void FakeDesigner::SetCtrl(Ref<IControl> control) {
  Write("SetCtrl " + NameOf(*control));
  m_Current = control;
}

std::vector<Ref<IControl>> FakeDesigner::FilterControls(ControlTypeEnum type) const {
  return ControlsOfType(*m_Controls, type);
}

void FakeDesigner::OpenControlMenu(IControl& control) {
  const auto* widget = dynamic_cast<Widget*>(control.BoundObject().get());
  Write("menu " + NameOf(control) + (widget && !widget->IsEnabled() ? " switched off" : ""));
  if (onMenu) onMenu(control);
}

void FakeDesigner::FrameMouseDown(IControl& frame, int button, int shift, float x, float y) {
  Write(Mouse("down on " + NameOf(frame) + " ", button, shift, x, y));
}
void FakeDesigner::FrameMouseMove(int button, int shift, float x, float y) {
  Write(Mouse("move", button, shift, x, y));
}
void FakeDesigner::FrameMouseUp(int button, int shift, float x, float y) {
  Write(Mouse("up", button, shift, x, y));
}

void FakeDesigner::ApplyScaleAndGrid() {
  m_Surface->SetScale(Module().formScaleMode);
  Write("scale and grid");
}

void FakeDesigner::RaisePropertyChanged(int propertyIndex, const Variant& value) {
  Write("PropertyChanged " + std::to_string(propertyIndex) + " " + ToText(value).ToUtf8());
}

void FakeDesigner::RaiseAttribsList(std::vector<Text> names) {
  std::string line = "AttribsList";
  for (const Text& name : names) line += " " + name.ToUtf8();
  Write(line);
}

void FakeDesigner::RaiseNeedResize(float width, float height) {
  Write("NeedResize " + NumberOf(width) + " x " + NumberOf(height));
}

bool FakeInput::RunEvent(const Text& procedure) {
  Write("run " + procedure.ToUtf8());
  if (onRun) onRun();
  return true;
}

void FakeInput::SetCaption(const Text& text) {
  Write("SetParentCaption " + text.ToUtf8());
  caption = text;
}

}  // namespace cardwright
