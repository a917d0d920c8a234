// SPDX-License-Identifier: MIT
#include "cardwright/editor/EditorSession.h"

#include <string>
#include <utility>

#include "cardwright/editor/EditorSettings.h"
#include "cardwright/editor/LanguageTables.h"
#include "cardwright/editor/SyntaxOptions.h"
#include "cardwright/platform/Desktop.h"
#include "cardwright/platform/Files.h"
#include "cardwright/shared/Localisation.h"
#include "cardwright/shared/Messages.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/storage/CodePage.h"
#include "cardwright/storage/ProjectReader.h"

namespace cardwright {

namespace {

constexpr std::u16string_view kDocumentLineEnd = u"\r\n";
constexpr std::u16string_view kLanguageSetting = u"Language";
constexpr std::u16string_view kSaveButtonVisible = u"SaveButtonVisible";
constexpr std::u16string_view kOrvInfoSearchPath = u"OrvInfoSearchPath";
constexpr std::u16string_view kToolbarVisible = u"ToolbarVisible";
constexpr std::u16string_view kSaveKey = u"save", kSaveSeparatorKey = u"sep_save", kHelpKey = u"help";
constexpr int kFileAccessError = 75;

int Ask(const Text& text, int style) {
  return Module().desktop ? Module().desktop->ShowMessage(text, style, {}) : BoxAnswer::No;
}

void TellUnknownFormat() { Ask(GetMessage(messages::UnknownFormat), BoxStyle::Exclamation); }

/// The first field of a script file, and what follows its end.
std::pair<Text, Text> SplitLanguageField(std::u16string_view file) {
  const std::size_t end = std::min(file.find_first_of(u",\r\n"), file.size());
  std::size_t next = std::min(end + 1, file.size());
  if (file.substr(end, kDocumentLineEnd.size()) == kDocumentLineEnd) next = end + kDocumentLineEnd.size();
  return {Text(Trim(file.substr(0, end))), Text(file.substr(next))};
}

}  // namespace

EditorSession::EditorSession(EditorSurface& surface, EventSink events)
    : m_Events(std::move(events)),
      m_Core(surface),
      m_Navigator(m_Core),
      m_Completion(m_Core, m_Catalogue),
      m_Help(m_Core, m_Catalogue),
      m_Search(m_Core),
      m_ControlChosen([this] { Handle([this] { m_Navigator.OnControlChosen(); }); }),
      m_EventChosen([this] { Handle([this] { m_Navigator.OnEventChosen(); }); }) {}

// Each step is independent: settings of another version, or a desktop that refuses one, leave the rest.
void EditorSession::SetUp() {
  EditorSurface& surface = m_Core.Surface();
  TranslateControls(surface.TaggedWidgets());
  m_Core.pad->SetImageLockMaxWidth(-1);
  m_Core.pad->SetImageLockMaxHeight(-1);
  m_Core.language = kVbscriptName;
  if (Module().scriptLanguage.IsEmpty()) Module().scriptLanguage = kVbscriptName;
  BestEffort([&] { ReadSyntaxSettings(*m_Core.pad); });
  BestEffort([&] { m_Core.language = EditorSettings::OfGlobal().Read(kLanguageSetting, kVbscriptName); });
  BestEffort([&] { ApplyLanguage(m_Core.language); });
  BestEffort([&] { HandleSelection(); });
  BestEffort([&] { SetNewSource({}); });
  BestEffort([&] { m_Help.ReadPlace(); });
  m_Core.isModified = false;

  m_Core.pad->SetListener(this);
  m_Core.pad->SetLexipadListener(this);
  m_Core.controlsCombo->SetListener(&m_ControlChosen);
  m_Core.eventsCombo->SetListener(&m_EventChosen);
  surface.PopupList()->SetCompletionListener(this);
  surface.SetListener(this);
  surface.LayOut();
}

void EditorSession::DetachSurface() {
  if (!m_Core.HasSurface()) return;
  EditorSurface& surface = m_Core.Surface();
  BestEffort([&] { m_Help.SaveVisible(); });
  BestEffort([&] { m_Help.SavePlace(); });
  BestEffort([&] { surface.SetTimer(false); });
  BestEffort([&] { surface.Description().SetVisible(false); });
  BestEffort([&] { surface.PopupList()->SetCompletionListener(nullptr); });
  surface.SetListener(nullptr);
  m_Core.pad->SetListener(nullptr);
  m_Core.pad->SetLexipadListener(nullptr);
  m_Core.controlsCombo->SetListener(nullptr);
  m_Core.eventsCombo->SetListener(nullptr);
  m_Core.DetachSurface();
  m_Events = [](std::u16string_view, Args) {};
  m_Catalogue = CommandCatalogue();
}

// An unknown language leaves the tables as they are, and is shown all the same.
void EditorSession::ApplyLanguage(const Text& language) {
  if (std::optional<LexipadLanguage> table = LanguageTable(language)) {
    if (Module().formControlsObject)
      BestEffort(
          [&] { table->constants += ToText(GetProperty(*Module().formControlsObject, u"ConstantNames")); });
    m_Core.pad->SetLanguage(*std::move(table));
  }
  m_Core.languageLabel->SetDisplayText(GetMessage(messages::LanguageStatus, {Variant(language)}));
}

bool EditorSession::ProjectRead(const Text& fileName) {
  const Ref<EditorSession> keepAlive(this);
  const Text folder = GetParentFolderName(fileName);
  m_FileName = Text();
  if (!FolderExists(folder)) return false;
  m_FileName = BuildPath(folder, ToPath(fileName).filename().u16string());
  if (!FileExists(m_FileName)) Raise(ErrorNumber::FileNotFound);
  const std::optional<std::string> bytes = ReadFile(ToPath(m_FileName));
  if (!bytes) Raise(kFileAccessError);
  bool isRead = true;
  if (bytes->empty()) {
    SetNewSource({});  // which has no file: saving it does nothing
  } else {
    const BusyScope busy(m_Core);
    const auto [language, script] = SplitLanguageField(CodePage::Current().Decode(*bytes));
    isRead = IsKnownLanguage(language);
    if (isRead) {
      m_Core.language = language;
      ApplyLanguage(language);
      m_Core.pad->SetContents(script);
    } else {
      TellUnknownFormat();
    }
  }
  m_Core.pad->EmptyUndoBuffer();
  m_Completion.Hide();
  return isRead;
}

Text EditorSession::FileContent() const {
  return m_Core.language + kDocumentLineEnd + m_Core.pad->Contents();
}

void EditorSession::SetFileContent(const Text& document) {
  const Ref<EditorSession> keepAlive(this);
  Text language;
  const Text script = SplitFirstLine(document, language);
  const BusyScope busy(m_Core);
  if (language.IsEmpty() && script.IsEmpty()) {
    m_Core.language = kVbscriptName;
    return ApplyLanguage(m_Core.language);
  }
  if (!IsKnownLanguage(language)) return TellUnknownFormat();
  m_Core.language = language;
  ApplyLanguage(language);
  m_Core.pad->SetContents(script);
}

// The caret is asked for on lines that the new text lacks, so it ends up at its end.
void EditorSession::SetNewSource(const Text& language) {
  const Ref<EditorSession> keepAlive(this);
  Lexipad& pad = *m_Core.pad;
  if (IsKnownLanguage(language)) m_Core.language = language;
  {
    const BusyScope busy(m_Core);
    ApplyLanguage(m_Core.language);
    const bool isVbscript = IsVbscript(m_Core.language);
    if (IsKnownLanguage(m_Core.language)) {
      pad.SetContents({});
      if (isVbscript) pad.SetSelText(u"option explicit\r\n");  // as if typed: the words take their case
      pad.SetSelStart(pad.LineIndex(isVbscript ? 4 : 2) + 4);
    }
    m_FileName = Text();
    FocusPad(m_Core);
  }
  pad.EmptyUndoBuffer();
  RefreshUndoButtons();
  HandleSelection();
  m_Core.isModified = false;
}

void EditorSession::ReadControls(Ref<Object> controls) {
  const Ref<EditorSession> keepAlive(this);
  ModuleState& module = Module();
  m_Navigator.TakeControls(std::move(controls));
  if (module.scriptContent.IsEmpty() && module.scriptLanguage.IsEmpty())
    module.scriptLanguage = kVbscriptName;
  if (IsKnownLanguage(module.scriptLanguage)) {
    const BusyScope busy(m_Core);
    m_Core.language = module.scriptLanguage;
    ApplyLanguage(m_Core.language);
  } else {
    TellUnknownFormat();
  }
  if (module.scriptContent.IsEmpty()) SetNewSource(m_Core.language);
  LexipadLanguage table = m_Core.pad->Language();
  table.constants += m_Navigator.ControlNames();
  m_Core.pad->SetLanguage(std::move(table));
  if (!module.scriptContent.IsEmpty()) {
    const BusyScope busy(m_Core);
    m_Core.pad->SetContents(Trim(module.scriptContent));
  }
  if (m_Core.controlsCombo->ListCount() > 0) m_Core.controlsCombo->SetListIndex(0);
}

bool EditorSession::CheckModify() {
  const Ref<EditorSession> keepAlive(this);
  if (!m_Core.isModified) return false;
  const int answer = Ask(GetMessage(messages::SaveChanges),
                         BoxStyle::YesNoCancel | BoxStyle::Question | BoxStyle::ThirdIsDefault);
  if (answer == BoxAnswer::No) return false;
  if (answer != BoxAnswer::Yes) return true;
  if (SaveButtonVisible()) {
    RunCommand(kSaveKey);
  } else {
    // A host clears the argument or the member, whichever it likes.
    Variant modified(m_Core.isModified);
    Variant args[] = {Variant::ByRef(modified)};
    m_Events(u"UserSaveChange", args);
    if (!ToBoolean(modified)) m_Core.isModified = false;
  }
  return m_Core.isModified;
}

bool EditorSession::TerminateRequested() {
  const Ref<EditorSession> keepAlive(this);
  if (CheckModify()) return false;
  BestEffort([&] { EditorSettings::OfGlobal().Save(kLanguageSetting, m_Core.language); });
  m_Completion.PutAside();
  m_Core.Surface().UnloadSearch();
  return true;
}

void EditorSession::SetOrvInfoSearchPath(const Text& path) {
  m_SearchPath = path;
  m_Core.Surface().TellPropertyChanged(kOrvInfoSearchPath);
  if (!m_Core.Surface().IsRunning()) return;
  m_Catalogue = CommandCatalogue(path.IsEmpty() ? std::vector<CatalogueRow>() : ReadCatalogueFile(path));
}

bool EditorSession::SaveButtonVisible() const { return Button(kSaveKey)->IsVisible(); }

void EditorSession::SetSaveButtonVisible(bool visible) {
  Button(kSaveKey)->SetVisible(visible);
  Button(kSaveSeparatorKey)->SetVisible(visible);
  m_Core.Surface().TellPropertyChanged(kSaveButtonVisible);
}

void EditorSession::SetToolbarVisible(bool visible) {
  m_ToolbarVisible = visible;
  m_Core.toolbar->SetVisible(visible);
  m_Core.Surface().LayOut();
  m_Core.Surface().TellPropertyChanged(kToolbarVisible);
}

std::int32_t EditorSession::HelpButtonValue() const { return Button(kHelpKey)->Value(); }

// Reading the path does not open the catalogue: containers that lay a window out read it too.
void EditorSession::ReadProperties(const PropertyBag& bag) {
  SetSaveButtonVisible(ToBoolean(bag.ReadProperty(kSaveButtonVisible, Variant(true))));
  m_SearchPath = ToText(bag.ReadProperty(kOrvInfoSearchPath, Variant(Text())));
  SetToolbarVisible(ToBoolean(bag.ReadProperty(kToolbarVisible, Variant(true))));
}

void EditorSession::WriteProperties(PropertyBag& bag) const {
  bag.WriteProperty(kSaveButtonVisible, Variant(SaveButtonVisible()), Variant(true));
  bag.WriteProperty(kOrvInfoSearchPath, Variant(m_SearchPath), Variant(Text()));
  bag.WriteProperty(kToolbarVisible, Variant(m_Core.toolbar->IsVisible()), Variant(true));
}

}  // namespace cardwright
