#include "cardwright/hosting/FileScriptHost.h"

#include <algorithm>
#include <thread>

#include "cardwright/hosting/ErrorLine.h"
#include "cardwright/hosting/MessageBoxes.h"
#include "cardwright/hosting/StatementLog.h"
#include "cardwright/hosting/WScript.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

// As long as Ctrl+C may have to wait.
constexpr std::chrono::milliseconds kSlice{50};

}  // namespace

FileScriptHost::FileScriptHost(const ScriptJob& job, const ScriptLanguage& language,
                               ScriptSurroundings& surroundings, const StandardStreams& streams)
    : m_Job(job),
      m_Language(language),
      m_Surroundings(surroundings),
      m_Streams(streams),
      m_Events([this](std::u16string_view procedure, Args args) { CallEvent(procedure, args); }),
      m_Engine(language.makeEngine(*this)) {
  m_Signal.emplace(*m_Engine);
  // Boxes come up in handlers of the toolkit, which no error may pass; output that fails is told of in the
  // end.
  m_Surroundings.say = [this](const Text& line) { Attempt([&] { m_Streams.out->WriteLine(line); }); };
  m_Engine->SetTimeout(-1);
  m_Engine->AddObject(u"WScript", MakeRef<WScript>(*this), false);
}

FileScriptHost::~FileScriptHost() {
  m_Signal.reset();
  m_Surroundings.say = nullptr;
}

int FileScriptHost::Run(const Text& source) {
  StatementLog log(m_Job.file, source, m_Streams, m_Job.traces, m_Job.profiles);
  if (m_Job.traces || m_Job.profiles) m_Engine->SetObserver(&log);
  try {
    m_Engine->AddCode({}, source);
  } catch (const Error& error) {
    Fail(error);
  }
  m_Engine->SetObserver(nullptr);
  m_Events.Clear();
  log.TellTimes();
  // While Ctrl+C still reaches what objects do at their end.
  m_Engine->Close();
  m_IsOver = true;
  return Status();
}

int FileScriptHost::Status() const {
  if (m_Quit) return *m_Quit;
  if (m_HasFailed) return ExitStatus::kFailed;
  if (!InterruptSignal::WasRaised()) return 0;
  m_Streams.Tell(m_Job.file + u": interrupted");
  return ExitStatus::kInterrupted;
}

bool FileScriptHost::IsStopping() const noexcept {
  return m_IsOver || m_Quit || m_HasFailed || InterruptSignal::WasRaised();
}

void FileScriptHost::Fail(const Error& error) {
  if (IsStopping()) return;
  m_HasFailed = true;
  ScriptError failure = m_Engine->LastError();
  if (failure.number == 0) {
    failure.number = error.Number();
    failure.description = error.Description();
    failure.source = error.Source();
  }
  m_Streams.Tell(ErrorLine(m_Job.file, m_Language.name, failure));
}

// What ended the run first says how; later calls come from objects at their end, which they stop only.
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
    if (m_Surroundings.desktop) {
      m_Surroundings.desktop->Serve(slice);
    } else {
      std::this_thread::sleep_for(slice);
    }
  } while (!IsStopping() && std::chrono::steady_clock::now() < end);
}

// An error in an event procedure must not reach the object that raised the event, which could swallow it, and
// which the toolkit may have called. It ends the run instead.
void FileScriptHost::CallEvent(std::u16string_view procedure, Args args) {
  if (IsStopping()) return;
  const Text spelling = SpellingOf(procedure);
  if (spelling.IsEmpty()) return;
  try {
    m_Engine->Run({}, spelling, args);
  } catch (const Error& error) {
    Fail(error);
  }
  if (IsStopping()) m_Engine->Interrupt();
}

// Names of events are the objects' own, whatever the case, also where the language tells cases apart.
Text FileScriptHost::SpellingOf(std::u16string_view procedure) const {
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
  // No class keeps a running object or makes one of a file.
  if (!path.empty()) Raise(ErrorNumber::FileOrClassNotFound);
  Raise(ErrorNumber::CannotCreateObject);
}

bool FileScriptHost::ShowsBoxes() {
  if (m_Surroundings.hasDisplay) m_Surroundings.classes.Load();
  return m_Surroundings.desktop && m_Surroundings.desktop->HasDisplay() && Module().desktop;
}

int FileScriptHost::ShowMessage(const Text& text, int style, const Text& title) {
  if (ShowsBoxes()) return Module().desktop->ShowMessage(text, style, title);
  m_Streams.out->WriteLine(text);
  return DefaultButton(style);
}

Variant FileScriptHost::AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                                const Variant& y) {
  if (ShowsBoxes()) return Module().desktop->AskText(prompt, title, initial, x, y);
  m_Streams.out->WriteLine(prompt);
  return initial;
}

}  // namespace cardwright
