// SPDX-License-Identifier: MIT
#include "cardwright/editor/Navigator.h"

#include <algorithm>
#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/FlagScope.h"
#include "cardwright/editor/CaretProcedure.h"
#include "cardwright/editor/EngineProcedures.h"
#include "cardwright/shared/FindListItem.h"
#include "cardwright/shared/ModuleState.h"
#include "cardwright/shared/ScriptText.h"

namespace cardwright {

namespace {

constexpr std::u16string_view kFreeProcedures = u"(generale)";
constexpr std::u16string_view kDeclarations = u"(dichiarazioni)";
constexpr std::u16string_view kMark = u"*";  // of an event whose procedure is written
constexpr std::u16string_view kLineEnd = u"\r\n";

// By the script's language and not the document's: forms run the one.
std::size_t FindInScript(std::u16string_view script, const Text& name) {
  return FindProcedure(script, name, Module().scriptLanguage);
}

Text WithoutMark(const Text& entry) { return Replace(entry, kMark, u""); }

// Compared as a list that sorts without regard to case does.
bool SortsBefore(std::u16string_view a, std::u16string_view b) {
  return ToLower(a).View() < ToLower(b).View();
}

// A procedure that is the first thing in the text has no line end before it.
bool IsHeaderAt(const Lexipad& pad, std::u16string_view header, std::int32_t at) {
  if (at < 0) return false;
  if (EqualsNoCase(pad.TextRange(at, static_cast<std::int32_t>(header.size())), header)) return true;
  const std::u16string_view line = header.substr(std::min(header.size(), kLineEnd.size()));
  return at == 0 && EqualsNoCase(pad.TextRange(0, static_cast<std::int32_t>(line.size())), line);
}

}  // namespace

void Navigator::TakeControls(Ref<Object> controls) {
  m_LastControl = -1;
  m_Core.controlsCombo->Clear();
  m_Core.eventsCombo->Clear();
  m_Core.controlsCombo->AddItem(kFreeProcedures);
  m_Controls = std::move(controls);
  m_ControlNames = FillControls();
}

// The names kept stay the old ones on purpose: hosts that refresh twice find the constants as they were after
// the first time.
void Navigator::RefreshControls() {
  {
    const FlagScope refreshing(m_IsRefreshing);
    m_LastControl = -1;
    m_Core.controlsCombo->Clear();
    m_Core.controlsCombo->AddItem(kFreeProcedures);
    m_Core.eventsCombo->Clear();
    const Text names = FillControls();
    if (!m_ControlNames.IsEmpty()) {
      LexipadLanguage language = m_Core.pad->Language();
      language.constants = Replace(language.constants, m_ControlNames, names, true);
      m_Core.pad->SetLanguage(std::move(language));
    }
  }
  m_LastControl = m_Core.controlsCombo->ListIndex();
  FollowCaret();
}

Text Navigator::FillControls() {
  Text names;
  std::vector<Text> sorted;
  for (const Ref<IControl>& control : Controls()) {
    sorted.push_back(control->UserName());
    names += Text(u" ") + sorted.back();
  }
  std::ranges::stable_sort(sorted, SortsBefore);
  ComboWidget& combo = *m_Core.controlsCombo;
  for (const Text& name : sorted) {
    combo.AddItem(name);
    combo.SetItemData(combo.ListCount() - 1, static_cast<std::int32_t>(name.Size()));
  }
  if (!names.IsEmpty()) names += u" ";
  return names;
}

std::vector<Ref<IControl>> Navigator::Controls() const {
  std::vector<Ref<IControl>> controls;
  if (!m_Controls) return controls;
  const auto each = m_Controls->Enumerate();
  for (Variant item; each->Next(item);)
    if (IControl* control = AsControl(item)) controls.emplace_back(control);
  return controls;
}

Ref<IControl> Navigator::FindControlByName(std::u16string_view name) const {
  for (const Ref<IControl>& control : Controls())
    if (EqualsNoCase(control->UserName(), name)) return control;
  return nullptr;
}

Text Navigator::ChosenControl() const {
  const int index = m_Core.controlsCombo->ListIndex();
  if (index < 1) return {};
  const auto length = static_cast<std::size_t>(m_Core.controlsCombo->ItemData(index));
  return m_Core.controlsCombo->ListText(index).View().substr(0, length);
}

Text Navigator::ChosenEvent() const {
  const int index = m_Core.eventsCombo->ListIndex();
  return index < 0 ? Text() : WithoutMark(m_Core.eventsCombo->ListText(index));
}

void Navigator::OnControlChosen() {
  if (m_IsRefreshing) return;
  const int index = m_Core.controlsCombo->ListIndex();
  if (index >= 0 && index == m_LastControl) return FocusPad(m_Core);
  m_Core.eventsCombo->Clear();
  if (index == 0) {
    const bool isReadable = BestEffort([this] { FillProcedures(); });
    if (!m_IsSyncing && m_Core.eventsCombo->ListCount() > 0) m_Core.eventsCombo->SetListIndex(0);
    if (!isReadable) return;  // so that the list is filled again at the next choice
  } else if (index > 0) {
    FillEvents(ChosenControl());
    if (!m_IsSyncing) OnEventChosen();
  }
  m_LastControl = index;
  FocusPad(m_Core);
}

void Navigator::FillProcedures() {
  m_Core.eventsCombo->AddItem(kDeclarations);
  for (const Text& name : ProceduresOfScript(m_Core.language, m_Core.pad->Contents()))
    if (!IsEventProcedure(name)) m_Core.eventsCombo->AddItem(name);
}

bool Navigator::IsEventProcedure(std::u16string_view procedure) const {
  for (const Ref<IControl>& control : Controls())
    for (const Text& event : control->Events())
      if (EqualsNoCase(BuildEventName(control->UserName(), event), procedure)) return true;
  return false;
}

void Navigator::FillEvents(const Text& name) {
  const Ref<IControl> control = FindControlByName(name);
  if (!control) return;
  const Text script = m_Core.pad->Contents();
  for (const Text& event : control->Events()) {
    const bool isWritten = FindInScript(script, BuildEventName(name, event)) != 0;
    m_Core.eventsCombo->AddItem(isWritten ? event + kMark : event);
  }
}

void Navigator::OnEventChosen() {
  if (m_IsSyncing) return;
  const FlagScope going(m_IsGoing);
  const int control = m_Core.controlsCombo->ListIndex();
  const int event = m_Core.eventsCombo->ListIndex();
  if (control == 0 && event < 1) {
    if (event == 0) m_Core.pad->SetSelStart(0);
    return FocusPad(m_Core);
  }
  const Text name = ChosenControl();
  if (control > 0 && event < 0) return ChooseFirstWritten(name);
  if (event >= 0) GoToProcedure(name, ChosenEvent());
}

// Choosing an entry runs the handler again. Where nothing is written yet nothing is chosen by the author, so
// the first entry is shown and no procedure made.
void Navigator::ChooseFirstWritten(const Text& control) {
  ComboWidget& events = *m_Core.eventsCombo;
  const Text script = m_Core.pad->Contents();
  for (int i = 0; i < events.ListCount(); ++i) {
    if (FindInScript(script, BuildEventName(control, WithoutMark(events.ListText(i)))) == 0) continue;
    events.SetListIndex(i);
    return;
  }
  if (events.ListCount() == 0) return;
  const FlagScope syncing(m_IsSyncing);
  events.SetListIndex(0);
}

void Navigator::GoToProcedure(const Text& control, const Text& event) {
  Lexipad& pad = *m_Core.pad;
  const Text name = BuildEventName(control, event);
  const std::size_t found = FindInScript(pad.Contents(), name);
  const std::int32_t start = found != 0 ? static_cast<std::int32_t>(found) : WriteProcedure(name);
  const std::int32_t lineEnd =
      pad.Find(kLineEnd, start + static_cast<std::int32_t>(name.Size()), {}, FindOption::KeepSelection);
  pad.SetSelStart(lineEnd >= 0 ? lineEnd + static_cast<std::int32_t>(kLineEnd.size()) : start);
  m_Core.lastLine = pad.CurrentLine();
  FocusPad(m_Core);
}

std::int32_t Navigator::WriteProcedure(const Text& name) {
  Lexipad& pad = *m_Core.pad;
  const Text& language = Module().scriptLanguage;
  const bool isVbscript = EqualsNoCase(language, u"vbscript");
  std::int32_t start = 0;
  {
    const PadUpdate update(pad);
    pad.SetSelStart(pad.TextLength());
    if (pad.TextRange(pad.TextLength() - 2, 2) != kLineEnd) pad.SetSelText(kLineEnd);
    start = pad.TextLength();
    pad.SetSelStart(start);
    // The brace that opens a JScript procedure is the author's to write.
    const Text blanks(std::u16string(static_cast<std::size_t>(pad.TabSize()), u' '));
    pad.SetSelText(BuildProcedureHeader(name, language) + u")" + kLineEnd + blanks + kLineEnd +
                   (isVbscript ? u"End Sub" : u"}"));
    for (std::int32_t line = pad.LineFromChar(start); line <= pad.LineCount(); ++line)
      pad.Reformat(ReformatMode::Line, line);
  }
  ComboWidget& events = *m_Core.eventsCombo;
  if (const int index = events.ListIndex(); index >= 0 && ChosenControl().Size() > 0)
    events.SetListText(index, WithoutMark(events.ListText(index)) + kMark);
  return start;
}

void Navigator::UpdateEventMark() {
  ComboWidget& events = *m_Core.eventsCombo;
  const int index = events.ListIndex();
  if (m_Core.controlsCombo->ListIndex() < 1 || index < 0) return;
  const Text entry = events.ListText(index);
  if (entry.IsEmpty() || entry[entry.Size() - 1] != kMark[0]) return;
  const Lexipad& pad = *m_Core.pad;
  const Text name = BuildEventName(ChosenControl(), WithoutMark(entry));
  const Text header = BuildProcedureHeader(name, Module().scriptLanguage);
  // Each key press asks. Most often the procedure is where it was, or moved by what was typed before it.
  std::int32_t at = m_MarkedAt;
  if (!IsHeaderAt(pad, header, at)) at += pad.TextLength() - m_MarkedLength;
  if (!IsHeaderAt(pad, header, at)) at = static_cast<std::int32_t>(FindInScript(pad.Contents(), name)) - 1;
  m_MarkedAt = at;
  m_MarkedLength = pad.TextLength();
  if (at < 0) events.SetListText(index, WithoutMark(entry));
}

void Navigator::FollowCaret() {
  if (m_IsGoing || m_Core.controlsCombo->ListCount() == 0) return;
  const ProcedureName procedure = ProcedureAtCaret(*m_Core.pad, m_Core.language);
  const FlagScope syncing(m_IsSyncing);
  SelectControl(procedure.control);
  SelectEvent(procedure.event);
  if (m_Core.controlsCombo->ListIndex() >= 0 || procedure.control.IsEmpty() || procedure.event.IsEmpty())
    return;
  // A free procedure with an underscore in its name.
  SelectControl({});
  SelectEvent(BuildEventName(procedure.control, procedure.event));
}

// A script that does not compile leaves the list of its procedures half filled.
void Navigator::SelectControl(std::u16string_view name) {
  const int index = name.empty() ? 0 : FindEntry(*m_Core.controlsCombo, name);
  BestEffort([&] { m_Core.controlsCombo->SetListIndex(index); });
}

void Navigator::SelectEvent(std::u16string_view event) {
  ComboWidget& events = *m_Core.eventsCombo;
  int index = event.empty() ? 0 : FindEntry(events, event);
  if (index < 0) index = FindEntry(events, Text(event) + kMark);
  if (index < 0 || index >= events.ListCount()) index = 0;
  if (events.ListCount() > 0) events.SetListIndex(index);
}

int Navigator::FindEntry(const ComboWidget& combo, std::u16string_view text) const {
  return FindListItem(combo, text, {.matchCase = m_Core.pad->Language().caseSensitive, .exact = true});
}

}  // namespace cardwright
