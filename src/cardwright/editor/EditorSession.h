// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "cardwright/automation/Errors.h"
#include "cardwright/editor/CommandHelp.h"
#include "cardwright/editor/Completion.h"
#include "cardwright/editor/Navigator.h"
#include "cardwright/editor/TextSearch.h"
#include "cardwright/platform/PropertyBag.h"

namespace cardwright {

/// The work of a script editor on one surface: the document, the commands, and what follows from what the
/// user does. OrvEditor is its public interface for hosts and scripts, and documents the members.
class EditorSession final : public RefCounted,
                            private WidgetListener,
                            private LexipadListener,
                            private EditorListener,
                            private CompletionListListener {
 public:
  using EventSink = std::function<void(std::u16string_view event, Args args)>;

  EditorSession(EditorSurface& surface, EventSink events);
  /// To be called once, when somebody holds the session.
  void SetUp();
  void DetachSurface();
  EditorSurface* GetSurface() const { return m_Core.HasSurface() ? &m_Core.Surface() : nullptr; }
  EditorCore& Core() noexcept { return m_Core; }
  const EditorCore& Core() const noexcept { return m_Core; }

  bool ProjectRead(const Text& fileName);
  bool TerminateRequested();
  bool CheckModify();
  void SetNewSource(const Text& language);
  Text FileContent() const;
  void SetFileContent(const Text& document);
  bool SaveButtonVisible() const;
  void SetSaveButtonVisible(bool visible);
  Text OrvInfoSearchPath() const { return m_SearchPath; }
  void SetOrvInfoSearchPath(const Text& path);
  void ReadControls(Ref<Object> controls);
  void RefreshControlsList() { m_Navigator.RefreshControls(); }
  bool ToolbarVisible() const noexcept { return m_ToolbarVisible; }
  void SetToolbarVisible(bool visible);
  /// What the toolbar's button of that key does.
  void RunCommand(std::u16string_view key);
  void DoShowHelp(std::int32_t value);
  std::int32_t HelpButtonValue() const;
  void ReadProperties(const PropertyBag& bag);
  void WriteProperties(PropertyBag& bag) const;

 private:
  /// Hears that the user, or the caret, chose an entry of a combo.
  class ChoiceListener final : public WidgetListener {
   public:
    explicit ChoiceListener(std::function<void()> onChoice) : m_OnChoice(std::move(onChoice)) {}
    void OnClick() override { m_OnChoice(); }

   private:
    std::function<void()> m_OnChoice;
  };

  /// Runs what an event asks for. A numbered error ends with it, as it must not unwind the toolkit's loop.
  template <class Work>
  void Handle(Work&& work) {
    const Ref<EditorSession> keepAlive(this);
    BestEffort(work);
  }
  void ApplyLanguage(const Text& language);
  void ReadScriptText(const Text& path);
  void RefreshUndoButtons();
  void EnableButton(std::u16string_view key, bool enabled);
  Ref<ToolButton> Button(std::u16string_view key) const;
  void DoCommand(std::u16string_view key);
  void Save();
  void ShowOptions();
  void HandleSelection();
  void OnLineLeft();
  void CopyIndent();

  // What the user does in the text widget, and around it.
  void OnGotFocus() override;
  void OnLostFocus() override;
  void OnChange() override;
  void OnKeyDown(int& keyCode, int& shift) override;
  void OnKeyPress(char16_t& key) override;
  void OnMouseDown(int button, int shift, float x, float y) override;
  void OnSelChange() override;
  void OnKeyUp(int keyCode, int shift) override;
  void OnLineParsed(std::int32_t position, const Text& line) override;
  void OnBatchStart() override;
  void OnBatchEnd() override;
  void OnToolButton(const Text& key) override;
  void OnTimer() override;
  void OnSurfaceResize() override;
  void OnSurfaceGotFocus() override;
  void OnSurfaceLostFocus() override;
  void OnFirstShow() override;
  void OnPopupResize() override;
  void OnDescriptionResize() override;
  void OnListKeyPress(char16_t key) override;
  void OnListDoubleClick() override;
  void OnListItemClick(int row) override;
  void OnListGotFocus() override;
  void OnListHover(int row) override;
  void DescribeRow(int row);

  EventSink m_Events;
  EditorCore m_Core;
  CommandCatalogue m_Catalogue;
  Navigator m_Navigator;
  Completion m_Completion;
  CommandHelp m_Help;
  TextSearch m_Search;
  ChoiceListener m_ControlChosen;
  ChoiceListener m_EventChosen;
  Text m_FileName;  // of the script file, "" for a new source
  Text m_SearchPath;
  bool m_ToolbarVisible = true;
  bool m_MouseLineChange = false;  // the mouse went down since a line was read again
  bool m_EnterPressed = false;     // the last key down was Enter alone
};

}  // namespace cardwright
