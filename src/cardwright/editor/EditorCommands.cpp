// SPDX-License-Identifier: MIT
// The toolbar of the script editor, and what the editor does with what the user does in the text.

#include "cardwright/editor/DeclarationLearner.h"
#include "cardwright/editor/EditorSession.h"
#include "cardwright/editor/SyntaxOptions.h"
#include "cardwright/platform/Files.h"
#include "cardwright/platform/WidgetListener.h"
#include "cardwright/shared/HostExecutor.h"
#include "cardwright/shared/Messages.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/storage/CodePage.h"

namespace cardwright {

namespace {

namespace Key {
constexpr int Enter = 13, Escape = 27, Down = 40, I = 73, F3 = 114;
}

constexpr char16_t kEnterChar = u'\r', kEscapeChar = u'\x1B';

}  // namespace

Ref<ToolButton> EditorSession::Button(std::u16string_view key) const {
  const Ref<ToolButton> button = m_Core.toolbar->Buttons()->Find(key);
  if (!button) Raise(ErrorNumber::ObjectNotSet);
  return button;
}

void EditorSession::EnableButton(std::u16string_view key, bool enabled) { Button(key)->SetEnabled(enabled); }

void EditorSession::RefreshUndoButtons() {
  EnableButton(u"undo", m_Core.pad->CanUndo());
  EnableButton(u"redo", m_Core.pad->CanRedo());
}

void EditorSession::DoShowHelp(std::int32_t value) {
  Button(u"help")->SetValue(value);
  RunCommand(u"help");
}

// A command that fails ends without a word.
void EditorSession::RunCommand(std::u16string_view key) {
  Handle([&] { DoCommand(key); });
}

void EditorSession::DoCommand(std::u16string_view key) {
  if (EqualsNoCase(key, u"undo")) {
    m_Completion.Hide();
    m_Core.pad->Undo();
  } else if (EqualsNoCase(key, u"redo")) {
    m_Completion.Hide();
    m_Core.pad->Redo();
  } else if (EqualsNoCase(key, u"save")) {
    Save();
  } else if (EqualsNoCase(key, u"find")) {
    if (m_Search.Ask()) m_Completion.Hide();
  } else if (EqualsNoCase(key, u"findnext")) {
    if (m_Search.Again()) m_Completion.Hide();
  } else if (EqualsNoCase(key, u"props")) {
    ShowOptions();
  } else if (EqualsNoCase(key, u"help")) {
    m_Help.ApplyButton();
  } else if (EqualsNoCase(key, u"method")) {
    m_Completion.InsertCall(u"ORVExecute");
  } else if (EqualsNoCase(key, u"function")) {
    m_Completion.InsertCall(u"ORVRequest");
  }
}

// The file ends in a line end more than the text, which reading it gives back: a script grows by one with
// each reading and saving, and hosts that compare files know it.
void EditorSession::Save() {
  if (m_FileName.IsEmpty()) return;
  const std::string bytes = CodePage::Current().Encode(FileContent() + u"\r\n");
  if (!ReplaceFile(ToPath(m_FileName), bytes)) return;
  m_Completion.Hide();
  m_Core.isModified = false;
}

void EditorSession::ShowOptions() {
  EditorSurface& surface = m_Core.Surface();
  SyntaxOptions options(m_Core.pad);
  surface.SetTimer(false);
  surface.ShowOptions(options);
  m_Core.Surface().SetTimer(m_Completion.IsVisible());
}

void EditorSession::HandleSelection() {
  if (m_Core.isBusy) return;
  const Lexipad& pad = *m_Core.pad;
  m_Core.positionLabel->SetDisplayText(
      GetMessage(messages::CaretStatus, {Variant(pad.CurrentLine()), Variant(pad.CurrentCol())}));
  m_Help.FollowCaret();
  if (pad.CurrentLine() != m_Core.lastLine && m_Core.lastLine > 0) OnLineLeft();
  if (m_EnterPressed) CopyIndent();
  m_Core.lastLine = pad.CurrentLine();
  m_Events(u"SelChange", {});
}

void EditorSession::OnLineLeft() {
  m_Completion.Hide();
  if (m_Core.pad->Language().translateMode == 0 && m_MouseLineChange) {
    m_MouseLineChange = false;
    m_Core.pad->Reformat(ReformatMode::Line, m_Core.lastLine);
  }
  m_Navigator.FollowCaret();
}

// The new line begins below the text of the one before it. Blanks count, tabs do not, and the first line
// gives no indent: scripts were laid out by these rules.
void EditorSession::CopyIndent() {
  Lexipad& pad = *m_Core.pad;
  if (!pad.LineText(pad.CurrentLine()).IsEmpty() || m_Core.lastLine <= 1) return;
  m_EnterPressed = false;
  const Text above = pad.LineText(m_Core.lastLine);
  const std::size_t indent = std::min(above.View().find_first_not_of(u' '), above.Size());
  if (indent > 0) pad.SetSelText(above.View().substr(0, indent));
}

void EditorSession::OnSelChange() {
  Handle([this] { HandleSelection(); });
}

void EditorSession::OnChange() {
  Handle([this] {
    if (!m_Core.isBusy) m_Core.isModified = true;
    m_Navigator.UpdateEventMark();
    RefreshUndoButtons();
    m_Events(u"Change", {});
  });
}

void EditorSession::OnKeyDown(int& keyCode, int& shift) {
  Handle([&] {
    m_EnterPressed = false;
    if (shift == 0) {
      switch (keyCode) {
        case Key::Down:
          if (m_Completion.EnterList()) keyCode = 0;
          break;
        case Key::F3: DoCommand(u"findnext"); break;
        case Key::Escape:
          m_Completion.Hide();
          m_Core.pad->SetVisible(true);
          break;
        case Key::Enter: m_EnterPressed = true; break;
        default: break;
      }
    } else if (shift == ShiftKey::Ctrl && keyCode == Key::I) {
      keyCode = 0;
      m_Completion.OpenAtCaret();
    }
  });
}

void EditorSession::OnKeyPress(char16_t& key) {
  Handle([&] { m_Completion.OnKeyPress(key); });
}

void EditorSession::OnKeyUp(int /*keyCode*/, int /*shift*/) {
  Handle([this] { m_Completion.SelectTyped(); });
}

void EditorSession::OnMouseDown(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {
  m_MouseLineChange = true;
}

void EditorSession::OnGotFocus() {
  Handle([this] { m_Help.FollowCaret(); });
}

void EditorSession::OnLostFocus() {
  Handle([this] {
    const EditorSurface& surface = m_Core.Surface();
    if (!surface.IsPopupFocused() && !m_Core.Surface().Description().IsActive()) m_Completion.Hide();
  });
}

void EditorSession::OnLineParsed(std::int32_t position, const Text& line) {
  Handle([&] {
    if (m_Core.pad->Language().translateMode == 0) LearnDeclarations(m_Core, position, line);
  });
}

// The host's windows are not drawn again while a large text is read.
void EditorSession::OnBatchStart() {
  Handle([] { SharedHost().ORVExecute(u"APPLICATION_FLAGREDRAW OFF"); });
}
void EditorSession::OnBatchEnd() {
  Handle([] { SharedHost().ORVExecute(u"APPLICATION_FLAGREDRAW ON"); });
}

void EditorSession::OnToolButton(const Text& key) { RunCommand(key); }
void EditorSession::OnTimer() {
  Handle([this] { m_Completion.FollowCaret(); });
}
void EditorSession::OnSurfaceResize() {
  Handle([this] { m_Core.Surface().LayOut(); });
}
void EditorSession::OnSurfaceGotFocus() {
  Handle([this] { FocusPad(m_Core); });
}
void EditorSession::OnSurfaceLostFocus() {
  Handle([this] {
    if (m_Completion.IsVisible() && !m_Core.Surface().Description().IsActive()) m_Completion.Hide();
  });
}
void EditorSession::OnFirstShow() {
  Handle([this] { m_Help.ShowIfWanted(); });
}
void EditorSession::OnPopupResize() {
  Handle([this] { m_Completion.OnResize(); });
}
void EditorSession::OnDescriptionResize() {
  Handle([this] { m_Help.SavePlace(); });
}

void EditorSession::OnListKeyPress(char16_t key) {
  Handle([&] {
    if (key == kEnterChar || key == u' ') m_Completion.Accept();
    if (key == kEscapeChar) m_Completion.Leave();
  });
}
void EditorSession::OnListDoubleClick() {
  Handle([this] { m_Completion.Accept(); });
}
void EditorSession::OnListItemClick(int row) { DescribeRow(row); }
void EditorSession::OnListHover(int row) { DescribeRow(row); }
void EditorSession::OnListGotFocus() {
  Handle([this] { DescribeRow(m_Core.Surface().PopupList()->SelectedRow()); });
}

void EditorSession::DescribeRow(int row) {
  Handle([&] {
    if (row >= 1) m_Help.Describe(m_Core.Surface().PopupList()->RowText(row));
  });
}

}  // namespace cardwright
