// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "cardwright/automation/Errors.h"
#include "cardwright/hosting/EventSinks.h"
#include "cardwright/hosting/InterruptSignal.h"
#include "cardwright/hosting/ScriptDesktop.h"
#include "cardwright/hosting/ScriptJob.h"
#include "cardwright/hosting/StandardStreams.h"
#include "cardwright/platform/ScriptLanguages.h"

namespace cardwright {

/// Runs one script file and is its host. WScript.Quit, Ctrl+C and an error in an event procedure end the run
/// for good: nothing in the script can catch them.
class FileScriptHost final : public ScriptHost {
 public:
  FileScriptHost(const ScriptJob& job, const ScriptLanguage& language, ScriptEnvironment& environment,
                 const StandardStreams& streams);
  ~FileScriptHost() override;

  /// Runs the source and returns the exit status.
  int Run(const Text& source);

  /// @name For the object WScript
  /// @{
  const ScriptJob& Job() const noexcept { return m_Job; }
  const Text& Program() const noexcept { return m_Environment.program; }
  const StandardStreams& Streams() const noexcept { return m_Streams; }
  /// The value as the script's language displays it.
  Text TextOf(const Variant& value) { return m_Engine->TextOf(value); }
  EventSinks& Events() noexcept { return m_Events; }
  Ref<Object> Create(std::u16string_view progid) { return m_Environment.classes.Create(progid); }
  /// Processes events while it waits; ends early when the script stops.
  void Sleep(std::chrono::milliseconds time);
  void Quit(int status);
  /// @}

  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view server) override;
  Ref<Object> GetObject(std::u16string_view path, std::u16string_view progid) override;
  int ShowMessage(const Text& text, int style, const Text& title) override;
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override;
  /// After Ctrl+C, which may come between two calls of the engine.
  bool ShouldStop() override { return InterruptSignal::WasRaised(); }

 private:
  bool IsStopping() const noexcept;
  int Status() const;
  /// Writes an error that the script did not catch to standard error, and ends the run.
  void ReportError(const Error& error);
  void CallEventProcedure(std::u16string_view procedure, Args args);
  /// The script's spelling of a procedure's name, an exact match first; empty where there is no such
  /// procedure.
  Text ProcedureSpelling(std::u16string_view procedure) const;
  /// Whether a user can see a message box. Loads the desktop if need be.
  bool CanShowMessages();

  const ScriptJob& m_Job;
  const ScriptLanguage& m_Language;
  ScriptEnvironment& m_Environment;
  const StandardStreams& m_Streams;
  EventSinks m_Events;
  std::optional<InterruptSignal> m_Signal;
  std::optional<int> m_Quit;
  bool m_HasFailed = false;
  bool m_HasEnded = false;
  // Destroyed first: the script's objects may use all other members when they end.
  const std::unique_ptr<ScriptEngine> m_Engine;
};

}  // namespace cardwright
