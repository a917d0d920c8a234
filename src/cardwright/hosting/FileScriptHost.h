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

/// One run of a script with all that belongs to it. What stops it stops it for good: nothing in the script
/// can catch WScript.Quit, Ctrl+C or the failure of an event procedure.
class FileScriptHost final : public ScriptHost {
 public:
  FileScriptHost(const ScriptJob& job, const ScriptLanguage& language, ScriptSurroundings& surroundings,
                 const StandardStreams& streams);
  ~FileScriptHost() override;

  /// Runs the source; gives the exit status.
  int Run(const Text& source);

  /// @name What the object WScript does
  /// @{
  const ScriptJob& Job() const noexcept { return m_Job; }
  const Text& Program() const noexcept { return m_Surroundings.program; }
  const StandardStreams& Streams() const noexcept { return m_Streams; }
  /// As the script's language shows it.
  Text TextOf(const Variant& value) { return m_Engine->TextOf(value); }
  EventSinks& Events() noexcept { return m_Events; }
  Ref<Object> Create(std::u16string_view progid) { return m_Surroundings.classes.Create(progid); }
  /// Waits and serves events meanwhile; a stop ends it.
  void Sleep(std::chrono::milliseconds time);
  void Quit(int status);
  /// @}

  Ref<Object> CreateObject(std::u16string_view progid, std::u16string_view server) override;
  Ref<Object> GetObject(std::u16string_view path, std::u16string_view progid) override;
  int ShowMessage(const Text& text, int style, const Text& title) override;
  Variant AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                  const Variant& y) override;
  /// After Ctrl+C, which may have come between two calls of the engine.
  bool ShouldStop() override { return InterruptSignal::WasRaised(); }

 private:
  bool IsStopping() const noexcept;
  int Status() const;
  /// Notes an error that nothing in the script caught, and tells of it.
  void Fail(const Error& error);
  void CallEvent(std::u16string_view procedure, Args args);
  /// The script's spelling of a procedure's name, the same one first; empty where it has no such procedure.
  Text SpellingOf(std::u16string_view procedure) const;
  /// Whether a message can be shown to a person in a window. Loads what that takes.
  bool ShowsBoxes();

  const ScriptJob& m_Job;
  const ScriptLanguage& m_Language;
  ScriptSurroundings& m_Surroundings;
  const StandardStreams& m_Streams;
  EventSinks m_Events;
  std::optional<InterruptSignal> m_Signal;
  std::optional<int> m_Quit;
  bool m_HasFailed = false;
  bool m_IsOver = false;
  // Goes first, as objects of the script may use all the others at their end.
  const std::unique_ptr<ScriptEngine> m_Engine;
};

}  // namespace cardwright
