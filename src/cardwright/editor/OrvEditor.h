// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/platform/PropertyBag.h"
#include "cardwright/platform/Surface.h"

namespace cardwright {

class EditorSession;
class EditorSurface;

/// The editor of a form's script: a text that is coloured by its language, with a toolbar, two combos that go
/// to the procedures of events, a pop-up that offers the host's commands, and a search.
///
/// A document is one text: the language's name, a line end (CR LF), the script.
///
/// Events: UserSaveChange(FileIsModified), whose argument a handler clears once it has saved; SelChange;
/// Change. A handler may end the editor and its window.
class OrvEditor final : public TableObject {
 public:
  /// Works on a surface that outlives it or whose owner calls DetachSurface before it ends.
  static Ref<OrvEditor> Create(EditorSurface& surface);

  Text TypeName() const override { return u"OrvEditor"; }

  /// Reads a script file; true where it was read. A file of length 0 is an empty source. False for a folder
  /// that does not exist, and for a file whose first line is no known language, which the user is informed
  /// of. Error 53 for a file that is not there, 75 for one that cannot be read.
  bool ProjectRead(const Text& fileName);
  /// Asks about unsaved changes; false if the user wants to go on editing. A host that gets true closes.
  bool TerminateRequested();
  /// Asks about unsaved changes; true if the caller must stop, because the user wants to or the changes
  /// were not saved.
  bool CheckModify();
  /// Starts an empty document. A language that is not known leaves the one that is set.
  void SetNewSource(const Text& language);
  /// The document. Setting one whose first line is no known language informs the user and changes nothing.
  Text FileContent() const;
  void SetFileContent(const Text& document);

  /// @name Whether the toolbar shows the button for saving
  /// @{
  bool SaveButtonVisible() const;
  void SetSaveButtonVisible(bool visible);
  /// @}
  /// @name Whether the document has unsaved changes
  /// @{
  bool FileModified() const;
  void SetFileModified(bool modified);
  /// @}
  /// Path of the catalogue of host commands, in spite of its name: a Jet database or an SQLite file with the
  /// table "Funzioni". Setting it opens the catalogue; one that cannot be opened is an empty one.
  Text OrvInfoSearchPath() const;
  void SetOrvInfoSearchPath(const Text& path);
  /// Takes the controls of a form, any collection of them or nothing, and with them the script and the
  /// language that the thread shares. Errors 438 and 451 for an object that is no collection.
  void ReadControls(Ref<Object> controls);
  /// Takes the same controls again after some came, went or were renamed.
  void RefreshControlsList();
  /// @name Whether the toolbar is shown; true at first
  /// @{
  bool ToolbarVisible() const;
  void SetToolbarVisible(bool visible);
  /// @}

  /// @name What the toolbar's buttons do
  /// @{
  void DoUndo();
  void DoRedo();
  /// Writes the file that ProjectRead read; nothing for a new source. A failure leaves the document modified.
  void DoSave();
  void DoFind();
  void DoFindNext();
  /// Does nothing, as ever: hosts have a replace of their own.
  void DoReplace();
  void DoShowProps();
  void DoAddOrvCommand();
  void DoAddOrvRequest();
  /// Presses (1) or releases (0) the button that shows the description of commands.
  void DoShowHelp(std::int32_t value);
  /// @}

  /// The language of the document.
  Text Language() const;
  /// The caret's line and column, both from 1.
  std::int32_t CurrentLine() const;
  std::int32_t CurrentCol() const;
  /// 1 while the button that shows the description is pressed, else 0.
  std::int32_t HelpButtonValue() const;
  /// The host's window; null if there is none.
  Ref<HostWindow> Parent() const;

  /// @name The settings that a container stores
  /// @{
  void ReadProperties(const PropertyBag& bag);
  void WriteProperties(PropertyBag& bag) const;
  /// @}

  /// Null once the surface has ended.
  EditorSurface* GetSurface() const;
  /// The surface ends: settings are saved, and the editor answers with error 91 from then on.
  void DetachSurface();

 protected:
  explicit OrvEditor(EditorSurface& surface);
  ~OrvEditor() override;
  const MemberTable& Members() const override;

 private:
  const Ref<EditorSession> m_Session;
};

}  // namespace cardwright
