// SPDX-License-Identifier: MIT
#include "cardwright/runtime/Vellum.h"

#include "cardwright/platform/Files.h"
#include "cardwright/platform/Widget.h"
#include "cardwright/runtime/FormControls.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/ObjectConnection.h"
#include "cardwright/shared/OrvClient.h"
#include "cardwright/shared/ResizeHandle.h"
#include "cardwright/storage/ProjectFile.h"
#include "cardwright/storage/ProjectReader.h"

namespace cardwright {
namespace {

constexpr float kButtonsOffsetX = 196;  // pixels
constexpr float kButtonsOffsetY = 49;

// Plain access to a member of the module state.
template <auto Member, class T>
T Get(Vellum&) {
  return Module().*Member;
}
template <auto Member, class T>
void Let(Vellum&, T value) {
  Module().*Member = std::move(value);
}
template <auto Member, class T>
constexpr cardwright::Member Shared(std::u16string_view name) {
  return Property<&Get<Member, T>, &Let<Member, T>>(name);
}
template <auto Member>
constexpr cardwright::Member SharedObject(std::u16string_view name) {
  return Property<&Get<Member, Ref<Object>>, &Let<Member, Ref<Object>>, &Let<Member, Ref<Object>>>(name);
}

constexpr cardwright::Member kVellumMembers[] = {
    Property<&Vellum::TarvoHandle, &Vellum::SetTarvoHandle>(u"TarvoHandle"),
    Method<&Vellum::AttachOVeditor>(u"AttachOVeditor"),
    Method<&Vellum::GetOrvPath>(u"GetOrvPath"),
    Shared<&ModuleState::settingsAppName, Text>(u"SettingsAppName"),
    Shared<&ModuleState::settingsSectionEditor, Text>(u"SettingsSectionEditor"),
    Shared<&ModuleState::settingsSectionGlobal, Text>(u"SettingsSectionGlobal"),
    Shared<&ModuleState::settingsSectionOrvInfo, Text>(u"SettingsSectionOrvInfo"),
    Shared<&ModuleState::enableScreenKeyboard, bool>(u"EnableScreenKeyboard"),
    Property<&Vellum::ScriptContent, &Vellum::SetScriptContent>(u"ScriptContent"),
    Method<&Vellum::GetFormImage>(u"GetFormImage"),
    Method<&Vellum::GetShowMenu>(u"GetShowMenu"),
    Method<&Vellum::SetShowMenu>(u"SetShowMenu"),
    Property<&Vellum::DefaultBackColor, &Vellum::SetDefaultBackColor>(u"DefaultBackColor"),
    Property<&Vellum::DefaultForeColor, &Vellum::SetDefaultForeColor>(u"DefaultForeColor"),
    SharedObject<&ModuleState::debugOutput>(u"DebugOutputObject"),
    Property<&Vellum::ButtonsOffsetY>(u"ButtonsOffsetY"),
    Property<&Vellum::ButtonsOffsetX>(u"ButtonsOffsetX"),
    Property<&Get<&ModuleState::formScaleMode, ScaleMode>>(u"FormScaleMode"),
    Shared<&ModuleState::resizeHandleDims, std::int32_t>(u"ResizeHandleDims"),
    Shared<&ModuleState::resizeHandleBackColor, OleColor>(u"ResizeHandleBackColor"),
    Shared<&ModuleState::resizeHandleBorderColor, OleColor>(u"ResizeHandleBorderColor"),
    Method<&Vellum::ResizeHandleEnabled>(u"ResizeHandleEnabled"),
    Method<&Vellum::ResizeHandleIsEnabled>(u"ResizeHandleIsEnabled"),
};

bool HasDefaultColors() { return Module().defaultBackColor != Module().defaultForeColor; }

}  // namespace

const MemberTable& Vellum::Members() const {
  static const MemberTable table(kVellumMembers);
  return table;
}

Vellum::Vellum() {
  const ModuleState fresh;
  ModuleState& module = Module();
  ++module.vellumCount;
  module.formScaleMode = fresh.formScaleMode;
  module.resizeHandleDims = fresh.resizeHandleDims;
  module.resizeHandleBackColor = fresh.resizeHandleBackColor;
  module.resizeHandleBorderColor = fresh.resizeHandleBorderColor;
  module.attachedEditor = nullptr;
  module.scriptControl = module.makeScriptControl ? module.makeScriptControl() : nullptr;
  module.formControlsObject = MakeRef<FormControls>();
  module.decimalSeparator = FindDecimalSeparator();
}

Vellum::~Vellum() {
  ModuleState& module = Module();
  if (--module.vellumCount > 0) return;
  module.attachedEditor = nullptr;
  SharedHost().SetEditor(nullptr);
  if (const Ref<ScriptControl> engine = module.scriptControl) {
    BestEffort([&] { engine->SetSiteWindow(0); });
    if (!engine->Language().IsEmpty()) BestEffort([&] { engine->Reset(); });
  }
  module.scriptControl = nullptr;
  module.formControlsObject = nullptr;
}

std::int32_t Vellum::TarvoHandle() const { return SharedHost().Handle(); }
void Vellum::SetTarvoHandle(std::int32_t handle) { SharedHost().SetHandle(handle); }

void Vellum::AttachOVeditor(Ref<Object> editor) {
  Module().attachedEditor = editor;
  if (editor) SetTarvoHandle(OrvClient(MakeRef<ObjectConnection>(editor)).ConnectionHandle());
  SharedHost().SetEditor(editor);
}

Text Vellum::GetOrvPath(const Text& projectPath, const Text& fileName, std::optional<bool> checkParentFolder,
                        std::optional<bool> checkFile) const {
  if (fileName.IsEmpty()) return {};
  const Text path = BuildPath(GetParentFolderName(projectPath), fileName);
  if (checkFile.value_or(false) && !FileExists(path)) return {};
  if (checkParentFolder.value_or(false) && !FolderExists(GetParentFolderName(path))) return {};
  return path;
}

Text Vellum::ScriptContent() const { return Module().scriptContent; }

void Vellum::SetScriptContent(const Text& content) {
  Text language;
  Module().scriptContent = SplitFirstLine(content, language);
  Module().scriptLanguage = language;
}

Ref<Picture> Vellum::GetFormImage(const Text& fileName) const { return cardwright::GetFormImage(fileName); }
bool Vellum::GetShowMenu(const Text& fileName) const { return cardwright::GetShowMenu(fileName); }
void Vellum::SetShowMenu(const Text& fileName, bool value) { cardwright::SetShowMenu(fileName, value); }

OleColor Vellum::DefaultBackColor() const {
  return HasDefaultColors() ? Module().defaultBackColor : ToOleColor(SystemColor::ButtonFace);
}
void Vellum::SetDefaultBackColor(OleColor color) { Module().defaultBackColor = color; }
OleColor Vellum::DefaultForeColor() const {
  return HasDefaultColors() ? Module().defaultForeColor : ToOleColor(SystemColor::ButtonText);
}
void Vellum::SetDefaultForeColor(OleColor color) { Module().defaultForeColor = color; }

float Vellum::ButtonsOffsetY() const { return PixelsToScale(kButtonsOffsetY, Module().formScaleMode); }
float Vellum::ButtonsOffsetX() const { return PixelsToScale(kButtonsOffsetX, Module().formScaleMode); }

void Vellum::ResizeHandleEnabled(Ref<Object> handle, bool enabled) {
  auto* box = dynamic_cast<PictureWidget*>(handle.get());
  if (!box) Raise(ErrorNumber::TypeMismatch);
  PaintResizeHandle(*box, enabled);
}

bool Vellum::ResizeHandleIsEnabled(Ref<Object> handle) const {
  if (!handle) Raise(ErrorNumber::ObjectNotSet);
  return ToLong(GetProperty(*handle, u"BackColor")) == Module().resizeHandleBackColor;
}

}  // namespace cardwright
