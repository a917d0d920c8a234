// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FileScriptHost.h"

#include <algorithm>
#include <thread>

#include "cardwright/hosting/DefaultButton.h"
#include "cardwright/hosting/ErrorLine.h"
#include "cardwright/hosting/StatementLog.h"
#include "cardwright/hosting/WScript.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

// The longest that Ctrl+C has to wait.
constexpr std::chrono::milliseconds kSlice{50};

}  // namespace

FileScriptHost::FileScriptHost(const ScriptJob& job, const ScriptLanguage& language,
                               ScriptEnvironment& environment, const StandardStreams& streams)
    : m_Job(job),
      m_Language(language),
      m_Environment(environment),
      m_Streams(streams),
      m_Events([this](std::u16string_view procedure, Args args) { CallEventProcedure(procedure, args); }),
      m_Engine(language.makeEngine(*this)) {
  m_Signal.emplace(*m_Engine);
  // Called from handlers of the toolkit, which no error may leave. Output that fails is reported at the end.
  m_Environment.writeLine = [this](const Text& line) { BestEffort([&] { m_Streams.out->WriteLine(line); }); };
  m_Engine->SetTimeout(-1);
  m_Engine->AddObject(u"WScript", MakeRef<WScript>(*this), false);
}

FileScriptHost::~FileScriptHost() {
  m_Signal.reset();
  m_Environment.writeLine = nullptr;
}

int FileScriptHost::Run(const Text& source) {
  StatementLog log(m_Job.file, source, m_Streams, m_Job.traces, m_Job.profiles);
  if (m_Job.traces || m_Job.profiles) m_Engine->SetObserver(&log);
  try {
    m_Engine->AddCode({}, source);
  } catch (const Error& error) {
    ReportError(error);
  }
  m_Engine->SetObserver(nullptr);
  m_Events.DisconnectAll();
  log.WriteProfile();
  // Before the signal handler goes, so that Ctrl+C still stops what objects do in Class_Terminate.
  m_Engine->Close();
  m_HasEnded = true;
  return Status();
}

int FileScriptHost::Status() const {
  if (m_Quit) return *m_Quit;
  if (m_HasFailed) return ExitStatus::kFailed;
  if (!InterruptSignal::WasRaised()) return 0;
  m_Streams.WriteErrorLine(m_Job.file + u": interrupted");
  return ExitStatus::kInterrupted;
}

bool FileScriptHost::IsStopping() const noexcept {
  return m_HasEnded || m_Quit || m_HasFailed || InterruptSignal::WasRaised();
}

void FileScriptHost::ReportError(const Error& error) {
  if (IsStopping()) return;
  m_HasFailed = true;
  ScriptError failure = m_Engine->LastError();
  if (failure.number == 0) {
    failure.number = error.Number();
    failure.description = error.Description();
    failure.source = error.Source();
  }
  m_Streams.WriteErrorLine(ErrorLine(m_Job.file, m_Language.name, failure));
}

// The first end decides the status. Later calls come from objects that end, and only stop those.
void FileScriptHost::Quit(int status) {
  if (!IsStopping()) m_Quit = status;
  m_Engine->Interrupt();
}

void FileScriptHost::Sleep(std::chrono::milliseconds time) {
  m_Streams.out->Flush();
  const auto end = std::chrono::steady_clock::now() + time;
  do {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    const auto slice = std::clamp(left, std::chrono::milliseconds(0), kSlice);
    if (m_Environment.desktop) {
      m_Environment.desktop->ProcessEvents(slice);
    } else {
      std::this_thread::sleep_for(slice);
    }
  } while (!IsStopping() && std::chrono::steady_clock::now() < end);
}

// An error in an event procedure ends the run. It must not reach the object that raised the event, which
// could swallow it or was called by the toolkit.
void FileScriptHost::CallEventProcedure(std::u16string_view procedure, Args args) {
  if (IsStopping()) return;
  const Text spelling = ProcedureSpelling(procedure);
  if (spelling.IsEmpty()) return;
  try {
    m_Engine->Run({}, spelling, args);
  } catch (const Error& error) {
    ReportError(error);
  }
  if (IsStopping()) m_Engine->Interrupt();
}

// Event names are spelled by the objects, so case is ignored even for a case-sensitive language.
Text FileScriptHost::ProcedureSpelling(std::u16string_view procedure) const {
  Text spelling;
  for (const ScriptProcedure& known : m_Engine->Procedures({})) {
    if (known.name == procedure) return known.name;
    if (EqualsNoCase(known.name, procedure)) spelling = known.name;
  }
  return spelling;
}

Ref<Object> FileScriptHost::CreateObject(std::u16string_view progid, std::u16string_view server) {
  if (!server.empty()) Raise(ErrorNumber::ServerNotAvailable);
  return Create(progid);
}

Ref<Object> FileScriptHost::GetObject(std::u16string_view path, std::u16string_view) {
  // No class has running objects or makes one of a file.
  if (!path.empty()) Raise(ErrorNumber::FileOrClassNotFound);
  Raise(ErrorNumber::CannotCreateObject);
}

bool FileScriptHost::CanShowMessages() {
  if (m_Environment.hasDisplay) m_Environment.classes.Load();
  return m_Environment.desktop && m_Environment.desktop->HasDisplay() && Module().desktop;
}

int FileScriptHost::ShowMessage(const Text& text, int style, const Text& title) {
  if (CanShowMessages()) return Module().desktop->ShowMessage(text, style, title);
  m_Streams.out->WriteLine(text);
  return DefaultButton(style);
}

Variant FileScriptHost::AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                                const Variant& y) {
  if (CanShowMessages()) return Module().desktop->AskText(prompt, title, initial, x, y);
  m_Streams.out->WriteLine(prompt);
  return initial;
}

}  // namespace cardwright
