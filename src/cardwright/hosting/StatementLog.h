// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <vector>

#include "cardwright/automation/Text.h"
#include "cardwright/hosting/StandardStreams.h"
#include "cardwright/platform/ScriptEngine.h"

namespace cardwright {

/// The lines of a script, for messages.
class SourceLines {
 public:
  explicit SourceLines(const Text& source);
  std::size_t Count() const noexcept { return m_Lines.size(); }
  /// By number from 1, without the blanks at both ends; empty where there is none.
  std::u16string_view Line(int number) const noexcept;

 private:
  Text m_Source;
  std::vector<std::u16string_view> m_Lines;
};

/// Writes to standard error, as wanted: each statement before it runs, "FILE:LINE: source text", and at the
/// end the time that each line took.
class StatementLog final : public ScriptObserver {
 public:
  StatementLog(const Text& file, const Text& source, const StandardStreams& streams, bool traces,
               bool profiles)
      : m_File(file), m_Lines(source), m_Streams(streams), m_Traces(traces), m_Profiles(profiles) {}

  void OnStatement(std::u16string_view module, int line, int column) override;
  void OnReturn(std::u16string_view module, int line, int column) override;
  /// The table of times, the longest first. A line's time ends when the next statement begins: it excludes
  /// the procedures that the line calls, but includes code that it executes by Eval or Execute.
  void WriteProfile();

 private:
  using Clock = std::chrono::steady_clock;
  struct Cost {
    Clock::duration time{};
    std::uint64_t count = 0;
  };

  void Trace(int line);
  void EndStatement(Clock::time_point now) noexcept;
  void Begin(int line);

  const Text m_File;
  const SourceLines m_Lines;
  const StandardStreams& m_Streams;
  const bool m_Traces, m_Profiles;
  std::vector<Cost> m_Costs;  // by line number
  std::size_t m_Current = 0;  // line number of the running statement, 0 before the first
  Clock::time_point m_Begin;
};

}  // namespace cardwright
