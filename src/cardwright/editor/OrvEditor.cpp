// SPDX-License-Identifier: MIT
#include "cardwright/editor/OrvEditor.h"

#include "cardwright/editor/EditorSession.h"

namespace cardwright {

namespace {

using E = OrvEditor;
constexpr Member kOrvEditorMembers[] = {
    Method<&E::ProjectRead>(u"ProjectRead"),
    Method<&E::TerminateRequested>(u"TerminateRequested"),
    Method<&E::CheckModify>(u"CheckModify"),
    Method<&E::SetNewSource>(u"SetNewSource"),
    Property<&E::FileContent, &E::SetFileContent>(u"FileContent"),
    Property<&E::SaveButtonVisible, &E::SetSaveButtonVisible>(u"SaveButtonVisible"),
    Property<&E::FileModified, &E::SetFileModified>(u"FileModified"),
    Property<&E::OrvInfoSearchPath, &E::SetOrvInfoSearchPath>(u"OrvInfoSearchPath"),
    Method<&E::ReadControls>(u"ReadControls"),
    Method<&E::RefreshControlsList>(u"RefreshControlsList"),
    Property<&E::ToolbarVisible, &E::SetToolbarVisible>(u"ToolbarVisible"),
    Method<&E::DoUndo>(u"DoUndo"),
    Method<&E::DoRedo>(u"DoRedo"),
    Method<&E::DoSave>(u"DoSave"),
    Method<&E::DoFind>(u"DoFind"),
    Method<&E::DoFindNext>(u"DoFindNext"),
    Method<&E::DoReplace>(u"DoReplace"),
    Method<&E::DoShowProps>(u"DoShowProps"),
    Method<&E::DoAddOrvCommand>(u"DoAddOrvCommand"),
    Method<&E::DoAddOrvRequest>(u"DoAddOrvRequest"),
    Method<&E::DoShowHelp>(u"DoShowHelp"),
    Property<&E::Language>(u"Language"),
    Property<&E::CurrentLine>(u"CurrentLine"),
    Property<&E::CurrentCol>(u"CurrentCol"),
    Property<&E::HelpButtonValue>(u"HelpButtonValue"),
    Property<&E::Parent>(u"Parent"),
};

}  // namespace

const MemberTable& OrvEditor::Members() const {
  static const MemberTable table(kOrvEditorMembers);
  return table;
}

OrvEditor::OrvEditor(EditorSurface& surface)
    : m_Session(MakeRef<EditorSession>(surface, [this](std::u16string_view event, Args args) {
        const Ref<OrvEditor> keepAlive(this);
        RaiseEvent(event, args);
      })) {}

Ref<OrvEditor> OrvEditor::Create(EditorSurface& surface) {
  Ref<OrvEditor> editor(new OrvEditor(surface));
  editor->m_Session->SetUp();
  return editor;
}

OrvEditor::~OrvEditor() { m_Session->DetachSurface(); }

void OrvEditor::DetachSurface() { m_Session->DetachSurface(); }
EditorSurface* OrvEditor::GetSurface() const { return m_Session->GetSurface(); }
Ref<HostWindow> OrvEditor::Parent() const { return GetSurface() ? GetSurface()->Host() : nullptr; }

bool OrvEditor::ProjectRead(const Text& fileName) { return m_Session->ProjectRead(fileName); }
bool OrvEditor::TerminateRequested() { return m_Session->TerminateRequested(); }
bool OrvEditor::CheckModify() { return m_Session->CheckModify(); }
void OrvEditor::SetNewSource(const Text& language) { m_Session->SetNewSource(language); }
Text OrvEditor::FileContent() const { return m_Session->FileContent(); }
void OrvEditor::SetFileContent(const Text& document) { m_Session->SetFileContent(document); }

bool OrvEditor::SaveButtonVisible() const { return m_Session->SaveButtonVisible(); }
void OrvEditor::SetSaveButtonVisible(bool visible) { m_Session->SetSaveButtonVisible(visible); }
bool OrvEditor::FileModified() const { return m_Session->Core().isModified; }
void OrvEditor::SetFileModified(bool modified) { m_Session->Core().isModified = modified; }
Text OrvEditor::OrvInfoSearchPath() const { return m_Session->OrvInfoSearchPath(); }
void OrvEditor::SetOrvInfoSearchPath(const Text& path) { m_Session->SetOrvInfoSearchPath(path); }
void OrvEditor::ReadControls(Ref<Object> controls) { m_Session->ReadControls(std::move(controls)); }
void OrvEditor::RefreshControlsList() { m_Session->RefreshControlsList(); }
bool OrvEditor::ToolbarVisible() const { return m_Session->ToolbarVisible(); }
void OrvEditor::SetToolbarVisible(bool visible) { m_Session->SetToolbarVisible(visible); }

void OrvEditor::DoUndo() { m_Session->RunCommand(u"undo"); }
void OrvEditor::DoRedo() { m_Session->RunCommand(u"redo"); }
void OrvEditor::DoSave() { m_Session->RunCommand(u"save"); }
void OrvEditor::DoFind() { m_Session->RunCommand(u"find"); }
void OrvEditor::DoFindNext() { m_Session->RunCommand(u"findnext"); }
void OrvEditor::DoReplace() { m_Session->RunCommand(u"subst"); }
void OrvEditor::DoShowProps() { m_Session->RunCommand(u"props"); }
void OrvEditor::DoAddOrvCommand() { m_Session->RunCommand(u"method"); }
void OrvEditor::DoAddOrvRequest() { m_Session->RunCommand(u"function"); }
void OrvEditor::DoShowHelp(std::int32_t value) { m_Session->DoShowHelp(value); }

Text OrvEditor::Language() const { return m_Session->Core().language; }
std::int32_t OrvEditor::CurrentLine() const { return m_Session->Core().pad->CurrentLine(); }
std::int32_t OrvEditor::CurrentCol() const { return m_Session->Core().pad->CurrentCol(); }
std::int32_t OrvEditor::HelpButtonValue() const { return m_Session->HelpButtonValue(); }

void OrvEditor::ReadProperties(const PropertyBag& bag) { m_Session->ReadProperties(bag); }
void OrvEditor::WriteProperties(PropertyBag& bag) const { m_Session->WriteProperties(bag); }

}  // namespace cardwright
